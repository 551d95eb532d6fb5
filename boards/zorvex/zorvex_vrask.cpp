// Line Vrask (a move paints a line and all its cross lines), the Vrask move
// that the game makes itself in black when one move is left, and the hints
// of Ombrel.
#include <algorithm>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

namespace {

constexpr double kHitPause = 2;
constexpr double kVraskEndPause = 4;

// Board line 15, an inner line, and its eight cross lines: Red's opening.
constexpr std::array<int, 9> kFixedOpening{40, 23, 15, 49, 21, 20, 24, 50, 41};

}  // namespace

// --- Line Vrask ---------------------------------------------------------------------

// A line that a move has painted, by click or as a cross line, cannot be
// clicked again; it changes only as a cross line of another move.
void zorvex::lineVraskClick(int slot, bool byComputer) {
  int L = boardLine(viewno, slot);
  if (hitlines.at(static_cast<size_t>(L)) != 0) {
    badmove();
    return;
  }
  lineClickPrelude();
  markmov(L);
  lineVraskMove(slot, mover());
  passLineVraskTurn();
  int left = countWidthOneLines();
  Label34->Caption = left == 0 ? "No moves left" : left == 1 ? "1 move left" : movesLeft(left);
  if (left == 1 && gamemode == LineVraskBonus) {
    outtathere();
    return;
  }
  lineVraskRecount();
  if (left == 0) {
    gameEnd(0);
    return;
  }
  if (!onePlayer() || byComputer) return;
  flow_->showTurn(Side::Red);
  Refresh();
  std::vector<int> free;
  for (int p = 1; p <= kLines; ++p) {
    if (LN(p).BorderWidth == kFree) free.push_back(p);
  }
  int reply = pickFrom(free);
  flow_->showTurn(Side::Blue);
  lineVraskClick(reply, true);
}

// The line and its cross lines in `colour`, shown in yellow for a moment.
void zorvex::lineVraskMove(int slot, int colour) {
  int L = boardLine(viewno, slot);
  std::vector<int> hitlist{slot};
  for (int cross : crossLines(L)) hitlist.push_back(slotLine(cross));
  for (int drawnLine : hitlist) {
    int board = boardLine(viewno, drawnLine);
    hitlines.at(static_cast<size_t>(board)) = 1;
    LN(drawnLine).BorderWidth = kPainted;
    LN(drawnLine).BorderColor = colour;
    lineowner.at(static_cast<size_t>(board)) = moverid;
    inkBoardLine(board, colour);
  }
  for (int drawnLine : hitlist) LN(drawnLine).BorderColor = color::Yellow;
  Refresh();
  wait(kHitPause);
  for (int drawnLine : hitlist) LN(drawnLine).BorderColor = colour;
}

void zorvex::passLineVraskTurn() {
  bool redNext = mover() == color::Blue;
  flow_->say(redNext ? kRedsLineTurn : kBluesLineTurn, redNext ? color::Red : color::Blue);
  moverid = redNext ? kRedId : kBlueId;
  flow_->showTurn(redNext ? Side::Red : Side::Blue);
}

int zorvex::countWidthOneLines() const {
  int free = 0;
  for (int p = 1; p <= kLines; ++p) free += (*LN_)[p].BorderWidth == kFree ? 1 : 0;
  return free;
}

// A square whole in one colour scores for that side now; the rings of the
// others stay hidden.
void zorvex::lineVraskRecount() {
  int blue = 0;
  int red = 0;
  for (int s = 1; s <= kSquares; ++s) {
    Element& ring = Shape1(slotSquare(s));
    ring.BorderColor = color::Black;
    ring.BorderWidth = kPlayedRing;
    ring.Visible = false;
    const auto& inks = squareinks.at(static_cast<size_t>(s));
    for (int colour : {color::Red, color::Blue}) {
      if (std::all_of(inks.begin() + 1, inks.end(), [colour](int v) { return v == colour; })) {
        (colour == color::Red ? red : blue) += 1;
        ring.BorderColor = colour;
        ring.Visible = true;
      }
    }
  }
  flow_->zeroScores();
  flow_->addPoints(Side::Blue, blue);
  flow_->addPoints(Side::Red, red);
}

