// The moves of a person: a line clicked, a circle clicked, a number typed.
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

constexpr int kRedId = 1;
constexpr int kBlueId = 2;

}  // namespace

// A line game move. The square board plays only Ombrel as a line game.
void Form1large::Label1_Click(int L) {
  if (compbusy == 1 || gamemode > Ombrel) return;
  if (lineown.at(L) != 0) {
    MsgBox("Invalid move!");
    return;
  }
  flow_->showLastMove(L);
  showSizeLabels(false);
  ln1(L).BorderWidth = kMarkedWidth;

  bool redMoves = turnflag == 1;
  turnflag = redMoves ? 0 : 1;
  int colour = redMoves ? color::Red : color::Blue;
  flow_->showTurn(redMoves ? Side::Blue : Side::Red);
  moverid = redMoves ? kRedId : kBlueId;

  ln1(L).BorderColor = colour;
  lineown.at(L) = moverid;
  if (bubbleland()) bbland(L);
  ownSides(L, moverid);
  if (bubbleland() && twinOf(L) != 0) ownSides(twinOf(L), moverid);
  sd_->resetTime();
  checkwins();
}

// The twin of an edge line is taken with it, in the colour of the move just
// made, and written as Red's whoever made it.
void Form1large::bbland(int L) {
  int twin = twinOf(L);
  if (twin == 0) return;
  ln1(twin).BorderWidth = kMarkedWidth;
  ln1(twin).BorderColor = turnflag == 1 ? color::Blue : color::Red;
  lineown.at(twin) = kRedId;
  ownSides(twin, kRedId);
}

void Form1large::ownSides(int line, int owner) {
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = Top; k <= Left; ++k) {
      if (sqline.at(s).at(k) == line) sqowner.at(s).at(k) = owner;
    }
  }
}

// A Vrask move, in the colour the status label shows.
void Form1large::Label2_Click(int s) {
  if (!isVraskMode(gamemode)) return;
  showSizeLabels(false);
  if (sqdone.at(s) == 1) {
    MsgBox("Invalid move");
    return;
  }
  sqdone.at(s) = 1;
  flow_->showLastMove(s);
  Shape1(s).BorderColor = color::Green;
  paintPattern(s, flow_->moverColour());
  chackmoves();
}

void Form1large::paintPattern(int s, int colour) {
  markLines(*ln1_, vraskPattern(sqline, gamemode, s, bubbleland()), colour);
}

// The keypad's "enter": the number typed plays like a click on that line or
// circle. A number that is out of range, not whole, or on a target that is
// not there is dropped without a word.
void Form1large::Command6_Click() {
  if (compbusy == 1) return;
  bool lineGame = gamemode == Ombrel;
  std::optional<int> n = flow_->typedTarget(lineGame ? *Label1_ : *Label2_);
  if (!n) return;
  if (lineGame) {
    Label1_Click(*n);
  } else {
    Label2_Click(*n);
  }
}

// In a Vrask game the turn passes after every move, scoring or not.
void Form1large::passVraskTurn() {
  bool blueNext = flow_->moverColour() != color::Blue;
  flow_->say(blueNext ? "Blue player's turn" : "Red player's turn",
             blueNext ? color::Blue : color::Red);
  flow_->showTurn(blueNext ? Side::Blue : Side::Red);
  Refresh();
}

}  // namespace vrask
