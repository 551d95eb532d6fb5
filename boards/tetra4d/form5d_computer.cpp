// The computer plays Red with "1 player verus the computer" checked: in the
// line game by a list of rules over the triangles, in the circle games a free
// circle by chance. The hints count the same lines as its second rule.
#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/computer.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/look.h"
#include "frame/expert_menu.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace tetra4d;

// Red's whole turn in the line game: it takes every triangle it can, the
// highest first, then plays a line that gives nothing away if one is left.
// `compbusy` holds a person's clicks out all through, the pauses included.
void form5d::compmove() {
  if (expert_->on()) {
    expertTurn();
    return;
  }
  compbusy = 1;
  Pick draw = [this](int n) { return pick(n); };
  while (overflag == 0) {
    flow_->computerPause();
    scoredflag = 0;
    int capture = captureLine(board_);
    if (capture != 0) {
      flmove(capture);
      slable(capture - 1);
      compcheck();
      if (curplayer == kRed) continue;
      break;
    }
    bool forced = false;
    int slot = quietLine(board_, draw, forced);
    if (forced) {
      if (hnt->Checked) MsgBox(std::string(kNoGoodMoves));
      Label34->Visible = false;
      List3->Visible = false;
    }
    if (slot != 0) {
      flmove(slot);
      slable(slot - 1);
      compcheck();
    }
    break;
  }
  compbusy = 0;
  if (players == 1 && overflag == 0) sd_->restart();
}

// The line the computer chose, yellow in every figure for a moment.
void form5d::flmove(int slot) {
  paintLine(slot, color::Yellow, kPlayedWidth);
  Refresh();
  wait(kShowLine);
}

// The computer's line, as a person's click would play it.
void form5d::slable(int index) {
  playLine(index + 1);
}

// The hints: how many lines are left that give no triangle its second side,
// and which.
void form5d::compcheck() {
  List3->Clear();
  std::vector<int> safe = safeLines(board_);
  if (!safe.empty()) {
    for (int slot : safe) List3->AddItem(std::to_string(numberOfSlot(slot)));
    if (Label34->Visible) Label34->Caption = safeLinesLeft(static_cast<int>(safe.size()));
    return;
  }
  if (Label34->Visible) Label34->Caption = kNoSafeLines;
  Label34->Visible = false;
  List3->Visible = false;
}

// Red's circle: one of the open circles at random, shown in yellow, then
// played as a person's click would be.
void form5d::computerCircleMove() {
  std::vector<int> open;
  for (int t = 1; t <= kTriangles; ++t) {
    if (ring(t).BorderWidth == 1) open.push_back(t);
  }
  int t = chooseCircle(open, [this](int n) { return pick(n); });
  if (t == 0) return;
  compbusy = 1;
  Refresh();
  wait(kShowCircle);
  flow_->showLastMove(t);
  ring(t).BorderColor = color::Yellow;
  ring(t).BorderWidth = kClosedRing;
  compflash = 1;
  newflash(t);
  compflash = 0;
  Refresh();
  wait(kShowCircle);
  compbusy = 0;
  circleMove(t);
  if (players == 1 && overflag == 0) sd_->restart();
}

// A safe line of the list goes to the keypad, ready to be entered; a double
// click enters it.
void form5d::List3_Click() {
  if (List3->ListIndex < 0 || List3->ListIndex >= List3->ListCount()) return;
  if (!keypad_->on()) keypad_->open();
  keypad_->text().Text = List3->List.at(static_cast<size_t>(List3->ListIndex));
}

void form5d::List3_DblClick() {
  List3_Click();
  Command4_Click();
}

}  // namespace vrask
