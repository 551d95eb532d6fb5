// Judging the board after every move, and the end of a game. The points are
// the captions of `Label5(0)` (Blue) and `Label6` (Red): Ombrel adds to them,
// the circle games rebuild them from the board each time.
#include <array>

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/round_list.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace triangular;

namespace {

constexpr double kFlash = 1;
constexpr double kFlashGap = 0.25;

void addPoints(Element& points, int n) {
  points.Caption = std::to_string(static_cast<int>(Val(points.Caption)) + n);
}

int points(const Element& label) {
  return static_cast<int>(Val(label.Caption));
}

}  // namespace

// --- games on lines ------------------------------------------------------------------

void Triang::checkwins() {
  if (finished == 1) return;
  setMenusEnabled(false);
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
  int fill = Label33->ForeColor == kRedStatus ? color::Red : Label33->ForeColor;
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
    addPoints(blueMoved ? Label5(0) : *Label6, newly);
    Label4(1).Visible = blueMoved;
    Label4(0).Visible = !blueMoved;
  }
  const char* next = whosnext == 1 ? "Red" : "Blue";
  if (newly == 1) {
    Label33->Caption = scoredAgain(next);
  } else if (newly == 2) {
    Label33->Caption = kDoubleScore;
  } else {
    Label33->Caption = noScore(next);
    Label33->ForeColor = whosnext == 1 ? kRedStatus : color::Blue;
  }
}

// Each new cell shows its three lines in yellow for a moment.
void Triang::flash(const std::vector<int>& cells) {
  for (int cell : cells) {
    std::array<int, 3> colours{};
    for (size_t slot = 0; slot < 3; ++slot) {
      Element& line = ln1(celllines.at(cell).at(slot));
      colours.at(slot) = line.BorderColor;
      line.BorderColor = color::Yellow;
    }
    Refresh();
    wait(kFlash);
    for (size_t slot = 0; slot < 3; ++slot) {
      ln1(celllines.at(cell).at(slot)).BorderColor = colours.at(slot);
    }
    Refresh();
    wait(kFlashGap);
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
  if (finished == 1 || Label33->Caption == kVraskMove) return;
  passCircleTurn();
  setMenusEnabled(false);
  sd_->stop();
  zeroPoints();

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
  bool blueNext = Label33->ForeColor != color::Blue;
  Label33->ForeColor = blueNext ? color::Blue : color::Red;
  Label33->Caption = blueNext ? kBluesTurn : kRedsTurn;
  Label4(1).Visible = blueNext;
  Label4(0).Visible = !blueNext;
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
    if (blue == 3) claimCell(cell, color::Blue, Label5(0));
    if (red == 3) claimCell(cell, color::Red, *Label6);
  }
}

void Triang::claimCell(int cell, int colour, Element& points) {
  if (!cellShows(cell)) return;
  addPoints(points, 1);
  Shape1(cell).BackColor = colour;
  Label2(cell).Visible = false;
}

void Triang::zeroPoints() {
  Label5(0).Caption = "0";
  Label6->Caption = "0";
}

// Nobody may play the last free cell: the program plays it in Black,
// nobody's colour, with its extension, and that settles the game.
void Triang::playLastCell(int cell) {
  Label33->Caption = kVraskMove;
  Label33->ForeColor = color::Black;
  compmove(cell);
  lastcell = cell;
}

// The final count of a circle game, once.
void Triang::outtahere() {
  if (finished == 1) return;
  finished = 1;
  zeroPoints();
  judgeCells();
  recordRound();
}

// --- the end of a game -----------------------------------------------------------------

// Three rows in the round list and "GAME OVER": the whole announcement.
void Triang::recordRound() {
  roundList_->recordGame(points(Label5(0)), points(*Label6));
  for (Element& label : *Label15_) label.Visible = true;
  keypad_->panel().Visible = false;
  setDefaultButton(*this, *Command1);
  SetFocus(*Command1);
  gameover = 1;
}

}  // namespace vrask
