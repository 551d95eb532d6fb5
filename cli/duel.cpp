#include "cli/duel.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "cli/lookup.h"
#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask::cli {

namespace {

// Far more moves than any board has: the game no longer ends.
constexpr int kMaxMovesPerGame = 2000;

class DuelError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::vector<std::string> words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> found;
  for (std::string w; in >> w;) found.push_back(w);
  return found;
}

// The bench series (the computer as Red) whose name holds every word asked
// for; of those, the one with the fewest words ("Vrask" is not "Super Vrask").
const Setup& findSeries(const PlayDescriptor& play, const DuelOptions& options) {
  std::vector<std::string> wanted = words(options.game);
  if (options.size > 0) wanted.push_back(std::to_string(options.size));
  const Setup* best = nullptr;
  for (const Setup& setup : play.bench) {
    std::vector<std::string> has = words(setup.name);
    bool all = std::all_of(wanted.begin(), wanted.end(), [&has](const std::string& w) {
      return std::find(has.begin(), has.end(), w) != has.end();
    });
    if (all && (best == nullptr || has.size() < words(best->name).size())) best = &setup;
  }
  if (best == nullptr) {
    throw DuelError("no game " + options.game +
                    (options.size > 0 ? " of size " + std::to_string(options.size) : "") + " on " +
                    play.form);
  }
  return *best;
}

struct Tally {
  int wins = 0;
  int losses = 0;
  int ties = 0;
  long margin = 0;  // the expert's points less the computer's, summed
  std::vector<double> moveMillis;
};

class DuelRun {
 public:
  DuelRun(const PlayDescriptor& play, const Setup& setup) : play_(play), program_(host_) {
    registerSuite(program_);
    program_.open(play.form);
    // A board that opens with an introduction holds its menus closed till it ends.
    for (int i = 0; i < play.introTicks; ++i) {
      program_.timerTick(form(), elementOf(form(), play.introTimer));
    }
    for (const Choice& choice : setup.clicks) click(elementOf(form(), choice));
  }

  // One game; with `fresh` false, New deals it first (and the other side opens).
  void play(bool fresh, Tally& tally) {
    if (!fresh) click(elementOf(form(), play_.newGame));
    for (int moves = 0; !play_.finished(form()); ++moves) {
      if (moves > kMaxMovesPerGame) throw DuelError("a game did not end");
      auto begin = std::chrono::steady_clock::now();
      int n = play_.expertMove(form());
      auto end = std::chrono::steady_clock::now();
      tally.moveMillis.push_back(std::chrono::duration<double, std::milli>(end - begin).count());
      if (n == play_.noExpertMove) throw DuelError("the expert found no move in a game not over");
      ElementArray& targets = findArray(form(), play_.kinds.at(play_.kindInPlay(form())).targets);
      click(targets[n]);
    }
    auto [blue, red] = play_.points(form());
    tally.wins += blue > red ? 1 : 0;
    tally.losses += blue < red ? 1 : 0;
    tally.ties += blue == red ? 1 : 0;
    tally.margin += blue - red;
  }

 private:
  Form& form() { return currentForm(program_); }

  void click(Element& e) {
    Program::Result result = program_.userEvent(form(), e, e.name + "_Click");
    if (result.outcome != Program::Outcome::Done) {
      throw DuelError("could not click " + e.displayName() + ": " + result.why);
    }
  }

  const PlayDescriptor& play_;
  HeadlessHost host_;
  Program program_;
};

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  auto at = static_cast<size_t>(std::lround(p * static_cast<double>(values.size() - 1)));
  return values[at];
}

// A tie counts half.
double share(int wins, int ties, int games) {
  return 100.0 * (wins + 0.5 * ties) / games;
}

void report(const std::string& name, int games, const Tally& t, std::ostream& out) {
  out << std::fixed << std::setprecision(1);
  out << "duel: " << name << ", " << games
      << " games, the expert as Blue, the opener alternating\n";
  out << "expert:            " << t.wins << " wins, " << t.losses << " losses, " << t.ties
      << " ties (" << share(t.wins, t.ties, games) << "%)\n";
  out << "board's computer:  " << t.losses << " wins, " << t.wins << " losses, " << t.ties
      << " ties (" << share(t.losses, t.ties, games) << "%)\n";
  out << "mean score margin: " << static_cast<double>(t.margin) / games
      << " (expert less computer)\n";
  out << std::setprecision(2) << "expert time per move: median " << percentile(t.moveMillis, 0.5)
      << " ms, p99 " << percentile(t.moveMillis, 0.99) << " ms, max "
      << percentile(t.moveMillis, 1.0) << " ms\n";
}

}  // namespace

int duel(const DuelOptions& options, std::ostream& out, std::ostream& err) {
  try {
    const Board* board = findBoard(options.board);
    if (board == nullptr) throw DuelError("no board " + options.board);
    if (!board->play.expertMove) throw DuelError(options.board + " has no expert");
    const Setup& setup = findSeries(board->play, options);
    DuelRun run(board->play, setup);
    Tally tally;
    for (int g = 0; g < options.games; ++g) run.play(g == 0, tally);
    report(setup.name, options.games, tally, out);
  } catch (const std::exception& e) {
    err << "duel: " << e.what() << '\n';
    return 1;
  }
  return 0;
}

}  // namespace vrask::cli
