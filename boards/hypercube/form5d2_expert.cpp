// The expert computer in Ombrel and Zorvex (Lines): with "Expert computer"
// ticked, the computer's lines come from the expert's search instead of the
// rule list; the blinking, the flashes and the messages around them are the
// same. "Hint" shows a player the line the expert would draw.
#include <algorithm>
#include <string>
#include <vector>

#include "boards/hypercube/expert_view.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/look.h"
#include "frame/expert_menu.h"
#include "frame/helpers.h"

namespace vrask {

using namespace hypercube;

// The expert's line, taken as the rule list takes one: a line that finishes
// a square holds the player out while its flash shows, and the computer goes
// again; one that doesn't hands the turn to Blue.
void form5d2::expertLineMove() {
  int slot = expertLineChoice();
  if (slot == 0) return;
  bool scores = lineScores(slot);
  compbusy = scores ? 1 : 0;
  lnown.at(slot) = kRedCode;
  compmov(slot);
  if (scores) return;
  flow_->say("No score    Blue's turn.", color::Blue);
  flow_->showTurn(Side::Blue);
}

// Whether `slot` is the last free side of a square.
bool form5d2::lineScores(int slot) const {
  if (lnown.at(slot) != 0) return false;
  SquareValues sides = countPaintedSides(sqside);
  return std::any_of(places_.at(slot).begin(), places_.at(slot).end(),
                     [&sides](SidePlace p) { return sides.at(p.square) == 3; });
}

// The search works on copies. The computer's lines blink without letting
// clicks in, and so does its thinking.
int form5d2::expertLineChoice() {
  auto think = [sqln = sqln, lnown = lnown] {
    return expertLine(sqln, lnown, expert::Budget::forMillis(expertMillis()));
  };
  return expert_->decide(think, false);
}

// Ombrel and Zorvex (Lines) play by the family's rule, a scorer moving
// again; Dorvel, where a square counts only in one player's colour, and the
// games on circles or with painted neighbours are not the expert's.
int form5d2::expertMove() {
  if (!(gamenum == 0 || gamenum == 2) || overflag == 1 || roundOver()) return kNoExpertMove;
  int slot = expertLineChoice();
  return slot == 0 ? kNoExpertMove : indexOf(slot);
}

// The expert's line for the player to move flashes in yellow for a moment
// and its number stays in the status line; nothing of the game changes.
void form5d2::hint_Click() {
  if (compbusy == 1 || flashing == 1) return;
  int index = expertMove();
  if (index == kNoExpertMove) return;
  int slot = slotOf(index);
  std::vector<Element> before;
  for (Element* segment : segments_.at(slot)) before.push_back(*segment);
  paintLine(slot, kPainted, color::Yellow);
  Refresh();
  wait(kComputerPause);
  for (size_t i = 0; i < before.size(); ++i) {
    segments_.at(slot).at(i)->BorderWidth = before.at(i).BorderWidth;
    segments_.at(slot).at(i)->BorderColor = before.at(i).BorderColor;
  }
  flow_->say("Hint: " + std::to_string(gridNumber(slot)), flow_->moverColour());
  Refresh();
}

}  // namespace vrask
