#include "boards/triangular/layout.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace vrask::triangular::layout {

namespace {

constexpr double kBoardTop = 720;    // the top row of points
constexpr double kRowStep = 1440;    // from one row of points to the next
constexpr double kPointStep = 1560;  // between two points of a row
constexpr double kCircle = 495;      // a circle's box
constexpr double kNumberDrop = 40;   // the cell's number, below the circle's top

// The leftmost point of each row: the left edge steps 720 twips a row in the
// upper half and 840 in the lower, so the figure is not quite symmetric.
constexpr std::array<double, kVertexRows> kRowLeft{2640, 1920, 1200, 480, 1320, 2160, 3000};

constexpr double kStripWide = 255;  // a lying line's hit strip, across the line
constexpr double kStripLong = 735;  // ... and along it
constexpr double kSlantWide = 390;  // a slanted line's hit box: the middle half
constexpr double kSlantHigh = 720;  // of the box the line crosses

// The one lying line that the design stores from left to right.
constexpr int kLeftToRight = 22;

}  // namespace

Point pointAt(Vertex v) {
  int j = (v.column - std::abs(3 - v.row)) / 2;
  return {kRowLeft.at(static_cast<size_t>(v.row)) + kPointStep * j, kBoardTop + kRowStep * v.row};
}

Segment lineAt(int line) {
  auto [a, b] = endsOf(line);
  Point p = pointAt(a), q = pointAt(b);
  if (line <= kHorizontalLines && line != kLeftToRight) std::swap(p, q);
  return {p.x, p.y, q.x, q.y};
}

Rect stripAt(int line) {
  Segment s = lineAt(line);
  double midX = (s.x1 + s.x2) / 2, midY = (s.y1 + s.y2) / 2;
  if (line <= kHorizontalLines) {
    return {midX - kStripLong / 2, midY - kStripWide / 2, kStripLong, kStripWide};
  }
  return {midX - kSlantWide / 2, midY - kSlantHigh / 2, kSlantWide, kSlantHigh};
}

Rect circleAt(int cell) {
  Point centre;
  for (Vertex corner : cornersOf(cell)) {
    Point p = pointAt(corner);
    centre.x += p.x / 3;
    centre.y += p.y / 3;
  }
  return {centre.x - kCircle / 2, centre.y - kCircle / 2, kCircle, kCircle};
}

Rect numberAt(int cell) {
  Rect r = circleAt(cell);
  r.top += kNumberDrop;
  return r;
}

}  // namespace vrask::triangular::layout
