#include <gtest/gtest.h>

#include <map>

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
