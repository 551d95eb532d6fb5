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

constexpr const char* kBoard = "Form1large";
// A game on the largest board has 180 lines; far more clicks than that means
// the game no longer ends, and the bench says so instead of running on.
constexpr int kMaxMovesPerGame = 2000;

struct Series {
  bool bubbleland;
  int size;
  int mode;
};

// Every game mode the square board offers, at the smallest and largest size
// of Flatland and in Bubbleland (9 only). Ribbon Vrask (5) is offered only on
// the 9 by 9 Flatland board.
std::vector<Series> allSeries() {
  std::vector<Series> series;
  for (int mode : {0, 2, 3, 4}) series.push_back({false, 5, mode});
  for (int mode : {0, 2, 3, 4, 5}) series.push_back({false, 9, mode});
  for (int mode : {0, 2, 3, 4}) series.push_back({true, 9, mode});
  return series;
}

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

// One series: a fresh program with the board set up, then its games.
class SeriesRun {
 public:
  SeriesRun(const Series& series, std::uint64_t seed) : program_(host_), dice_(seed) {
    registerSuite(program_);
    if (!program_.knowsForm(kBoard)) throw BenchError(std::string("no form ") + kBoard);
    program_.open(kBoard);
    if (series.bubbleland) choose("ver", 2);
    choose("sizsq", series.size);
    choose("game", series.mode);
    choose("ip", 0);
    mode_ = series.mode;
  }

  std::string name() {
    Element& entry = findElement(form(), {"game", {mode_}});
    std::string world = readNumber("ver", 1, "Checked") != 0 ? "Flatland" : "Bubbleland";
    return world + " " + std::to_string(boardSize()) + " " + entry.Caption;
  }

  // Plays one game to its end; with `fresh` false, "New" deals it first.
  void play(bool fresh, Totals& totals) {
    if (!fresh) choose("gmc", -1);
    int moves = 0;
    while (variable("gameover", {}) == 0) {
      if (++moves > kMaxMovesPerGame) throw BenchError("a game of " + name() + " did not end");
      Element& target = blueMove();
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
    totals.signature.add(dump(program_, host_));
  }

 private:
  Form& form() { return currentForm(program_); }

  void choose(const std::string& name, int index) {
    Reference ref{name, {}};
    if (index >= 0) ref.indexes.push_back(index);
    Element& entry = findElement(form(), ref);
    Program::Result result = program_.userEvent(form(), entry, name + "_Click");
    if (result.outcome != Program::Outcome::Done) {
      throw BenchError("could not choose " + entry.displayName() + ": " + result.why);
    }
  }

  double variable(const std::string& name, std::vector<int> at) {
    Value v = readVariable(form(), {name, std::move(at)});
    const double* d = std::get_if<double>(&v);
    if (d == nullptr) throw BenchError("variable " + name + " is not a number");
    return *d;
  }

  double readNumber(const std::string& name, int index, const std::string& property) {
    Value v = readProperty(findElement(form(), {name, {index}}), property);
    if (const bool* b = std::get_if<bool>(&v)) return *b ? 1 : 0;
    return std::get<double>(v);
  }

  int boardSize() { return static_cast<int>(variable("boardsize", {})); }

  // A visible free line in the line game, a visible open circle in the Vrask
  // games: Blue's random choice among the moves a person could make.
  Element& blueMove() {
    bool lineGame = mode_ == 0;
    ElementArray& targets = findArray(form(), lineGame ? "Label1" : "Label2");
    std::vector<Element*> free;
    for (Element& target : targets) {
      double taken = variable(lineGame ? "lineown" : "sqdone", {target.index});
      if (taken == 0 && !form().whyUnreachable(target)) free.push_back(&target);
    }
    if (free.empty()) throw BenchError("Blue has no move in a game of " + name() + " not over");
    return *free[dice_.below(free.size())];
  }

  HeadlessHost host_;
  Program program_;
  BlueDice dice_;
  int mode_ = 0;
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

int bench(int games, std::ostream& out, std::ostream& err) {
  Totals totals;
  try {
    std::vector<Series> series = allSeries();
    for (size_t i = 0; i < series.size(); ++i) {
      SeriesRun run(series[i], 0x5EED0000ULL + i);
      long movesBefore = totals.moves;
      for (int g = 0; g < games; ++g) run.play(g == 0, totals);
      out << std::left << std::setw(36) << run.name() << std::right << games << " games, "
          << totals.moves - movesBefore << " moves\n";
    }
  } catch (const std::exception& e) {
    err << "bench: " << e.what() << '\n';
    return 1;
  }
  report(totals, out);
  return 0;
}

}  // namespace vrask::cli
