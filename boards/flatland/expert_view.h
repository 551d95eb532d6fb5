// The square board as the expert sees it: the squares that show as cells and
// their sides, a line and its Bubbleland twin as one move, and the Vrask
// patterns as the moves of the circle games. Pure functions of the board's
// tables and what its elements show; the answers are the board's numbers.
#pragma once

#include <functional>

#include "boards/flatland/computer.h"
#include "boards/flatland/tables.h"
#include "expert/circle_game.h"
#include "expert/line_game.h"

namespace vrask::flatland {

// A line game as it stands: `shows(s)` tells the squares of the board in
// play. The answer: the line the expert takes (for a pair of twins the lower
// number, which takes its twin along), 0 when every line is taken.
int expertLine(const SideTable& sqline, const LineOwners& lineown,
               const std::function<bool(int)>& shows, bool bubbleland, expert::Budget budget);

struct CirclePosition {
  int mode;
  bool bubbleland;
  // What each line shows now, as the expert's colours.
  std::function<int(int line)> colour;
  const SquareCounts* sqdone;
  std::function<bool(int)> shows;
  int mover;  // expert::kBlue or expert::kRed
};

// The circle the expert plays in a Vrask game, 0 when none is open.
int expertCircle(const SideTable& sqline, const CirclePosition& position, expert::Budget budget);

// The line game and the circle game as problems, with the board's number of
// each move; for the above and for tests.
expert::LineProblem lineProblem(const SideTable& sqline, const LineOwners& lineown,
                                const std::function<bool(int)>& shows, bool bubbleland,
                                std::vector<int>& lineOfMove);
expert::CircleProblem circleProblem(const SideTable& sqline, const CirclePosition& position,
                                    std::vector<int>& squareOfCell);

}  // namespace vrask::flatland
