#include "boards/wall/layout.h"

#include <functional>

#include "boards/wall/tables.h"

namespace vrask::wall::layout {

namespace {

// Of a cube's side: the circle, the click target round it, and the step of
// the strokes that shade a face.
constexpr double kCircle = 0.2;
constexpr double kTarget = 0.3;
constexpr double kShadeStep = 6;  // twips
// The numbers grow with the cubes: 7 points on the Great Wall.
constexpr double kNumberPoints = 7.0 / 1575;
constexpr double kTwipsPerPoint = 20;

// The top left corner of the front: the wall stands in the middle of its
// room, the back reaching up to the room's top.
Point frontCorner(int bd) {
  double cube = cubeOf(bd);
  double margin = (kBoardSpan - (sideOf(bd) + kDepth) * cube) / 2;
  return {kBoardLeft + margin, kBoardTop + margin + kDepth * cube};
}

Point project(double column, double level, double depth, int bd) {
  double cube = cubeOf(bd);
  Point corner = frontCorner(bd);
  return {corner.x + cube * (column + kDepth * depth), corner.y + cube * (level - kDepth * depth)};
}

Point project(const Corner& c, int bd) {
  return project(c.column, c.level, c.depth, bd);
}

}  // namespace

double cubeOf(int bd) {
  return kBoardSpan / (sideOf(bd) + kDepth);
}

Segment lineAt(int line, int bd) {
  auto [from, to] = endsOf(line);
  Point a = project(from, bd);
  Point b = project(to, bd);
  return {a.x, a.y, b.x, b.y};
}

// The middle of a face is the mean of the middles of its four lines.
Point middleOf(int square, int bd) {
  static const CellLines celllines = startwall();
  Point sum;
  for (int k = 1; k <= 4; ++k) {
    Segment s = lineAt(celllines.at(square).at(k), bd);
    sum.x += (s.x1 + s.x2) / 2;
    sum.y += (s.y1 + s.y2) / 2;
  }
  return {sum.x / 4, sum.y / 4};
}

Rect circleAt(int square, int bd) {
  Point m = middleOf(square, bd);
  double side = kCircle * cubeOf(bd);
  return {m.x - side / 2, m.y - side / 2, side, side};
}

Rect targetAt(int square, int bd) {
  Point m = middleOf(square, bd);
  double half = kTarget * cubeOf(bd) / 2;
  // A caption is drawn from the top of its label; a line of text is about
  // 1.2 times its point size high.
  double textHalf = numberSizeOf(bd) * kTwipsPerPoint * 1.2 / 2;
  return {m.x - half, m.y - textHalf, 2 * half, half + textHalf};
}

double numberSizeOf(int bd) {
  return kNumberPoints * cubeOf(bd);
}

Rect frontOf(int bd) {
  Point corner = frontCorner(bd);
  double side = sideOf(bd) * cubeOf(bd);
  return {corner.x, corner.y, side, side};
}

namespace {

// Strokes side by side from a front edge to the back's: `edge(t)` is the
// edge moved back by t cubes, from 0 to the depth.
std::vector<Segment> strokesBack(int bd, const std::function<Segment(double)>& edge) {
  std::vector<Segment> strokes;
  for (double d = 0; d <= kDepth * cubeOf(bd); d += kShadeStep)
    strokes.push_back(edge(d / cubeOf(bd)));
  return strokes;
}

Segment between(Point a, Point b) {
  return {a.x, a.y, b.x, b.y};
}

}  // namespace

// The top runs back from the front's top edge, the right end from its
// right edge.
std::vector<Segment> topStrokes(int bd) {
  int n = sideOf(bd);
  return strokesBack(
      bd, [&](double t) { return between(project(t, -t, 0, bd), project(n + t, -t, 0, bd)); });
}

std::vector<Segment> endStrokes(int bd) {
  int n = sideOf(bd);
  return strokesBack(bd, [&](double t) {
    return between(project(n + t, -t, 0, bd), project(n + t, n - t, 0, bd));
  });
}

}  // namespace vrask::wall::layout
