#include "expert/line_game.h"

#include <algorithm>
#include <limits>
#include <map>
#include <stdexcept>

namespace vrask::expert {

namespace {

constexpr long kNodesPerMilli = 25000;
constexpr int kInfinity = 1000;
constexpr int kNoMove = -1;

// ---------------------------------------------------------------------------
// Chains and loops

// The net of the player who must open one of `comps` (chains as lengths,
// loops as -length), sorted, remembered between calls.
int openerNet(std::vector<int>& comps, std::map<std::vector<int>, int>& memo) {
  if (comps.empty()) return 0;
  if (auto it = memo.find(comps); it != memo.end()) return it->second;
  int best = -kInfinity;
  for (size_t i = 0; i < comps.size(); ++i) {
    if (i > 0 && comps[i] == comps[i - 1]) continue;
    std::vector<int> rest = comps;
    rest.erase(rest.begin() + static_cast<long>(i));
    int restValue = openerNet(rest, memo);
    bool loop = comps[i] < 0;
    int size = loop ? -comps[i] : comps[i];
    // The taker takes all and opens the next, or declines the last two
    // cells of a chain (four of a loop) and makes the opener open next.
    int takeAll = size + restValue;
    int declined = loop ? size - 8 - restValue : size - 4 - restValue;
    // A chain of two opened in its middle cannot be declined.
    int taker = (!loop && size < 3) ? takeAll : std::max(takeAll, declined);
    best = std::max(best, -taker);
  }
  memo.emplace(comps, best);
  return best;
}

int openerValueOf(std::vector<int> comps) {
  thread_local std::map<std::vector<int>, int> memo;
  if (memo.size() > 200000) memo.clear();
  std::sort(comps.begin(), comps.end());
  return openerNet(comps, memo);
}

// ---------------------------------------------------------------------------
// The board as the search sees it

struct Graph {
  std::vector<std::vector<int>> cellMoves;  // each side of a cell, as its move
  std::vector<std::vector<int>> moveCells;  // each cell side a move takes
  std::vector<uint64_t> zobrist;
  std::vector<std::vector<int>> images;     // per symmetry, the image of each move
  std::vector<std::vector<int>> preimages;  // per symmetry, its inverse
};

void addSymmetries(const LineProblem& p, Graph& g) {
  for (const auto& image : p.symmetries) {
    std::vector<int> inverse(p.moves.size(), kNoMove);
    if (image.size() != p.moves.size()) throw std::invalid_argument("a symmetry misses moves");
    for (size_t m = 0; m < image.size(); ++m) {
      int to = image[m];
      if (to < 0 || static_cast<size_t>(to) >= image.size() ||
          inverse[static_cast<size_t>(to)] != kNoMove) {
        throw std::invalid_argument("a symmetry is not a permutation of the moves");
      }
      inverse[static_cast<size_t>(to)] = static_cast<int>(m);
    }
    g.images.push_back(image);
    g.preimages.push_back(inverse);
  }
}

Graph graphOf(const LineProblem& p) {
  Graph g;
  std::map<int, int> moveOfLine;
  for (size_t m = 0; m < p.moves.size(); ++m) {
    for (int line : p.moves[m]) moveOfLine[line] = static_cast<int>(m);
  }
  g.moveCells.resize(p.moves.size());
  g.cellMoves.resize(p.cells.size());
  for (size_t c = 0; c < p.cells.size(); ++c) {
    for (int line : p.cells[c]) {
      auto it = moveOfLine.find(line);
      if (it == moveOfLine.end()) throw std::invalid_argument("a cell's line is in no move");
      g.cellMoves[c].push_back(it->second);
      g.moveCells[static_cast<size_t>(it->second)].push_back(static_cast<int>(c));
    }
  }
  uint64_t state = 0x9E3779B97F4A7C15ULL;
  for (size_t m = 0; m < p.moves.size(); ++m) {
    state += 0x9E3779B97F4A7C15ULL;
    uint64_t z = state;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    g.zobrist.push_back(z ^ (z >> 31));
  }
  addSymmetries(p, g);
  return g;
}

struct Entry {
  uint64_t key = 0;
  int16_t value = 0;
  uint8_t depth = 0;  // kExactDepth: searched to the end
  uint8_t bound = 0;  // 0 exact, 1 lower, 2 upper
  int16_t best = kNoMove;
};
constexpr uint8_t kExactDepth = 255;
constexpr size_t kTableBits = 18;

struct OutOfBudget {};

class Search {
 public:
  Search(const LineProblem& p, long nodes)
      : g_(graphOf(p)), table_(size_t{1} << kTableBits), budget_(nodes) {
    free_.assign(p.moves.size(), false);
    freeSides_.assign(p.cells.size(), 0);
    for (size_t m = 0; m < p.moves.size(); ++m) {
      if (p.taken[m] || g_.moveCells[m].empty()) continue;
      free_[m] = true;
    }
    imageHash_.assign(g_.images.size(), 0);
    for (size_t m = 0; m < free_.size(); ++m) {
      if (free_[m]) flip(static_cast<int>(m));
    }
    for (size_t c = 0; c < p.cells.size(); ++c) {
      for (int m : g_.cellMoves[c]) freeSides_[c] += free_[static_cast<size_t>(m)] ? 1 : 0;
    }
    freeCount_ = static_cast<int>(std::count(free_.begin(), free_.end(), true));
  }

