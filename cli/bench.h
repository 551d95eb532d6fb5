// `vrask-cli bench`: whole games on the square board, headless, as fast as
// the code runs, with a signature of every final state.
#pragma once

#include <iosfwd>

namespace vrask::cli {

// Plays `games` games of each series (the first on the board as it loads,
// the others each after "New") and prints the report to `out`. Returns the
// exit status: 0, or 1 when a game could not be played through (said on `err`).
int bench(int games, std::ostream& out, std::ostream& err);

}  // namespace vrask::cli
