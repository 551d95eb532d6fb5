// The rules that recur from board to board, written over a board given as
// cells and their sides: a cell (a square, a triangle, a face) is the list of
// its lines, a line may bound several cells. A board hands over its table and
// says what a line or cell is now (taken, marked, shown); these say which
// cells and lines the rules pick, in the order the computer draws from them.
#pragma once

#include <functional>
#include <span>
#include <vector>

namespace vrask {

class ElementArray;

// Per cell or per line, by the board's own numbers (index 0 unused).
using Counts = std::vector<int>;
using CountsView = std::span<const int>;
using Test = std::function<bool(int)>;

class CellBoard {
 public:
  CellBoard() = default;
  // `sides[c]` lists the lines of cell c, for c = 1..n (sides[0] unused);
  // lines are numbered 1..lines.
  CellBoard(std::vector<std::vector<int>> sides, int lines);

  int cells() const { return static_cast<int>(sides_.size()) - 1; }
  int lines() const { return lines_; }
  const std::vector<int>& sides(int cell) const { return sides_.at(static_cast<size_t>(cell)); }
  int sideCount(int cell) const { return static_cast<int>(sides(cell).size()); }

  // How many sides of each cell pass `counts`.
  Counts countSides(const Test& counts) const;

  // The cells one side short of whole, lowest first: a line completes them.
  std::vector<int> cellsToComplete(CountsView sidecount) const;
  // The free lines that give no cell its last side but one, ascending; when
  // every free line does, all free lines.
  std::vector<int> safeLines(CountsView sidecount, const Test& isFree) const;

  // The first cell that shows, whole but still open (its sides marked in
  // mixed colours), else one side short, else two short; 0 when none.
  int vraskTarget(CountsView sidecount, CountsView done, const Test& shows) const;
  // The cells that show whose circle is still open, ascending.
  std::vector<int> openCells(CountsView done, const Test& shows) const;

 private:
  std::vector<std::vector<int>> sides_{{}};
  int lines_ = 0;
};

// The width of a line that has been played.
inline constexpr int kMarkedWidth = 8;

// Draws `lines` of `drawn` as played, in `colour`: a pattern painted in the
// mover's colour.
void markLines(ElementArray& drawn, const std::vector<int>& lines, int colour);

}  // namespace vrask
