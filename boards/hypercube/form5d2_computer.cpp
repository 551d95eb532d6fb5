// The computer plays Red when "One player" is ticked: a rule list in the
// line games, the most painted free square in the square games, a line at
// random in the Line Vrask games. `computer.h` holds its decisions; these are
// its moves, with their pauses. The hint list counts as it does.
#include <array>
#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/look.h"

namespace vrask {

using namespace hypercube;

namespace {

constexpr double kBlink = 1;
constexpr std::array<int, 4> kBlinks{color::Yellow, kDarkRed, color::Yellow, kDarkRed};
constexpr double kSquarePause = 2;
constexpr double kBeforeTheEnd = 4;
constexpr double kLineVraskPause = 2;

}  // namespace

// Take a square with three sides, lowest first, and judge again: the square
// scores for Red, who moves again, until none has three. Then a line that
// gives nothing away if there is one. A capture sets `compbusy`, since the
// flash that follows it lets clicks in.
void form5d2::computerLineMove() {
  sidecount = countPaintedSides(sqside);
  if (expert_->on()) {
    expertLineMove();
    return;
  }
  if (int slot = lineToTake(sqln, sqside, sidecount); slot != 0) {
    compbusy = 1;
    redtoplay = 0;
    lnown.at(slot) = kRedCode;
    compmov(slot);
    return;
  }
  candlist = safeLines(sqln, sidecount, lnown);
  if (candlist.empty()) {
    if (hnt->Checked) MsgBox(kNoGoodMovesLeft);
    candlist = freeLines(lnown);
  }
  compbusy = 0;
  int slot = flow_->pickFrom(candlist);
  lnown.at(slot) = kRedCode;
  compmov(slot);
  flow_->say("No score    Blue's turn.", color::Blue);
  flow_->showTurn(Side::Blue);
}

// The computer's line blinks yellow and dark red for four seconds and stays
// dark red, then the board is judged.
void form5d2::compmov(int windex) {
  Label99->Caption = movesLeft(movesleft);
  redtoplay = 0;
  lnown.at(windex) = kRedCode;
  paintSides(windex, kRedCode);
  for (int colour : kBlinks) {
    Refresh();
    wait(kBlink);
    paintLine(windex, kPainted, colour);
  }
  --movesleft;
  Label99->Caption = movesLeft(movesleft);
  flow_->showLastMove(gridNumber(windex));
  numberOf(windex).Visible = false;
  checkwins();
  hintlist();
}

// The lines that give nothing away, by their grid numbers, and how many.
void form5d2::hintlist() {
  List3->Clear();
  std::vector<int> safe = safeLines(sqln, countPaintedSides(sqside), lnown);
  if (!safe.empty()) {
    for (int slot : safe) List3->AddItem(std::to_string(gridNumber(slot)));
    Label34->Caption = nonScoringMovesLeft(static_cast<int>(safe.size()));
  } else {
    if (Label34->Visible) Label34->Caption = kNoNonScoringMovesLeft;
    Label34->Visible = false;
    List3->Visible = false;
  }
  if (gamenum == 0 || gamenum == 2) redtoplay = 0;
}

// A number chosen in the hint list goes to the keypad; a double click plays
// it as the keypad's enter would, so it is held out while the computer
// captures.
void form5d2::List3_Click(bool play) {
  if (keypad_->takeListRow(*List3) && play) Command3_Click();
}

// The free square with the most painted sides, shown in yellow for two
// seconds and painted red. A square with no painted side is out of its
// reach: with nothing else free it lets the turn go.
void form5d2::computerSquareMove() {
  sidecount = countPaintedSides(sqside);
  int square = squareToTake(sidecount, sqtaken);
  if (square == 0) return;
  wait(kSquarePause);
  flow_->say(kRedPlayersTurn, color::Red);
  flow_->showTurn(Side::Red);
  for (int k = 1; k <= 4; ++k) paintLine(sqln.at(square).at(k), kPainted, color::Yellow);
  flow_->showLastMove(square);
  Label11(square).Visible = false;
  Element& ring = Shape1(square);
  ring.BorderWidth = kChosenRing;
  ring.BorderColor = color::Yellow;
  ring.Visible = true;
  Refresh();
  if (plusGame()) {
    takeSquare(square, color::Red);
    for (int next : plusnb.at(square)) takeSquare(next, color::Red);
  }
  wait(kSquarePause);
  flow_->zeroScores();
  ring.BorderWidth = kClosedRing;
  for (int k = 1; k <= 4; ++k) {
    int slot = sqln.at(square).at(k);
    paintLine(slot, kPainted, color::Red);
    paintSides(slot, color::Red);
  }
  flow_->say(kBluePlayersTurn, color::Blue);
  flow_->showTurn(Side::Blue);
  judge();
  if (movesleft < 1 && overflag == 0) {
    wait(kBeforeTheEnd);
    endOfRound();
  }
  if (hidmov->Checked) hideNonScoringSquares();
}

// Any free line, by chance, in the colour the status label shows.
void form5d2::computerLineVraskMove() {
  wait(kLineVraskPause);
  candlist = freeLines(lnown);
  if (candlist.empty()) return;
  paintLineVrask(flow_->pickFrom(candlist));
}

}  // namespace vrask
