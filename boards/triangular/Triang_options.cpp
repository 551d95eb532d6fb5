// The menus of the triangular board: games, players, sizes, the world, the
// grid numbers, and New.
#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/look.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace triangular;

// A game is chosen before play, on a board that is not reset. Crossing
// between the lines and the circles with the grid on turns the grid off, so
// no numbers stand on targets that are gone.
void Triang::game_Click(int index) {
  bool crossing =
      (gameindex == Ombrel && index > Dorvel) || (gameindex > Dorvel && index == Ombrel);
  if (crossing && grid_->on()) grid_->toggle();
  for (Element& entry : *game_) entry.Checked = false;
  (*game_)[index].Checked = true;
  gameindex = index;
  Label36->Caption = gameLabel(index);
  Label33->Caption = playedOnLines(index) ? kClickALine : kClickACircle;
  szmen_Click(checkedSize());
}

void Triang::ip_Click(int i) {
  if (i > 1) return;
  (*ip_)[i].Checked = true;
  (*ip_)[1 - i].Checked = false;
  // Two players may be far apart: the keypad carries their moves.
  if (i == 1) {
    keypad_->open();
  } else {
    keypad_->close();
  }
}

// The board shows whole, then a smaller size hides its sets. Only the click
// targets of the kind of game in play come up: circles can't be played in a
// game on lines, nor lines in a game on circles.
void Triang::szmen_Click(int size) {
  if (size < kNormalSize && bubbleland()) ver_Click();
  Hidden hidden = hiddenBySize(size);
  bool onLines = playedOnLines(gameindex);
  showOnBoard(*board_.lines, hidden.lines, true);
  showOnBoard(*board_.strips, hidden.lines, onLines);
  showOnBoard(*board_.circles, hidden.cells, true);
  showOnBoard(*board_.targets, hidden.cells, !onLines);
  movestotal = triangular::movestotal(gameindex, size);
  Label13->Caption = movesLeft(movestotal);

  for (Element& entry : *szmen_) entry.Checked = entry.index == size;
  panel_->markSize(size);
  (*ver_)[1].Enabled = size == kNormalSize;
  (*ver_)[2].Enabled = size == kNormalSize;
}

void Triang::showOnBoard(ElementArray& targets, const std::vector<int>& hidden, bool inPlay) {
  for (Element& e : targets) e.Visible = inPlay;
  if (!inPlay) return;
  for (int i : hidden) targets[i].Visible = false;
}

// Either entry turns the world over. The shared request is overwritten, so a
// board opened later starts in Flatland. Super Vrask has no place in
// Bubbleland's menu: its tick goes to Ombrel, though the game chosen stays.
void Triang::ver_Click() {
  bool toBubbleland = (*ver_)[1].Checked;
  (*ver_)[1].Checked = !toBubbleland;
  (*ver_)[2].Checked = toBubbleland;
  shared().set(shared::kBubblelandStart, num(0));
  if (toBubbleland && (*game_)[SuperVrask].Checked) {
    (*game_)[SuperVrask].Checked = false;
    (*game_)[Ombrel].Checked = true;
  }
}

// The numbers stand on the targets of the game: lines in Ombrel, circles in
// the others.
void Triang::shgrid_Click(bool on) {
  ElementArray& numbered = gameindex == Ombrel ? *board_.strips : *board_.targets;
  for (Element& target : numbered) target.Caption = on ? std::to_string(target.index) : "";
}

// New: the next game of the round list, on the board as the menus have it.
// While the computer draws a line New waits like every other click; after a
// game it always goes through.
void Triang::gmc_Click() {
  if (inputlock == 1 && gameover == 0) return;
  inputlock = 0;
  gameover = 0;
  finished = 0;
  endgameflag = 0;
  flow_->startNewGame();
  showSizeControls(true);
  flow_->setGameMenusEnabled(true);
  sd_->fullBar();
  sd_->stop();

  openerflag = openerflag == 0 ? 1 : 0;
  bool twoPlayers = (*ip_)[1].Checked;
  (*ip_)[1].Checked = twoPlayers;
  (*ip_)[0].Checked = !twoPlayers;
  resetBoard();

  if (playedOnLines(gameindex)) {
    if (openerflag == 0) {
      whosnext = 1;
      checkwins();
    }
    return;
  }
  if (openerflag == 0) {
    showSizeControls(false);
    Label33->ForeColor = color::Red;
    // With two players nothing is played: the red label says Red opens.
    if (onePlayer()) computerOpensCircleGame();
  }
  freshboard = 1;
}

// The circles, the size, the points, the tables and the lines back to the
// start of a game.
void Triang::resetBoard() {
  clearCircles();
  for (Element& target : *board_.targets) target.Visible = true;
  szmen_Click(checkedSize());
  flow_->zeroScores();
  List1->Clear();
  celltaken = {};
  cellscored = {};
  lineowner = {};
  sidemark = {};
  whosnext = openerflag;
  flow_->say(gameindex > Dorvel ? kClickACircle : kClickALine, color::Blue);
  std::array<int, kLines + 1> design = designColours();
  for (Element& line : *board_.lines) {
    line.BorderWidth = 1;
    line.BorderColor = design.at(static_cast<size_t>(line.index));
  }
  Label13->Caption = movesLeft(movestotal);
}

// The computer opens a circle game at random over the cells on the board.
// The board has just been dealt, so the count that follows finds no end.
void Triang::computerOpensCircleGame() {
  whosnext = 1;
  candidates = cells_.openCells(celltaken, [this](int cell) { return cellShows(cell); });
  int cell = flow_->pickFrom(candidates);
  compmove(cell);
  paintRedExtension(cell);
  flow_->zeroScores();
  Label13->Caption = movesLeft(countFreeCells().count);
  judgeCells();
  flow_->say(kBluesTurn, color::Blue);
}

// The size can be changed only before the first move of a game.
void Triang::showSizeControls(bool on) {
  panel_->showSizeButtons(on);
  for (Element& entry : *szmen_) entry.Enabled = on;
}

int Triang::checkedSize() const {
  for (const Element& entry : *szmen_) {
    if (entry.Checked) return entry.index;
  }
  return kNormalSize;
}

bool Triang::bubbleland() const {
  return (*ver_)[2].Checked;
}

bool Triang::onePlayer() const {
  return (*ip_)[0].Checked;
}

}  // namespace vrask
