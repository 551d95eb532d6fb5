// The expert's circle games: a move closes a cell's circle and paints its
// pattern of lines in the mover's colour; a cell scores for a side while its
// lines are all that side's colour. When one circle is left after a move,
// the program plays it itself in black, nobody's colour, and the game ends;
// if judging then closes it first, the game goes on with that one circle.
#pragma once

#include <vector>

#include "expert/line_game.h"

namespace vrask::expert {

enum Colour { kUnmarked = 0, kBlue = 1, kRed = 2, kBlack = 3 };

struct CircleProblem {
  // The lines of each cell that shows, in the board's order of cells: the
  // last circle is the highest-numbered open one.
  std::vector<std::vector<int>> cells;
  // Per cell, the lines a move on it paints (its twins and its neighbours'
  // lines included); any line numbers below `lineCount`.
  std::vector<std::vector<int>> patterns;
  int lineCount = 0;
  std::vector<int> colour;  // per line
  std::vector<bool> done;   // per cell: its circle is closed
  int mover = kBlue;
};

// The circle the expert plays (an index into `cells`), or -1 when none is open.
int bestCircle(const CircleProblem& problem, Budget budget);

// Blue's squares less Red's when the game ends after `moves` are played in
// turn (the ending played as the rules say); for checking by hand.
int playOut(const CircleProblem& problem, const std::vector<int>& moves);

}  // namespace vrask::expert
