// The moves of a person: a line clicked, a printed number clicked, a circle
// clicked, a number typed.
#include <cmath>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/layout.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

namespace {

// Circle 30 has a second click target, `Label9(0)`.
constexpr int kTwinCircle = 30;

}  // namespace

// A line in Ombrel or Zorvex (Lines); the Line Vrask games go their own way.
void zorvex::Label22_Click(int z) {
  if (busy == 1 || gameover == 1 || !isLineGame(gamemode)) return;
  int p = layout::zoneLine(z);
  if (isLineVrask(gamemode)) {
    lineVraskClick(p, false);
    return;
  }
  // A taken line is refused before anything else is touched.
  int L = boardLine(viewno, p);
  if (lineowner.at(static_cast<size_t>(L)) != 0) {
    badmove();
    return;
  }
  lineClickPrelude();
  int colour = takeLineMover();
  LN(p).BorderWidth = kPainted;
  LN(p).BorderColor = colour;
  lineowner.at(static_cast<size_t>(L)) = moverid;
  markmov(L);
  if (gamemode == ZorvexLines) {
    for (int c = 1; c <= kCubes; ++c) {
      for (int k = 1; k <= 12; ++k) {
        if (tables.cubelines.at(static_cast<size_t>(c)).at(static_cast<size_t>(k)) == L) {
          cubeinks.at(static_cast<size_t>(c)).at(static_cast<size_t>(k)) = moverid;
        }
      }
    }
  } else {
    inkBoardLine(L, moverid);
  }
  scoremove();
}

// What every line click does first, taken or not.
void zorvex::lineClickPrelude() {
  for (Element& circle : *Label9_) circle.Visible = false;
  flow_->clearLastMove();
  sd_->stop();
  hideCumulativePanel();
  flow_->setGameMenusEnabled(false);
  shint->Enabled = false;
  bhint->Enabled = false;
}

// The mover of the line just clicked, by `rednext`, which then points at the
// other side; a score turns it back.
int zorvex::takeLineMover() {
  Side mover = flow_->passLineTurn(rednext);
  moverid = mover == Side::Red ? kRedId : kBlueId;
  return mover == Side::Red ? color::Red : color::Blue;
}

void zorvex::markmov(int L) {
  flow_->showLastMove(lineNumber(L));
}

// A printed number acts as a click on its line.
void zorvex::Label11_Click(int n) {
  if (busy == 1) return;
  Label22_Click(layout::firstZoneOf(lineIndexOfNumber(n)));
}

// A circle in a circle game.
void zorvex::Label9_Click(int c) {
  if (busy == 1 || gameover == 1 || started == 0 || isLineGame(gamemode)) return;
  int slot = c == 0 ? kTwinCircle : c;
  // A played circle is refused before anything else is touched.
  int s = boardSquare(viewno, slot);
  if (circlestate.at(static_cast<size_t>(s)) != 0) {
    MsgBox(kInvalidMove);
    return;
  }
  sd_->stop();
  hideCumulativePanel();
  flow_->setGameMenusEnabled(false);
  if (gamemode == ZorvexSquares) {
    ballswalls(slot);
    return;
  }
  for (Element& ring : *Shape1_) {
    if (ring.BorderWidth == kPlayedRing && ring.BorderColor != color::Black) ring.Visible = true;
  }
  int colour = mover();
  if (isSuperVrask(gamemode)) {
    for (int neighbour : planeNeighbours(slot)) paintSquare(neighbour, colour);
  }
  paintSquare(slot, colour);
  flow_->showLastMove(s);
  if (!onePlayer()) passCircleTurn();
  if (afterCircleMove()) return;
  if (!onePlayer()) return;
  flow_->showTurn(Side::Red);
  flow_->say(kRedPlayersTurn, color::Red);
  Refresh();
  wait(2);
  circleReply();
}

