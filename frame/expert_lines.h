// A line game as the expert sees it, for a board whose cells are lists of
// its line numbers and whose every line is a move of its own; and the hint's
// yellow flash. Kept in this header, so that the frame's library needs
// nothing of the expert's: only the boards that use it link both.
#pragma once

#include <algorithm>
#include <set>
#include <vector>

#include "expert/line_game.h"
#include "toolkit/form.h"

namespace vrask {

// The board's cells by their lines (any numbering of lines), and which lines
// are taken, by line number. A copy, so that the search can run aside.
struct LinePosition {
  std::vector<std::vector<int>> cells;
  std::vector<bool> taken;

  bool isTaken(int line) const {
    auto at = static_cast<size_t>(line);
    return at < taken.size() && taken[at];
  }

  // Whether taking `line` makes a cell whole.
  bool completes(int line) const {
    return std::any_of(cells.begin(), cells.end(), [this, line](const std::vector<int>& cell) {
      return std::find(cell.begin(), cell.end(), line) != cell.end() &&
             std::all_of(cell.begin(), cell.end(),
                         [this, line](int side) { return side == line || isTaken(side); });
    });
  }
};

// The position as the expert's problem, one move a line; `lineOfMove` gets
// the board's number of each move.
inline expert::LineProblem lineProblemOf(const LinePosition& position,
                                         std::vector<int>& lineOfMove) {
  expert::LineProblem problem;
  std::set<int> lines;
  for (const std::vector<int>& cell : position.cells) {
    problem.cells.push_back(cell);
    lines.insert(cell.begin(), cell.end());
  }
  lineOfMove.assign(lines.begin(), lines.end());
  for (int line : lineOfMove) {
    problem.moves.push_back({line});
    problem.taken.push_back(position.isTaken(line));
  }
  return problem;
}

// The line the expert takes, by the board's number; 0 when every line of a
// cell is taken.
inline int expertLineOf(const LinePosition& position, expert::Budget budget) {
  std::vector<int> lineOfMove;
  int m = expert::bestLineMove(lineProblemOf(position, lineOfMove), budget);
  return m < 0 ? 0 : lineOfMove.at(static_cast<size_t>(m));
}

// The hint: `drawn` shows in yellow at `width` for `seconds`, then as before.
inline void flashInYellow(Form& form, const std::vector<Element*>& drawn, int width,
                          double seconds) {
  std::vector<std::pair<int, int>> before;
  for (Element* e : drawn) {
    before.emplace_back(e->BorderColor, e->BorderWidth);
    e->BorderColor = color::Yellow;
    e->BorderWidth = width;
  }
  form.Refresh();
  form.wait(seconds);
  for (size_t i = 0; i < drawn.size(); ++i) {
    drawn[i]->BorderColor = before[i].first;
    drawn[i]->BorderWidth = before[i].second;
  }
  form.Refresh();
}

}  // namespace vrask
