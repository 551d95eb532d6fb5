// A person's moves on the wall, the judging after every move and the end of
// a game.
#include "boards/wall/captions.h"
#include "boards/wall/look.h"
#include "boards/wall/vraskthewall.h"
#include "frame/keypad.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace wall;

// A move on square n: the square is claimed, with its neighbours in Super
// Vrask Plus, the board is judged, and the computer answers. The computer's
// move holds every click out, and a finished wall takes no more moves.
void vraskthewall::Label9_Click(int n) {
  if (compbusy == 1 || gameover == 1) return;
  flow_->setGameMenusEnabled(false);
  showLevelButtons(false);
  for (int k = 1; k <= 4; ++k) lineOf(n, k).Visible = true;
  Label9(n).Caption.clear();
  circleOf(n).BorderWidth = kDrawn;
  if (squaretaken.at(n) != 0) {
    MsgBox(kInvalidMove);
    return;
  }
  flow_->showLastMove(n);
  int colour = flow_->moverColour();
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

// The keypad's "enter": the number typed plays like a click on that circle;
// one that no square of this wall has is dropped without a word.
void vraskthewall::Command4_Click() {
  if (compbusy == 1) return;
  if (std::optional<int> n = flow_->typedTarget(*Label9_)) Label9_Click(*n);
}

// The square's four lines in the colour, over whatever stood there, and the
// square marked with it; its number goes, as it goes from a square clicked,
// so that a taken square never offers itself to be typed.
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
  Label9(s).Caption.clear();
}

// Between two players the turn passes after every move. Against the
// computer the status stays Blue: the computer paints in Red on its own.
void vraskthewall::passTurn() {
  if (ip(0).Checked) return;
  bool blueNext = flow_->moverColour() != color::Blue;
  flow_->say(blueNext ? kBluePlayersTurn : kRedPlayersTurn, blueNext ? color::Blue : color::Red);
  flow_->showTurn(blueNext ? Side::Blue : Side::Red);
}

int vraskthewall::drawnLines(int s) {
  int drawn = 0;
  for (int k = 1; k <= 4; ++k) drawn += lineOf(s, k).BorderWidth == kDrawn ? 1 : 0;
  return drawn;
}

// The points counted afresh from the lines: a square whose four lines are
// all Red is Red's, all Blue Blue's. In Classic a square whose four lines
// are all drawn leaves the game even if nobody played it. Returns the moves
// left, which `Label35` shows.
int vraskthewall::judge() {
  flow_->zeroScores();
  bool classic = isClassic(gamecode);
  int blue = 0;
  int red = 0;
  for (int s = 1; s <= kSquares; ++s) {
    int blueLines = 0;
    int redLines = 0;
    int drawn = 0;
    for (int k = 1; k <= 4; ++k) {
      const Element& line = lineOf(s, k);
      blueLines += line.BorderColor == color::Blue ? 1 : 0;
      redLines += line.BorderColor == color::Red ? 1 : 0;
      drawn += line.BorderWidth == kDrawn ? 1 : 0;
    }
    Element& circle = circleOf(s);
    circle.BorderColor = color::Black;
    if (redLines == 4) circle.BorderColor = color::Red;
    if (blueLines == 4) circle.BorderColor = color::Blue;
    red += redLines == 4 ? 1 : 0;
    blue += blueLines == 4 ? 1 : 0;
    if (classic && drawn == 4 && circle.BorderWidth != kDrawn) {
      squaretaken.at(s) = kDeadMark;
      circle.BorderWidth = kDrawn;
      circle.BorderColor = kDead;
      circle.Visible = true;
      Label9(s).Caption.clear();
    }
  }
  flow_->addPoints(Side::Red, red);
  flow_->addPoints(Side::Blue, blue);
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
// game. The keypad's panel comes up for the next game's moves.
void vraskthewall::endOfGame() {
  Refresh();
  wait(kEndPause);
  squaretaken = {};
  gameover = 1;
  flow_->endGame();
  keypad_->panel().Visible = true;
}

}  // namespace vrask
