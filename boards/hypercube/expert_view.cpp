#include "boards/hypercube/expert_view.h"

namespace vrask::hypercube {

expert::LineProblem lineProblem(const SideTable& sqln, const LineValues& lnown) {
  expert::LineProblem p;
  for (int s = 1; s <= kSquares; ++s)
    p.cells.emplace_back(sqln.at(s).begin() + 1, sqln.at(s).end());
  for (int slot = 1; slot <= kLines; ++slot) {
    p.moves.push_back({slot});
    p.taken.push_back(lnown.at(slot) != 0);
  }
  return p;
}

int expertLine(const SideTable& sqln, const LineValues& lnown, expert::Budget budget) {
  int m = expert::bestLineMove(lineProblem(sqln, lnown), budget);
  return m < 0 ? 0 : m + 1;
}

}  // namespace vrask::hypercube
