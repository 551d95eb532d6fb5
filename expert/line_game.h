// The expert's line game: any board given as cells and their lines, where a
// move takes a group of lines at once (a Bubbleland edge line and its twin
// are one move). Whoever completes a cell scores it and moves again.
//
// The search is deterministic: its budget is counted in positions visited,
// not in time read off a clock, so the same position always gives the same
// move, whatever the machine is doing beside it.
#pragma once

#include <cstdint>
#include <vector>

namespace vrask::expert {

struct LineProblem {
  // The lines of each cell that scores (0-based cells; any line numbers).
  std::vector<std::vector<int>> cells;
  // Each move: the lines it takes. Every line of a cell is in one move.
  std::vector<std::vector<int>> moves;
  // Per move: already played.
  std::vector<bool> taken;
  // Optional: the board's symmetries, each as the image of every move under
  // it (the identity left out). Positions that are images of each other are
  // one position to the search, which learns about them once.
  std::vector<std::vector<int>> symmetries;
};

// How long to think, as positions to visit: roughly a millisecond's work on
// the development machine for each of `millis`.
struct Budget {
  long nodes;
  static Budget forMillis(int millis);
};

// The move the expert plays (an index into `moves`), or -1 when every move
// is taken.
int bestLineMove(const LineProblem& problem, Budget budget);

// What the player to move can still win over the other from here, under best
// play by both; searched to the end, whatever it costs.
int exactLineValue(const LineProblem& problem);

// What the exact search above spends of a budget.
long exactLineWork(const LineProblem& problem);

// Chains and loops left when every move gives something away: the net the
// player who must open one can make, each opened in the best order and each
// taken whole or declined at its end by its taker.
struct Strings {
  std::vector<int> chains;  // cells in each chain
  std::vector<int> loops;   // cells in each loop
};
int openerValue(const Strings& strings);

}  // namespace vrask::expert