  int freeCount() const { return freeCount_; }

  // The best move and the value, searched `depth` quiet moves deep; sets
  // `exact` when no guess was needed anywhere.
  std::pair<int, int> root(int depth, bool& exact) {
    guessed_ = false;
    pruning_ = true;
    int bestMove = kNoMove;
    int value = negamax(depth, -kInfinity, kInfinity, &bestMove);
    exact = !guessed_;
    return {bestMove, value};
  }

  // Without a search: the first capture, else the move that opens least.
  int firstMove() {
    return anyCapture() ? capturesAndDeclines(true).front() : quietMoves().front();
  }

  // The best move and the value searched to the end, within `nodes`.
  std::pair<int, int> solve(long nodes) {
    budget_ = nodes;
    pruning_ = false;
    int best = kNoMove;
    int value = negamax(kExactDepth - 1, -kInfinity, kInfinity, &best);
    return {best, value};
  }

  void allow(long nodes) { budget_ = nodes; }
  long left() const { return budget_; }

 private:
  int play(int m) {
    int gained = 0;
    free_[static_cast<size_t>(m)] = false;
    --freeCount_;
    flip(m);
    for (int c : g_.moveCells[static_cast<size_t>(m)]) {
      if (--freeSides_[static_cast<size_t>(c)] == 0) ++gained;
    }
    return gained;
  }
  void undo(int m) {
    free_[static_cast<size_t>(m)] = true;
    ++freeCount_;
    flip(m);
    for (int c : g_.moveCells[static_cast<size_t>(m)]) ++freeSides_[static_cast<size_t>(c)];
  }

  // The position's key, kept for it and for each of its images.
  void flip(int m) {
    hash_ ^= g_.zobrist[static_cast<size_t>(m)];
    for (size_t k = 0; k < g_.images.size(); ++k) {
      imageHash_[k] ^= g_.zobrist[static_cast<size_t>(g_.images[k][static_cast<size_t>(m)])];
    }
  }

  // The smallest key of the position and its images, and which image has it
  // (-1: the position itself). Moves stored in the table are the image's.
  std::pair<uint64_t, int> canonical() const {
    std::pair<uint64_t, int> least{hash_, -1};
    for (size_t k = 0; k < imageHash_.size(); ++k) {
      if (imageHash_[k] < least.first) least = {imageHash_[k], static_cast<int>(k)};
    }
    return least;
  }

  int toStored(int m, int frame) const {
    return frame < 0 || m == kNoMove
               ? m
               : g_.images[static_cast<size_t>(frame)][static_cast<size_t>(m)];
  }
  int fromStored(int m, int frame) const {
    return frame < 0 || m == kNoMove
               ? m
               : g_.preimages[static_cast<size_t>(frame)][static_cast<size_t>(m)];
  }

  int freeMoveOf(int cell) const {
    for (int m : g_.cellMoves[static_cast<size_t>(cell)]) {
      if (free_[static_cast<size_t>(m)]) return m;
    }
    return kNoMove;
  }

  // How many sides of each cell `m` takes: a cell may list it twice.
  int sidesTaken(int m, int cell) const {
    const auto& cells = g_.moveCells[static_cast<size_t>(m)];
    return static_cast<int>(std::count(cells.begin(), cells.end(), cell));
  }

