// The menus of the cube board (game modes, players, the grid, the skill
// level), the four views, and New.
#include "boards/zorvex/captions.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

bool zorvex::gridOn() const {
  return grid_->on();
}

// A game is picked between New and the first move, on an empty board.
void zorvex::game_Click(int m) {
  if (isSeparator(m) || m == OldVraskClassic || m == OldVraskSetCount) return;
  for (Element& entry : *game_) entry.Checked = false;
  game(m).Checked = true;
  gamemode = m;
  Label36->Caption = modeText(m).name;
  for (Element* entry : {hnt, shint, bhint}) entry->Checked = false;
  List3->Visible = false;
  for (int s = 1; s <= kSquares; ++s) Line2(s).Visible = false;
  bool hintsApply = m == Ombrel;
  shint->Enabled = hintsApply;
  bhint->Enabled = hintsApply;
  grid_->clearTick();
  // The figure starts in the first view: the games without view buttons are
  // played there throughout.
  viewno = 1;
  voomaster();
  showForMode();
  showViewButtons();
  Label33->Caption = isLineGame(m) ? kClickALine : kClickACircle;
}

// What a mode shows: the line games their lines and hit zones, the circle
// games their rings and circles; each its own counter.
void zorvex::showForMode() {
  bool lines = isLineGame(gamemode);
  for (Element& zone : *Label22_) zone.Visible = lines;
  for (int s = 1; s <= kSquares; ++s) {
    Shape1(s).Visible = !lines;
    Label9(s).Visible = !lines;
  }
  Label9(0).Visible = !lines;
  grid_Click(false);
  Label34->Caption = movesLeft(lines ? kLines : kSquares);
  Label34->Visible = lines;
  Label35->Caption = movesLeft(kSquares);
  Label35->Visible = !lines;
}

void zorvex::ip_Click(int i) {
  ip(0).Checked = i == 0;
  ip(1).Checked = i == 1;
  if (i == 0) {
    keypad_->close();
  } else if (!keypad_->on()) {
    // Two players may be far apart: the keypad and the numbers it needs.
    keypad_->toggleFromMenu();
  }
}

// The numbers of the lines show beside them in the line games; in the circle
// games the circles carry the numbers of the squares they show.
void zorvex::grid_Click(bool on) {
  for (Element& number : *Label11_) number.Visible = on && isLineGame(gamemode);
  if (isLineGame(gamemode)) return;
  for (int p = 1; p <= kSquares; ++p) {
    bool open = on && Label9(p).Visible && Shape1(p).BorderWidth == kFree;
    Label9(p).Caption = open ? std::to_string(boardSquare(viewno, p)) : "";
  }
}

void zorvex::hidmov_Click() {
  hidmov->Checked = !hidmov->Checked;
}

void zorvex::sskl_Click(int i) {
  for (Element& entry : *sskl_) entry.Checked = entry.index == i;
}

void zorvex::showViewButtons() {
  bool shown = turnsView(gamemode);
  for (Element& button : *Command8_) button.Visible = shown;
}

