// The computer plays Red when "&1 Player" is ticked. computer.h holds its
// decisions; these are its moves, with their pauses, in every view.
#include "boards/zorvex/captions.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/expert_menu.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

namespace {

constexpr double kLinePause = 1;
constexpr double kCirclePause = 2;

}  // namespace

int zorvex::pickFrom(const std::vector<int>& candidates) {
  movepick = candidates;
  return flow_->pickFrom(candidates);
}

// Ombrel: every square that stands at three lines is finished first, lowest
// first, each through the count again (which gives Red the next move); then
// a random line that leaves no square at three, if there is one. Its pauses
// let clicks through, and `busy` keeps them out.
void zorvex::ombrelReply() {
  if (expert_->on()) {
    expertOmbrelReply();
    return;
  }
  busy = 1;
  PerSquare painted = paintedSides(squareinks);
  rednext = 0;
  if (int s = squareToFinish(painted); s != 0) {
    for (int k = 1; k <= 4; ++k) {
      int L = tables.squarelines.at(static_cast<size_t>(s)).at(static_cast<size_t>(k));
      if (lineowner.at(static_cast<size_t>(L)) == 0) playComputerLine(L);
    }
    busy = 0;
    scoremove();
    return;
  }
  std::vector<int> candidates = safeLines(tables, painted, lineowner);
  if (candidates.empty()) {
    if (hnt->Checked) MsgBox(kNoGoodMovesLeft);
    candidates = freeLines(lineowner);
  }
  playQuietLine(pickFrom(candidates), painted);
}

// A line that completes no square, after a moment more; Blue is next.
void zorvex::playQuietLine(int L, const PerSquare& painted) {
  waitWithEvents(kLinePause);
  Label34->Caption = movesLeft(freeLineCount() - 1);
  playComputerLine(L);
  hintscan(painted);
  flow_->showTurn(Side::Blue);
  flow_->say("No score    Blue's turn.", color::Blue);
  busy = 0;
}

// The line shows in yellow in its place in the current view, then in Red.
void zorvex::playComputerLine(int L) {
  Element& line = LN(slotLine(L));
  line.BorderWidth = kPainted;
  line.BorderColor = color::Yellow;
  Refresh();
  waitWithEvents(kLinePause);
  LN(slotLine(L)).BorderColor = color::Red;
  markmov(L);
  lineowner.at(static_cast<size_t>(L)) = kRedId;
  inkBoardLine(L, kRedId);
}

// The Vrask circle games: Red's square, played where it stands in this view.
// The expert plays no circle game on this board (zorvex_expert.cpp says why).
void zorvex::circleReply() {
  int s = pickCircleReply();
  if (s != 0) carryOutReply(s);
}

// The square with the most painted lines, lowest first; at the higher skill
// levels of Super Vrask Plus any free square. Should no free square have a
// painted line, any free square will do.
int zorvex::pickCircleReply() {
  bool beginner = sskl(1).Checked;
  if (!isSuperVrask(gamemode) || beginner) {
    int s = vraskScan(paintedSides(squareinks), circlestate);
    if (s != 0) return s;
  }
  std::vector<int> free = freeSquares(circlestate);
  return free.empty() ? 0 : pickFrom(free);
}

void zorvex::carryOutReply(int s) {
  int p = slotSquare(s);
  flow_->showLastMove(s);
  Refresh();
  if (onePlayer()) sd_->restart();
  const auto& drawnLines = tables.squarelines.at(static_cast<size_t>(p));
  for (int k = 1; k <= 4; ++k) {
    Element& line = LN(drawnLines.at(static_cast<size_t>(k)));
    line.BorderWidth = kPainted;
    line.BorderColor = color::Yellow;
    inkBoardLine(boardLine(viewno, line.index), color::Red);
  }
  Shape1(p).BorderColor = color::Yellow;
  Shape1(p).BorderWidth = kPlayedRing;
  Refresh();
  circlestate.at(static_cast<size_t>(s)) = color::Red;
  Shape1(p).Visible = true;
  Label9(p).Visible = false;
  Label9(p).Caption.clear();
  wait(kCirclePause);
  for (int k = 1; k <= 4; ++k) {
    int drawnLine = drawnLines.at(static_cast<size_t>(k));
    LN(drawnLine).BorderColor = color::Red;
    lineowner.at(static_cast<size_t>(boardLine(viewno, drawnLine))) = color::Red;
  }
  Refresh();
  flow_->say(kBluePlayersTurn, color::Blue);
  flow_->showTurn(Side::Blue);
  if (isSuperVrask(gamemode)) {
    for (int neighbour : planeNeighbours(p)) paintSquare(neighbour, color::Red);
  }
  afterCircleMove();
}

// Zorvex (Squares): finish a cube at five, else keep away from cubes at four.
void zorvex::squaresReply() {
  if (expert_->on()) {
    ballswalls(expertBoardMove(false));
    return;
  }
  int s = cubeToFinish(tables, cubefaces);
  if (s == 0) s = pickFrom(squareCandidates(tables, cubefaces, circlestate));
  ballswalls(s);
}

}  // namespace vrask
