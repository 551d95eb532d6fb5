#include "boards/hypercube/computer.h"

#include <algorithm>

namespace vrask::hypercube {

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
  std::vector<int> lines;
  for (int slot = 1; slot <= kLines; ++slot) {
    if (lnown.at(slot) == 0 && !risky.at(slot)) lines.push_back(slot);
  }
  return lines;
}

std::vector<int> freeLines(const LineValues& lnown) {
  std::vector<int> lines;
  for (int slot = 1; slot <= kLines; ++slot) {
    if (lnown.at(slot) == 0) lines.push_back(slot);
  }
  return lines;
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