// New: the next game of the round list. While the computer moves with the
// clicks let through, New waits its turn like every other click.
void zorvex::newz_Click() {
  if (busy == 1) return;
  flow_->startNewGame();
  hideCumulativePanel();
  for (Element* e :
       {&grid_->entry(), &keypad_->entry(), &keypad_->text(), &keypad_->enterButton()}) {
    e->Enabled = true;
  }
  List3->Clear();
  sd_->stop();
  sd_->fullBar();

  showViewButtons();
  circlestate = {};
  started = 1;
  gameover = 0;
  if (gamemode == VraskClassic) {
    for (Element& number : *Label11_) number.Visible = gridOn() && isLineGame(gamemode);
    for (Element& zone : *Label22_) zone.Visible = false;
    Label33->Caption = kClickACircle;
    Label35->Caption = movesLeft(kSquares);
    Label35->Visible = true;
    Label34->Visible = false;
    shint->Checked = false;
    bhint->Checked = false;
  }
  shint->Enabled = true;
  bhint->Enabled = true;
  viewno = 1;
  flow_->setGameMenusEnabled(true);
  for (int s = 1; s <= kSquares; ++s) {
    Line2(s).Visible = false;
    Shape1(s).BorderColor = color::Black;
    Shape1(s).BorderWidth = kFree;
    Shape1(s).Visible = !isLineGame(gamemode);
    Label9(s).Visible = !isLineGame(gamemode);
  }
  resetTables();

  if (isLineGame(gamemode)) {
    Label33->Caption = kNewLineGame;
    Label34->Caption = movesLeft(kLines);
    Label35->Caption = nonScoringMovesLeft(kLines);
  } else {
    Label33->Caption = kNewCircleGame;
    Label35->Caption = movesLeft(kSquares);
  }
  moverid = 2;
  voomaster();
  openTheGame();

  List3->Clear();
  List3->Visible = gamemode == Ombrel && bhint->Checked;
}

void zorvex::resetTables() {
  for (Element& line : *LN_) line.BorderWidth = kFree;
  lineowner = {};
  squareinks = {};
  scoredflags = {};
  cubeinks = {};
  cubefaces = {};
  hitlines = {};
  cubescored = {};
  flow_->zeroScores();
  rednext = 0;
  Label33->ForeColor = color::Blue;
  flow_->showTurn(Side::Blue);
}

// Who opens alternates from game to game, across all the modes; in the Line
// Vrask games the flag reads the other way round.
void zorvex::openTheGame() {
  bool flagWasSet = openerflag == 1;
  openerflag = flagWasSet ? 0 : 1;
  bool redOpens = isLineVrask(gamemode) ? flagWasSet : !flagWasSet;
  if (!redOpens) return;
  flow_->showTurn(Side::Red);
  if (gamemode == Ombrel || gamemode == ZorvexLines) {
    rednext = 1;
    if (onePlayer()) scoremove();
    return;
  }
  flow_->say(isLineVrask(gamemode) ? kRedsLineTurn : kRedPlayersTurn, color::Red);
  if (!onePlayer()) return;
  if (isLineVrask(gamemode)) {
    fixedOpening();
  } else {
    computerOpensCircleGame();
  }
}

// With the computer's entry unticked for the one move, the move passes the
// turn to Blue as in a game of two, and no reply follows.
void zorvex::computerOpensCircleGame() {
  int r = pick(kSquares);
  // A move has been made: the game can no longer be changed.
  flow_->setGameMenusEnabled(false);
  ip(0).Checked = false;
  if (gamemode == ZorvexSquares) {
    ballswalls(r);
  } else {
    Label9_Click(r);
  }
  ip(0).Checked = true;
}

// --- the views ---------------------------------------------------------------

// The games without view buttons keep the first view: the keys turn the view
// only where the buttons are offered.
void zorvex::Command8_Click(int i) {
  if (busy == 1 || !turnsView(gamemode)) return;
  hideCumulativePanel();
  viewno = i == 0 ? (viewno == 1 ? kViews : viewno - 1) : (viewno == kViews ? 1 : viewno + 1);
  voomaster();
}

void zorvex::Text1_KeyDown(int keyCode) {
  if (keyCode == key::Enter) Command6_Click();
  if (keyCode == key::Left) Command8_Click(0);
  if (keyCode == key::Right) Command8_Click(1);
}

