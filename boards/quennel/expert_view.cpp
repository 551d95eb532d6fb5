#include "boards/quennel/expert_view.h"

#include "frame/cell_board.h"

namespace vrask::quennel {

ExpertLines expertLinesOf(const CellLines& celllines, const LineValues& linetaken, int faces) {
  std::vector<std::vector<int>> sides{{}};
  for (int f = 1; f <= kFaces; ++f) {
    sides.emplace_back(celllines.at(f).begin() + 1, celllines.at(f).end());
  }
  return expertLines(
      CellBoard(sides, kLines), [faces](int f) { return f <= faces; },
      [&linetaken](int line) { return linetaken.at(static_cast<size_t>(line)) != 0; });
}

}  // namespace vrask::quennel
