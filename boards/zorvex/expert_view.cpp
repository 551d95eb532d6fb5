#include "boards/zorvex/expert_view.h"

namespace vrask::cube {

namespace {

// The cells of a table whose row c lists the sides of cell c from column 1.
template <typename Table>
CellBoard cellsOf(const Table& table, int sides) {
  std::vector<std::vector<int>> cells(table.size());
  for (size_t c = 1; c < table.size(); ++c) cells[c].assign(table[c].begin() + 1, table[c].end());
  return {std::move(cells), sides};
}

}  // namespace

CellBoard squaresAsCells(const Tables& t) {
  return cellsOf(t.squarelines, kLines);
}

CellBoard cubesAsCells(const Tables& t) {
  return cellsOf(t.cubesquares, kSquares);
}

}  // namespace vrask::cube
