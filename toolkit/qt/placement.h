// Where the elements of a form stand, in twips, and how the form's design
// maps onto a window of any size.
#pragma once

#include <functional>
#include <optional>

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace vrask {
struct Element;
class Form;
}  // namespace vrask

namespace vrask::qt {

// Twips of the design per pixel of the window when shown at its natural size.
inline constexpr double kTwipsPerPixel = 15;
// Twips in a typographic point.
inline constexpr double kTwipsPerPoint = 20;

// Positions of a form's elements on the form, with the pictures that hold
// them taken into account.
class Placement {
 public:
  explicit Placement(Form& form) : form_(form) {}

  // The element's rectangle on the form, in twips; a line's is the box that
  // bounds it.
  QRectF rectOf(const Element& e) const;
  // A line's two ends on the form, in twips.
  QPointF lineStart(const Element& e) const;
  QPointF lineEnd(const Element& e) const;
  // Visible, and so is every picture that holds it.
  bool shown(const Element& e) const;
  // The area the element is cut to: the inside of the pictures that hold
  // it, or nothing when it stands on the form itself.
  std::optional<QRectF> clipOf(const Element& e) const;
  // The element topmost at `twips` among those that `accept`, or nullptr.
  // Shown elements only; a picture's elements only inside the picture.
  Element* topmostAt(QPointF twips, const std::function<bool(const Element&)>& accept) const;

 private:
  const Element* containerOf(const Element& e) const;
  QPointF originOf(const Element& e) const;

  Form& form_;
};

// One factor that fits the design into the window, keeping its aspect, with
// the design centred in the room left over.
class ViewScale {
 public:
  ViewScale(QSizeF designTwips, QSizeF widgetPixels);

  double factor() const { return factor_; }  // pixels per twip
  QPointF toPixels(QPointF twips) const { return offset_ + twips * factor_; }
  QRectF toPixels(const QRectF& twips) const;
  double toPixels(double twips) const { return twips * factor_; }
  // Nowhere on the design while the window has no size.
  QPointF toTwips(QPointF pixels) const {
    return factor_ > 0 ? (pixels - offset_) / factor_ : QPointF(-1, -1);
  }

 private:
  double factor_ = 0;
  QPointF offset_;
};

}  // namespace vrask::qt
