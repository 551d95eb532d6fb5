// The HyperCube board's line games as the expert sees them.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "boards/hypercube/expert_view.h"
#include "frame/play_descriptor.h"
#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask::hypercube {
namespace {

// Line index 0 stands in slot 80. Left as the only free line, it is the last
// side of four squares: Blue's back and top faces and a connecting square on
// either side of the Blue cube.
TEST(HypercubeExpert, TheLastFreeLineIsIndexZeroAndFinishesFourSquares) {
  SideTable sqln = startr();
  LineValues lnown{};
  lnown.fill(1);
  lnown.at(kLines) = 0;
  expert::LineProblem problem = lineProblem(sqln, lnown);
  ASSERT_EQ(problem.cells.size(), static_cast<size_t>(kSquares));
  ASSERT_EQ(problem.moves.size(), static_cast<size_t>(kLines));
  EXPECT_EQ(expert::exactLineValue(problem), 4);
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{1000}), kLines);

  lnown.at(kLines) = 2;
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{1000}), 0);
}

// Blue's back face (slots 80, 4, 6, 5) with three sides drawn and nothing
// else: the fourth side is free to take, and taking it gives nothing away,
// since the player moves again.
TEST(HypercubeExpert, TakesASquareThatCostsNothing) {
  SideTable sqln = startr();
  LineValues lnown{};
  for (int slot : {80, 4, 6}) lnown.at(slot) = 2;
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{20000}), 5);
}

// The real board, two players, Ombrel, driven by clicks on its lines.
class OmbrelBoard {
 public:
  OmbrelBoard() : program_(host_) {
    registerSuite(program_);
    program_.open("form5d2");
    click({"pl", 1});
    click({"gm", 0});
  }

  Form& form() { return *program_.current(); }
  void click(const Choice& choice) {
    Element& e = elementOf(form(), choice);
    ASSERT_EQ(program_.userEvent(form(), e, choice.element + "_Click").outcome,
              Program::Outcome::Done);
  }
  int number(const std::string& name, const std::vector<int>& at = {}) {
    return static_cast<int>(numberOf(form(), name, at));
  }

  SideTable sides() {
    SideTable sqln{};
    for (int s = 1; s <= kSquares; ++s) {
      for (int k = 1; k <= 4; ++k) sqln.at(s).at(k) = number("sqln", {s, k});
    }
    return sqln;
  }
  LineValues owners() {
    LineValues lnown{};
    for (int slot = 1; slot <= kLines; ++slot) lnown.at(slot) = number("lnown", {slot});
    return lnown;
  }
  std::set<int> scoredSquares() {
    std::set<int> done;
    for (int s = 1; s <= kSquares; ++s) {
      if (number("sqdone", {s}) == 1) done.insert(s);
    }
    return done;
  }
  // The slots whose hit areas show and whose lines are not drawn yet.
  std::set<int> clickableLines() {
    std::set<int> free;
    for (const Element& e : *form().findArray("Label1")) {
      int index = e.index > 100 ? e.index / 10 : e.index;
      if (index >= kLines || !e.Visible || !e.Enabled) continue;
      if (number("lnown", {slotOf(index)}) == 0) free.insert(slotOf(index));
    }
    return free;
  }

 private:
  HeadlessHost host_;
  Program program_;
};

// The squares whose lines the expert's position has all taken, as the board
// numbers them (cell c is square c + 1).
std::set<int> completeCells(const expert::LineProblem& p) {
  std::set<int> whole;
  for (size_t c = 0; c < p.cells.size(); ++c) {
    if (std::all_of(p.cells[c].begin(), p.cells[c].end(),
                    [&p](int slot) { return p.taken.at(static_cast<size_t>(slot - 1)); })) {
      whole.insert(static_cast<int>(c) + 1);
    }
  }
  return whole;
}

std::set<int> offeredLines(const expert::LineProblem& p) {
  std::set<int> free;
  for (size_t m = 0; m < p.moves.size(); ++m) {
    if (!p.taken[m]) free.insert(p.moves[m].front());
  }
  return free;
}

// Random whole games on the board itself: after every line the expert's
// position has finished exactly the squares the board scored, offers
// exactly the lines a player can still click, and the player who finished
// a square is the one to move again, as the expert assumes.
TEST(HypercubeExpert, TheExpertsPositionFollowsRandomGamesOnTheBoard) {
  std::mt19937 random(5);
  for (int game = 0; game < 6; ++game) {
    OmbrelBoard board;
    SCOPED_TRACE(::testing::Message() << "game " << game);
    int moves = 0;
    while (board.number("overflag") == 0) {
      expert::LineProblem p = lineProblem(board.sides(), board.owners());
      ASSERT_EQ(completeCells(p), board.scoredSquares()) << "after " << moves << " lines";
      std::set<int> offered = offeredLines(p);
      ASSERT_EQ(offered, board.clickableLines()) << "after " << moves << " lines";
      ASSERT_EQ(static_cast<int>(offered.size()), board.number("movesleft"));
      ASSERT_FALSE(offered.empty());
      auto pick = offered.begin();
      std::advance(pick, std::uniform_int_distribution<int>(
                             0, static_cast<int>(offered.size()) - 1)(random));
      int mover = board.number("redtoplay");
      size_t before = board.scoredSquares().size();
      board.click({"Label1", indexOf(*pick)});
      ++moves;
      bool scored = board.scoredSquares().size() > before;
      if (board.number("overflag") == 0) {
        EXPECT_EQ(board.number("redtoplay") == mover, scored) << "after line " << *pick;
      }
    }
    EXPECT_EQ(moves, kLines);
    EXPECT_EQ(static_cast<int>(board.scoredSquares().size()), kSquares);
  }
}

}  // namespace
}  // namespace vrask::hypercube
