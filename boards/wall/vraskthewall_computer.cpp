// The computer plays Red when "1 player verus the computer" is ticked. It
// answers at the end of every move of the person (computer.h holds its
// choice); this is the move it makes, with its pauses.
//
// The wall has no "Expert computer": the expert plays line games, where a
// move takes one line and whoever completes a cell moves again, and the
// square board's circle games, which end in the black last circle. The
// wall's games are all circle games without that ending, and a Super Vrask
// Plus move here takes the neighbours' circles too, so neither search plays
// by the wall's rules; its own computer plays every game.
#include "boards/wall/captions.h"
#include "boards/wall/look.h"
#include "boards/wall/vraskthewall.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace wall;

// The square with the most drawn lines that nobody has, lowest first; with
// none, no move, and the person plays on. Its pauses let the window live,
// and `compbusy` holds the person's clicks out meanwhile.
void vraskthewall::computerMove() {
  compbusy = 1;
  flow_->showTurn(Side::Red);
  flow_->computerPause(kComputerThinks);
  int s = computerTarget(
      squaretaken, [this](int t) { return drawnLines(t); }, [this](int t) { return onWallNow(t); });
  if (s != 0) {
    flow_->zeroScores();
    paintComputerSquare(s);
    if (takesNeighbours(gamecode)) {
      for (int next : neighbours(s)) {
        if (onWallNow(next)) takeSquare(next, color::Red);
      }
    }
  }
  flow_->showTurn(Side::Blue);
  compbusy = 0;
  if (s != 0 && judge() == 0) endOfGame();
}

// The square shows in yellow for a moment, then in Red. Its mark is the
// status colour, Blue, which is all the same to the counts.
void vraskthewall::paintComputerSquare(int s) {
  for (int k = 1; k <= 4; ++k) {
    lineOf(s, k).BorderWidth = kDrawn;
    lineOf(s, k).Visible = true;
  }
  flow_->showLastMove(s);
  Refresh();
  squaretaken.at(s) = flow_->moverColour();
  circleOf(s).BorderWidth = kDrawn;
  Label9(s).Caption.clear();
  circleOf(s).BorderColor = color::Yellow;
  circleOf(s).Visible = true;
  for (int k = 1; k <= 4; ++k) lineOf(s, k).BorderColor = color::Yellow;
  flow_->computerPause(kComputerThinks);
  for (int k = 1; k <= 4; ++k) lineOf(s, k).BorderColor = color::Red;
}

}  // namespace vrask
