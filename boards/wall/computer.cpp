#include "boards/wall/computer.h"

namespace vrask::wall {

int computerTarget(const SquareMarks& squaretaken, const std::function<int(int)>& drawnLines,
                   const std::function<bool(int)>& onWallNow) {
  for (int lines = 4; lines >= 1; --lines) {
    for (int s = 1; s <= kSquares; ++s) {
      if (onWallNow(s) && squaretaken.at(s) == 0 && drawnLines(s) == lines) return s;
    }
  }
  return 0;
}

int openingSquare(const std::function<int(int)>& pick, const std::function<bool(int)>& onWallNow) {
  int s = 0;
  do {
    s = pick(kSquares);
  } while (!onWallNow(s));
  return s;
}

}  // namespace vrask::wall
