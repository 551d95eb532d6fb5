// The menus of the tetrahedron board: games, sizes, players, the grid
// numbers, the views, and New; and the drawing of a view.
#include "boards/quennel/Quennel.h"
#include "boards/quennel/captions.h"
#include "boards/quennel/layout.h"
#include "boards/quennel/look.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/other_games.h"

namespace vrask {

using namespace quennel;

namespace {

// The separators that stand between the groups of games; the other indexes
// without a game are never shown.
bool isSeparator(int index) {
  return index == 4 || index == 10 || index == 16 || index == 19;
}

}  // namespace

const Game& Quennel::game() const {
  return *gameOf(gamecode);
}

// A game is chosen before play; the game itself starts at New. The numbers
// of the targets it plays come up with it.
void Quennel::ga_Click(int index) {
  const Game* chosen = gameOf(index);
  if (chosen == nullptr) return;
  for (Element& entry : *ga_) entry.Checked = false;
  ga(index).Checked = true;
  gamecode = index;
  levelfull = chosen->levelfull;
  for (Element& entry : *ga_) {
    const Game* g = gameOf(entry.index);
    entry.Visible = g != nullptr ? g->levelfull == levelfull : isSeparator(entry.index);
  }
  tetsize(1).Checked = levelfull == 0;
  tetsize(2).Checked = levelfull == 1;
  if (levelfull == 1) {
    shofull();
  } else {
    shonull();
  }
  Label36->Caption = chosen->status;
  Label34->Caption = std::to_string(lineGame() ? lines() : faces());
  Label33->Caption = lineGame() ? kLinePrompt : kFaceChosen;
  // Only some games turn; the others stay in the first view.
  if (!chosen->turnable) viewnum = 1;
  Label13->Caption = viewText(viewnum);
  for (Element& button : *Command8_) button.Visible = chosen->turnable;
  grid_->entry().Checked = true;
  drawView();
}

// The other size: its games come up in the menu, and its first face game is
// chosen.
void Quennel::tetsize_Click(int index) {
  ga_Click(index == 2 ? kFullFirstGame : kFirstGame);
}

void Quennel::shonull() {
  levelfull = 0;
  for (int line = linesOfSize(0) + 1; line <= kLines; ++line) {
    LN(line).Visible = false;
    sdfx(line).Visible = false;
  }
}

void Quennel::shofull() {
  levelfull = 1;
  for (int line = linesOfSize(0) + 1; line <= kLines; ++line) {
    LN(line).Visible = true;
    sdfx(line).Visible = true;
  }
}

// One player against the computer, or two. Two players may be far apart:
// the keypad carries their moves.
void Quennel::ip_Click(int i) {
  if (i > 1) return;
  ip(0).Checked = i == 0;
  ip(1).Checked = i == 1;
  if (i == 1) {
    keypad_->open();
  } else {
    keypad_->close();
  }
}

void Quennel::hidmov_Click() {
  hidmov->Checked = !hidmov->Checked;
}

void Quennel::grid_Click(bool /*on*/) {
  drawView();
}

// "<<" turns the solid back a third, ">>" on a third.
void Quennel::Command8_Click(int step) {
  viewnum = step == 0 ? (viewnum + kViews - 2) % kViews + 1 : viewnum % kViews + 1;
  Label13->Caption = viewText(viewnum);
  drawView();
}

// New: the next game of the round list, in the first view; Blue and Red
// take turns to open.
void Quennel::new_Click() {
  finished = 0;
  flow_->startNewGame();
  Picture3->Visible = false;
  flow_->setGameMenusEnabled(true);
  resetGame();
  openTheGame();
}

void Quennel::resetGame() {
  for (auto* table : {&linetaken, &linecolour}) table->fill(0);
  for (auto* table : {&facescored, &facetaken, &sidecount}) table->fill(0);
  sidemark = {};
  linedrawn = {};
  facelook = {};
  candidates.clear();
  dangerlines.clear();
  flow_->zeroScores();
  viewnum = 1;
  Label13->Caption = viewText(viewnum);
  for (Element& entry : *ga_) entry.Checked = entry.index == gamecode;

  movesleft = faces();
  Label34->Caption = std::to_string(lineGame() ? lines() : movesleft);
  flow_->say(lineGame() ? kLineStart : kFaceStart, color::Blue);
  flow_->showTurn(Side::Blue);
  drawView();
}

// Who opens: the flag turns over at every New, and Red opens when it comes
// up 1. In a line game the judging runs at once, so the computer opens.
void Quennel::openTheGame() {
  if (openerflag == 1) {
    openerflag = 0;
    whosnext = 0;
    return;
  }
  openerflag = 1;
  whosnext = 1;
  flow_->showTurn(Side::Red);
  if (lineGame()) {
    linecheck();
    return;
  }
  flow_->say(kRedTurn, kFaceRed);
  if (!onePlayer()) return;
  // The computer's opening face is random and is played as a plain move;
  // the computer doesn't answer it.
  openingmove = 1;
  ip(0).Checked = false;
  Label12_Click(pick(movesleft));
  ip(0).Checked = true;
}

// --- the view ------------------------------------------------------------------

int Quennel::realLine(int screen) const {
  return turn.line.at(static_cast<size_t>(viewnum)).at(static_cast<size_t>(screen));
}
int Quennel::realFace(int screen) const {
  return turn.face.at(static_cast<size_t>(viewnum)).at(static_cast<size_t>(screen));
}
int Quennel::screenLine(int real) const {
  return turn.lineScreen.at(static_cast<size_t>(viewnum)).at(static_cast<size_t>(real));
}
int Quennel::screenFace(int real) const {
  return turn.faceScreen.at(static_cast<size_t>(viewnum)).at(static_cast<size_t>(real));
}

// Every screen element afresh from the real element it shows in this view. A
// turn keeps each size whole, so what the size hides stays hidden.
void Quennel::drawView() {
  for (int line = 1; line <= kLines; ++line) drawLine(line);
  for (int face = 1; face <= kFaces; ++face) drawFace(face);
}

// A drawn line shows its real colour; a free one the colour and depth of the
// place where it stands.
void Quennel::drawLine(int real) {
  int s = screenLine(real);
  Element& line = LN(s);
  if (linedrawn.at(static_cast<size_t>(real))) {
    line.BorderWidth = kTaken;
    line.BorderColor = linecolour.at(static_cast<size_t>(real));
  } else {
    line.BorderWidth = designWidth.at(static_cast<size_t>(s));
    line.BorderColor = designColour.at(static_cast<size_t>(s));
  }
  Element& label = sdfx(s);
  label.Visible = lineGame() && s <= lines() && linetaken.at(static_cast<size_t>(real)) == 0;
  label.Caption = grid_->on() && s <= lines() ? std::to_string(s) : "";
}

void Quennel::drawFace(int real) {
  int s = screenFace(real);
  const FaceLook& look = facelook.at(static_cast<size_t>(real));
  Element& circle = Shape1(s);
  circle.BorderColor = look.rim;
  circle.BorderWidth = look.rimWidth;
  circle.Visible = !lineGame() && s <= faces() && look.shown;
  Element& label = Label12(s);
  label.Visible = circle.Visible;
  label.Caption = grid_->on() && look.numbered ? std::to_string(s) : "";
}

}  // namespace vrask
