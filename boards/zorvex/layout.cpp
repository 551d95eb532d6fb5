#include "boards/zorvex/layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace vrask::cube::layout {

namespace {

// Where the nodes of the top layer stand, by (x, y); the layers below keep
// x and drop by the heights of their own row.
struct Column {
  double x;
  std::array<double, 3> y;  // z = 0, 1, 2
};
constexpr std::array<std::array<Column, 3>, 3> kNodes{{
    {{{840, {2640, 5280, 7800}}, {3120, {1680, 4320, 6600}}, {5040, {960, 3480, 5640}}}},
    {{{3480, {3000, 5760, 8400}}, {5760, {1920, 4680, 7020}}, {7440, {1080, 3680, 5880}}}},
    {{{6720, {3360, 6240, 9000}}, {8640, {2160, 5040, 7440}}, {10200, {1230, 3960, 6180}}}},
}};

// The hit zones of each drawn line, by line index.
const std::array<std::vector<int>, kLines + 1> kZonesOfLine{{
    {},           {0},          {1},         {10, 94}, {9},          {59, 60}, {61},
    {8},          {7, 72},      {6, 73, 95}, {2},      {4, 5},       {3},      {37},
    {38, 39},     {51, 52, 53}, {54, 55},    {56, 57}, {58},         {49, 50}, {47, 48, 93},
    {45, 46, 97}, {42, 43, 92}, {40, 41},    {44},     {62},         {63, 64}, {74, 75, 76},
    {71},         {83, 84, 85}, {86, 87},    {67, 68}, {77, 78},     {81, 82}, {65, 66},
    {69, 70},     {79, 80},     {14},        {12, 13}, {11, 89, 96}, {21},     {23, 24},
    {26, 27, 88}, {31},         {33},        {35},     {15},         {16, 17}, {18, 19, 20},
    {22},         {25, 90, 91}, {28, 29},    {32},     {30, 34},     {36},
}};

constexpr double kZoneThickness = 240;  // across the line
constexpr double kZoneInset = 0.12;     // the ends of a line are left to the lines that meet there
constexpr double kStrandGap = 45;
constexpr double kNumberWidth = 360;
constexpr double kNumberHeight = 240;
constexpr double kNumberOffset = 190;
constexpr double kRing = 450;
constexpr double kCircle = 390;

struct ZoneOf {
  int line;
  int stretch;  // which of its zones, in the order listed
  int of;       // how many it has
};

std::array<ZoneOf, kZones> buildZones() {
  std::array<ZoneOf, kZones> zones{};
  for (int L = 1; L <= kLines; ++L) {
    const std::vector<int>& list = kZonesOfLine.at(static_cast<size_t>(L));
    for (size_t i = 0; i < list.size(); ++i) {
      zones.at(static_cast<size_t>(list[i])) = {L, static_cast<int>(i),
                                                static_cast<int>(list.size())};
    }
  }
  return zones;
}

const std::array<ZoneOf, kZones>& zones() {
  static const std::array<ZoneOf, kZones> all = buildZones();
  return all;
}

Point lerp(const Segment& s, double t) {
  return {s.x1 + (s.x2 - s.x1) * t, s.y1 + (s.y2 - s.y1) * t};
}

// A unit vector across the line, turned to the upper right of the screen.
Point across(const Segment& s) {
  double dx = s.x2 - s.x1;
  double dy = s.y2 - s.y1;
  double length = std::hypot(dx, dy);
  Point n{-dy / length, dx / length};
  if (n.x < 0 || (n.x == 0 && n.y > 0)) n = {-n.x, -n.y};
  return n;
}

}  // namespace

Point nodeAt(Node n) {
  const Column& c = kNodes.at(static_cast<size_t>(n.x)).at(static_cast<size_t>(n.y));
  return {c.x, c.y.at(static_cast<size_t>(n.z))};
}

Segment lineAt(int slot) {
  Ends e = lineEnds(slot);
  Point a = nodeAt(e.from);
  Point b = nodeAt(e.to);
  return {a.x, a.y, b.x, b.y};
}

Segment strandAt(int slot, int offset) {
  Segment s = lineAt(slot);
  Point n = across(s);
  double d = kStrandGap * offset;
  return {s.x1 + n.x * d, s.y1 + n.y * d, s.x2 + n.x * d, s.y2 + n.y * d};
}

Segment diagonalAt(int slot) {
  static const Tables t = settables();
  const auto& lines = t.squarelines.at(static_cast<size_t>(slot));
  // The first line leaves the low corner; the second ends at the far one.
  Ends first = lineEnds(lines[1]);
  Ends second = lineEnds(lines[2]);
  Node far = second.to == first.to ? second.from : second.to;
  Point a = nodeAt(first.from);
  Point b = nodeAt(far);
  return {a.x, a.y, b.x, b.y};
}

Point middleOf(int slot) {
  Segment d = diagonalAt(slot);
  return lerp(d, 0.5);
}

int zoneLine(int zone) {
  return zones().at(static_cast<size_t>(zone)).line;
}

int firstZoneOf(int slot) {
  return kZonesOfLine.at(static_cast<size_t>(slot)).front();
}

