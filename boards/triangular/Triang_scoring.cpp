// Judging the board after every move, and the end of a game. The points are
// the captions of `Label5(0)` (Blue) and `Label6` (Red): Ombrel adds to them,
// the circle games rebuild them from the board each time.

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/look.h"

namespace vrask {

using namespace triangular;

// --- games on lines ------------------------------------------------------------------

void Triang::checkwins() {
  if (finished == 1) return;
  flow_->setGameMenusEnabled(false);
  sd_->stop();
  judgeLines();
}

// Counts the cells the last line closed, settles the turn, shows the score,
// ends the game on a full board or lets the computer draw.
void Triang::judgeLines() {
  std::vector<int> newly = newlyClosed();
  settleLineTurn(static_cast<int>(newly.size()));
  flash(newly);

  int used = linesTakenOrHidden();
  Label13->Caption = movesLeft(kLines - used);
  if (used > kLines - 1) {
    if (gameover != 1) recordRound();
    return;
  }
  if (onePlayer() && whosnext == 1) computerLineMove();
}

// The cells with all three sides marked that have not scored yet, their
// circles filled in the colour of the side that moved: the status shows Red
// in its own orange, and the circle is Red then.
std::vector<int> Triang::newlyClosed() {
  sidecount = countMarkedSides(sidemark);
  int fill = flow_->moverColour() == kRedStatus ? color::Red : flow_->moverColour();
  std::vector<int> newly;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (sidecount.at(cell) != 3 || cellscored.at(cell) != 0) continue;
    newly.push_back(cell);
    Shape1(cell).FillStyle = 0;
    Shape1(cell).FillColor = fill;
  }
  return newly;
}

// `whosnext` is 1 after Blue's line and 0 after Red's. A line that closes a
// cell earns its player another line.
void Triang::settleLineTurn(int newly) {
  if (newly != 0) {
    bool blueMoved = whosnext == 1;
    whosnext = blueMoved ? 0 : 1;
    flow_->addPoints(blueMoved ? Side::Blue : Side::Red, newly);
    flow_->showTurn(blueMoved ? Side::Blue : Side::Red);
  }
  const char* next = whosnext == 1 ? "Red" : "Blue";
  if (newly == 0) {
    flow_->say(noScore(next), whosnext == 1 ? kRedStatus : color::Blue);
  } else {
    flow_->say(newly == 1 ? scoredAgain(next) : kDoubleScore, flow_->moverColour());
  }
}

// Each new cell shows its three lines in yellow for a second.
void Triang::flash(const std::vector<int>& cells) {
  for (int cell : cells) {
    flow_->flash(*board_.lines, cells_.sides(cell), kFlashGap, kFlashHold);
    cellscored.at(cell) = 1;
  }
}

// A smaller board counts its hidden lines as used.
int Triang::linesTakenOrHidden() const {
  int used = 0;
  for (int line = 1; line <= kLines; ++line) {
    used += lineowner.at(line) != 0 || !lineShows(line) ? 1 : 0;
  }
  return used;
}

// --- games on circles ------------------------------------------------------------------

// The turn passes, the free cells are counted, every cell is judged afresh
// from the colours of its lines, and the last free cell is played by the
// program itself in Black.
void Triang::chackmoves() {
  if (finished == 1 || flow_->status() == kVraskMove) return;
  passCircleTurn();
  flow_->setGameMenusEnabled(false);
  sd_->stop();
  flow_->zeroScores();

  FreeCells before = countFreeCells();
  Label13->Caption = movesLeft(before.count);
  if (before.count == 1) {
    playLastCell(before.last);
    return;
  }
  judgeCells();
  FreeCells after = countFreeCells();
  Label13->Caption = movesLeft(after.count);
  if (after.count == 1) {
    playLastCell(after.last);
    return;
  }
  // A move that closes the last free cells at once ends the game as the last
  // move does, with nothing left for anybody to play.
  if (after.count == 0) {
    outtahere();
    return;
  }
  if (onePlayer()) {
    redchack();
    // The clock times the player's next move; a game over has none.
    if (finished == 0) sd_->restart();
  }
}

void Triang::passCircleTurn() {
  bool blueNext = flow_->moverColour() != color::Blue;
  flow_->say(blueNext ? kBluesTurn : kRedsTurn, blueNext ? color::Blue : color::Red);
  flow_->showTurn(blueNext ? Side::Blue : Side::Red);
  Refresh();
}

// The cells on the board still open to a move, and the highest-numbered.
Triang::FreeCells Triang::countFreeCells() {
  FreeCells free{0, 0};
  for (int cell = 1; cell <= kCells; ++cell) {
    if (!cellShows(cell) || celltaken.at(cell) != 0) continue;
    ++free.count;
    free.last = cell;
  }
  return free;
}

// A cell with all three lines drawn is out of play for good; it scores for a
// side only while all three stand in that side's colour.
void Triang::judgeCells() {
  for (int cell = 1; cell <= kCells; ++cell) {
    int lines = 0, blue = 0, red = 0;
    for (int line : celllines.at(cell)) {
      if (!drawn(line)) continue;
      ++lines;
      blue += ln1(line).BorderColor == color::Blue ? 1 : 0;
      red += ln1(line).BorderColor == color::Red ? 1 : 0;
    }
    Shape1(cell).BackColor = color::Grey;
    if (lines == 3) {
      celltaken.at(cell) = 1;
      Shape1(cell).BorderColor = kMagenta;
      Label2(cell).Visible = false;
    }
    if (blue == 3) claimCell(cell, color::Blue);
    if (red == 3) claimCell(cell, color::Red);
  }
}

void Triang::claimCell(int cell, int colour) {
  if (!cellShows(cell)) return;
  flow_->addPoints(colour == color::Blue ? Side::Blue : Side::Red, 1);
  Shape1(cell).BackColor = colour;
  Label2(cell).Visible = false;
}

// Nobody may play the last free cell: the program plays it in Black,
// nobody's colour, with its extension, and that settles the game.
void Triang::playLastCell(int cell) {
  flow_->say(kVraskMove, color::Black);
  compmove(cell);
  lastcell = cell;
}

// The final count of a circle game, once.
void Triang::outtahere() {
  if (finished == 1) return;
  finished = 1;
  flow_->zeroScores();
  judgeCells();
  recordRound();
}

// --- the end of a game -----------------------------------------------------------------

// Three rows in the round list and "GAME OVER": the whole announcement.
void Triang::recordRound() {
  flow_->endGame();
  gameover = 1;
}

}  // namespace vrask
