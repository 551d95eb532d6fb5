#include "boards/flatland/computer.h"

namespace vrask::flatland {

Counts countOwnedSides(const SideOwners& sqowner, int owner) {
  Counts counts(kSquares + 1, 0);
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = Top; k <= Left; ++k) {
      int who = sqowner.at(s).at(k);
      if (owner == 0 ? who != 0 : who == owner) ++counts.at(s);
    }
  }
  return counts;
}

}  // namespace vrask::flatland
