#include "boards/hypercube/computer.h"

#include <algorithm>
#include <numeric>

namespace vrask::hypercube {

namespace {

// The free lines, ascending, that `risky` (by slot) does not mark.
std::vector<int> freeLinesBut(const LineValues& lnown, const std::array<bool, kLines + 1>& risky) {
  std::vector<int> lines(kLines);
  std::iota(lines.begin(), lines.end(), 1);
  std::erase_if(lines, [&](int slot) { return lnown.at(slot) != 0 || risky.at(slot); });
  return lines;
}

}  // namespace

SquareValues countPaintedSides(const SideValues& sqside) {
  SquareValues counts{};
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = 1; k <= 4; ++k) counts.at(s) += sqside.at(s).at(k) != 0 ? 1 : 0;
  }
  return counts;
}

int lineToTake(const SideTable& sqln, const SideValues& sqside, const SquareValues& sidecount) {
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) != 3) continue;
    for (int k = 1; k <= 4; ++k) {
      if (sqside.at(s).at(k) == 0) return sqln.at(s).at(k);
    }
  }
  return 0;
}

std::vector<int> safeLines(const SideTable& sqln, const SquareValues& sidecount,
                           const LineValues& lnown) {
  std::array<bool, kLines + 1> risky{};
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) != 2) continue;
    for (int k = 1; k <= 4; ++k) risky.at(sqln.at(s).at(k)) = true;
  }
  return freeLinesBut(lnown, risky);
}

std::vector<int> freeLines(const LineValues& lnown) {
  return freeLinesBut(lnown, {});
}

int squareToTake(const SquareValues& sidecount, const SquareValues& sqtaken) {
  for (int sides = 4; sides >= 1; --sides) {
    for (int s = 1; s <= kSquares; ++s) {
      if (sqtaken.at(s) == 0 && sidecount.at(s) == sides) return s;
    }
  }
  return 0;
}

}  // namespace vrask::hypercube
