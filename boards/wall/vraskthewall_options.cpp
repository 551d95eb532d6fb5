// The menus of the wall board: games, walls, players, the options, and New.
#include <algorithm>

#include "boards/wall/captions.h"
#include "boards/wall/look.h"
#include "boards/wall/vraskthewall.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace wall;

// A wall is chosen before the first move of a game, from the menu, the
// buttons or the launcher.
void vraskthewall::bd_Click(int level) {
  for (Element& entry : *bd_) entry.Checked = entry.index == level;
  for (Element& button : *Label13_) {
    button.BackColor = button.index == level ? kLevelChosen : color::ButtonFace;
  }
  wallsize = wall::wallsize(level);
  Label35->Caption = std::to_string(wallsize);
  placeWall(level);
  for (int s = 1; s <= kSquares; ++s) {
    bool shown = onWall(s, level);
    circleOf(s).Visible = shown;
    Label9(s).Visible = shown;
  }
  showNumbers(grid_->on());
}

void vraskthewall::game_Click(int index) {
  gamecode = index;
  for (Element& entry : *game_) entry.Checked = entry.index == index;
  Label36->Caption = gameLabel(index);
}

void vraskthewall::ip_Click(int i) {
  if (i > 1) return;
  ip(i).Checked = true;
  ip(1 - i).Checked = false;
  // Two players may be far apart: the keypad carries their moves.
  if (i == 1) {
    keypad_->open();
  } else {
    keypad_->close();
  }
}

void vraskthewall::ch_Click() {
  ch->Checked = !ch->Checked;
  Label34->Visible = ch->Checked;
  Label35->Visible = ch->Checked;
}

// From the next move on, the circles of moves that score for nobody are
// hidden. The menu is closed during a game, and New shows them all again.
void vraskthewall::hidmov_Click() {
  hidmov->Checked = !hidmov->Checked;
}

// The numbers stand on the circles still to be played: a move blanks them.
void vraskthewall::showNumbers(bool on) {
  for (Element& target : *Label9_) {
    bool open = circleOf(target.index).BorderWidth != kDrawn;
    target.Caption = on && open ? std::to_string(target.index) : "";
  }
}

// New: the next game of the round list, on the wall the menu has checked.
// It waits for the computer to finish its move.
void vraskthewall::new_Click() {
  if (compbusy == 1) return;
  gameover = 0;
  flow_->startNewGame();
  showLevelButtons(true);
  squaretaken = {};
  clearBoard();
  flow_->setGameMenusEnabled(true);
  flow_->zeroScores();
  flow_->say(kClickACircle, color::Blue);
  flow_->showTurn(Side::Blue);
  Label35->Caption = std::to_string(wallsize);
  openGame();
}

// Every circle back on the wall of the checked level, open, and every line
// free and hidden.
void vraskthewall::clearBoard() {
  for (int s = 1; s <= kSquares; ++s) {
    circleOf(s).BorderColor = color::WindowText;
    circleOf(s).BorderWidth = kFree;
  }
  for (Element& line : *Line3_) {
    line.Visible = false;
    line.BorderWidth = kFree;
    line.BorderColor = color::Black;
  }
  bd_Click(checkedLevel());
}

// Who opens turns over with every New. When Red opens against the computer,
// the computer plays a square drawn at random, as a move of the two-player
// game, so that the turn comes back to Blue.
void vraskthewall::openGame() {
  if (openerflag != 0) {
    openerflag = 0;
    return;
  }
  openerflag = 1;
  flow_->say(kRedPlayersTurn, color::Red);
  flow_->showTurn(Side::Red);
  if (!ip(0).Checked) return;
  int s = openingSquare([this](int n) { return pick(n); }, [this](int t) { return onWallNow(t); });
  ip(0).Checked = false;
  Label9_Click(s);
  ip(0).Checked = true;
}

// The wall can be changed only before the first move; the heading goes and
// comes with the buttons.
void vraskthewall::showLevelButtons(bool on) {
  for (Element& button : *Label13_) button.Visible = on;
  Label14->Visible = on;
}

int vraskthewall::checkedLevel() const {
  auto checked = std::find_if(bd_->begin(), bd_->end(), [](const Element& e) { return e.Checked; });
  return checked == bd_->end() ? 1 : checked->index;
}

}  // namespace vrask
