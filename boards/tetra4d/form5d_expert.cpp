// The expert computer: with "Expert computer" ticked, Red's lines in Ombrel
// come from the expert's search instead of the rule list; the pauses, the
// yellow lines, the hints and the judging around them are the same. A round
// Red opens still opens on a random line, as the board opens it, before any
// turn of the computer's. The circle games keep the board's own choice: the
// expert plays the line game only. "Hint" shows a player the line the
// expert would draw.
#include <string>

#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/computer.h"
#include "boards/tetra4d/expert_view.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/look.h"
#include "frame/expert_menu.h"

namespace vrask {

using namespace tetra4d;

form5d::form5d(Program& program) : Form(program, "form5d") {}
form5d::~form5d() = default;

// The slot the expert draws for the side to move; 0 when none is free. The
// search works on a copy, so that the window goes on while it runs; the
// board's pauses let events through, and `compbusy` keeps moves out.
int form5d::expertLineChoice() {
  auto think = [view = expertLinesOf(board_)] {
    return view.bestLine(expert::Budget::forMillis(expertMillis()));
  };
  return expert_->decide(think, true);
}

// Red's whole turn, line by line as the rule list plays it: each line shown
// in yellow, played, and the hints brought up to date; Red goes on while its
// lines finish triangles.
void form5d::expertTurn() {
  compbusy = 1;
  while (overflag == 0) {
    flow_->computerPause();
    scoredflag = 0;
    bool forced = captureLine(board_) == 0 && safeLines(board_).empty();
    int slot = expertLineChoice();
    if (slot == 0) break;
    if (forced) {
      if (hnt->Checked) MsgBox(std::string(kNoGoodMoves));
      Label34->Visible = false;
      List3->Visible = false;
    }
    flmove(slot);
    slable(slot - 1);
    compcheck();
    if (curplayer != kRed) break;
  }
  compbusy = 0;
  if (players == 1 && overflag == 0) sd_->restart();
}

int form5d::expertMove() {
  if (overflag == 1 || gamenum != kOmbrel) return 0;
  int slot = expertLineChoice();
  return slot == 0 ? 0 : numberOfSlot(slot);
}

// The line the expert would draw for the side to move shows in yellow in
// every figure for a moment, and its number stays in the status line;
// nothing of the game changes. Outside Ombrel there is no line to show.
void form5d::expertHint_Click() {
  if (compbusy == 1) return;
  int number = expertMove();
  if (number == 0) return;
  expert_->showMove(segmentsOf(slotOfNumber(number)), kPlayedWidth);
  flow_->say("Hint: " + std::to_string(number), flow_->moverColour());
}

}  // namespace vrask
