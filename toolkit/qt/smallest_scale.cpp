#include "toolkit/qt/smallest_scale.h"

#include <algorithm>

#include <QFontMetricsF>

#include "toolkit/form.h"
#include "toolkit/qt/element_painter.h"
#include "toolkit/qt/placement.h"

namespace vrask::qt {

namespace {

constexpr double kDesignFactor = 1 / kTwipsPerPixel;
// The search looks no lower than this share of the design's size.
constexpr double kLowestShare = 0.2;
// A button's caption needs room for the button's frame on each side.
constexpr double kButtonFrame = 4;

bool hasCaption(const Element& e) {
  return (e.kind == Kind::Label || e.kind == Kind::Button) && !e.Caption.empty() && e.FontSize > 0;
}

}  // namespace

double SmallestScale::of(const Form& form) {
  double smallest = kDesignFactor * kLowestShare;
  for (const ElementArray* array : form.designOrder()) {
    for (const Element& e : *array) {
      if (hasCaption(e)) smallest = std::max(smallest, neededBy(e));
    }
  }
  return smallest;
}

double SmallestScale::neededBy(const Element& e) {
  auto cached = needed_.find(&e);
  if (cached != needed_.end() && cached->second.first == e.Caption) return cached->second.second;
  double needed = 0;
  if (fits(e, kDesignFactor)) {
    double readable = kSmallestTextPixels / (e.FontSize * kTwipsPerPoint);
    // Text does not shrink quite in step with its font: search for the edge.
    double low = kDesignFactor * kLowestShare;
    double high = kDesignFactor;
    for (int step = 0; step < 12; ++step) {
      double middle = (low + high) / 2;
      (fits(e, middle) ? high : low) = middle;
    }
    needed = std::max(readable, high);
  }
  needed_[&e] = {e.Caption, needed};
  return needed;
}

bool SmallestScale::fits(const Element& e, double factor) const {
  QSizeF design(e.Width, e.Height);
  ViewScale scale(design, design * factor);
  QFont font = scaledFont(face_, e.FontSize, e.FontBold, scale, device_.logicalDpiY());
  QFontMetricsF metrics(font, &device_);
  QString caption = QString::fromStdString(e.Caption);
  QSizeF room = design * factor;
  if (e.kind == Kind::Button) {
    return metrics.horizontalAdvance(caption) + 2 * kButtonFrame <= room.width() &&
           metrics.height() + kButtonFrame <= room.height();
  }
  QRectF needed = metrics.boundingRect(QRectF(QPointF(), room), labelFlags(e.Alignment), caption);
  return needed.width() <= room.width() + 0.5 && needed.height() <= room.height() + 0.5;
}

}  // namespace vrask::qt
