// `vrask-cli duel`: the expert against a board's own computer, headless.
#pragma once

#include <iosfwd>
#include <string>

namespace vrask::cli {

struct DuelOptions {
  std::string board;  // the form
  std::string game;   // words of the series name: "Ombrel", "Bubbleland Ombrel"
  int size = 0;       // 0: the first size the board offers for the game
  int games = 20;
};

// Plays the games, the expert as Blue and the board's computer as Red, who
// opens alternating from game to game, and prints the tally. Returns 0, or 1
// when the board, its game or its expert is missing or a game cannot be
// played through (said on `err`).
int duel(const DuelOptions& options, std::ostream& out, std::ostream& err);

}  // namespace vrask::cli
