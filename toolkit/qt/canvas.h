// The painted surface of a form: every drawn element at its scaled place,
// and the mouse routed back to the element under it.
#pragma once

#include <functional>

#include <QWidget>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/placement.h"

namespace vrask::qt {

class Canvas : public QWidget {
 public:
  Canvas(Form& form, FireEvent fire, QWidget* parent);

  ViewScale scale() const;
  const Placement& placement() const { return placement_; }
  // The form is going: nothing of it is painted or touched again.
  void detach() { form_ = nullptr; }

  // Called after every change of size (the controls move with the form).
  void onResize(std::function<void()> resized) { resized_ = std::move(resized); }

  // Where the middle of `e` is on the canvas, in pixels.
  QPoint centreOf(const Element& e) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // The topmost shown element at `pixel` that has the handler `event`
  // (e.g. "_Click") and can be reached now.
  Element* targetAt(QPointF pixel, const std::string& event) const;

  Form* form_;
  FireEvent fire_;
  Placement placement_;
  std::function<void()> resized_;
  Element* pressed_ =
      nullptr;  // the element a press began on: a click needs press and release on it
};

}  // namespace vrask::qt