  // The cells `m` leaves one side short of whole.
  std::vector<int> opened(int m) const {
    std::vector<int> found;
    for (int c : g_.moveCells[static_cast<size_t>(m)]) {
      if (freeSides_[static_cast<size_t>(c)] - sidesTaken(m, c) == 1 &&
          std::find(found.begin(), found.end(), c) == found.end()) {
        found.push_back(c);
      }
    }
    return found;
  }

  bool completes(int m) const {
    for (int c : g_.moveCells[static_cast<size_t>(m)]) {
      if (freeSides_[static_cast<size_t>(c)] == sidesTaken(m, c)) return true;
    }
    return false;
  }

  // With a cell to take: a capture that opens nothing new is taken at once;
  // else every capture, and every move that declines the last two cells of a
  // chain (the other free side of the cell a capture would open).
  std::vector<int> capturesAndDeclines(bool declines) {
    std::vector<int> moves;
    auto add = [&moves](int m) {
      if (std::find(moves.begin(), moves.end(), m) == moves.end()) moves.push_back(m);
    };
    for (size_t c = 0; c < freeSides_.size(); ++c) {
      if (freeSides_[c] != 1) continue;
      int m = freeMoveOf(static_cast<int>(c));
      std::vector<int> next = opened(m);
      if (next.empty()) return {m};
      add(m);
      if (!declines) continue;
      for (int n : next) {
        for (int other : g_.cellMoves[static_cast<size_t>(n)]) {
          if (other != m && free_[static_cast<size_t>(other)]) add(other);
        }
      }
    }
    return moves;
  }

  bool anyCapture() const {
    return std::any_of(freeSides_.begin(), freeSides_.end(), [](int f) { return f == 1; });
  }

