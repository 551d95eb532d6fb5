// A person's moves on the wall, the judging after every move and the end of
// a game.
#include <cmath>

#include "boards/wall/captions.h"
#include "boards/wall/look.h"
#include "boards/wall/vraskthewall.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/round_list.h"

namespace vrask {

using namespace wall;

namespace {

void addPoint(Element& points) {
  points.Caption = std::to_string(static_cast<int>(Val(points.Caption)) + 1);
}

}  // namespace

// A move on square n: the square is claimed, with its neighbours in Super
// Vrask Plus, the board is judged, and the computer answers. The computer's
// move holds every click out, and a finished wall takes no more moves.
void vraskthewall::Label9_Click(int n) {
  if (compbusy == 1 || gameover == 1) return;
  setMenusEnabled(false);
  showLevelButtons(false);
  for (int k = 1; k <= 4; ++k) lineOf(n, k).Visible = true;
  Label9(n).Caption.clear();
  circleOf(n).BorderWidth = kDrawn;
  if (squaretaken.at(n) != 0) {
    MsgBox(kInvalidMove);
    return;
  }
  Label12->Caption = kLastMove + std::to_string(n);
  int colour = Label33->ForeColor;
  if (takesNeighbours(gamecode)) {
    for (int next : neighbours(n)) {
      if (onWallNow(next)) takeSquare(next, colour);
    }
  }
  takeSquare(n, colour);
  passTurn();
  if (judge() == 0) {
    endOfGame();
  } else if (ip(0).Checked) {
    computerMove();
  }
}

// The keypad's "enter": the number typed plays like a click on that circle.
// A number that no square of this wall has, or that is not whole, is dropped
// without a word.
void vraskthewall::Command4_Click() {
  if (compbusy == 1) return;
  Element& box = keypad_->text();
  double n = Val(box.Text);
  box.Text.clear();
  if (std::floor(n) == n && n >= 1 && n <= kSquares && onWallNow(static_cast<int>(n))) {
    Label9_Click(static_cast<int>(n));
  }
}

// The square's four lines in the colour, over whatever stood there, and the
// square marked with it.
void vraskthewall::takeSquare(int s, int colour) {
  for (int k = 1; k <= 4; ++k) {
    Element& line = lineOf(s, k);
    line.BorderWidth = kDrawn;
    line.BorderColor = colour;
    line.Visible = true;
  }
  squaretaken.at(s) = colour;
  circleOf(s).BorderWidth = kDrawn;
  circleOf(s).Visible = true;
}

// Between two players the turn passes after every move. Against the
// computer the status stays Blue: the computer paints in Red on its own.
void vraskthewall::passTurn() {
  if (ip(0).Checked) return;
  bool blueNext = Label33->ForeColor != color::Blue;
  Label33->ForeColor = blueNext ? color::Blue : color::Red;
  Label33->Caption = blueNext ? kBluesTurn : kRedsTurn;
  showTurn(blueNext);
}

// The points counted afresh from the lines: a square whose four lines are
// all Red is Red's, all Blue Blue's. In Classic a square whose four lines
// are all drawn leaves the game even if nobody played it. Returns the moves
// left, which `Label35` shows.
int vraskthewall::judge() {
  Label5->Caption = "0";
  Label6->Caption = "0";
  bool classic = isClassic(gamecode);
  for (int s = 1; s <= kSquares; ++s) {
    Element& circle = circleOf(s);
    circle.BorderColor = color::Black;
    int red = 0;
    int blue = 0;
    int drawn = 0;
    for (int k = 1; k <= 4; ++k) {
      const Element& line = lineOf(s, k);
      red += line.BorderColor == color::Red ? 1 : 0;
      blue += line.BorderColor == color::Blue ? 1 : 0;
      drawn += line.BorderWidth == kDrawn ? 1 : 0;
    }
    if (red == 4) {
      addPoint(*Label6);
      circle.BorderColor = color::Red;
    }
    if (blue == 4) {
      addPoint(*Label5);
      circle.BorderColor = color::Blue;
    }
    if (classic && drawn == 4 && circle.BorderWidth != kDrawn) {
      squaretaken.at(s) = kDeadMark;
      circle.BorderWidth = kDrawn;
      circle.BorderColor = kDead;
      circle.Visible = true;
      Label9(s).Caption.clear();
    }
  }
  if (hidmov->Checked) {
    for (int s = 1; s <= kSquares; ++s) {
      Element& circle = circleOf(s);
      if (circle.BorderWidth == kDrawn && circle.BorderColor == color::Black) {
        circle.Visible = false;
      }
    }
  }
  int taken = 0;
  for (int s = 1; s <= kSquares; ++s) taken += squaretaken.at(s) > 1 ? 1 : 0;
  int left = wallsize - taken;
  Label35->Caption = movesLeft(left);
  return left;
}

// The wall stands for a moment as it ended, then the round list takes the
// game: "Round k -", the winner and both points, the totals and a blank row.
void vraskthewall::endOfGame() {
  Refresh();
  wait(kEndPause);
  keypad_->panel().Visible = true;
  squaretaken = {};
  gameover = 1;
  roundList_->recordGame(static_cast<int>(Val(Label5->Caption)),
                         static_cast<int>(Val(Label6->Caption)));
  for (Element& label : *Label15_) label.Visible = true;
}

}  // namespace vrask
