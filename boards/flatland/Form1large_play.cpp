// The moves of a person: a line clicked, a circle clicked, a number typed.
#include <cmath>

#include "boards/flatland/Form1large.h"
#include "boards/flatland/captions.h"
#include "boards/flatland/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"

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
  Label18->Caption = kLastMove + std::to_string(L);
  showSizeLabels(false);
  ln1(L).BorderWidth = kMarked;

  bool redMoves = turnflag == 1;
  turnflag = redMoves ? 0 : 1;
  int colour = redMoves ? color::Red : color::Blue;
  Label4(0).Visible = !redMoves;
  Label4(1).Visible = redMoves;
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
  ln1(twin).BorderWidth = kMarked;
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
  Label18->Caption = kLastMove + std::to_string(s);
  Shape1(s).BorderColor = color::Green;
  paintPattern(s, Label33->ForeColor);
  chackmoves();
}

void Form1large::paintPattern(int s, int colour) {
  for (int line : vraskPattern(sqline, gamemode, s, bubbleland())) {
    ln1(line).BorderWidth = kMarked;
    ln1(line).BorderColor = colour;
  }
}

// The keypad's "enter": the number typed plays like a click on that line or
// circle. A number that is out of range, not whole, or on a target that is
// not there is dropped without a word.
void Form1large::Command6_Click() {
  if (compbusy == 1) return;
  Element& box = keypad_->text();
  double n = Val(box.Text);
  box.Text.clear();
  bool whole = std::floor(n) == n;
  if (gamemode == Ombrel) {
    if (whole && n >= 1 && n <= kLines && Label1(static_cast<int>(n)).Visible) {
      Label1_Click(static_cast<int>(n));
    }
  } else if (whole && n >= 1 && n <= kSquares && Label2(static_cast<int>(n)).Visible) {
    Label2_Click(static_cast<int>(n));
  }
}

// In a Vrask game the turn passes after every move, scoring or not.
void Form1large::passVraskTurn() {
  bool blueNext = Label33->ForeColor != color::Blue;
  Label33->ForeColor = blueNext ? color::Blue : color::Red;
  Label33->Caption = blueNext ? "Blue player's turn" : "Red player's turn";
  Label4(1).Visible = blueNext;
  Label4(0).Visible = !blueNext;
  Refresh();
}

}  // namespace vrask
