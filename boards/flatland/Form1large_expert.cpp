// The expert computer: with "Expert computer" ticked, the computer's lines
// and circles come from the expert's search instead of the board's rules;
// the pauses, messages and scoring around them are the same. "Hint" shows a
// player the move the expert would make.
#include <array>
#include <string>

#include "boards/flatland/Form1large.h"
#include "boards/flatland/expert_view.h"
#include "frame/expert_menu.h"
#include "frame/helpers.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace flatland;

namespace {

int expertColour(const Element& line) {
  if (line.BorderWidth != kMarkedWidth) return expert::kUnmarked;
  if (line.BorderColor == color::Blue) return expert::kBlue;
  if (line.BorderColor == color::Red) return expert::kRed;
  return expert::kBlack;
}

}  // namespace

// The expert's line, taken as the board's computer takes one. A line that
// scores is judged, and the computer goes again; one that doesn't hands the
// turn to Blue, as the board's computer does after its safe line.
void Form1large::expertLineMove() {
  compbusy = 1;
  turnflag = 0;
  int L = expertLineChoice(true);
  bool scores = lineScores(L);
  takeLine(L);
  if (scores) {
    checkwins();
  } else {
    handBackToBlue();
  }
}

// Whether taking `L` (with its twin in Bubbleland) completes a square.
bool Form1large::lineScores(int L) {
  int twin = bubbleland() ? twinOf(L) : 0;
  sidecount = countOwnedSides(sqowner);
  for (int s = 1; s <= kSquares; ++s) {
    if (sidecount.at(s) != 3) continue;
    for (int k = Top; k <= Left; ++k) {
      int side = sqline.at(s).at(k);
      if (sqowner.at(s).at(k) == 0 && (side == L || (twin != 0 && side == twin))) return true;
    }
  }
  return false;
}

// The search works on copies, so that the window may go on while it runs;
// with `letEventsThrough` (the computer's move) the clicks reach the handlers
// meanwhile and `compbusy` keeps them out. The hint, which runs between the
// player's moves, lets nothing in, as any wait.
int Form1large::expertLineChoice(bool letEventsThrough) {
  std::array<bool, kSquares + 1> shows{};
  for (int s = 1; s <= kSquares; ++s) shows.at(s) = squareShows(s);
  auto think = [sqline = sqline, lineown = lineown, shows, world = bubbleland()] {
    return expertLine(
        sqline, lineown, [&shows](int s) { return shows.at(s); }, world,
        expert::Budget::forMillis(expertMillis()));
  };
  return expert_->decide(think, letEventsThrough);
}

int Form1large::expertCircleChoice() {
  std::array<bool, kSquares + 1> shows{};
  std::array<int, kLines + 1> colours{};
  for (int s = 1; s <= kSquares; ++s) shows.at(s) = squareShows(s);
  for (int L = 1; L <= kLines; ++L) colours.at(L) = expertColour(ln1(L));
  int mover = flow_->moverColour() == color::Red ? expert::kRed : expert::kBlue;
  auto think = [sqline = sqline, sqdone = sqdone, shows, colours, mover, mode = gamemode,
                world = bubbleland()] {
    CirclePosition position{mode,
                            world,
                            [&colours](int L) { return colours.at(static_cast<size_t>(L)); },
                            &sqdone,
                            [&shows](int s) { return shows.at(static_cast<size_t>(s)); },
                            mover};
    return expertCircle(sqline, position, expert::Budget::forMillis(expertMillis()));
  };
  // The board's circle moves let nothing in during their pauses either.
  return expert_->decide(think, false);
}

int Form1large::expertMove() {
  if (gameover == 1) return 0;
  if (gamemode == Ombrel) return expertLineChoice(false);
  return isVraskMode(gamemode) ? expertCircleChoice() : 0;
}

// The expert's move for the player to move flashes in yellow for a moment
// and its number stays in the status line; nothing of the game changes.
void Form1large::hint_Click() {
  if (compbusy == 1) return;
  int n = expertMove();
  if (n == 0) return;
  if (gamemode == Ombrel) {
    std::vector<Element*> lines{&ln1(n)};
    if (bubbleland() && twinOf(n) != 0) lines.push_back(&ln1(twinOf(n)));
    expert_->showMove(lines, kMarkedWidth);
  } else {
    int fill = Shape1(n).FillColor;
    Shape1(n).FillColor = color::Yellow;
    Refresh();
    wait(kComputerPause);
    Shape1(n).FillColor = fill;
  }
  flow_->say("Hint: " + std::to_string(n), flow_->moverColour());
  Refresh();
}

}  // namespace vrask
