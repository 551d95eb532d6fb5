#include "boards/tetra4d/expert_view.h"

namespace vrask::tetra4d {

CellBoard triangleCells(int level) {
  const TriangleLines triln = startr();
  std::vector<std::vector<int>> sides{{}};
  for (int t = 1; t <= kTriangles; ++t) {
    const auto& row = triln.at(static_cast<size_t>(t));
    std::vector<int> lines{row[2] + 1, row[3] + 1};
    int edge = edgeOf(row[1] + 1);
    bool apex2 = t > 2 * kEdges;
    bool apex3 = t > kEdges && !apex2;
    if (level == kDualCube && apex2) {
      lines.push_back(cubeSlot(2, edge));
    } else if (level == kDualCube && apex3) {
      lines.push_back(cubeSlot(1, edge));
      lines.push_back(cubeSlot(2, edge));
    } else {
      lines.push_back(row[1] + 1);
    }
    sides.push_back(lines);
  }
  return CellBoard(sides, kSlots);
}

ExpertLines expertLinesOf(const Board& board) {
  return expertLines(
      triangleCells(board.level), [](int) { return true; },
      [&board](int slot) { return board.lnstate.at(static_cast<size_t>(slot)) != kFree; });
}

}  // namespace vrask::tetra4d
