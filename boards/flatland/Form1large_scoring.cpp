// Judging the board after every move, and the end of a game. The scores are
// the captions of `Label5(0)` (Blue) and `Label6` (Red): line games add to
// them, Vrask games rebuild them from the board each time.
#include "boards/flatland/Form1large.h"
#include "boards/flatland/captions.h"
#include "boards/flatland/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace flatland;

namespace {

constexpr double kFlashGap = 0.25;

}  // namespace

// --- line games ----------------------------------------------------------------

void Form1large::checkwins() {
  showSizeLabels(false);
  flow_->setGameMenusEnabled(false);
  sd_->stop();

  std::vector<int> newly = newlyScored();
  if (!newly.empty()) {
    flow_->addPoints(turnflag == 1 ? Side::Blue : Side::Red, static_cast<int>(newly.size()));
    Label8->Caption.clear();
  }
  settleLineTurn(static_cast<int>(newly.size()));
  flash(newly);

  int taken = 0;
  for (int L = 1; L <= kLines; ++L) taken += lineown.at(L) != 0 ? 1 : 0;
  int total = lineCount(boardsize);
  Label12->Caption = movesLeft(total - taken);
  if (taken == total) {
    endOfGame();
  } else if (ip(0).Checked && turnflag == 1) {
    computerLineMove();
  }
}

// The squares this line completes, in square order, their circles filled in
// the colour of the side that moved. In Dorvel only the mover's own sides
// count.
std::vector<int> Form1large::newlyScored() {
  sidecount = countOwnedSides(sqowner, gamemode == Dorvel ? moverid : 0);
  // The label turns orange for Red in a line game; the circle is Red then.
  int fill = flow_->moverColour() == kOrange ? color::Red : flow_->moverColour();
  std::vector<int> newly;
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) != 4 || sqscored.at(s) != 0) continue;
    newly.push_back(s);
    Shape1(s).FillColor = fill;
  }
  return newly;
}

// Who moves next. `turnflag` is 1 after Blue's line and 0 after Red's. In
// Ombrel a score earns another move; in Dorvel the turn passes all the same.
void Form1large::settleLineTurn(int newly) {
  bool blueMoved = turnflag == 1;
  const char* mover = blueMoved ? "Blue" : "Red";
  const char* other = blueMoved ? "Red" : "Blue";
  if (newly == 0) {
    flow_->say(std::string("No score    ") + other + "'s turn.", blueMoved ? kOrange : color::Blue);
    return;
  }
  std::string doubleScore = "  Double score!      Two cool!";
  if (gamemode == Dorvel) {
    flow_->say(newly >= 2 ? doubleScore : std::string(" Score!      ") + other + "'s turn now.",
               blueMoved ? color::Red : color::Blue);
    return;
  }
  turnflag = blueMoved ? 0 : 1;
  flow_->say(newly >= 2 ? doubleScore : std::string(" Score!      ") + mover + " goes again.",
             flow_->moverColour());
  flow_->showTurn(blueMoved ? Side::Blue : Side::Red);
}

// Each new square shows its four lines in yellow for a moment.
void Form1large::flash(const std::vector<int>& squares) {
  for (int s : squares) {
    flow_->flash(*ln1_, board_.sides(s), kFlashGap);
    sqscored.at(s) = 1;
  }
}

// --- Vrask games -----------------------------------------------------------------

// The turn passes, the circles are counted, every square is judged afresh
// from the colours of its lines, and the last circle is played by the
// program itself in Black.
void Form1large::chackmoves() {
  if (gameover == 1) return;
  flow_->zeroScores();
  showSizeLabels(false);
  if (flow_->status() != kVraskMove) passVraskTurn();
  flow_->setGameMenusEnabled(false);
  sd_->stop();
  flow_->zeroScores();

  OpenCircles circles = countOpenCircles();
  if (circles.open > 1) Label12->Caption = movesLeft(circles.open);
  if (circles.open == 1) playVraskMove(circles.lastopen);
  judgeVraskSquares();

  // The judging can close the circle found last: then nothing is played and
  // the game goes on with the one circle left.
  int open = countOpenCircles().open;
  if (open == 1) playVraskMove(circles.lastopen);
  if (open < 1) {
    endOfGame();
  } else if (ip(0).Checked) {
    computerVraskTurn();
  }
  if (ip(0).Checked && !sd_->noLimit()) sd_->restart();
}

// The open circles on the board (those beyond a smaller board are never
// played) and the highest-numbered of them.
Form1large::OpenCircles Form1large::countOpenCircles() {
  std::vector<int> open = board_.openCells(sqdone, [this](int s) { return squareShows(s); });
  return {static_cast<int>(open.size()), open.empty() ? 0 : open.back()};
}

// Nobody may play the last circle: the program plays it in Black, nobody's
// colour, and that settles the game.
void Form1large::playVraskMove(int lastopen) {
  Refresh();
  wait(kComputerPause);
  flow_->say(kVraskMove, color::Black);
  compmove(lastopen);
  flow_->zeroScores();
  Refresh();
}

void Form1large::judgeVraskSquares() {
  for (int s = 1; s <= kSquares; ++s) {
    int blue = 0;
    int red = 0;
    for (int k = Top; k <= Left; ++k) {
      const Element& line = ln1(sqline.at(s).at(k));
      if (line.BorderWidth != kMarkedWidth) continue;
      blue += line.BorderColor == color::Blue ? 1 : 0;
      red += line.BorderColor == color::Red ? 1 : 0;
    }
    Shape1(s).FillColor = color::Grey;
    if (blue == 4) claimSquare(s, Side::Blue);
    if (red == 4) claimSquare(s, Side::Red);
  }
}

// A square whole in one colour scores for that side now; the first time, its
// circle is closed for good, even if it loses the colour later.
void Form1large::claimSquare(int s, Side side) {
  if (!squareShows(s)) return;
  flow_->addPoints(side, 1);
  Shape1(s).FillColor = side == Side::Blue ? color::Blue : color::Red;
  Label2(s).Visible = false;
  if (sqdone.at(s) == 0) {
    sqdone.at(s) = 1;
    Shape1(s).BorderColor = kPurple;
  }
}

// --- the end of a game ---------------------------------------------------------

// Three rows in the round list and "GAME OVER": the whole announcement. The
// menus stay closed until New.
void Form1large::endOfGame() {
  if (gameover == 1) return;
  gameover = 1;
  flow_->endGame();
}

}  // namespace vrask
