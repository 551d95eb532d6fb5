#include "boards/tetra4d/expert_view.h"

namespace vrask::tetra4d {

LinePosition linePosition(const Board& board) {
  LinePosition position;
  for (int t = 1; t <= kTriangles; ++t) {
    const auto& sides = board.triln.at(static_cast<size_t>(t));
    std::vector<int> lines{sides[2] + 1, sides[3] + 1};
    int edge = edgeOf(sides[1] + 1);
    bool apex2 = t > 2 * kEdges;
    bool apex3 = t > kEdges && !apex2;
    if (board.level == kDualCube && apex2) {
      lines.push_back(cubeSlot(2, edge));
    } else if (board.level == kDualCube && apex3) {
      lines.push_back(cubeSlot(1, edge));
      lines.push_back(cubeSlot(2, edge));
    } else {
      lines.push_back(sides[1] + 1);
    }
    position.cells.push_back(lines);
  }
  position.taken.assign(kSlots + 1, false);
  for (int slot = 1; slot <= kSlots; ++slot) {
    position.taken.at(static_cast<size_t>(slot)) =
        board.lnstate.at(static_cast<size_t>(slot)) != kFree;
  }
  return position;
}

}  // namespace vrask::tetra4d
