#include "toolkit/qt/canvas.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "toolkit/form.h"
#include "toolkit/qt/element_painter.h"

namespace vrask::qt {

namespace {

// Lines and shapes take no clicks; controls are widgets of their own.
bool takesMouse(const Element& e) {
  return e.kind == Kind::Label || e.kind == Kind::Image || e.kind == Kind::Picture;
}

}  // namespace

Canvas::Canvas(Form& form, FireEvent fire, QWidget* parent)
    : QWidget(parent), form_(&form), fire_(std::move(fire)), placement_(form) {
  setMouseTracking(true);
  // Clicks on the board leave the keyboard focus in the text box.
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  // The forms are laid out for a narrow sans-serif face: captions sized to
  // their labels in it would wrap in a wider one.
  QFont face(QStringLiteral("Liberation Sans"));
  face.setStyleHint(QFont::SansSerif);
  setFont(face);
}

void Canvas::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (resized_) resized_();
}

ViewScale Canvas::scale() const {
  if (form_ == nullptr) return ViewScale({}, {});
  return ViewScale(QSizeF(form_->Width, form_->Height), QSizeF(size()));
}

QPoint Canvas::centreOf(const Element& e) const {
  return scale().toPixels(placement_.rectOf(e)).center().toPoint();
}

void Canvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (form_ == nullptr) {
    painter.fillRect(rect(), palette().color(QPalette::Window));
    return;
  }
  ViewScale view = scale();
  ElementPainter(painter, placement_, view, palette(), font()).paintForm(*form_);
}

Element* Canvas::targetAt(QPointF pixel, const std::string& event) const {
  if (form_ == nullptr) return nullptr;
  return placement_.topmostAt(scale().toTwips(pixel), [this, &event](const Element& e) {
    return takesMouse(e) && form_->hasHandler(e.name + event) && !form_->whyUnreachable(e);
  });
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? targetAt(event->position(), "_Click") : nullptr;
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  Element* released =
      event->button() == Qt::LeftButton ? targetAt(event->position(), "_Click") : nullptr;
  Element* pressed = pressed_;
  pressed_ = nullptr;
  if (released != nullptr && released == pressed) fire_(*released, released->name + "_Click", 0);
}

// The second press of a quick double click is a click of its own unless the
// element listens for double clicks: a player who claims two lines in quick
// succession gets both.
void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (Element* target = targetAt(event->position(), "_DblClick")) {
    pressed_ = nullptr;
    fire_(*target, target->name + "_DblClick", 0);
    return;
  }
  mousePressEvent(event);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  Element* clickable = targetAt(event->position(), "_Click");
  setCursor(clickable != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
  if (Element* target = targetAt(event->position(), "_MouseMove")) {
    fire_(*target, target->name + "_MouseMove", 0);
  }
}

bool Canvas::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || form_ == nullptr) return QWidget::event(event);
  auto* help = static_cast<QHelpEvent*>(event);
  // A disabled element shows its tip too: it may say why it is disabled.
  const Element* tipped = placement_.topmostAt(
      scale().toTwips(help->pos()), [](const Element& e) { return !e.ToolTipText.empty(); });
  if (tipped != nullptr) {
    QToolTip::showText(help->globalPos(), QString::fromStdString(tipped->ToolTipText), this);
  } else {
    QToolTip::hideText();
    event->ignore();
  }
  return true;
}

}  // namespace vrask::qt