Rect zoneAt(int zone) {
  const ZoneOf& z = zones().at(static_cast<size_t>(zone));
  Segment s = lineAt(z.line);
  double span = (1 - 2 * kZoneInset) / z.of;
  Point a = lerp(s, kZoneInset + span * z.stretch);
  Point b = lerp(s, kZoneInset + span * (z.stretch + 1));
  double half = kZoneThickness / 2;
  double left = std::min(a.x, b.x) - half;
  double top = std::min(a.y, b.y) - half;
  return {left, top, std::abs(a.x - b.x) + kZoneThickness, std::abs(a.y - b.y) + kZoneThickness};
}

namespace {

double overlap(const Rect& a, const Rect& b) {
  double w = std::min(a.left + a.width, b.left + b.width) - std::max(a.left, b.left);
  double h = std::min(a.top + a.height, b.top + b.height) - std::max(a.top, b.top);
  return w > 0 && h > 0 ? w * h : 0;
}

// How badly a number's box would read at `r`: over another number, or over
// a corner where lines meet.
double crowding(const Rect& r, const std::vector<Rect>& placed) {
  double cost = 0;
  for (const Rect& other : placed) cost += overlap(r, other);
  constexpr double kCorner = 120;
  for (int x = 0; x < 3; ++x) {
    for (int y = 0; y < 3; ++y) {
      for (int z = 0; z < 3; ++z) {
        Point p = nodeAt({x, y, z});
        cost += overlap(r, {p.x - kCorner, p.y - kCorner, 2 * kCorner, 2 * kCorner});
      }
    }
  }
  return cost;
}

// Each number goes beside its line where it crowds the others least: near
// the middle first, on either side, then further along the line.
std::array<Rect, kLines + 1> placeNumbers() {
  std::array<Rect, kLines + 1> places{};
  std::vector<Rect> placed;
  for (int slot = 1; slot <= kLines; ++slot) {
    Segment s = lineAt(slot);
    Point n = across(s);
    Rect best;
    double bestCost = -1;
    for (double t : {0.5, 0.4, 0.6, 0.3, 0.7}) {
      for (double side : {1.0, -1.0}) {
        Point at = lerp(s, t);
        Rect r = centredOn({at.x + side * n.x * kNumberOffset, at.y + side * n.y * kNumberOffset},
                           kNumberWidth, kNumberHeight);
        double cost = crowding(r, placed);
        if (bestCost < 0 || cost < bestCost) {
          best = r;
          bestCost = cost;
        }
      }
    }
    places.at(static_cast<size_t>(slot)) = best;
    placed.push_back(best);
  }
  return places;
}

}  // namespace

Rect numberAt(int slot) {
  static const std::array<Rect, kLines + 1> places = placeNumbers();
  return places.at(static_cast<size_t>(slot));
}

namespace {

Segment otherDiagonal(int slot) {
  Segment d = diagonalAt(slot);
  Point m = lerp(d, 0.5);
  // The corners off the first diagonal mirror each other through the middle.
  static const Tables t = settables();
  Ends first = lineEnds(t.squarelines.at(static_cast<size_t>(slot))[1]);
  Point b = nodeAt(first.to);
  return {b.x, b.y, 2 * m.x - b.x, 2 * m.y - b.y};
}

// A circle stands in the middle of its square unless another circle stands
// there already in the picture; then it moves along a diagonal of its square
// until the two are apart.
std::array<Point, kSquares + 1> placeCircles() {
  std::array<Point, kSquares + 1> places{};
  for (int slot = 1; slot <= kSquares; ++slot) {
    double bestGap = -1;
    for (const Segment& d : {diagonalAt(slot), otherDiagonal(slot)}) {
      for (double t : {0.5, 0.42, 0.58, 0.35, 0.65}) {
        Point at = lerp(d, t);
        double gap = 1e9;
        for (int other = 1; other < slot; ++other) {
          const Point& o = places.at(static_cast<size_t>(other));
          gap = std::min(gap, std::hypot(at.x - o.x, at.y - o.y));
        }
        if (gap > bestGap + 1 && bestGap < kRing + 60) {
          places.at(static_cast<size_t>(slot)) = at;
          bestGap = gap;
        }
      }
    }
  }
  return places;
}

Point circleMiddle(int slot) {
  static const std::array<Point, kSquares + 1> places = placeCircles();
  return places.at(static_cast<size_t>(slot));
}

}  // namespace

Rect ringAt(int slot) {
  return centredOn(circleMiddle(slot), kRing, kRing);
}

Rect circleAt(int slot) {
  return centredOn(circleMiddle(slot), kCircle, kCircle);
}

// A compass under the cube: for each view a needle from its hub towards the
// side of the cube that faces the player, and a bar across its tip.
Segment viewMarkerAt(int i) {
  constexpr Point kHub{1500, 8700};
  constexpr double kNeedle = 420;
  constexpr double kBar = 150;
  int view = i / 2 + 1;
  double angle = M_PI / 2 * (view - 1) + M_PI / 4;
  Point tip{kHub.x + kNeedle * std::cos(angle), kHub.y + kNeedle * std::sin(angle)};
  if (i % 2 == 0) return {kHub.x, kHub.y, tip.x, tip.y};
  Point bar{-std::sin(angle) * kBar, std::cos(angle) * kBar};
  return {tip.x - bar.x, tip.y - bar.y, tip.x + bar.x, tip.y + bar.y};
}

}  // namespace vrask::cube::layout
