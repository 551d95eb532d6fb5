#include "toolkit/qt/element_painter.h"

#include <algorithm>
#include <cmath>

#include "toolkit/form.h"
#include "toolkit/qt/colors.h"

namespace vrask::qt {

namespace {

// A circle or a square takes the smaller side of its box, centred in it.
QRectF squareIn(const QRectF& box) {
  double side = std::min(box.width(), box.height());
  QRectF square(0, 0, side, side);
  square.moveCenter(box.center());
  return square;
}

// A line of a whole number of pixels lies on the pixel grid, so that a free
// line stays one crisp pixel and not two half-tones.
double onGrid(double pixels, double penWidth) {
  bool odd = static_cast<int>(penWidth) % 2 == 1;
  return odd ? std::floor(pixels) + 0.5 : std::round(pixels);
}

QPointF onGrid(QPointF point, double penWidth) {
  return {onGrid(point.x(), penWidth), onGrid(point.y(), penWidth)};
}

}  // namespace

int labelFlags(int alignment) {
  int horizontal = Qt::AlignLeft;
  if (alignment == AlignRight) horizontal = Qt::AlignRight;
  if (alignment == AlignCenter) horizontal = Qt::AlignHCenter;
  return horizontal | Qt::AlignTop | Qt::TextWordWrap;
}

QFont scaledFont(const QFont& base, double points, bool bold, const ViewScale& scale,
                 int logicalDpi) {
  QFont font = base;
  double pixels = scale.toPixels(points * kTwipsPerPoint);
  font.setPointSizeF(std::max(1.0, pixels * 72.0 / logicalDpi));
  font.setBold(bold);
  return font;
}

void ElementPainter::paintForm(Form& form) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::TextAntialiasing);
  // The room beside a letterboxed design shows the form's own colour, so the
  // board seems to fill the window.
  painter_.fillRect(painter_.window(), toQColor(form.BackColor, palette_));
  for (const ElementArray* array : form.designOrder()) {
    for (const Element& e : *array) {
      if (placement_.shown(e)) paint(e);
    }
  }
}

void ElementPainter::paint(const Element& e) {
  painter_.save();
  if (auto clip = placement_.clipOf(e)) painter_.setClipRect(scale_.toPixels(*clip));
  switch (e.kind) {
    case Kind::Line:
      paintLine(e);
      break;
    case Kind::Shape:
      paintShape(e);
      break;
    case Kind::Label:
      paintLabel(e);
      break;
    case Kind::Picture:
      paintPicture(e);
      break;
    // An image has no picture of its own in this program: it is a place to
    // point at. Controls are widgets; menus and timers are not drawn.
    case Kind::Image:
    case Kind::MenuItem:
    case Kind::ListBox:
    case Kind::TextBox:
    case Kind::Button:
    case Kind::Timer:
      break;
  }
  painter_.restore();
}

// Border widths count pixels of the design; they grow and shrink with it,
// but never below one pixel of the screen.
QPen ElementPainter::pen(int colour, int widthInPixels) const {
  double width = std::max(1.0, scale_.toPixels(widthInPixels * kTwipsPerPixel));
  QPen p(toQColor(colour, palette_), width);
  p.setCapStyle(Qt::RoundCap);
  p.setJoinStyle(Qt::RoundJoin);
  return p;
}

void ElementPainter::paintLine(const Element& e) {
  QPen linePen = pen(e.BorderColor, e.BorderWidth);
  linePen.setWidthF(std::round(linePen.widthF()));
  painter_.setPen(linePen);
  painter_.drawLine(onGrid(scale_.toPixels(placement_.lineStart(e)), linePen.widthF()),
                    onGrid(scale_.toPixels(placement_.lineEnd(e)), linePen.widthF()));
}

void ElementPainter::paintShape(const Element& e) {
  QRectF box = scale_.toPixels(placement_.rectOf(e));
  if (e.Shape == Square || e.Shape == Circle) box = squareIn(box);
  QPen border = pen(e.BorderColor, e.BorderWidth);
  // The border is drawn inside the shape's box.
  double half = border.widthF() / 2;
  box.adjust(half, half, -half, -half);
  auto draw = [&] {
    if (e.Shape == Oval || e.Shape == Circle) {
      painter_.drawEllipse(box);
    } else {
      painter_.drawRect(box);
    }
  };
  // An opaque shape shows its back colour inside the border, under the fill.
  if (e.BackStyle != 0) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(toQColor(e.BackColor, palette_));
    draw();
  }
  painter_.setPen(border);
  painter_.setBrush(e.FillStyle == 0 ? QBrush(toQColor(e.FillColor, palette_)) : Qt::NoBrush);
  draw();
}

void ElementPainter::paintLabel(const Element& e) {
  QRectF box = scale_.toPixels(placement_.rectOf(e));
  if (e.BackStyle != 0) painter_.fillRect(box, toQColor(e.BackColor, palette_));
  if (e.Caption.empty()) return;
  // Every caption from the one face: a painter's font can differ from the
  // face it started with, and the title and its shadow must match exactly.
  painter_.setFont(
      scaledFont(face_, e.FontSize, e.FontBold, scale_, painter_.device()->logicalDpiY()));
  // A disabled label reads greyed, whatever its colour, as people know it.
  painter_.setPen(e.Enabled ? toQColor(e.ForeColor, palette_)
                            : palette_.color(QPalette::Disabled, QPalette::WindowText));
  painter_.drawText(box, labelFlags(e.Alignment), QString::fromStdString(e.Caption));
}

void ElementPainter::paintPicture(const Element& e) {
  QRectF box = scale_.toPixels(placement_.rectOf(e));
  painter_.fillRect(box, toQColor(e.BackColor, palette_));
  painter_.setClipRect(box, Qt::IntersectClip);
  QPointF origin = placement_.rectOf(e).topLeft();
  for (const Stroke& stroke : e.drawing) {
    QPointF from = scale_.toPixels(origin + QPointF(stroke.x1, stroke.y1));
    if (stroke.dot) {
      double radius = std::max(1.0, scale_.toPixels(stroke.x2));
      painter_.setPen(Qt::NoPen);
      painter_.setBrush(toQColor(stroke.color, palette_));
      painter_.drawEllipse(from, radius, radius);
    } else {
      painter_.setPen(pen(stroke.color, 1));
      painter_.drawLine(from, scale_.toPixels(origin + QPointF(stroke.x2, stroke.y2)));
    }
  }
}

}  // namespace vrask::qt
