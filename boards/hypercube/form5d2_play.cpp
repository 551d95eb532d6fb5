// A person's moves: a line or a grid number clicked, a circle clicked, a
// number typed on the keypad or picked from the hint list.
#include <cmath>
#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"

namespace vrask {

using namespace hypercube;

namespace {

constexpr double kLineVraskFlash = 4;
constexpr double kBeforeTheEnd = 2;

// An index above 100 is a second hit area, ten times the line's index; index
// 0 has the last slot.
int slotOfClick(int Index) {
  return slotOf(Index > 100 ? Index / 10 : Index);
}

}  // namespace

// A line game move: the mover's line, judged at once. A refused move leaves
// everything as it was, the first-time hint included.
void form5d2::Label1_Click(int Index) {
  if (compbusy == 1 || flashing == 1) return;
  if (lineVraskGame()) {
    linevrask(Index);
    return;
  }
  if (!lineGame()) return;
  int slot = slotOfClick(Index);
  if (lnown.at(slot) > 0) {
    MsgBox(kInvalidMove);
    return;
  }
  Label10(9).Visible = false;
  bhint->Enabled = false;
  shint->Enabled = false;
  flow_->setGameMenusEnabled(false);
  --movesleft;
  Label99->Caption = movesLeft(movesleft);
  bool red = redtoplay == 1;
  redtoplay = red ? 0 : 1;
  int colour = red ? color::Red : color::Blue;
  int code = red ? kRedCode : kBlueCode;
  lnown.at(slot) = code;
  paintSides(slot, code);
  paintLine(slot, kPainted, colour);
  numberOf(slot).Visible = false;
  flow_->showLastMove(gridNumber(slot));
  checkwins();
}

// A line's value goes to every square that holds it.
void form5d2::paintSides(int slot, int value) {
  for (SidePlace p : places_.at(slot)) sqside.at(p.square).at(p.side) = value;
}

void form5d2::paintLine(int slot, int width, int colour) {
  for (Element* segment : segments_.at(slot)) {
    segment->BorderWidth = width;
    segment->BorderColor = colour;
  }
}

// A square game move, in the colour the status label shows. Once the round
// is over nothing is left to play, so a typed number is turned away there.
void form5d2::Label11_Click(int Index) {
  if (!squareGame() || overflag == 1) return;
  if (sqtaken.at(Index) > 0) {
    MsgBox(kInvalidMove);
    return;
  }
  Label10(9).Visible = false;
  flow_->setGameMenusEnabled(false);
  flow_->showLastMove(Index);
  int colour = flow_->moverColour();
  takeSquare(Index, colour);
  // Super Vrask Plus takes the square again with its four, closed or not.
  if (plusGame()) {
    takeSquare(Index, colour);
    for (int square : plusnb.at(Index)) takeSquare(square, colour);
  }
  if (!onePlayer()) passTurn();
  judge();
  if (movesleft < 1) {
    wait(kBeforeTheEnd);
    endOfRound();
    return;
  }
  if (onePlayer()) computerSquareMove();
  if (hidmov->Checked) hideNonScoringSquares();
}

// The square's four lines take the colour, whoever held them: this is how a
// move breaks an opponent's square.
void form5d2::takeSquare(int square, int colour) {
  for (int k = 1; k <= 4; ++k) {
    int slot = sqln.at(square).at(k);
    paintSides(slot, colour);
    paintLine(slot, kPainted, colour);
  }
  sqtaken.at(square) = colour;
  Label11(square).Visible = false;
  Shape1(square).BorderWidth = kClosedRing;
  Shape1(square).Visible = true;
}

void form5d2::passTurn() {
  bool blueNext = flow_->moverColour() == color::Red;
  flow_->say(blueNext ? kBluePlayersTurn : kRedPlayersTurn, blueNext ? color::Blue : color::Red);
  flow_->showTurn(blueNext ? Side::Blue : Side::Red);
}

// The keypad's Enter: the number typed plays as a click on that line or
// circle. A number out of range, not a whole number, or naming a closed
// circle is dropped.
void form5d2::Command3_Click() {
  if (compbusy == 1 || flashing == 1) return;
  SetFocus(keypad_->text());
  if (squareGame()) {
    if (std::optional<int> square = flow_->typedTarget(*Label11_)) Label11_Click(*square);
    return;
  }
  std::optional<int> number = flow_->typedNumber();
  if (number && *number >= 1 && *number <= kLines) Label1_Click(*number - 1);
}

// A Line Vrask move: the line and every line that meets it take the colour
// the status label shows, whoever held them. After the round's end the lines
// the last move wiped out are free again, but nothing is left to play.
void form5d2::linevrask(int Index) {
  if (overflag == 1) return;
  int slot = slotOfClick(Index);
  if (lnown.at(slot) != 0) {
    MsgBox(kInvalidMove);
    return;
  }
  Label10(9).Visible = false;
  for (Element& ring : *Shape1_) {
    if (ring.BorderWidth == kClosedRing && ring.BorderColor == color::Black) ring.Visible = false;
  }
  flow_->setGameMenusEnabled(false);
  paintLineVrask(slot);
  if (overflag == 0 && onePlayer()) computerLineVraskMove();
}

// From "Last move" to the end of the round: what a person's move and the
// computer's have alike.
void form5d2::paintLineVrask(int slot) {
  flow_->showLastMove(gridNumber(slot));
  int colour = flow_->moverColour();
  std::vector<int> lines{slot};
  lines.insert(lines.end(), lnnb.at(slot).begin(), lnnb.at(slot).end());
  for (int line : lines) {
    lnown.at(line) = colour;
    paintLine(line, kPainted, color::Yellow);
  }
  Refresh();
  wait(kLineVraskFlash);
  for (int line : lines) paintLine(line, kPainted, colour);
  passTurn();
  afterLineVrask();
}

void form5d2::afterLineVrask() {
  judge();
  if (gamenum == 15 && movesleft == 1) {
    lastvrask();
    return;
  }
  if (movesleft < 1) {
    wait(kBeforeTheEnd);
    endOfRound();
  }
}

// The last free line is nobody's: with every line that meets it, it is wiped
// out in black, which can take points from both sides, and the round ends.
void form5d2::lastvrask() {
  int slot = freeLines(lnown).front();
  flow_->say(kVraskMove, color::Black);
  std::vector<int> lines{slot};
  lines.insert(lines.end(), lnnb.at(slot).begin(), lnnb.at(slot).end());
  for (int line : lines) {
    lnown.at(line) = 0;
    paintLine(line, kPainted, color::Yellow);
  }
  Refresh();
  wait(kLineVraskFlash);
  for (int line : lines) paintLine(line, kPainted, color::Black);
  judge();
  movesleft = 0;
  Label99->Caption = movesLeft(0);
  wait(kBeforeTheEnd);
  endOfRound();
}

}  // namespace vrask
