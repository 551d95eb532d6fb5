// The menus of the HyperCube board: the games, the players, the grid, the
// hints, and New with who opens the round.
#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/look.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"

namespace vrask {

using namespace hypercube;

// A game is chosen between rounds; the board is not reset, New does that.
// Dorvel needs two people, so with one player it is refused and nothing
// changes.
void form5d2::gm_Click(int Index) {
  if (Index == 1 && onePlayer()) {
    MsgBox(kDorvelRefused);
    return;
  }
  grid_->clearTick();
  for (Element* entry : {shint, bhint, hnt}) entry->Checked = false;
  Label34->Visible = false;
  List3->Visible = false;
  firstturn = 0;
  showLineNumbers(grid_->on());
  for (Element& entry : *gm_) entry.Checked = false;
  gm(Index).Checked = true;
  gamenum = Index;
  const GameTitle* title = titleOf(kGames, Index);
  Label36->Caption = title != nullptr ? title->name : "";
  if (Index == 0) {
    flow_->say(flow_->status(), color::Blue);
    flow_->showTurn(Side::Blue);
    redtoplay = 0;
  }
  // The key of Super Vrask Plus shows in its three games only.
  for (Element& frame : *Shape2_) frame.Visible = plusGame();
  Image1->Visible = plusGame();
  keyText->Visible = plusGame();

  bool squares = squareGame();
  showSquares(squares);
  showLines(!squares);
  flow_->say(squares ? kClickACircle : kClickALine, flow_->moverColour());
  Label99->Caption = movesLeft(squares ? kSquares : kLines);
  shint->Enabled = !squares;
  bhint->Enabled = !squares;
}

// Either entry swaps the two check marks.
void form5d2::pl_Click() {
  bool one = pl(1).Checked;
  pl(1).Checked = !one;
  pl(2).Checked = one;
}

// The numbers of the squares in the games played on circles that number
// them; in every other game, Zorvex Squares among them, the numbers of the
// lines.
void form5d2::shgrid_Click(bool on) {
  bool numberSquares = gamenum == 4 || gamenum == 5 || gamenum == 6 || plusGame();
  if (numberSquares) {
    for (Element& circle : *Label11_) circle.Caption = on ? std::to_string(circle.index) : "";
  } else {
    showLineNumbers(on);
  }
}

// `hnt`, `shint` and `bhint` serve Ombrel alone; in another game they say so
// and stay unticked. A ticked hint shows its label or list.
void form5d2::hintMenu_Click(Element& entry, Element* shows) {
  if (gamenum != 0) {
    MsgBox(kHintForOmbrelOnly);
    entry.Checked = false;
    return;
  }
  entry.Checked = !entry.Checked;
  if (shows != nullptr) shows->Visible = entry.Checked;
}

// New: the round's whole state back to the start, then who opens. Not
// while a finished square shows: the move that finished it is still running.
void form5d2::gmm_Click() {
  if (flashing == 1) return;
  resetRound();
  openRound();
}

void form5d2::resetRound() {
  lnown.fill(0);
  for (auto* table : {&sqtaken, &sqdone, &sidecount}) table->fill(0);
  sqside.fill({});
  candlist.clear();
  compbusy = 0;
  overflag = 0;
  for (int slot = 1; slot <= kLines; ++slot) paintLine(slot, 1, designColour_.at(slot));
  movesleft = kLines;
  flow_->zeroScores();
  for (Element& ring : *Shape1_) {
    ring.BorderWidth = 1;
    ring.BorderColor = color::Black;
  }
  List3->Clear();
  flow_->setGameMenusEnabled(true);
  flow_->startNewGame();
  bool squares = squareGame();
  showSquares(squares);
  showLines(!squares);
  Label99->Caption = movesLeft(squares ? kSquares : kLines);
  if (!squares) {
    showLineNumbers(grid_->on());
    // The hints close with the first move of a round and open with the next.
    shint->Enabled = true;
    bhint->Enabled = true;
  }
  if (lineGame()) Label34->Caption = nonScoringMovesLeft(kLines);
}

// In Ombrel and Zorvex Lines the turn runs on from the last round. The other
// games take turns to open; with one player, Red's opening is the computer's
// random move, made as in a two-player game so that the turn passes to Blue
// without a reply.
void form5d2::openRound() {
  if (lineVraskGame()) flow_->say(flow_->status(), color::Blue);
  if (gamenum == 0 || gamenum == 2) return;
  if (firstturn == 0) {
    firstturn = 1;
    return;
  }
  firstturn = 0;
  if (!onePlayer()) return;
  flow_->say(kRedPlayersTurn, color::Red);
  flow_->showTurn(Side::Red);
  pl_Click();
  if (squareGame()) {
    Label11_Click(pick(kSquares));
  } else {
    redtoplay = 1;
    linevrask(pick(kLines) - 1);
  }
  pl_Click();
}

// The hit areas of the lines and their second copies.
void form5d2::showLines(bool on) {
  for (int index = 0; index < kLines; ++index) Label1(index).Visible = on;
  for (int copy : {550, 630, 710, 790}) Label1(copy).Visible = on;
}

void form5d2::showSquares(bool on) {
  for (Element& ring : *Shape1_) ring.Visible = on;
  for (Element& circle : *Label11_) circle.Visible = on;
}

void form5d2::showLineNumbers(bool on) {
  for (Element& number : *Label9_) number.Visible = on;
}

}  // namespace vrask
