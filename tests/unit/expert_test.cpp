#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <stdexcept>

#include "expert/circle_game.h"
#include "expert/line_game.h"

namespace vrask::expert {
namespace {

// Positions built from chains and loops of cells whose other sides are
// taken: each cell has two taken sides of its own and two free ones.
class Strands {
 public:
  // A chain of `n` cells whose two ends are free sides to the outside.
  Strands& chain(int n) { return strand(n, false); }
  // A ring of `n` cells, each joined to the next.
  Strands& loop(int n) { return strand(n, true); }

  // Takes the move that holds `line`.
  Strands& take(int line) {
    p_.taken.at(moveOf(line)) = true;
    return *this;
  }
  int moveOf(int line) const {
    for (size_t m = 0; m < p_.moves.size(); ++m) {
      for (int l : p_.moves[m]) {
        if (l == line) return static_cast<int>(m);
      }
    }
    return -1;
  }
  // The free side between strand cells `a` and `b`, or a cell's outer end.
  int joining(int a, int b) const { return joins_.at({a, b}); }
  int firstCell(size_t strand) const { return starts_.at(strand); }
  const LineProblem& problem() const { return p_; }

 private:
  Strands& strand(int n, bool ring) {
    int first = static_cast<int>(p_.cells.size());
    starts_.push_back(first);
    for (int i = 0; i < n; ++i) {
      int a = newLine(true);
      int b = newLine(true);
      p_.cells.push_back({a, b});
    }
    auto join = [&](int a, int b) {
      int line = newLine(false);
      if (a >= 0) p_.cells[static_cast<size_t>(a)].push_back(line);
      if (b >= 0) p_.cells[static_cast<size_t>(b)].push_back(line);
      joins_[{a, b}] = line;
    };
    for (int i = 0; i + 1 < n; ++i) join(first + i, first + i + 1);
    if (ring) {
      join(first + n - 1, first);
    } else {
      join(-1, first);
      join(first + n - 1, -1);
    }
    return *this;
  }
  int newLine(bool taken) {
    int line = static_cast<int>(p_.moves.size());
    p_.moves.push_back({line});
    p_.taken.push_back(taken);
    return line;
  }

  LineProblem p_;
  std::vector<int> starts_;
  std::map<std::pair<int, int>, int> joins_;
};

constexpr Budget kPlenty{2'000'000};

TEST(ExpertChains, OpenerOfOneLongChainGivesItAllAway) {
  Strands s;
  s.chain(3);
  EXPECT_EQ(exactLineValue(s.problem()), -3);
  EXPECT_EQ(openerValue({{3}, {}}), -3);
}

TEST(ExpertChains, TwoChainsAndALoopAgreeWithTheChainRules) {
  // By hand: whoever opens nets -2 (the taker keeps control through the
  // first chain and the loop, and the last chain is taken whole).
  Strands s;
  s.chain(3).chain(3).loop(4);
  EXPECT_EQ(openerValue({{3, 3}, {4}}), -2);
  EXPECT_EQ(exactLineValue(s.problem()), -2);
  // Short chains hand the move back: the opener gives the single cell first
  // and the pair comes back to him.
  EXPECT_EQ(openerValue({{1, 2}, {}}), 1);
}

TEST(ExpertChains, DeclinesTheLastTwoCellsWhenOnlyThatWins) {
  // The last three cells of a chain that the other side opened: one is
  // taken already, one can be taken now, and a second chain of three waits.
  // Taking both and opening the other chain ties (2 - 3 after the first);
  // giving the last two away makes the other side open it: the only win.
  Strands s;
  s.chain(3).chain(3);
  int a = s.firstCell(0);
  s.take(s.joining(-1, a)).take(s.joining(a, a + 1));
  // Cell a is whole; a + 1 needs one side more, a + 2 two.
  int decline = s.joining(a + 2, -1);
  EXPECT_EQ(exactLineValue(s.problem()), 1);
  EXPECT_EQ(bestLineMove(s.problem(), kPlenty), s.moveOf(decline));
}

TEST(ExpertChains, TakesAnOpenedLoopWholeWhenNothingFollows) {
  Strands s;
  s.loop(6);
  int a = s.firstCell(0);
  s.take(s.joining(a, a + 1));
  EXPECT_EQ(exactLineValue(s.problem()), 6);
  int move = bestLineMove(s.problem(), kPlenty);
  EXPECT_TRUE(move == s.moveOf(s.joining(a + 1, a + 2)) || move == s.moveOf(s.joining(a + 5, a)));
}

TEST(ExpertChains, AShortBudgetStillPlaysAFreeMove) {
  Strands s;
  s.chain(4).loop(4).chain(5);
  int move = bestLineMove(s.problem(), Budget{1});
  ASSERT_GE(move, 0);
  EXPECT_FALSE(s.problem().taken.at(static_cast<size_t>(move)));
  Strands done;
  done.chain(1).take(0 + 2).take(3);
  EXPECT_EQ(bestLineMove(done.problem(), kPlenty), -1);
}

// A board of `rows` by `columns` squares: the rows of horizontal lines
// first, then the rows of upright ones; each line is a move of its own.
LineProblem grid(int rows, int columns) {
  LineProblem p;
  int across = (rows + 1) * columns;
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < columns; ++c) {
      int upright = across + r * (columns + 1) + c;
      p.cells.push_back({r * columns + c, upright + 1, (r + 1) * columns + c, upright});
    }
  }
  for (int line = 0; line < across + rows * (columns + 1); ++line) {
    p.moves.push_back({line});
    p.taken.push_back(false);
  }
  return p;
}

