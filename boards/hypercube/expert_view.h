// The HyperCube board as the expert sees it in the line games: the 72
// squares as cells of four lines, each of the 80 lines a move of its own.
// Pure functions of the board's tables; the answers are the board's slots.
#pragma once

#include "boards/hypercube/computer.h"
#include "boards/hypercube/tables.h"
#include "expert/line_game.h"

namespace vrask::hypercube {

// The line game as it stands; move m is the line of slot m + 1.
expert::LineProblem lineProblem(const SideTable& sqln, const LineValues& lnown);

// The slot of the line the expert takes, 0 when every line is taken.
int expertLine(const SideTable& sqln, const LineValues& lnown, expert::Budget budget);

}  // namespace vrask::hypercube
