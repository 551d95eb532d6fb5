// The computer plays Red when "1 player verus the computer" is ticked. It
// decides at the tail of the judging routines (computer.h holds the
// decisions); these are the moves it makes, with their pauses.
#include "boards/flatland/Form1large.h"
#include "boards/flatland/captions.h"
#include "boards/flatland/look.h"
#include "frame/expert_menu.h"
#include "frame/helpers.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace flatland;

// A line game: complete the lowest square with three sides and judge again,
// so the square counts for Red and the computer goes again; with nothing to
// complete, a random line that gives nothing away if there is one.
void Form1large::computerLineMove() {
  if (expert_->on()) {
    expertLineMove();
    return;
  }
  compbusy = 1;
  sidecount = countOwnedSides(sqowner);
  candlist = board_.cellsToComplete(sidecount);
  turnflag = 0;
  if (!candlist.empty()) {
    int s = candlist.front();
    for (int k = Top; k <= Left; ++k) {
      if (sqowner.at(s).at(k) == 0) takeLine(sqline.at(s).at(k));
    }
    candlist.clear();
    checkwins();
    return;
  }

  candlist = board_.safeLines(
      sidecount, [this](int L) { return lineown.at(static_cast<size_t>(L)) == 0 && lineShows(L); });
  takeLine(flow_->pickFrom(candlist));
  // No square had three sides, so this line scores nothing.
  handBackToBlue();
}

// A computer's line that scored nothing: Blue is next.
void Form1large::handBackToBlue() {
  flow_->showTurn(Side::Blue);
  flow_->say("No score    Blue's turn.", color::Blue);
  compbusy = 0;
  if (!sd_->noLimit()) sd_->restart();
}

// The line shows in yellow while the computer pauses; the pause lets events
// through, and `compbusy` keeps the clicks among them out.
void Form1large::takeLine(int L) {
  if (bubbleland()) bbland(L);
  ln1(L).BorderWidth = kMarkedWidth;
  ln1(L).BorderColor = color::Yellow;
  flow_->computerPause();
  ln1(L).BorderColor = color::Red;
  flow_->showLastMove(L);
  lineown.at(L) = 1;
  ownSides(L, moverid);
}

// A Vrask game: the choice is worked out on every judging, and played only
// when it is Red's turn. It never looks at colours.
void Form1large::computerVraskTurn() {
  if (expert_->on()) {
    if (flow_->moverColour() != color::Red) return;
    if (int s = expertCircleChoice()) compmove(s);
    return;
  }
  sidecount = board_.countSides([this](int L) { return ln1(L).BorderWidth == kMarkedWidth; });
  auto shows = [this](int s) { return squareShows(s); };
  int s = board_.vraskTarget(sidecount, sqdone, shows);
  if (s == 0) {
    candlist = board_.openCells(sqdone, shows);
    s = flow_->pickFrom(candlist);
  }
  if (flow_->moverColour() == color::Red && s != 0) compmove(s);
}

// A Vrask move by the program, in the colour of the status label: Red's
// move, or with the label Black, the last circle of the game.
void Form1large::compmove(int s) {
  if (sqdone.at(s) == 1) return;
  sqdone.at(s) = 1;
  Refresh();
  wait(kComputerPause);
  Shape1(s).BorderColor = color::Green;
  flow_->showLastMove(s);
  paintPattern(s, flow_->moverColour());
  chackmoves();
}

}  // namespace vrask
