// The menus of the square board: game modes, players, board sizes, the world,
// the grid numbers, and New.
#include "boards/flatland/Form1large.h"
#include "boards/flatland/captions.h"
#include "boards/flatland/look.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/side_panel.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace flatland;

namespace {

// The world flag is written as True when the board goes back to Flatland. No
// rule reads it; a board opened later starts in Bubbleland only for a 1.
constexpr int kTrue = -1;

}  // namespace

// A mode is chosen before play, on a board that is not reset.
void Form1large::game_Click(int m) {
  Label33->Caption = kClickALine;
  grid_->clearTick();
  for (Element& entry : *game_) entry.Checked = false;
  Hidden hidden = hiddenBySize(boardsize);
  for (Element& target : *Label2_) target.Visible = false;
  showOnBoard(*Label1_, hidden.lines);
  game(m).Checked = true;
  gamemode = m;
  Label12->Caption = movesLeft(boardsize * boardsize);
  Label36->Caption = std::string("Game = ") + kGameNames.at(static_cast<size_t>(m));
  if (m == Ombrel) {
    Label12->Caption = movesLeft(lineCount(boardsize));
  } else if (m == Dorvel) {
    Label12->Caption = movesLeft(kLines);
  } else {
    Label33->Caption = kClickACircle;
    showOnBoard(*Label2_, hidden.squares);
    for (Element& strip : *Label1_) strip.Visible = false;
  }
}

void Form1large::ip_Click(int i) {
  if (i == 0) {
    if (game(Dorvel).Checked) {
      MsgBox("   Dorvel is a two player game only.");
      return;
    }
    ip(0).Checked = true;
    ip(1).Checked = false;
    keypad_->close();
  } else if (i == 1) {
    // Two players may be far apart: the keypad carries their moves.
    ip(1).Checked = true;
    ip(0).Checked = false;
    keypad_->open();
  }
}

void Form1large::sizsq_Click(int n) {
  boardsize = n;
  Label12->Caption = movesLeft(gamemode == Ombrel ? lineCount(n) : n * n);

  for (Element& entry : *sizsq_) entry.Checked = false;
  (*sizsq_)[n].Checked = true;
  panel_->markSize(n);

  hideBeyondSize(n);

  bool fullBoard = n == kSide;
  if (!fullBoard) {
    if (game(Ribbon).Checked) game_Click(Ombrel);
    if (bubbleland()) ver_Click();
  }
  ver(1).Enabled = fullBoard;
  ver(2).Enabled = fullBoard;
  game(Ribbon).Enabled = fullBoard;
}

// Both kinds of click target come up with the board, whatever the mode.
void Form1large::hideBeyondSize(int n) {
  Hidden hidden = hiddenBySize(n);
  showOnBoard(*Shape1_, hidden.squares);
  showOnBoard(*Label2_, hidden.squares);
  showOnBoard(*ln1_, hidden.lines);
  showOnBoard(*Label1_, hidden.lines);
}

// Shows every element of `targets` except the `hidden` ones: what a mode
// shows stays on the board, so nobody plays a square or line that isn't drawn.
void Form1large::showOnBoard(ElementArray& targets, const std::vector<int>& hidden) {
  for (Element& e : targets) e.Visible = true;
  for (int i : hidden) targets[i].Visible = false;
}

// Either entry toggles the world.
void Form1large::ver_Click() {
  if (ver(1).Checked) {
    ver(1).Checked = false;
    ver(2).Checked = true;
    game(Ribbon).Enabled = false;
    if (game(Ribbon).Checked) game_Click(Ombrel);
    shared().set(shared::kBubblelandStart, num(0));
  } else {
    ver(2).Checked = false;
    game(Ribbon).Enabled = true;
    ver(1).Checked = true;
    shared().set(shared::kBubblelandStart, num(kTrue));
  }
}

// The numbers show on the targets the mode plays: lines in line games,
// circles in Vrask games.
void Form1large::shgrid_Click(bool on) {
  for (Element& strip : *Label1_) strip.Caption.clear();
  for (Element& target : *Label2_) target.Caption.clear();
  if (on) {
    ElementArray& numbered = isVraskMode(gamemode) ? *Label2_ : *Label1_;
    for (Element& target : numbered) target.Caption = std::to_string(target.index);
  }
  sizsq_Click(checkedSize());
}

// New: the next game of the round list, on the board as the menus have it.
// While the computer is taking a line the click is ignored, as every click
// is then; after a game it always goes through.
void Form1large::gmc_Click() {
  if (compbusy == 1 && gameover == 0) return;
  compbusy = 0;
  flow_->startNewGame();
  gameover = 0;
  bool twoPlayers = ip(1).Checked;

  flow_->setGameMenusEnabled(true);
  sd_->fullBar();
  showSizeLabels(true);
  sd_->stop();
  Refresh();
  Label12->Caption = movesLeft(boardsize * boardsize);

  starterflag = starterflag == 0 ? 1 : 0;
  ip(1).Checked = twoPlayers;
  ip(0).Checked = !twoPlayers;
  gamemode = checkedGame();
  Label36->Caption = kGameNames.at(static_cast<size_t>(gamemode));
  resetBoard();

  if (starterflag != 0) return;
  // The opening goes to Red. Ribbon Vrask has no such call: Blue opens it.
  if (gamemode == Ombrel || gamemode == Dorvel) {
    turnflag = 1;
    checkwins();
  } else if (gamemode != Ribbon) {
    chackmoves();
  }
}

// The tables and the drawn board back to the start of a game.
void Form1large::resetBoard() {
  lineown = {};
  sqowner = {};
  sqscored = {};
  sqdone = {};
  flow_->zeroScores();
  List1->Clear();

  turnflag = starterflag;
  flow_->say(kClickALine, color::Blue);
  Label12->Caption = movesLeft(kLines);
  if (isVraskMode(gamemode)) {
    Label33->Caption = kClickACircle;
    Label12->Caption = movesLeft(boardsize * boardsize);
  }

  clearCircles();
  for (Element& target : *Label2_) {
    target.BackColor = BackColor;
    target.Visible = true;
  }
  for (Element& line : *ln1_) {
    line.BorderWidth = 1;
    line.BorderColor = linecolor0.at(static_cast<size_t>(line.index));
  }
  sizsq_Click(checkedSize());
}

// The sizes can be changed only before the first move; their heading goes
// and comes with them.
void Form1large::showSizeLabels(bool on) {
  panel_->showSizeButtons(on);
}

int Form1large::checkedSize() const {
  for (const Element& entry : *sizsq_) {
    if (entry.Checked) return entry.index;
  }
  return kSide;
}

int Form1large::checkedGame() const {
  for (const Element& entry : *game_) {
    if (entry.Checked) return entry.index;
  }
  return gamemode;
}

// Every rule asks the world of the menu, not of the shared flag.
bool Form1large::bubbleland() const {
  return !(*ver_)[1].Checked;
}

}  // namespace vrask