// The same board's quarter turns and mirrors, for a square board.
std::vector<std::vector<int>> squareSymmetries(int n) {
  // A line as its two ends, as dots (row, column) of the (n + 1) by (n + 1) grid.
  std::map<std::pair<std::pair<int, int>, std::pair<int, int>>, int> lineAt;
  std::vector<std::pair<std::pair<int, int>, std::pair<int, int>>> ends;
  for (int r = 0; r <= n; ++r) {
    for (int c = 0; c < n; ++c) ends.push_back({{r, c}, {r, c + 1}});
  }
  for (int r = 0; r < n; ++r) {
    for (int c = 0; c <= n; ++c) ends.push_back({{r, c}, {r + 1, c}});
  }
  for (size_t line = 0; line < ends.size(); ++line) {
    lineAt[ends[line]] = static_cast<int>(line);
    lineAt[{ends[line].second, ends[line].first}] = static_cast<int>(line);
  }
  auto turn = [n](std::pair<int, int> d) { return std::pair<int, int>{d.second, n - d.first}; };
  auto mirror = [n](std::pair<int, int> d) { return std::pair<int, int>{d.first, n - d.second}; };
  std::vector<std::vector<int>> images;
  for (int way = 1; way < 8; ++way) {
    std::vector<int> image;
    for (const auto& [a, b] : ends) {
      std::pair<int, int> x = a;
      std::pair<int, int> y = b;
      for (int t = 0; t < way % 4; ++t) {
        x = turn(x);
        y = turn(y);
      }
      if (way >= 4) {
        x = mirror(x);
        y = mirror(y);
      }
      image.push_back(lineAt.at({x, y}));
    }
    images.push_back(image);
  }
  return images;
}

// Every line taken or not, searched to the end the plain way, remembered
// by the lines still free: the reference the expert's shortcuts answer to.
int plainValue(const LineProblem& p, uint32_t free, std::map<uint32_t, int>& memo) {
  if (free == 0) return 0;
  if (auto it = memo.find(free); it != memo.end()) return it->second;
  int best = -1000;
  for (size_t m = 0; m < p.moves.size(); ++m) {
    uint32_t bit = uint32_t{1} << m;
    if ((free & bit) == 0) continue;
    int gained = 0;
    for (const auto& cell : p.cells) {
      bool has = std::find(cell.begin(), cell.end(), static_cast<int>(m)) != cell.end();
      bool whole = std::none_of(cell.begin(), cell.end(), [&](int l) {
        return l != static_cast<int>(m) && (free & (uint32_t{1} << l)) != 0;
      });
      gained += has && whole ? 1 : 0;
    }
    int rest = plainValue(p, free & ~bit, memo);
    best = std::max(best, gained > 0 ? gained + rest : -rest);
  }
  memo.emplace(free, best);
  return best;
}

int plainValue(const LineProblem& p) {
  uint32_t free = 0;
  for (size_t m = 0; m < p.moves.size(); ++m) free |= p.taken[m] ? 0U : uint32_t{1} << m;
  std::map<uint32_t, int> memo;
  return plainValue(p, free, memo);
}

// What `m` is worth to the player who plays it, searched to the end.
int valueOf(LineProblem p, int m) {
  p.taken.at(static_cast<size_t>(m)) = true;
  int gained = 0;
  for (const auto& cell : p.cells) {
    bool has = std::find(cell.begin(), cell.end(), m) != cell.end();
    bool whole = std::all_of(cell.begin(), cell.end(),
                             [&p](int l) { return p.taken.at(static_cast<size_t>(l)); });
    gained += has && whole ? 1 : 0;
  }
  int rest = exactLineValue(p);
  return gained > 0 ? gained + rest : -rest;
}

