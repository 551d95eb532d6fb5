#include "toolkit/qt/placement.h"

#include <algorithm>

#include "toolkit/form.h"

namespace vrask::qt {

const Element* Placement::containerOf(const Element& e) const {
  if (e.container.empty()) return nullptr;
  ElementArray* holder = form_.findArray(e.container);
  return holder == nullptr ? nullptr : &(*holder)[holder->lo()];
}

QPointF Placement::originOf(const Element& e) const {
  const Element* holder = containerOf(e);
  if (holder == nullptr) return {};
  return originOf(*holder) + QPointF(holder->Left, holder->Top);
}

QPointF Placement::lineStart(const Element& e) const {
  return originOf(e) + QPointF(e.X1, e.Y1);
}

QPointF Placement::lineEnd(const Element& e) const {
  return originOf(e) + QPointF(e.X2, e.Y2);
}

QRectF Placement::rectOf(const Element& e) const {
  if (e.kind == Kind::Line) return QRectF(lineStart(e), lineEnd(e)).normalized();
  return QRectF(originOf(e) + QPointF(e.Left, e.Top), QSizeF(e.Width, e.Height));
}

bool Placement::shown(const Element& e) const {
  if (!e.Visible) return false;
  const Element* holder = containerOf(e);
  return holder == nullptr || shown(*holder);
}

std::optional<QRectF> Placement::clipOf(const Element& e) const {
  const Element* holder = containerOf(e);
  if (holder == nullptr) return std::nullopt;
  QRectF inside = rectOf(*holder);
  if (auto outer = clipOf(*holder)) inside = inside.intersected(*outer);
  return inside;
}

Element* Placement::topmostAt(QPointF twips,
                              const std::function<bool(const Element&)>& accept) const {
  // Later in design order is painted later, so it is on top.
  const std::vector<ElementArray*>& order = form_.designOrder();
  for (size_t a = order.size(); a-- > 0;) {
    ElementArray& array = *order[a];
    for (int i = array.hi(); i >= array.lo(); --i) {
      Element& e = array[i];
      if (!shown(e) || !accept(e) || !rectOf(e).contains(twips)) continue;
      std::optional<QRectF> clip = clipOf(e);
      if (clip && !clip->contains(twips)) continue;
      return &e;
    }
  }
  return nullptr;
}

ViewScale::ViewScale(QSizeF designTwips, QSizeF widgetPixels) {
  if (designTwips.isEmpty() || widgetPixels.isEmpty()) return;
  factor_ = std::min(widgetPixels.width() / designTwips.width(),
                     widgetPixels.height() / designTwips.height());
  QSizeF shownSize = designTwips * factor_;
  offset_ = QPointF((widgetPixels.width() - shownSize.width()) / 2,
                    (widgetPixels.height() - shownSize.height()) / 2);
}

QRectF ViewScale::toPixels(const QRectF& twips) const {
  return QRectF(toPixels(twips.topLeft()), twips.size() * factor_);
}

}  // namespace vrask::qt
