#include "boards/tetra4d/layout.h"

#include <array>

namespace vrask::tetra4d::layout {

namespace {

struct Point {
  double x = 0, y = 0;
};

// A cube in oblique view: the front face a square of `side` from its top
// left corner, the back face shifted up and right by `depth`.
struct Figure {
  Point frontTopLeft;
  Point apex;
};

constexpr double kSide = 2800;
constexpr double kDepth = 800;
constexpr double kMiddleSide = 2560;  // the middle cube fills x 7920 to 11280

// Indexed by figure number: 1 left, 2 right, 3 middle.
constexpr std::array<Figure, 4> kFigures{{{},
                                          {{3500, 3800}, {900, 4800}},
                                          {{11900, 3800}, {18300, 4800}},
                                          {{7920, 3700}, {9600, 7500}}}};

// The corner of a cube: x 0 left / 1 right, y 0 top / 1 bottom, z 0 front /
// 1 back.
struct Corner {
  int x, y, z;
};

// Spoke k leaves this corner.
constexpr std::array<Corner, kSpokes> kSpokeCorners{
    {{0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0}, {0, 1, 0}, {0, 1, 1}, {1, 1, 1}, {1, 1, 0}}};

// Edge e (by position) runs between two corners.
constexpr std::array<std::array<Corner, 2>, kEdges + 1> kEdgeCorners{{
    {},
    {{{0, 0, 1}, {1, 0, 1}}},  // backtop
    {{{0, 0, 0}, {0, 0, 1}}},  // lefttop
    {{{1, 0, 0}, {1, 0, 1}}},  // righttop
    {{{0, 0, 0}, {1, 0, 0}}},  // fronttop
    {{{1, 0, 1}, {1, 1, 1}}},  // rightback
    {{{0, 0, 1}, {0, 1, 1}}},  // leftback
    {{{0, 1, 1}, {1, 1, 1}}},  // backbottom
    {{{0, 1, 0}, {0, 1, 1}}},  // leftbottom
    {{{1, 1, 0}, {1, 1, 1}}},  // rightbottom
    {{{0, 0, 0}, {0, 1, 0}}},  // leftfront
    {{{1, 0, 0}, {1, 1, 0}}},  // rightfront
    {{{0, 1, 0}, {1, 1, 0}}},  // frontbottom
}};

const Figure& figure(int f) {
  return kFigures.at(static_cast<size_t>(f));
}

Point at(int f, Corner c) {
  double side = f == 3 ? kMiddleSide : kSide;
  const Point& o = figure(f).frontTopLeft;
  return {o.x + c.x * side + c.z * kDepth, o.y + c.y * side - c.z * kDepth};
}

Point along(Point a, Point b, double fraction) {
  return {a.x + (b.x - a.x) * fraction, a.y + (b.y - a.y) * fraction};
}

Point middle(const Segment& s) {
  return along({s.x1, s.y1}, {s.x2, s.y2}, 0.5);
}

Rect centredOn(Point p, double size) {
  return {p.x - size / 2, p.y - size / 2, size, size};
}

// The figure a slot is clicked in: the first cube on the left, the second
// on the right, each spoke with its apex.
int figureOfSlot(int slot) {
  if (isFirstCube(slot)) return 1;
  if (isSecondCube(slot)) return 2;
  return apexOf(slot);
}

}  // namespace

Segment edgeIn(int f, int e) {
  const auto& ends = kEdgeCorners.at(static_cast<size_t>(e));
  Point a = at(f, ends[0]);
  Point b = at(f, ends[1]);
  return {a.x, a.y, b.x, b.y};
}

Segment spokeIn(int f, int k) {
  Point a = at(f, kSpokeCorners.at(static_cast<size_t>(k)));
  const Point& apex = figure(f).apex;
  return {a.x, a.y, apex.x, apex.y};
}

// A cube edge is hit at its middle, a spoke half way to its apex; a spoke's
// second hit area lies near the apex, where the spokes of the back corners
// come out from behind the cube.
Rect hitArea(int slot, bool second) {
  int f = figureOfSlot(slot);
  if (!isSpoke(slot)) return centredOn(middle(edgeIn(f, edgeOf(slot))), kHit);
  Segment s = spokeIn(f, cornerOf(slot));
  return centredOn(along({s.x1, s.y1}, {s.x2, s.y2}, second ? 0.8 : 0.5), kHit);
}

// A circle sits a little way from the middle of its cube edge towards the
// apex, inside its triangle; the figures leave every circle clear of the
// others.
Rect ringOf(int t) {
  int apex = apexOfRow(t);
  int e = kFamilyPattern.at(static_cast<size_t>((t - 1) % kEdges)).e;
  Point base = middle(edgeIn(apex, e));
  return centredOn(along(base, figure(apex).apex, 0.25), kRing);
}

}  // namespace vrask::tetra4d::layout