  // Every free move, those that give nothing away first, then by how little
  // they open.
  std::vector<int> quietMoves() const {
    std::vector<std::pair<int, int>> ranked;
    for (size_t m = 0; m < free_.size(); ++m) {
      if (!free_[m]) continue;
      ranked.emplace_back(static_cast<int>(opened(static_cast<int>(m)).size()),
                          static_cast<int>(m));
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<int> moves;
    moves.reserve(ranked.size());
    for (auto [give, m] : ranked) moves.push_back(m);
    return moves;
  }

  // The budget is spent in proportion to the work: a position costs as many
  // units as it has free moves to look at.
  void spend(long units) {
    budget_ -= units;
    if (budget_ < 0) throw OutOfBudget{};
  }

  int negamax(int depth, int alpha, int beta, int* bestOut) {
    spend(1 + freeCount_);
    if (freeCount_ == 0) return 0;
    bool capture = anyCapture();

    auto [key, frame] = canonical();
    Entry& entry = table_[key & ((size_t{1} << kTableBits) - 1)];
    int hinted = kNoMove;
    if (entry.key == key) {
      hinted = fromStored(entry.best, frame);
      bool deepEnough = entry.depth == kExactDepth || entry.depth >= depth;
      if (deepEnough && bestOut == nullptr) {
        if (entry.depth != kExactDepth) guessed_ = true;
        if (entry.bound == 0) return entry.value;
        if (entry.bound == 1 && entry.value >= beta) return entry.value;
        if (entry.bound == 2 && entry.value <= alpha) return entry.value;
      }
    }

    std::vector<int> quiet;
    bool pruned = false;
    if (!capture) {
      quiet = quietMoves();
      if (!opened(quiet.front()).empty()) {
        // Every move gives something away. When what is left is only
        // chains and loops, their opener's net is known without searching.
        bool simple = false;
        std::vector<int> comps = strings(&simple);
        if (simple && bestOut == nullptr) return openerValueOf(comps);
        quiet = withoutTwinOpenings(quiet);
      } else if (pruning_) {
        size_t all = quiet.size();
        quiet = safeOrSmallSacrifices(quiet);
        pruned = quiet.size() < all;
      }
      if (depth <= 0) {
        guessed_ = true;
        return guess();
      }
    }

    std::vector<int> moves = capture ? capturesAndDeclines(depth >= 0) : std::move(quiet);
    if (hinted != kNoMove) {
      auto it = std::find(moves.begin(), moves.end(), hinted);
      if (it != moves.end()) std::rotate(moves.begin(), it, it + 1);
    }

    bool guessedBefore = guessed_;
    guessed_ = false;
    int alpha0 = alpha;
    int best = -kInfinity;
    int bestMove = moves.front();
    for (int m : moves) {
      int gained = play(m);
      int value = 0;
      try {
        value = gained > 0 ? gained + negamax(depth, alpha - gained, beta - gained, nullptr)
                           : -negamax(depth - 1, -beta, -alpha, nullptr);
      } catch (const OutOfBudget&) {
        undo(m);
        throw;
      }
      undo(m);
      if (value > best) {
        best = value;
        bestMove = m;
      }
      alpha = std::max(alpha, value);
      if (alpha >= beta) break;
    }
    bool guessedHere = guessed_ || pruned;
    guessed_ = guessedBefore || guessedHere;

    entry.key = key;
    entry.value = static_cast<int16_t>(best);
    entry.depth = guessedHere ? static_cast<uint8_t>(std::clamp(depth, 0, 254)) : kExactDepth;
    entry.bound = best <= alpha0 ? 2 : (best >= beta ? 1 : 0);
    entry.best = static_cast<int16_t>(toStored(bestMove, frame));
    if (bestOut != nullptr) *bestOut = bestMove;
    return best;
  }

  // A quiet position past the search's depth. While moves that give nothing
  // away remain, they are played out in turn to see who runs out of them;
  // then the chains and loops are worth what their opener nets. Which
  // chains form depends on the order, so two orders are tried, lowest
  // first and highest first, and their mean stands.
  int guess() {
    int sum = playOut(true) + playOut(false);
    return sum >= 0 ? sum / 2 : -((-sum + 1) / 2);
  }

  int playOut(bool lowestFirst) {
    std::vector<int> played;
    long work = 0;
    auto n = static_cast<int>(free_.size());
    for (;;) {
      int safe = kNoMove;
      for (int i = 0; i < n && safe == kNoMove; ++i) {
        int m = lowestFirst ? i : n - 1 - i;
        if (free_[static_cast<size_t>(m)] && opened(m).empty() && !completes(m)) safe = m;
      }
      work += n;
      if (safe == kNoMove) break;
      play(safe);
      played.push_back(safe);
    }
    int value = openerValueOf(strings());
    for (size_t i = played.size(); i-- > 0;) undo(played[i]);
    spend(work + freeCount_);
    return played.size() % 2 == 0 ? value : -value;
  }

  // The cells still open, in groups joined by free moves. A group whose
  // cells all have two free sides is plain: a chain, or a loop when no free
  // side of it leads to the outside.
  struct Group {
    int cells = 0;
    bool plain = true;
    bool outside = false;
    bool loop() const { return plain && !outside && cells >= 4; }
    // A plain group that is neither a chain nor a loop of four or more
    // (two cells joined twice) is searched as it is.
    bool simple() const { return plain && (outside || cells >= 4); }
  };
  struct Groups {
    std::vector<int> of;  // per cell, its group; -1 when whole
    std::vector<Group> list;
  };

  Groups groups() const {
    size_t n = freeSides_.size();
    Groups found;
    found.of.assign(n, -1);
    for (size_t start = 0; start < n; ++start) {
      if (freeSides_[start] == 0 || found.of[start] >= 0) continue;
      int id = static_cast<int>(found.list.size());
      Group group;
      std::vector<int> stack{static_cast<int>(start)};
      found.of[start] = id;
      while (!stack.empty()) {
        int c = stack.back();
        stack.pop_back();
        ++group.cells;
        if (freeSides_[static_cast<size_t>(c)] != 2) group.plain = false;
        for (int m : g_.cellMoves[static_cast<size_t>(c)]) {
          if (!free_[static_cast<size_t>(m)]) continue;
          const auto& touched = g_.moveCells[static_cast<size_t>(m)];
          if (touched.size() == 1) group.outside = true;
          for (int d : touched) {
            if (found.of[static_cast<size_t>(d)] < 0) {
              found.of[static_cast<size_t>(d)] = id;
              stack.push_back(d);
            }
          }
        }
      }
      found.list.push_back(group);
    }
    return found;
  }

  // The groups as chains (their sizes) and loops (minus their sizes); any
  // group that is not plain counts as a chain of its size.
  std::vector<int> strings(bool* allSimple = nullptr) const {
    Groups found = groups();
    std::vector<int> comps;
    bool everySimple = true;
    for (const Group& group : found.list) {
      comps.push_back(group.loop() ? -group.cells : group.cells);
      everySimple = everySimple && group.simple();
    }
    if (allSimple != nullptr) *allSimple = everySimple;
    return comps;
  }

  // While moves that give nothing away remain, the deepening looks only at
  // them and at giving away a chain of one or two to turn the parity.
  std::vector<int> safeOrSmallSacrifices(const std::vector<int>& moves) const {
    Groups found = groups();
    std::vector<int> kept;
    for (int m : withoutTwinOpenings(moves)) {
      int id = found.of[static_cast<size_t>(g_.moveCells[static_cast<size_t>(m)].front())];
      const Group& group = found.list[static_cast<size_t>(id)];
      bool small = group.simple() && !group.loop() && group.cells <= 2;
      if (small || opened(m).empty()) kept.push_back(m);
    }
    return kept;
  }

  // Of the moves that open a chain or a loop standing alone, one stands for
  // them all: any opening of a loop or of a chain of three or more gives the
  // taker the same choice, and a chain of two is best opened in its middle,
  // which leaves the taker no choice.
  std::vector<int> withoutTwinOpenings(const std::vector<int>& moves) const {
    Groups found = groups();
    std::vector<int> chosen(found.list.size(), kNoMove);
    for (int m : moves) {
      const auto& touched = g_.moveCells[static_cast<size_t>(m)];
      int id = found.of[static_cast<size_t>(touched.front())];
      const Group& group = found.list[static_cast<size_t>(id)];
      if (!group.simple() || chosen[static_cast<size_t>(id)] != kNoMove) continue;
      bool middle = touched.size() == 2 && touched[0] != touched[1];
      bool wanted = group.loop() || (group.cells == 2 ? middle : touched.size() == 1);
      if (wanted) chosen[static_cast<size_t>(id)] = m;
    }
    std::vector<int> kept;
    for (int m : moves) {
      int id = found.of[static_cast<size_t>(g_.moveCells[static_cast<size_t>(m)].front())];
      int stand = chosen[static_cast<size_t>(id)];
      if (stand == kNoMove || stand == m) kept.push_back(m);
    }
    return kept;
  }

  Graph g_;
  std::vector<Entry> table_;
  long budget_;
  std::vector<bool> free_;
  std::vector<int> freeSides_;
  int freeCount_ = 0;
  uint64_t hash_ = 0;
  std::vector<uint64_t> imageHash_;
  bool guessed_ = false;
  bool pruning_ = false;  // the deepening leaves out moves that seldom pay
};

}  // namespace

Budget Budget::forMillis(int millis) {
  return Budget{std::max(1L, static_cast<long>(millis) * kNodesPerMilli)};
}

int openerValue(const Strings& strings) {
  std::vector<int> comps = strings.chains;
  for (int loop : strings.loops) comps.push_back(-loop);
  return openerValueOf(comps);
}

int bestLineMove(const LineProblem& problem, Budget budget) {
  Search search(problem, budget.nodes);
  if (search.freeCount() == 0) return kNoMove;
  // Searched to the end if half the budget does it; what it settled on the
  // way stays in the table for the deepening.
  long half = budget.nodes / 2;
  try {
    return search.solve(half).first;
  } catch (const OutOfBudget&) {
    search.allow(budget.nodes - half);
  }
  int best = kNoMove;
  try {
    for (int depth = 1; depth < kExactDepth - 1; ++depth) {
      bool exact = false;
      best = search.root(depth, exact).first;
      if (exact) break;
    }
  } catch (const OutOfBudget&) {
    // The deepest search finished stands.
  }
  if (best == kNoMove) {
    // Not even one level fitted in the budget.
    best = Search(problem, 0).firstMove();
  }
  return best;
}

int exactLineValue(const LineProblem& problem) {
  Search search(problem, std::numeric_limits<long>::max());
  return search.solve(std::numeric_limits<long>::max()).second;
}

long exactLineWork(const LineProblem& problem) {
  Search search(problem, std::numeric_limits<long>::max());
  search.solve(std::numeric_limits<long>::max());
  return std::numeric_limits<long>::max() - search.left();
}

}  // namespace vrask::expert
