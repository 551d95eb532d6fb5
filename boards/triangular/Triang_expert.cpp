// The expert computer in Ombrel: with "Expert computer" ticked, the
// computer's lines come from the expert's search over the triangles and their
// sides, a rim line and its Bubbleland twin being one move; the pauses,
// messages and scoring around them are the same. "Hint" shows a player the
// line the expert would draw.
//
// The circle games keep the board's own computer with the expert on: a move
// there paints a cell, its extension along the lattice and in Bubbleland its
// twin lines, and the score is worked out afresh from the colours; the
// expert's circle search knows the square board's patterns, not these.
#include <array>
#include <string>

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "frame/expert_lines.h"
#include "frame/expert_menu.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace triangular;

// The expert's line, drawn as the board's computer draws one. A line that
// closes a cell is judged and the computer goes again; one that closes
// nothing (a safe line, or the one that declines the last cells of a chain
// to keep control) hands the turn to Blue.
void Triang::expertLineMove() {
  inputlock = 1;
  sidecount = countMarkedSides(sidemark);
  whosnext = 0;
  int line = expertLineChoice(true);
  if (closesCell(line)) {
    drawComputerLine(line);
    judgeLines();
  } else {
    drawLineAndPass(line);
  }
}

// Whether drawing `line` (with its twin in Bubbleland) gives a cell its
// third side.
bool Triang::closesCell(int line) const {
  int twin = bubbleland() ? twinOf(line) : 0;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (!cellShows(cell) || sidecount.at(cell) != 2) continue;
    for (size_t slot = 0; slot < 3; ++slot) {
      int side = celllines.at(cell).at(slot);
      if (sidemark.at(cell).at(slot) == 0 && (side == line || (twin != 0 && side == twin))) {
        return true;
      }
    }
  }
  return false;
}

// The search works on copies, so that the window may go on while it runs;
// with `letEventsThrough` the clicks reach the handlers meanwhile, and
// `inputlock` keeps the lines among them out.
int Triang::expertLineChoice(bool letEventsThrough) {
  std::array<bool, kCells + 1> shows{};
  for (int cell = 1; cell <= kCells; ++cell) shows.at(cell) = cellShows(cell);
  ExpertLines view = expertLines(
      cells_, [&shows](int cell) { return shows.at(static_cast<size_t>(cell)); },
      [this](int line) { return lineowner.at(line) != 0; },
      bubbleland() ? std::function<int(int)>(twinOf) : nullptr);
  auto think = [view = std::move(view)] {
    return view.bestLine(expert::Budget::forMillis(expertMillis()));
  };
  return expert_->decide(think, letEventsThrough);
}

int Triang::expertMove() {
  if (finished == 1 || gameover == 1 || gameindex != Ombrel) return 0;
  return expertLineChoice(false);
}

// The expert's line for the player to draw flashes in yellow for a moment
// (with its twin in Bubbleland) and its number stays in the status line;
// nothing of the game changes. Held out while the computer draws, and like
// any wait it lets nothing in while it thinks; in the circle games there is
// no expert's move to show.
void Triang::hint_Click() {
  if (inputlock == 1) return;
  int line = expertMove();
  if (line == 0) return;
  std::vector<Element*> lines{&ln1(line)};
  if (bubbleland() && twinOf(line) != 0) lines.push_back(&ln1(twinOf(line)));
  expert_->showMove(lines, kMarkedWidth);
  flow_->say("Hint: " + std::to_string(line), Label33->ForeColor);
  Refresh();
}

}  // namespace vrask
