// A line game as the expert sees it, read off a board given as cells and
// their sides: the cells that show are the cells that score, each of their
// lines is a move, and a line with a twin (the same line of a joined board
// drawn twice) is one move with it. The board keeps its own numbers: each
// move is known by its line, the lower of a pair of twins.
#pragma once

#include <functional>
#include <vector>

#include "expert/line_game.h"
#include "frame/cell_board.h"

namespace vrask {

struct ExpertLines {
  expert::LineProblem problem;
  std::vector<int> lineOfMove;

  // The line the expert plays, 0 when every line is taken.
  int bestLine(expert::Budget budget) const {
    int m = expert::bestLineMove(problem, budget);
    return m < 0 ? 0 : lineOfMove.at(static_cast<size_t>(m));
  }
};

// `taken(line)`: the line has been drawn. `twinOf(line)`: the line drawn
// with it, 0 for none; without it no line has a twin.
ExpertLines expertLines(const CellBoard& board, const Test& cellShows, const Test& taken,
                        const std::function<int(int)>& twinOf = nullptr);

}  // namespace vrask
