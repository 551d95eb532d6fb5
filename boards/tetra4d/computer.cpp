#include "boards/tetra4d/computer.h"

namespace vrask::tetra4d {

namespace {

int drawFrom(const std::vector<int>& candidates, const Pick& pick) {
  if (candidates.empty()) return 0;
  return candidates.at(static_cast<size_t>(pick(static_cast<int>(candidates.size())) - 1));
}

}  // namespace

int captureLine(const Board& board) {
  for (int t = kTriangles; t >= 1; --t) {
    if (paintedSides(board, t) != 2) continue;
    for (int s = 1; s <= 3; ++s) {
      if (board.triside.at(static_cast<size_t>(t)).at(static_cast<size_t>(s)) != 0) continue;
      int slot = slotForSide(board, t, s);
      if (slot != 0) return slot;
    }
  }
  return 0;
}

int quietLine(const Board& board, const Pick& pick, bool& forced) {
  std::vector<int> safe = safeLines(board);
  forced = safe.empty();
  return drawFrom(forced ? freeLines(board) : safe, pick);
}

int chooseCircle(const std::vector<int>& open, const Pick& pick) {
  return drawFrom(open, pick);
}

}  // namespace vrask::tetra4d