// Takes every line whose number is in `lines`.
LineProblem with(LineProblem p, std::initializer_list<int> lines) {
  for (int line : lines) p.taken.at(static_cast<size_t>(line)) = true;
  return p;
}

TEST(ExpertExactSearch, AgreesWithThePlainSearchOnSmallBoards) {
  // By hand: on one square the third line gives it away, so the opener
  // loses it; on a row of two, the opener's second move is the fifth line,
  // and the last four lines leave two cells to whoever does not open.
  EXPECT_EQ(exactLineValue(grid(1, 1)), -1);
  EXPECT_EQ(plainValue(grid(1, 1)), -1);
  for (const LineProblem& p : {grid(1, 2), grid(2, 2), grid(2, 3)}) {
    EXPECT_EQ(exactLineValue(p), plainValue(p)) << p.cells.size() << " cells";
  }
  // A 3 by 3 board part played: a chain along the top edge, a loop-like ring
  // in the middle with its outer lines taken, and positions in between.
  LineProblem three = grid(3, 3);
  for (const LineProblem& p :
       {with(three, {0, 1, 2, 3, 4, 5, 12, 16, 20}), with(three, {3, 4, 5, 6, 7, 8, 13, 14, 17}),
        with(three, {0, 2, 9, 11, 12, 15, 19, 23, 4}),
        with(three, {1, 4, 7, 10, 13, 14, 17, 18, 21})}) {
    EXPECT_EQ(exactLineValue(p), plainValue(p));
  }
}

TEST(ExpertExactSearch, SymmetricPositionsShareTheirValueAndTheWork) {
  LineProblem plain = grid(2, 2);
  LineProblem turned = plain;
  turned.symmetries = squareSymmetries(2);
  EXPECT_EQ(exactLineValue(turned), exactLineValue(plain));
  EXPECT_LT(exactLineWork(turned), exactLineWork(plain));
  LineProblem three = grid(3, 3);
  for (std::initializer_list<int> lines : {std::initializer_list<int>{0, 1, 2, 3, 4, 5, 12, 16},
                                           {3, 4, 5, 13, 14, 17, 9},
                                           {0, 2, 9, 11, 12, 15, 19, 23}}) {
    LineProblem p = with(three, lines);
    LineProblem q = p;
    q.symmetries = squareSymmetries(3);
    EXPECT_EQ(exactLineValue(q), exactLineValue(p));
    // The move found through the table's images wins as much.
    int m = bestLineMove(q, kPlenty);
    ASSERT_GE(m, 0);
    ASSERT_FALSE(q.taken.at(static_cast<size_t>(m)));
    EXPECT_EQ(valueOf(p, m), exactLineValue(p));
  }
  LineProblem broken = grid(2, 2);
  broken.symmetries = {std::vector<int>(12, 0)};
  EXPECT_THROW(exactLineValue(broken), std::invalid_argument);
}

// A row of three cells, each painted by its own circle, on lines 0..9: the
// cells' tops 0..2, bottoms 3..5, and the upright lines 6..9 between them.
CircleProblem rowOfThree() {
  CircleProblem p;
  p.lineCount = 10;
  for (int c = 0; c < 3; ++c) p.cells.push_back({c, c + 3, c + 6, c + 7});
  p.patterns = p.cells;
  p.colour.assign(10, kUnmarked);
  p.done.assign(3, false);
  return p;
}

TEST(ExpertCircles, TheLastCircleIsPlayedInBlackAndSettlesTheGame) {
  CircleProblem p = rowOfThree();
  // Blue 0, Red 2: the middle circle is left and painted black, which
  // breaks both squares.
  EXPECT_EQ(playOut(p, {0, 2}), 0);
  // Blue 1, Red 0: the last circle, 2, is painted black before anything is
  // judged; it breaks Blue's square and Red's square 0 stands.
  EXPECT_EQ(playOut(p, {1, 0}), -1);
  EXPECT_EQ(playOut(p, {1, 2}), -1);
}

TEST(ExpertCircles, KeepsOutOfTheMoveThatLosesASquare) {
  // Blue to move: the middle circle loses a square whatever Red does (by the
  // play-outs above); either end draws.
  CircleProblem p = rowOfThree();
  int best = bestCircle(p, kPlenty);
  EXPECT_TRUE(best == 0 || best == 2) << best;
  p.mover = kRed;
  best = bestCircle(p, kPlenty);
  EXPECT_TRUE(best == 0 || best == 2) << best;
}

}  // namespace
}  // namespace vrask::expert
