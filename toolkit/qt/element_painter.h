// Paints the drawn elements of a form: lines, shapes, labels and pictures,
// at the design's place scaled to the window.
#pragma once

#include <QPainter>

#include "toolkit/qt/placement.h"

namespace vrask {
struct Element;
class Form;
}  // namespace vrask

namespace vrask::qt {

class ElementPainter {
 public:
  // Captions are set in `face`, scaled.
  ElementPainter(QPainter& painter, const Placement& placement, const ViewScale& scale,
                 const QPalette& palette, const QFont& face)
      : painter_(painter), placement_(placement), scale_(scale), palette_(palette), face_(face) {}

  // The whole form: its back colour over the whole widget, then every shown
  // element in design order, each cut to the pictures that hold it.
  void paintForm(Form& form);

 private:
  void paint(const Element& e);
  void paintLine(const Element& e);
  void paintShape(const Element& e);
  void paintLabel(const Element& e);
  void paintPicture(const Element& e);
  QPen pen(int colour, int widthInPixels) const;

  QPainter& painter_;
  const Placement& placement_;
  const ViewScale& scale_;
  const QPalette& palette_;
  const QFont& face_;
};

// Word-wrapped, from the top, as a label lays out its caption.
int labelFlags(int alignment);

// A font of `points` at the design's size, scaled to the window.
QFont scaledFont(const QFont& base, double points, bool bold, const ViewScale& scale,
                 int logicalDpi);

}  // namespace vrask::qt
