#include "cli/bench.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/dump.h"
#include "cli/lookup.h"
#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask::cli {

namespace {

// The largest board has 180 lines; far more clicks than that means the game
// no longer ends, and the bench says so instead of running on.
constexpr int kMaxMovesPerGame = 2000;

// Blue's own dice (splitmix64), apart from the program's Rnd so that Blue's
// choices do not shift the computer's.
class BlueDice {
 public:
  explicit BlueDice(std::uint64_t seed) : state_(seed) {}
  size_t below(size_t n) {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return static_cast<size_t>((z ^ (z >> 31)) % n);
  }

 private:
  std::uint64_t state_;
};

class Fnv1a {
 public:
  void add(const std::string& text) {
    for (unsigned char c : text) {
      hash_ ^= c;
      hash_ *= 0x100000001B3ULL;
    }
  }
  std::uint64_t value() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325ULL;
};

struct Totals {
  int games = 0;
  long moves = 0;
  std::vector<double> handlerMicros;
  Fnv1a signature;
};

class BenchError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What a game's signature covers: every element and variable of the form but
// the expert's entries, which choose who plays and not the game played, so
// that the square board's signature holds from before the expert joined.
std::vector<std::string> signatureNames(Form& form) {
  std::vector<std::string> names;
  for (const ElementArray* array : form.designOrder()) {
    if (array->name() == "expc" || array->name() == "hint") continue;
    names.push_back(array->name());
  }
  for (const auto& [name, variable] : form.variables()) names.push_back(name);
  return names;
}

// One series: a fresh program with the board set up, then its games.
class SeriesRun {
 public:
  SeriesRun(const PlayDescriptor& play, const Setup& setup, std::uint64_t seed)
      : play_(play), program_(host_), dice_(seed) {
    // The board alone: which other boards the suite has built shows in its
    // "Other Games" entries, and its signature is of its own games.
    registerSuite(program_, play.form);
    program_.open(play.form);
    for (int i = 0; i < play.introTicks; ++i) {
      program_.timerTick(form(), elementOf(form(), play.introTimer));
    }
    for (const Choice& choice : setup.clicks) click(choice);
  }

  // Plays one game to its end; with `fresh` false, "New" deals it first.
  void play(bool fresh, const std::string& name, Totals& totals) {
    if (!fresh) click(play_.newGame);
    int moves = 0;
    while (!play_.finished(form())) {
      if (++moves > kMaxMovesPerGame) throw BenchError("a game of " + name + " did not end");
      Element& target = blueMove(name);
      auto begin = std::chrono::steady_clock::now();
      Program::Result result = program_.userEvent(form(), target, target.name + "_Click");
      auto end = std::chrono::steady_clock::now();
      if (result.outcome != Program::Outcome::Done) {
        throw BenchError("Blue's move " + target.displayName() + " was refused: " + result.why);
      }
      totals.handlerMicros.push_back(
          std::chrono::duration<double, std::micro>(end - begin).count());
      ++totals.moves;
    }
    ++totals.games;
    totals.signature.add(dump(program_, host_, signatureNames(form())));
  }

 private:
  Form& form() { return currentForm(program_); }

  void click(const Choice& choice) {
    Element& e = elementOf(form(), choice);
    Program::Result result = program_.userEvent(form(), e, choice.element + "_Click");
    if (result.outcome != Program::Outcome::Done) {
      throw BenchError("could not choose " + e.displayName() + ": " + result.why);
    }
  }

  // Blue's random choice among the moves a person could make: a target of the
  // kind the game plays that shows and is free.
  Element& blueMove(const std::string& name) {
    size_t kind = play_.kindInPlay(form());
    ElementArray& targets = findArray(form(), play_.kinds.at(kind).targets);
    std::vector<Element*> free;
    for (Element& target : targets) {
      if (!play_.taken(form(), kind, target.index) && !form().whyUnreachable(target)) {
        free.push_back(&target);
      }
    }
    if (free.empty()) throw BenchError("Blue has no move in a game of " + name + " not over");
    return *free[dice_.below(free.size())];
  }

  const PlayDescriptor& play_;
  HeadlessHost host_;
  Program program_;
  BlueDice dice_;
};

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  auto at = static_cast<size_t>(std::lround(p * static_cast<double>(values.size() - 1)));
  return values[at];
}

long peakMemoryKiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

void report(const Totals& totals, std::ostream& out) {
  double seconds = 0;
  for (double us : totals.handlerMicros) seconds += us / 1e6;
  out << std::fixed << std::setprecision(1);
  out << "games: " << totals.games << '\n';
  out << "moves: " << totals.moves << '\n';
  out << "moves per second: " << (seconds > 0 ? static_cast<double>(totals.moves) / seconds : 0)
      << '\n';
  out << "handler time per move: median " << percentile(totals.handlerMicros, 0.5) << " us, p99 "
      << percentile(totals.handlerMicros, 0.99) << " us\n";
  out << "peak memory: " << peakMemoryKiB() << " KiB\n";
  out << "signature: " << std::hex << std::setw(16) << std::setfill('0') << totals.signature.value()
      << std::dec << '\n';
}

}  // namespace

int bench(int games, const std::string& board, std::ostream& out, std::ostream& err) {
  Totals totals;
  try {
    if (!board.empty() && findBoard(board) == nullptr) throw BenchError("no board " + board);
    for (const Board& each : boards()) {
      const PlayDescriptor& play = each.play;
      if (!board.empty() && play.form != board) continue;
      // Each board's series are seeded by their place among its own, so a
      // board's games stay the same when other boards join the bench.
      for (size_t i = 0; i < play.bench.size(); ++i) {
        const Setup& setup = play.bench[i];
        SeriesRun run(play, setup, 0x5EED0000ULL + i);
        long movesBefore = totals.moves;
        for (int g = 0; g < games; ++g) run.play(g == 0, setup.name, totals);
        out << std::left << std::setw(36) << setup.name << std::right << games << " games, "
            << totals.moves - movesBefore << " moves\n";
      }
    }
  } catch (const std::exception& e) {
    err << "bench: " << e.what() << '\n';
    return 1;
  }
  report(totals, out);
  return 0;
}

}  // namespace vrask::cli
