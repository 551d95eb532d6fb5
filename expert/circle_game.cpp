#include "expert/circle_game.h"

#include <algorithm>
#include <limits>

namespace vrask::expert {

namespace {

constexpr int kInfinity = 100000;
constexpr int kNone = -1;
// A circle move repaints its pattern and judges the cells around it: a
// position costs about ten of the budget's units, which are the line
// search's.
constexpr long kUnitsPerPosition = 10;

struct OutOfBudget {};

class CircleSearch {
 public:
  CircleSearch(const CircleProblem& p, long nodes)
      : p_(p), colour_(p.colour), done_(p.done), budget_(nodes) {
    cellsOfLine_.resize(static_cast<size_t>(p.lineCount));
    for (size_t c = 0; c < p.cells.size(); ++c) {
      for (int line : p.cells[c])
        cellsOfLine_[static_cast<size_t>(line)].push_back(static_cast<int>(c));
    }
  }

  int openCount() const { return static_cast<int>(std::count(done_.begin(), done_.end(), false)); }

  // Blue's squares less Red's, as the board stands.
  int balance() const {
    int net = 0;
    for (size_t c = 0; c < p_.cells.size(); ++c) {
      int whole = wholeIn(static_cast<int>(c));
      net += whole == kBlue ? 1 : (whole == kRed ? -1 : 0);
    }
    return net;
  }

  // One move and what follows it by the rules, undoable as one step.
  // Returns whether the game has ended.
  bool play(int cell, int mover) {
    Step step;
    step.cell = cell;
    close(cell, step);
    paint(cell, mover, step);
    int last = lastOpen();
    if (openCount() == 1) {
      close(last, step);
      paint(last, kBlack, step);
      steps_.push_back(step);
      return true;
    }
    judge(cell, step);
    int open = openCount();
    if (open == 1 && !done_[static_cast<size_t>(last)]) {
      close(last, step);
      paint(last, kBlack, step);
      open = 0;
    }
    steps_.push_back(step);
    return open == 0;
  }

  void undo() {
    Step& step = steps_.back();
    for (size_t i = step.painted.size(); i-- > 0;) {
      colour_[static_cast<size_t>(step.painted[i].first)] = step.painted[i].second;
    }
    for (int c : step.closed) done_[static_cast<size_t>(c)] = false;
    steps_.pop_back();
  }

  int search(int depth, int alpha, int beta, int mover, int* bestOut) {
    if (--budget_ < 0) throw OutOfBudget{};
    int sign = mover == kBlue ? 1 : -1;
    if (depth == 0) return sign * balance();
    std::vector<int> moves = ordered(mover);
    int best = -kInfinity;
    for (int c : moves) {
      bool ended = play(c, mover);
      int value = 0;
      try {
        value = ended ? sign * balance()
                      : -search(depth - 1, -beta, -alpha, mover == kBlue ? kRed : kBlue, nullptr);
      } catch (const OutOfBudget&) {
        undo();
        throw;
      }
      undo();
      if (value > best) {
        best = value;
        if (bestOut != nullptr) *bestOut = c;
      }
      alpha = std::max(alpha, value);
      if (alpha >= beta) break;
    }
    return best;
  }

  // The open circles, those that do most for the mover at once first.
  std::vector<int> ordered(int mover) {
    int sign = mover == kBlue ? 1 : -1;
    std::vector<std::pair<int, int>> ranked;
    for (size_t c = 0; c < done_.size(); ++c) {
      if (done_[c]) continue;
      // Each move looked at costs the budget by the size of the board; the search stops at
      // the next position once it is spent.
      budget_ -= 1 + static_cast<long>(p_.cells.size()) / 32;
      play(static_cast<int>(c), mover);
      int value = sign * balance();
      undo();
      ranked.emplace_back(-value, static_cast<int>(c));
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<int> moves;
    moves.reserve(ranked.size());
    for (auto [value, c] : ranked) moves.push_back(c);
    return moves;
  }

 private:
  struct Step {
    int cell = kNone;
    std::vector<std::pair<int, int>> painted;  // line, colour before
    std::vector<int> closed;
  };

  int wholeIn(int cell) const {
    const auto& lines = p_.cells[static_cast<size_t>(cell)];
    int first = colour_[static_cast<size_t>(lines.front())];
    if (first != kBlue && first != kRed) return kUnmarked;
    for (int line : lines) {
      if (colour_[static_cast<size_t>(line)] != first) return kUnmarked;
    }
    return first;
  }

  void close(int cell, Step& step) {
    if (done_[static_cast<size_t>(cell)]) return;
    done_[static_cast<size_t>(cell)] = true;
    step.closed.push_back(cell);
  }

  void paint(int cell, int colour, Step& step) {
    for (int line : p_.patterns[static_cast<size_t>(cell)]) {
      step.painted.emplace_back(line, colour_[static_cast<size_t>(line)]);
      colour_[static_cast<size_t>(line)] = colour;
    }
  }

  // A cell the move made whole in one colour is closed for good; only cells
  // on the lines just painted can have changed.
  void judge(int cell, Step& step) {
    for (int line : p_.patterns[static_cast<size_t>(cell)]) {
      for (int c : cellsOfLine_[static_cast<size_t>(line)]) {
        if (wholeIn(c) != kUnmarked) close(c, step);
      }
    }
  }

  int lastOpen() const {
    for (size_t c = done_.size(); c-- > 0;) {
      if (!done_[c]) return static_cast<int>(c);
    }
    return kNone;
  }

  const CircleProblem& p_;
  std::vector<int> colour_;
  std::vector<bool> done_;
  std::vector<std::vector<int>> cellsOfLine_;
  std::vector<Step> steps_;
  long budget_;
};

}  // namespace

int bestCircle(const CircleProblem& problem, Budget budget) {
  CircleSearch search(problem, budget.nodes / kUnitsPerPosition);
  int open = search.openCount();
  if (open == 0) return kNone;
  int best = search.ordered(problem.mover).front();
  try {
    for (int depth = 1; depth <= open; ++depth) {
      int found = best;
      search.search(depth, -kInfinity, kInfinity, problem.mover, &found);
      best = found;
    }
  } catch (const OutOfBudget&) {
    // The deepest search finished stands.
  }
  return best;
}

int playOut(const CircleProblem& problem, const std::vector<int>& moves) {
  CircleSearch search(problem, std::numeric_limits<long>::max());
  int mover = problem.mover;
  for (int c : moves) {
    if (search.play(c, mover)) break;
    mover = mover == kBlue ? kRed : kBlue;
  }
  return search.balance();
}

}  // namespace vrask::expert
