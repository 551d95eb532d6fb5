#include "boards/zorvex/tables.h"

#include <algorithm>
#include <stdexcept>

namespace vrask::cube {

namespace {

constexpr int kSide = 3;  // nodes along each axis

Node plus(Node n, Node d) {
  return {n.x + d.x, n.y + d.y, n.z + d.z};
}

constexpr Node kAlongX{1, 0, 0};
constexpr Node kAlongY{0, 1, 0};
constexpr Node kDown{0, 0, 1};

using LineEnds = std::array<Ends, kLines + 1>;

// Every line from the numbering rule of its kind.
LineEnds buildLineEnds() {
  LineEnds ends{};
  for (int z = 0; z < kSide; ++z) {
    for (int x = 0; x < kSide; ++x) {
      for (int y = 0; y < kSide; ++y) {
        Node n{x, y, z};
        int alongY = 12 * z + 1 + 2 * x + y;
        int alongX = 12 * z + 12 - 3 * x - y;
        int down = 37 + 9 * z + 3 * x + y;
        if (y < 2) ends.at(static_cast<size_t>(alongY)) = {n, plus(n, kAlongY)};
        if (x < 2) ends.at(static_cast<size_t>(alongX)) = {n, plus(n, kAlongX)};
        if (z < 2) ends.at(static_cast<size_t>(down)) = {n, plus(n, kDown)};
      }
    }
  }
  return ends;
}

const LineEnds& allLineEnds() {
  static const LineEnds ends = buildLineEnds();
  return ends;
}

// A square: its low corner and the two axes it spans, the first one first.
struct SquareFrame {
  Node corner;
  Node first;
  Node second;
};

SquareFrame squareFrame(int square) {
  int g = square - 1;
  int family = g / 12;
  int within = g % 12;
  if (family == 0) {  // horizontal: 4z + 2x + y + 1
    return {{within % 4 / 2, within % 2, within / 4}, kAlongY, kAlongX};
  }
  if (family == 1) {  // the planes y = 0, 1, 2: 13 + 4y + 2z + x
    return {{within % 2, within / 4, within % 4 / 2}, kAlongX, kDown};
  }
  // the planes x = 2, 1, 0: 25 + 4(2 - x) + 2z + y
  return {{2 - within / 4, within % 2, within % 4 / 2}, kAlongY, kDown};
}

std::array<int, 5> linesOfSquare(int square) {
  SquareFrame f = squareFrame(square);
  Node a = plus(f.corner, f.first);
  Node b = plus(f.corner, f.second);
  Node ab = plus(a, f.second);
  return {0, lineBetween(f.corner, a), lineBetween(a, ab), lineBetween(b, ab),
          lineBetween(f.corner, b)};
}

int horizontalSquare(int x, int y, int z) {
  return 4 * z + 2 * x + y + 1;
}
int squareAcrossY(int x, int y, int z) {
  return 13 + 4 * y + 2 * z + x;
}
int squareAcrossX(int x, int y, int z) {
  return 25 + 4 * (2 - x) + 2 * z + y;
}

std::vector<Node> cornersOf(int square) {
  SquareFrame f = squareFrame(square);
  Node a = plus(f.corner, f.first);
  Node b = plus(f.corner, f.second);
  std::vector<Node> corners{f.corner, a, b, plus(a, f.second)};
  return corners;
}

bool sameCorners(std::vector<Node> a, std::vector<Node> b) {
  auto key = [](Node n) { return n.x * 100 + n.y * 10 + n.z; };
  auto less = [&](Node l, Node r) { return key(l) < key(r); };
  std::sort(a.begin(), a.end(), less);
  std::sort(b.begin(), b.end(), less);
  return a == b;
}

using Turns = std::array<std::array<int, kSquares + 1>, kViews + 1>;

// What each drawn place shows in each view: element `R` turned v - 1 times.
template <int N>
std::array<std::array<int, N + 1>, kViews + 1> buildTurns(int (*turn)(int)) {
  std::array<std::array<int, N + 1>, kViews + 1> shows{};
  for (int slot = 1; slot <= N; ++slot) {
    int element = slot;
    for (int v = 1; v <= kViews; ++v) {
      shows.at(static_cast<size_t>(v)).at(static_cast<size_t>(slot)) = element;
      element = turn(element);
    }
  }
  return shows;
}

const auto& lineTurns() {
  static const auto turns = buildTurns<kLines>(turnLine);
  return turns;
}
const auto& squareTurns() {
  static const auto turns = buildTurns<kSquares>(turnSquare);
  return turns;
}

template <typename Table>
int placeOf(const Table& shows, int view, int element) {
  const auto& row = shows.at(static_cast<size_t>(view));
  auto it = std::find(row.begin() + 1, row.end(), element);
  if (it == row.end()) throw std::out_of_range("no such board element");
  return static_cast<int>(it - row.begin());
}

bool parallel(int a, int b) {
  Ends ea = lineEnds(a);
  Ends eb = lineEnds(b);
  Node da{ea.to.x - ea.from.x, ea.to.y - ea.from.y, ea.to.z - ea.from.z};
  Node db{eb.to.x - eb.from.x, eb.to.y - eb.from.y, eb.to.z - eb.from.z};
  return da == db;
}

// The cube a free line takes its colour from, by line index.
constexpr std::array<int, kLines + 1> kColourCube{
    0, 1, 2, 1, 2, 3, 4, 4, 4, 3, 2, 2, 1, 1, 2, 3, 4, 3, 4, 4, 3, 7, 2, 1, 1, 5, 6, 5,
    6, 7, 8, 8, 8, 7, 6, 6, 5, 1, 2, 2, 1, 3, 2, 3, 3, 4, 5, 6, 6, 5, 7, 6, 7, 7, 8};

}  // namespace

Ends lineEnds(int index) {
  return allLineEnds().at(static_cast<size_t>(index));
}

int lineBetween(Node a, Node b) {
  const LineEnds& ends = allLineEnds();
  for (int i = 1; i <= kLines; ++i) {
    const Ends& e = ends.at(static_cast<size_t>(i));
    if ((e.from == a && e.to == b) || (e.from == b && e.to == a)) return i;
  }
  return 0;
}

int lineNumber(int index) {
  Ends e = lineEnds(index);
  Node n = e.from;
  if (e.to.y != n.y) return 21 * n.z + 1 + 2 * n.x + n.y;
  if (e.to.x != n.x) return 21 * n.z + 7 + 3 * n.x + n.y;
  return 21 * n.z + 13 + 3 * n.x + n.y;
}

int lineIndexOfNumber(int number) {
  for (int i = 1; i <= kLines; ++i) {
    if (lineNumber(i) == number) return i;
  }
  return 0;
}

Tables settables() {
  Tables t;
  for (int s = 1; s <= kSquares; ++s) t.squarelines.at(static_cast<size_t>(s)) = linesOfSquare(s);
  for (int z = 0; z < 2; ++z) {
    for (int x = 0; x < 2; ++x) {
      for (int y = 0; y < 2; ++y) {
        int cube = 1 + 4 * z + 2 * x + y;
        auto c = static_cast<size_t>(cube);
        int top = horizontalSquare(x, y, z);
        int bottom = horizontalSquare(x, y, z + 1);
        std::array<int, 7> squares{0,
                                   top,
                                   bottom,
                                   squareAcrossY(x, y, z),
                                   squareAcrossY(x, y + 1, z),
                                   squareAcrossX(x, y, z),
                                   squareAcrossX(x + 1, y, z)};
        std::sort(squares.begin() + 1, squares.end());
        t.cubesquares.at(c) = squares;

        auto& lines = t.cubelines.at(c);
        const auto& topLines = t.squarelines.at(static_cast<size_t>(top));
        const auto& bottomLines = t.squarelines.at(static_cast<size_t>(bottom));
        Node corner{x, y, z};
        std::array<Node, 4> columns{corner, plus(corner, kAlongY), plus(corner, kAlongX),
                                    plus(plus(corner, kAlongX), kAlongY)};
        for (size_t k = 0; k < 4; ++k) {
          lines.at(1 + k) = topLines.at(1 + k);
          lines.at(5 + k) = lineBetween(columns.at(k), plus(columns.at(k), kDown));
          lines.at(9 + k) = bottomLines.at(1 + k);
        }
      }
    }
  }
  return t;
}

std::vector<int> squaresOfLine(int index) {
  std::vector<int> squares;
  for (int s = 1; s <= kSquares; ++s) {
    auto lines = linesOfSquare(s);
    if (std::find(lines.begin() + 1, lines.end(), index) != lines.end()) squares.push_back(s);
  }
  return squares;
}

std::vector<int> cubesOfLine(int index) {
  static const Tables t = settables();
  std::vector<int> cubes;
  for (int c = 1; c <= kCubes; ++c) {
    const auto& lines = t.cubelines.at(static_cast<size_t>(c));
    if (std::find(lines.begin() + 1, lines.end(), index) != lines.end()) cubes.push_back(c);
  }
  return cubes;
}

namespace {

std::vector<int> buildCrossLines(int index) {
  std::vector<int> cross;
  for (int s : squaresOfLine(index)) {
    for (int k = 1; k <= 4; ++k) {
      int other = linesOfSquare(s).at(static_cast<size_t>(k));
      if (other != index && !parallel(other, index)) cross.push_back(other);
    }
  }
  std::sort(cross.begin(), cross.end());
  cross.erase(std::unique(cross.begin(), cross.end()), cross.end());
  return cross;
}

}  // namespace

std::vector<int> crossLines(int index) {
  static const auto all = [] {
    std::array<std::vector<int>, kLines + 1> lines{};
    for (int L = 1; L <= kLines; ++L) lines.at(static_cast<size_t>(L)) = buildCrossLines(L);
    return lines;
  }();
  return all.at(static_cast<size_t>(index));
}

std::array<int, 2> planeNeighbours(int square) {
  int g = (square - 1) % 4;
  int base = square - g;
  int a = base + (g ^ 1);
  int b = base + (g ^ 2);
  return {std::min(a, b), std::max(a, b)};
}

Node turned(Node n) {
  return {2 - n.y, n.x, n.z};
}

int turnLine(int index) {
  Ends e = lineEnds(index);
  return lineBetween(turned(e.from), turned(e.to));
}

int turnSquare(int square) {
  std::vector<Node> corners = cornersOf(square);
  for (Node& n : corners) n = turned(n);
  for (int s = 1; s <= kSquares; ++s) {
    if (sameCorners(cornersOf(s), corners)) return s;
  }
  return 0;
}

int boardLine(int view, int slot) {
  return lineTurns().at(static_cast<size_t>(view)).at(static_cast<size_t>(slot));
}

int slotOfLine(int view, int index) {
  return placeOf(lineTurns(), view, index);
}

int boardSquare(int view, int slot) {
  return squareTurns().at(static_cast<size_t>(view)).at(static_cast<size_t>(slot));
}

int slotOfSquare(int view, int square) {
  return placeOf(squareTurns(), view, square);
}

int designColour(int index) {
  return kCubeColours.at(static_cast<size_t>(kColourCube.at(static_cast<size_t>(index))));
}

const std::vector<Strand>& strands() {
  static const std::vector<Strand> all = [] {
    std::vector<Strand> result;
    for (int L = 1; L <= kLines; ++L) {
      int own = kColourCube.at(static_cast<size_t>(L));
      int offset = 0;
      for (int c : cubesOfLine(L)) {
        if (c == own || offset == 2) continue;
        result.push_back({L, kCubeColours.at(static_cast<size_t>(c)), ++offset});
      }
    }
    return result;
  }();
  return all;
}

bool isSeparator(int mode) {
  return mode == 6 || mode == 10 || mode == 13 || mode == 16;
}

bool isLineGame(int mode) {
  return mode == Ombrel || mode == ZorvexLines || isLineVrask(mode);
}

bool isLineVrask(int mode) {
  return mode == LineVrask || mode == LineVraskBonus;
}

bool isVraskCircleGame(int mode) {
  return mode == VraskClassic || mode == VraskSetCount || mode == VraskMoveSetCount ||
         isSuperVrask(mode);
}

bool isSuperVrask(int mode) {
  return mode == SuperClassic || mode == SuperSetCount || mode == SuperVraskMove;
}

bool isClassic(int mode) {
  return mode == VraskClassic || mode == SuperClassic;
}

bool hasVraskMove(int mode) {
  return mode == VraskMoveSetCount || mode == SuperVraskMove || mode == LineVraskBonus;
}

bool turnsView(int mode) {
  return mode == Ombrel || mode == ZorvexLines || mode == VraskClassic || mode == VraskSetCount ||
         mode == VraskMoveSetCount;
}

}  // namespace vrask::cube