// Red's opening against the computer: painted, but not marked as hit, so
// each of these lines can still be clicked and then paints its cross lines.
void zorvex::fixedOpening() {
  for (int L : kFixedOpening) {
    Element& line = LN(slotLine(L));
    line.BorderWidth = kPainted;
    line.BorderColor = color::Red;
    inkBoardLine(L, color::Red);
  }
  Label34->Caption = movesLeft(countWidthOneLines());
  flow_->say(kBluesLineTurn, color::Blue);
  moverid = kBlueId;
  flow_->showTurn(Side::Blue);
}

// --- the Vrask move -----------------------------------------------------------------

// The circle games with the Vrask move: the last free square is nobody's. It
// is painted black, with its plane neighbours in Super Vrask Plus, and black
// takes those lines out of every square that held them. Then the game ends.
void zorvex::outtahere() {
  sd_->stop();
  hideCumulativePanel();
  flow_->setGameMenusEnabled(false);
  auto it = std::find_if(circlestate.begin() + 1, circlestate.end(), [](int v) { return v <= 1; });
  int s = static_cast<int>(it - circlestate.begin());
  flow_->say(kVraskMove, color::Black);
  int p = slotSquare(s);
  if (isSuperVrask(gamemode)) {
    for (int neighbour : planeNeighbours(p)) paintSquare(neighbour, color::Black);
  }
  paintSquare(p, color::Black);
  flow_->showLastMove(s);
  recount();
  gameEnd(kVraskEndPause);
}

// The bonus game: the last free line and its cross lines go black.
void zorvex::outtathere() {
  lineClickPrelude();
  int slot = 1;
  while (LN(slot).BorderWidth != kFree) ++slot;
  flow_->say(kVraskMove, color::Black);
  markmov(boardLine(viewno, slot));
  lineVraskMove(slot, color::Black);
  passLineVraskTurn();
  Label34->Caption = countWidthOneLines() == 0 ? "No moves left" : "1 move left";
  lineVraskRecount();
  gameEnd(0);
}

// --- hints -------------------------------------------------------------------------

// The hints are Ombrel's: elsewhere the tick is refused with a word.
bool zorvex::ombrelOnly(Element& entry) {
  if (gamemode != Ombrel) {
    entry.Checked = false;
    MsgBox(kHintForOmbrelOnly);
    return false;
  }
  entry.Checked = !entry.Checked;
  return true;
}

void zorvex::hnt_Click() {
  ombrelOnly(*hnt);
}

// Refused, the counter of the game in hand stays as it is.
void zorvex::shint_Click() {
  if (!ombrelOnly(*shint)) return;
  Label35->Visible = shint->Checked;
  Label35->Caption = nonScoringMovesLeft(kLines);
}

void zorvex::bhint_Click() {
  if (!ombrelOnly(*bhint)) return;
  List3->Visible = bhint->Checked;
}

// After the computer's line: how many safe lines Blue has, and which. The
// list is built from the squares at two lines as the computer found them
// before its own line.
void zorvex::hintscan(const PerSquare& before) {
  if (safeLines(tables, paintedSides(squareinks), lineowner).empty()) {
    if (Label35->Visible) Label34->Caption = kNoNonScoringMovesLeft;
    Label35->Visible = false;
    List3->Visible = false;
  }
  List3->Clear();
  std::vector<int> safe = safeLines(tables, before, lineowner);
  for (int L : safe) List3->AddItem(std::to_string(lineNumber(L)));
  if (safe.empty()) List3->Visible = false;
  Label35->Caption = nonScoringMovesLeft(static_cast<int>(safe.size()));
}

// A number chosen in the list goes to the keypad; a double click plays it.
void zorvex::List3_Click(bool play) {
  if (keypad_->takeListRow(*List3) && play) Command6_Click();
}

}  // namespace vrask
