// The menus of the 4D triangular board: games, players, levels, the grid,
// the hints, and New with who opens.
#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/look.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace tetra4d;

namespace {

constexpr std::array<const char*, 8> kGameNames{"",
                                                "Game = Ombrel",
                                                "",
                                                "Game = Vrask (Classic)",
                                                "Game = Vrask (Set count)",
                                                "",
                                                "Game = Vrask (Classic with Vrask move)",
                                                "Game = Vrask (Set count with Vrask move)"};

bool isSeparator(int i) {
  return i == 2 || i == 5;
}

}  // namespace

// A game is chosen on a board not yet played: the menu closes with the first
// move. The circle games have no circles on the second cube, so they are
// played on the single cube.
void form5d::game_Click(int i) {
  if (isSeparator(i)) return;
  grid_->clearTick();
  showNumbers(false);
  gamenum = i;
  for (Element& entry : *game_) entry.Checked = entry.index == i;
  List3->Clear();
  List3->Visible = false;
  Label34->Visible = false;
  for (Element* hint : {shint, bhint, hnt}) hint->Checked = false;
  Label36->Caption = kGameNames.at(static_cast<size_t>(i));

  if (i != kOmbrel && board_.level == kDualCube) lvm_Click(kSingleCube);
  lvm(kDualCube).Enabled = i == kOmbrel && lvm(kSingleCube).Enabled;
  showGameElements();
  Label33->Caption = std::string(i == kOmbrel ? kClickALine : kClickACircle);
}

// The line game shows the first cube's view 0 and the hit areas, the circle
// games view 1 with the circles and rings.
void form5d::showGameElements() {
  bool lines = gamenum == kOmbrel;
  for (auto* views : cubes_.at(1)) {
    if (views == nullptr) continue;
    (*views)[0].Visible = lines;
    (*views)[1].Visible = !lines;
  }
  for (int t = 1; t <= kTriangles; ++t) {
    ring(t).Visible = !lines;
    Label99(t - 1).Visible = !lines && ring(t).BorderWidth != kClosedRing;
  }
  showLinesOfLevel();
}

// Before the first move only: the first move disables both entries.
void form5d::lvm_Click(int i) {
  lvm(kSingleCube).Checked = i == kSingleCube;
  lvm(kDualCube).Checked = i == kDualCube;
  board_.level = i;
  board_.lnstate = freshLines(i);
  movesleft = i == kDualCube ? 2 * kEdges + 3 * kSpokes : kNumbers;
  Label8->Caption = movesLeft(movesleft);
  Label10->Visible = i == kDualCube;
  for (auto* views : cubes_.at(2)) {
    if (views == nullptr) continue;
    (*views)[0].Visible = i == kDualCube;
    (*views)[1].Visible = i == kSingleCube;
  }
  showLinesOfLevel();
  if (grid_->on()) showNumbers(true);
}

// The hit areas of the second cube belong to the larger level, every hit
// area to the line game.
void form5d::showLinesOfLevel() {
  bool lines = gamenum == kOmbrel;
  for (Element& area : *Label1_) {
    int slot = area.index + 1;
    bool onBoard =
        area.index >= kSlots || board_.lnstate.at(static_cast<size_t>(slot)) != kOffBoard;
    if (area.index < kSlots || area.index == 300 || area.index == 390 || area.index == 470) {
      area.Visible = lines && onBoard;
    }
  }
}

void form5d::pl_Click(int i) {
  players = i;
  pl(1).Checked = i == 1;
  pl(2).Checked = i == 2;
  // Two players may be far apart: the keypad carries their moves.
  if (i == 2) {
    keypad_->open();
  } else {
    keypad_->close();
  }
}

void form5d::Option1_Click(int i) {
  if (grid_->on() != (i == 1)) grid_->toggle();
}

// The numbers a typed move needs: triangle numbers in the circles, or the
// numbers of the lines still free in the line game.
void form5d::showNumbers(bool on) {
  // The choice in force reads bold and bright.
  for (Element& option : *Option1_) {
    bool chosen = (option.index == 1) == on;
    option.FontBold = chosen;
    option.ForeColor = chosen ? color::Yellow : color::WindowText;
  }
  bool lines = gamenum == kOmbrel;
  for (int t = 1; t <= kTriangles; ++t) {
    Label99(t - 1).Caption = on && !lines ? std::to_string(t) : "";
  }
  for (Element& number : *Label9_) {
    int slot = slotOfNumber(number.index);
    number.Visible = on && lines && board_.lnstate.at(static_cast<size_t>(slot)) == kFree;
  }
}

// The hints serve the line game only.
void form5d::hint_Click(Element& entry, Element* shows) {
  if (gamenum != kOmbrel) {
    MsgBox(std::string(kOmbrelOnly));
    return;
  }
  entry.Checked = !entry.Checked;
  if (shows != nullptr) shows->Visible = entry.Checked;
  if (entry.Checked) compcheck();
}

// New: the next round, always on the single cube, opened by the other side
// than the last. While the computer is moving the click is held out, as every
// click is then.
void form5d::gmm_Click() {
  if (compbusy == 1) return;
  resetRound();
  openRound();
}

void form5d::resetRound() {
  compbusy = 0;
  overflag = 0;
  scoredflag = 0;
  board_.triside = {};
  for (auto& [line, design] : designColours_) {
    line->BorderColor = design;
    line->BorderWidth = 1;
  }
  for (int t = 1; t <= kTriangles; ++t) {
    ring(t).BorderWidth = 1;
    ring(t).BorderColor = color::WindowText;
  }
  flow_->zeroScores();
  flow_->startNewGame();
  setMenusEnabled(true);
  curplayer = kBlue;
  // The level can be chosen again for the new round.
  lvm(kSingleCube).Enabled = true;
  lvm(kDualCube).Enabled = gamenum == kOmbrel;
  lvm_Click(kSingleCube);
  Label10->Visible = false;
  showGameElements();
  showNumbers(grid_->on());
  sd_->stop();
  sd_->fullBar();
}

void form5d::openRound() {
  firstturn = firstturn == 1 ? 0 : 1;
  if (firstturn == 1) {
    flow_->showTurn(Side::Blue);
    flow_->say(std::string(kBlueTurn), kBlueColour);
    return;
  }
  curplayer = kRed;
  flow_->showTurn(Side::Red);
  flow_->say(std::string(kRedTurn), kRedColour);
  if (players != 1) return;
  // The computer opens at random; for this one move the game counts as two
  // players', so that no reply of its own follows.
  int n = pick(kNumbers);
  players = 2;
  if (gamenum == kOmbrel) {
    Label9_Click(n);
  } else {
    Label99_Click(n - 1);
  }
  players = 1;
  sd_->restart();
}

void form5d::setMenusEnabled(bool on) {
  flow_->setGameMenusEnabled(on);
  shint->Enabled = on;
  bhint->Enabled = on;
}

}  // namespace vrask