// The four lines of the drawn square `slot` in `colour`, in every square
// that holds them; a square painted again takes the new colour whatever it
// held before.
void zorvex::paintSquare(int slot, int colour) {
  int u = boardSquare(viewno, slot);
  for (int k = 1; k <= 4; ++k) {
    int drawnLine = tables.squarelines.at(static_cast<size_t>(slot)).at(static_cast<size_t>(k));
    LN(drawnLine).BorderWidth = kPainted;
    LN(drawnLine).BorderColor = colour;
    int L = boardLine(viewno, drawnLine);
    lineowner.at(static_cast<size_t>(L)) = colour;
    inkBoardLine(L, colour);
  }
  circlestate.at(static_cast<size_t>(u)) = colour;
  Shape1(slot).BorderWidth = kPlayedRing;
  Shape1(slot).Visible = true;
  Label9(slot).Visible = false;
  Label9(slot).Caption.clear();
  if (slot == kTwinCircle) Label9(0).Visible = false;
}

// `value` is written wherever board line L stands in a square.
void zorvex::inkBoardLine(int L, int value) {
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = 1; k <= 4; ++k) {
      if (tables.squarelines.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)) == L) {
        squareinks.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)) = value;
      }
    }
  }
}

void zorvex::passCircleTurn() {
  bool blueNext = mover() != color::Blue;
  flow_->say(blueNext ? kBluePlayersTurn : kRedPlayersTurn, blueNext ? color::Blue : color::Red);
  flow_->showTurn(blueNext ? Side::Blue : Side::Red);
}

// Zorvex (Squares): a square is claimed, its diagonal drawn; six claimed
// squares make a cube, which scores and gives its claimer another move. The
// game is played in the first view, where a drawn square is its board square.
void zorvex::ballswalls(int s) {
  if (s == 0) s = kTwinCircle;
  if (circlestate.at(static_cast<size_t>(s)) != 0) {
    MsgBox(kInvalidMove);
    return;
  }
  hideCumulativePanel();
  int colour = mover();
  Line2(s).BorderColor = colour;
  Line2(s).Visible = true;
  for (int k = 1; k <= 4; ++k) {
    Element& line = LN(tables.squarelines.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)));
    line.BorderWidth = kPainted;
    line.BorderColor = colour;
    squareinks.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)) = colour;
  }
  // "Last move" carries the square to a player far away, as in every game.
  flow_->showLastMove(s);
  Shape1(s).BorderColor = color::Yellow;
  Shape1(s).BorderWidth = kPlayedRing;
  Refresh();
  wait(1);
  Shape1(s).Visible = false;
  Label9(s).Visible = false;
  Label9(s).Caption.clear();
  if (s == kTwinCircle) Label9(0).Visible = false;
  for (int c = 1; c <= kCubes; ++c) {
    for (int k = 1; k <= 6; ++k) {
      if (tables.cubesquares.at(static_cast<size_t>(c)).at(static_cast<size_t>(k)) == s) {
        cubefaces.at(static_cast<size_t>(c)).at(static_cast<size_t>(k)) = 1;
      }
    }
  }
  circlestate.at(static_cast<size_t>(s)) = colour;
  passCircleTurn();
  countCubes();
  int left = kSquares - usedSquares();
  Label35->Caption = movesLeft(left);
  if (left == 0) {
    gameEnd(1);
    return;
  }
  if (mover() == color::Red && onePlayer()) squaresReply();
}

// The keypad's "enter": the number is looked up among the numbers on the
// screen, so it means the same line or square in every view. A number that
// no shown label carries is dropped without a word.
void zorvex::Command6_Click() {
  if (busy == 1) return;
  Element& box = keypad_->text();
  double n = Val(box.Text);
  box.Text.clear();
  keypad_->focusText();
  if (n < 1 || std::floor(n) != n) return;
  std::string number = std::to_string(static_cast<int>(n));
  if (isLineGame(gamemode)) {
    for (const Element& label : *Label11_) {
      if (label.Caption == number) {
        Label11_Click(label.index);
        return;
      }
    }
    return;
  }
  for (int p = 1; p <= kSquares; ++p) {
    if (Label9(p).Visible && Label9(p).Caption == number) {
      Label9_Click(p);
      return;
    }
  }
}

void zorvex::badmove() {
  Label8->Caption.clear();
  MsgBox(kInvalidLine);
  keypad_->text().Text.clear();
  keypad_->focusText();
}

}  // namespace vrask
