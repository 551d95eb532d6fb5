#include "boards/zorvex/expert_view.h"

namespace vrask::cube {

CellBoard squaresAsCells(const Tables& t) {
  std::vector<std::vector<int>> sides(kSquares + 1);
  for (int s = 1; s <= kSquares; ++s) {
    const auto& lines = t.squarelines.at(static_cast<size_t>(s));
    sides.at(static_cast<size_t>(s)).assign(lines.begin() + 1, lines.end());
  }
  return {std::move(sides), kLines};
}

CellBoard cubesAsCells(const Tables& t) {
  std::vector<std::vector<int>> sides(kCubes + 1);
  for (int c = 1; c <= kCubes; ++c) {
    const auto& squares = t.cubesquares.at(static_cast<size_t>(c));
    sides.at(static_cast<size_t>(c)).assign(squares.begin() + 1, squares.end());
  }
  return {std::move(sides), kSquares};
}

}  // namespace vrask::cube
