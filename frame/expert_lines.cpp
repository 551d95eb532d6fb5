#include "frame/expert_lines.h"

#include <algorithm>
#include <set>

namespace vrask {

ExpertLines expertLines(const CellBoard& board, const Test& cellShows, const Test& taken,
                        const std::function<int(int)>& twinOf) {
  ExpertLines view;
  std::set<int> lines;
  for (int c = 1; c <= board.cells(); ++c) {
    if (!cellShows(c)) continue;
    view.problem.cells.push_back(board.sides(c));
    lines.insert(board.sides(c).begin(), board.sides(c).end());
  }
  std::set<int> moves;
  for (int line : lines) {
    int twin = twinOf ? twinOf(line) : 0;
    moves.insert(twin != 0 ? std::min(line, twin) : line);
  }
  for (int line : moves) {
    std::vector<int> move{line};
    int twin = twinOf ? twinOf(line) : 0;
    if (twin != 0) move.push_back(twin);
    view.problem.moves.push_back(move);
    view.problem.taken.push_back(taken(line));
    view.lineOfMove.push_back(line);
  }
  return view;
}

}  // namespace vrask
