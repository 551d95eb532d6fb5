// The computer plays Red when "1 player verus the computer" is ticked. It
// decides at the tail of the judging routines (computer.h holds the
// decisions); these are the moves it makes, with their pauses.
#include "boards/flatland/Form1large.h"
#include "boards/flatland/captions.h"
#include "boards/flatland/look.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace flatland;

namespace {

constexpr double kPause = 0.5;

}  // namespace

// A line game: complete the lowest square with three sides and judge again,
// so the square counts for Red and the computer goes again; with nothing to
// complete, a random line that gives nothing away if there is one.
void Form1large::computerLineMove() {
  compbusy = 1;
  sidecount = countOwnedSides(sqowner);
  candlist = squaresToComplete(sidecount);
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

  candlist = lineCandidates(sqline, sidecount, lineown, [this](int L) { return lineShows(L); });
  takeLine(candlist.at(static_cast<size_t>(pick(static_cast<int>(candlist.size())) - 1)));
  // No square had three sides, so this line scores nothing: Blue is next.
  Label4(0).Visible = false;
  Label4(1).Visible = true;
  Label33->ForeColor = color::Blue;
  Label33->Caption = "No score    Blue's turn.";
  compbusy = 0;
  if (!sd_->noLimit()) sd_->restart();
}

// The line shows in yellow while the computer pauses; the pause lets events
// through, and `compbusy` keeps the clicks among them out.
void Form1large::takeLine(int L) {
  if (bubbleland()) bbland(L);
  ln1(L).BorderWidth = kMarked;
  ln1(L).BorderColor = color::Yellow;
  Refresh();
  waitWithEvents(kPause);
  ln1(L).BorderColor = color::Red;
  Label18->Caption = kLastMove + std::to_string(L);
  lineown.at(L) = 1;
  ownSides(L, moverid);
}

// A Vrask game: the choice is worked out on every judging, and played only
// when it is Red's turn. It never looks at colours.
void Form1large::computerVraskTurn() {
  sidecount = countMarkedSides(sqline, [this](int L) { return ln1(L).BorderWidth == kMarked; });
  auto shows = [this](int s) { return squareShows(s); };
  int s = vraskTarget(sidecount, sqdone, shows);
  if (s == 0) {
    candlist = openSquares(sqdone, shows);
    size_t drawn = static_cast<size_t>(pick(static_cast<int>(candlist.size())));
    s = drawn <= candlist.size() ? candlist.at(drawn - 1) : 0;
  }
  if (Label33->ForeColor == color::Red && s != 0) compmove(s);
}

// A Vrask move by the program, in the colour of the status label: Red's
// move, or with the label Black, the last circle of the game.
void Form1large::compmove(int s) {
  if (sqdone.at(s) == 1) return;
  sqdone.at(s) = 1;
  Refresh();
  wait(kPause);
  Shape1(s).BorderColor = color::Green;
  Label18->Caption = kLastMove + std::to_string(s);
  paintPattern(s, Label33->ForeColor);
  chackmoves();
}

}  // namespace vrask
