// How small a form may be drawn: the smallest scale at which every caption
// still fits its label or button and no text is too small to read.
#pragma once

#include <map>
#include <string>
#include <utility>

#include <QFont>

namespace vrask {
struct Element;
class Form;
}  // namespace vrask

class QPaintDevice;

namespace vrask::qt {

// Text below this many pixels is not readable.
inline constexpr double kSmallestTextPixels = 8;

class SmallestScale {
 public:
  // Text drawn in `face` (the canvas's font) on `device`.
  SmallestScale(QFont face, const QPaintDevice& device) : face_(std::move(face)), device_(device) {}

  // Pixels per twip. A caption that does not fit even at the design's own
  // size sets no bound: it cannot be helped by a larger window.
  double of(const Form& form);

 private:
  double neededBy(const Element& e);
  bool fits(const Element& e, double factor) const;

  QFont face_;
  const QPaintDevice& device_;
  // What each element's caption needs, kept while the caption stays.
  std::map<const Element*, std::pair<std::string, double>> needed_;
};

}  // namespace vrask::qt
