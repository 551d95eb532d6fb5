// The expert computer on the cube board: with "Expert computer" ticked, the
// computer's lines in Ombrel and its squares in Zorvex (Squares) come from
// the expert's search; the pauses, messages and scoring around them are the
// same. Both are games of taking sides, where whoever completes a cell (a
// square of four lines, a small cube of six squares) scores it and goes
// again, so the expert's line game plays them over the cells of
// expert_view.h. "Hint" shows a player the move the expert would make.
//
// The Vrask circle games and the Line Vrask games keep the board's own
// computer with the expert on: a move there paints a square and its
// neighbours, or a line and its cross lines, in the mover's colour, and the
// score is worked out afresh from the colours; the expert's circle search
// knows the square board's patterns, not these.
#include <array>
#include <string>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/expert_view.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/expert_lines.h"
#include "frame/expert_menu.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

// The expert's line, played as the board's computer plays one: a line that
// completes a square is counted at once, which gives Red the next move; one
// that completes none (a safe line, or the one that declines the last
// squares of a chain to keep control) waits a moment more and hands the turn
// to Blue.
void zorvex::expertOmbrelReply() {
  busy = 1;
  PerSquare painted = paintedSides(squareinks);
  rednext = 0;
  int L = expertBoardMove(true);
  if (completesSquare(painted, L)) {
    playComputerLine(L);
    busy = 0;
    scoremove();
    return;
  }
  if (squareToFinish(painted) == 0 && safeLines(tables, painted, lineowner).empty() &&
      hnt->Checked) {
    MsgBox(kNoGoodMovesLeft);
  }
  playQuietLine(L, painted);
}

bool zorvex::completesSquare(const PerSquare& painted, int L) const {
  for (int s : squaresOfLine(L)) {
    if (painted.at(static_cast<size_t>(s)) == 3) return true;
  }
  return false;
}

// The board line (Ombrel) or square (Zorvex (Squares)) the expert plays for
// the side to move, 0 in any other game or when none is free. The search
// works on copies, so that the window may go on while it runs; with
// `letEventsThrough` the clicks reach the handlers meanwhile, and `busy`
// keeps them out.
int zorvex::expertBoardMove(bool letEventsThrough) {
  if (started == 0 || gameover == 1) return 0;
  ExpertLines view;
  if (gamemode == Ombrel) {
    static const CellBoard squares = squaresAsCells(settables());
    view = expertLines(
        squares, [](int) { return true; },
        [this](int L) { return lineowner.at(static_cast<size_t>(L)) != 0; });
  } else if (gamemode == ZorvexSquares) {
    static const CellBoard cubes = cubesAsCells(settables());
    view = expertLines(
        cubes, [](int) { return true; },
        [this](int s) { return circlestate.at(static_cast<size_t>(s)) != 0; });
  } else {
    return 0;
  }
  auto think = [view = std::move(view)] {
    return view.bestLine(expert::Budget::forMillis(expertMillis()));
  };
  return expert_->decide(think, letEventsThrough);
}

// The target a person would click for the expert's move: the number beside
// the line where this view draws it, or the circle of the square.
int zorvex::expertMove() {
  int m = expertBoardMove(false);
  if (m == 0) return 0;
  return gamemode == Ombrel ? lineNumber(slotLine(m)) : m;
}

// The expert's move for the side to move flashes in yellow for a moment, in
// its place in this view, and its number stays in the status line; nothing
// of the game changes. Held out while the computer plays, and like any wait
// it lets nothing in while it thinks; in the games the expert does not play
// there is no move to show.
void zorvex::hint_Click() {
  if (busy == 1) return;
  int m = expertBoardMove(false);
  if (m == 0) return;
  bool line = gamemode == Ombrel;
  expert_->showMove({line ? &LN(slotLine(m)) : &Shape1(m)}, line ? kPainted : kPlayedRing);
  flow_->say("Hint: " + std::to_string(line ? lineNumber(m) : m), Label33->ForeColor);
  Refresh();
}

}  // namespace vrask
