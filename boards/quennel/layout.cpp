#include "boards/quennel/layout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vrask::quennel::layout {

namespace {

struct Point {
  double x, y;
};

// How near the viewer each vertex stands, 1 at the back to 4 in front: the
// solid is seen from above and in front, F and K nearest, G, H and C behind.
// In the order of `vertices()`: V A B C D E F G H I J K M N.
constexpr std::array<int, kVertices> kDepth{2, 3, 3, 1, 2, 4, 4, 1, 1, 2, 3, 4, 2, 3};

Point vertexAt(int v) {
  const Vertex& vertex = vertices().at(static_cast<size_t>(v));
  return {vertex.x, vertex.y};
}

// Pushes points apart, a little at a time and each towards its own place,
// until none stands nearer another than `gap`: the middles of faces and of
// lines that lie behind one another in the picture would otherwise cover
// each other.
template <size_t N>
std::array<Point, N> spreadApart(std::array<Point, N> points, double gap) {
  const std::array<Point, N> home = points;
  for (int round = 0; round < 400; ++round) {
    bool moved = false;
    for (size_t i = 1; i < N; ++i) {
      for (size_t j = i + 1; j < N; ++j) {
        double dx = points[j].x - points[i].x;
        double dy = points[j].y - points[i].y;
        double d = std::hypot(dx, dy);
        if (d >= gap) continue;
        if (d < 1) {  // on top of each other: part them sideways
          dx = 1;
          dy = 0;
          d = 1;
        }
        double push = (gap - d) / 2 + 1;
        points[i].x -= dx / d * push;
        points[i].y -= dy / d * push;
        points[j].x += dx / d * push;
        points[j].y += dy / d * push;
        moved = true;
      }
    }
    if (!moved) break;
    for (size_t i = 1; i < N; ++i) {  // a pull home keeps each near its face
      points[i].x += (home[i].x - points[i].x) * 0.02;
      points[i].y += (home[i].y - points[i].y) * 0.02;
    }
  }
  return points;
}

const std::array<Point, kFaces + 1>& faceCentres() {
  static const std::array<Point, kFaces + 1> centres = [] {
    CellLines celllines = startgrids();
    std::array<Point, kFaces + 1> points{};
    for (int f = 1; f <= kFaces; ++f) {
      Point sum{0, 0};
      for (int v : faceVertices(celllines, f)) {
        sum.x += vertexAt(v).x / 3;
        sum.y += vertexAt(v).y / 3;
      }
      points.at(static_cast<size_t>(f)) = sum;
    }
    return spreadApart(points, kCircle + 90);
  }();
  return centres;
}

const std::array<Point, kLines + 1>& lineMiddles() {
  static const std::array<Point, kLines + 1> middles = [] {
    std::array<Point, kLines + 1> points{};
    for (int line = 1; line <= kLines; ++line) {
      const Ends& ends = lineEnds().at(static_cast<size_t>(line));
      Point a = vertexAt(ends.from);
      Point b = vertexAt(ends.to);
      points.at(static_cast<size_t>(line)) = {(a.x + b.x) / 2, (a.y + b.y) / 2};
    }
    return spreadApart(points, std::hypot(kLabelWide, kLabelHigh) + 10);
  }();
  return middles;
}

}  // namespace

int lineWidth(int line) {
  const Ends& ends = lineEnds().at(static_cast<size_t>(line));
  int depth = kDepth.at(static_cast<size_t>(ends.from)) + kDepth.at(static_cast<size_t>(ends.to));
  return std::clamp((depth + 1) / 2, 1, 4);
}

Rect lineLabelAt(int line) {
  Point p = lineMiddles().at(static_cast<size_t>(line));
  return {p.x - kLabelWide / 2, p.y - kLabelHigh / 2, kLabelWide, kLabelHigh};
}

Rect faceCircleAt(int face) {
  Point p = faceCentres().at(static_cast<size_t>(face));
  return {p.x - kCircle / 2, p.y - kCircle / 2, kCircle, kCircle};
}

}  // namespace vrask::quennel::layout