// The whole screen redrawn from the board's state, in the current view.
void zorvex::voomaster() {
  for (Element& marker : *Line3_) marker.Visible = false;
  for (int p = 1; p <= kSquares; ++p) {
    Shape1(p).BorderWidth = kFree;
    Shape1(p).BorderColor = color::Black;
    Label9(p).Visible = true;
  }
  for (int slot = 1; slot <= kLines; ++slot) LN(slot).BorderWidth = kFree;
  Label13->Caption = "View " + std::to_string(viewno);
  if (!isLineGame(gamemode) && gridOn()) {
    for (int p = 1; p <= kSquares; ++p) Label9(p).Caption = std::to_string(boardSquare(viewno, p));
  }
  drawFreeColours();
  drawOwnedLines();
  if (!isLineGame(gamemode) || isLineVrask(gamemode)) {
    if (started == 1) drawPlayedRings();
  }
  bool lines = isLineGame(gamemode);
  for (int p = 1; p <= kSquares; ++p) {
    if (lines) {
      Shape1(p).Visible = false;
      Label9(p).Visible = false;
    } else if (!Shape1(p).Visible || Shape1(p).BorderWidth != kFree) {
      Label9(p).Visible = false;
    }
  }
  Label9(0).Visible = Label9(30).Visible;
}

// The numbers, free colours and strands of the view, and its marker.
void zorvex::drawFreeColours() {
  for (int n = 1; n <= kLines; ++n) {
    int shown = lineNumber(boardLine(viewno, lineIndexOfNumber(n)));
    Label11(n).Caption = std::to_string(shown);
    Label11(n).ForeColor = numbercolour.at(static_cast<size_t>(shown));
  }
  (*Line3_)[2 * viewno - 2].Visible = true;
  (*Line3_)[2 * viewno - 1].Visible = true;
  for (int slot = 1; slot <= kLines; ++slot) {
    LN(slot).BorderColor = designColour(boardLine(viewno, slot));
  }
  // A strand keeps to its drawn line and takes the colour of the board
  // line's own strand in this view.
  const std::vector<Strand>& all = strands();
  for (size_t i = 0; i < all.size(); ++i) {
    int slot = all[i].line;
    int shown = boardLine(viewno, slot);
    for (const Strand& other : all) {
      if (other.line == shown && other.offset == all[i].offset) {
        LN(kLines + 1 + static_cast<int>(i)).BorderColor = other.colour;
      }
    }
  }
}

void zorvex::drawOwnedLines() {
  for (int L = 1; L <= kLines; ++L) {
    int owner = lineowner.at(static_cast<size_t>(L));
    if (owner == 0) continue;
    Element& line = LN(slotLine(L));
    line.BorderWidth = kPainted;
    line.BorderColor = owner == 1 ? color::Red : owner == 2 ? color::Blue : owner;
  }
}

// The rings of the played squares, from the colours of their lines. A square
// nobody has played keeps an open circle even when its four lines are
// painted, so that it can still be played in this view.
void zorvex::drawPlayedRings() {
  bool lineVrask = isLineVrask(gamemode);
  for (int p = 1; p <= kSquares; ++p) {
    Shape1(p).Visible = !lineVrask;
    if (lineVrask) Label9(p).Visible = false;
  }
  if (lineVrask) return;
  for (int p = 1; p <= kSquares; ++p) {
    if (circlestate.at(static_cast<size_t>(boardSquare(viewno, p))) == 0) continue;
    const auto& lines = tables.squarelines.at(static_cast<size_t>(p));
    bool allPainted = true;
    bool allRed = true;
    bool allBlue = true;
    for (int k = 1; k <= 4; ++k) {
      const Element& line = LN(lines.at(static_cast<size_t>(k)));
      allPainted = allPainted && line.BorderWidth == kPainted;
      allRed = allRed && line.BorderColor == color::Red;
      allBlue = allBlue && line.BorderColor == color::Blue;
    }
    if (!allPainted) continue;
    Shape1(p).BorderWidth = kPlayedRing;
    Shape1(p).BorderColor = allRed ? color::Red : allBlue ? color::Blue : color::Black;
    if (Shape1(p).BorderColor == color::Black) Label9(p).Visible = false;
    if (hidmov->Checked && Shape1(p).BorderColor == color::Black) Shape1(p).Visible = false;
  }
}

}  // namespace vrask
