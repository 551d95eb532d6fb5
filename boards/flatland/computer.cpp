#include "boards/flatland/computer.h"

#include <algorithm>

namespace vrask::flatland {

SquareCounts countOwnedSides(const SideOwners& sqowner, int owner) {
  SquareCounts counts{};
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = Top; k <= Left; ++k) {
      int who = sqowner.at(s).at(k);
      if (owner == 0 ? who != 0 : who == owner) ++counts.at(s);
    }
  }
  return counts;
}

SquareCounts countMarkedSides(const SideTable& sqline, const Shows& marked) {
  SquareCounts counts{};
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = Top; k <= Left; ++k) {
      if (marked(sqline.at(s).at(k))) ++counts.at(s);
    }
  }
  return counts;
}

std::vector<int> squaresToComplete(const SquareCounts& sidecount) {
  std::vector<int> squares;
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) == 3) squares.push_back(s);
  }
  return squares;
}

std::vector<int> lineCandidates(const SideTable& sqline, const SquareCounts& sidecount,
                                const LineOwners& lineown, const Shows& lineShows) {
  // The lines of squares with two sides: one more would hand the square over.
  std::vector<int> dangerlist;
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) != 2) continue;
    for (int k = Top; k <= Left; ++k) dangerlist.push_back(sqline.at(s).at(k));
  }
  auto isFree = [&](int line) { return lineown.at(line) == 0 && lineShows(line); };
  auto isDangerous = [&](int line) {
    return std::find(dangerlist.begin(), dangerlist.end(), line) != dangerlist.end();
  };

  std::vector<int> safe;
  std::vector<int> free;
  for (int line = 1; line <= kLines; ++line) {
    if (!isFree(line)) continue;
    free.push_back(line);
    if (!isDangerous(line)) safe.push_back(line);
  }
  return safe.empty() ? free : safe;
}

int vraskTarget(const SquareCounts& sidecount, const SquareCounts& sqdone,
                const Shows& squareShows) {
  auto first = [&](int sides, bool mustBeOpen) {
    for (int s = 1; s <= kSquares; ++s) {
      if (!squareShows(s) || sidecount.at(s) != sides) continue;
      if (!mustBeOpen || sqdone.at(s) == 0) return s;
    }
    return 0;
  };
  // A square with four marked sides and an open circle is of mixed colours:
  // one move turns it whole.
  for (auto [sides, mustBeOpen] : {std::pair{4, true}, {3, false}, {2, false}}) {
    if (int s = first(sides, mustBeOpen)) return s;
  }
  return 0;
}

std::vector<int> openSquares(const SquareCounts& sqdone, const Shows& squareShows) {
  std::vector<int> squares;
  for (int s = 1; s <= kSquares; ++s) {
    if (sqdone.at(s) == 0 && squareShows(s)) squares.push_back(s);
  }
  return squares;
}

}  // namespace vrask::flatland
