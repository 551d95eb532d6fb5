// `vrask-cli bench`: whole games on every board, headless, as fast as the
// code runs, with a signature of every final state.
#pragma once

#include <iosfwd>
#include <string>

namespace vrask::cli {

// Plays `games` games of each series of every board, or of the board whose
// form is `board` (the first game on the board as it loads, the others each
// after "New") and prints the report to `out`. Returns the exit status: 0, or
// 1 when a game could not be played through or there is no such board (said
// on `err`).
int bench(int games, const std::string& board, std::ostream& out, std::ostream& err);

}  // namespace vrask::cli
