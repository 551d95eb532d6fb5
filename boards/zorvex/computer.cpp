#include "boards/zorvex/computer.h"

#include <algorithm>

namespace vrask::cube {

namespace {

template <size_t N>
bool holds(const std::array<int, N>& row, int value) {
  return std::find(row.begin() + 1, row.end(), value) != row.end();
}

}  // namespace

PerSquare paintedSides(const SquareInks& squareinks) {
  PerSquare painted{};
  for (int s = 1; s <= kSquares; ++s) {
    const auto& inks = squareinks.at(static_cast<size_t>(s));
    painted.at(static_cast<size_t>(s)) =
        static_cast<int>(std::count_if(inks.begin() + 1, inks.end(), [](int v) { return v != 0; }));
  }
  return painted;
}

int squareToFinish(const PerSquare& painted) {
  for (int s = 1; s <= kSquares; ++s) {
    if (painted.at(static_cast<size_t>(s)) == 3) return s;
  }
  return 0;
}

std::vector<int> freeLines(const PerLine& lineowner) {
  std::vector<int> lines;
  for (int L = 1; L <= kLines; ++L) {
    if (lineowner.at(static_cast<size_t>(L)) == 0) lines.push_back(L);
  }
  return lines;
}

std::vector<int> safeLines(const Tables& t, const PerSquare& painted, const PerLine& lineowner) {
  std::vector<int> safe;
  for (int L : freeLines(lineowner)) {
    bool bad = false;
    for (int s = 1; s <= kSquares && !bad; ++s) {
      bad = painted.at(static_cast<size_t>(s)) == 2 &&
            holds(t.squarelines.at(static_cast<size_t>(s)), L);
    }
    if (!bad) safe.push_back(L);
  }
  return safe;
}

int cubeToFinish(const Tables& t, const CubeFaces& cubefaces) {
  for (int c = 1; c <= kCubes; ++c) {
    const auto& faces = cubefaces.at(static_cast<size_t>(c));
    if (std::count(faces.begin() + 1, faces.end(), 1) != 5) continue;
    for (int k = 1; k <= 6; ++k) {
      if (faces.at(static_cast<size_t>(k)) == 0) {
        return t.cubesquares.at(static_cast<size_t>(c)).at(static_cast<size_t>(k));
      }
    }
  }
  return 0;
}

std::vector<int> squareCandidates(const Tables& t, const CubeFaces& cubefaces,
                                  const PerSquare& circlestate) {
  PerSquare bad{};
  for (int c = 1; c <= kCubes; ++c) {
    const auto& faces = cubefaces.at(static_cast<size_t>(c));
    if (std::count(faces.begin() + 1, faces.end(), 1) != 4) continue;
    for (int k = 1; k <= 6; ++k) {
      if (faces.at(static_cast<size_t>(k)) == 0) {
        bad.at(static_cast<size_t>(
            t.cubesquares.at(static_cast<size_t>(c)).at(static_cast<size_t>(k)))) = 1;
      }
    }
  }
  std::vector<int> candidates;
  for (int s : freeSquares(circlestate)) {
    if (bad.at(static_cast<size_t>(s)) == 0) candidates.push_back(s);
  }
  return candidates.empty() ? freeSquares(circlestate) : candidates;
}

int vraskScan(const PerSquare& painted, const PerSquare& circlestate) {
  for (int wanted = 4; wanted >= 1; --wanted) {
    for (int s = 1; s <= kSquares; ++s) {
      if (circlestate.at(static_cast<size_t>(s)) == 0 &&
          painted.at(static_cast<size_t>(s)) == wanted) {
        return s;
      }
    }
  }
  return 0;
}

std::vector<int> freeSquares(const PerSquare& circlestate) {
  std::vector<int> squares;
  for (int s = 1; s <= kSquares; ++s) {
    if (circlestate.at(static_cast<size_t>(s)) == 0) squares.push_back(s);
  }
  return squares;
}

}  // namespace vrask::cube
