// The computer plays Red when "1 player verus the computer" is ticked. It has
// two brains that share nothing: one draws lines in Ombrel, the other plays
// circles (`redchack`). Their choices are the rules every board shares
// (frame/cell_board.h); these are the moves they make, with their pauses.
#include <algorithm>
#include <string>

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/look.h"
#include "frame/expert_menu.h"

namespace vrask {

using namespace triangular;

// Ombrel. Every cell with two sides is closed, lowest first, each line
// judged at once so the cell counts for Red and the computer goes again; then
// a random line that gives no cell its second side, if there is one.
void Triang::computerLineMove() {
  if (expert_->on()) {
    expertLineMove();
    return;
  }
  inputlock = 1;
  candidates = cells_.cellsToComplete(sidecount = countMarkedSides(sidemark));
  whosnext = 0;
  if (candidates.empty()) {
    drawSafeLine();
    return;
  }
  closeCell(candidates.front());
  judgeLines();
}

// The one side of `cell` that has no mark.
void Triang::closeCell(int cell) {
  const auto& marks = sidemark.at(cell);
  auto open = std::find(marks.begin(), marks.end(), 0);
  drawComputerLine(celllines.at(cell).at(static_cast<size_t>(open - marks.begin())));
}

// A random line among those that give no cell its second side.
void Triang::drawSafeLine() {
  candidates = cells_.safeLines(
      sidecount, [this](int line) { return lineowner.at(line) == 0 && lineShows(line); });
  drawLineAndPass(flow_->pickFrom(candidates));
}

// A line that closes nothing: Blue is next.
void Triang::drawLineAndPass(int line) {
  drawComputerLine(line);
  Label13->Caption = movesLeft(kLines - linesTakenOrHidden());
  flow_->showTurn(Side::Blue);
  flow_->say(noScore("Blue"), color::Blue);
  inputlock = 0;
  sd_->restart();
}

// The line shows in yellow while the computer pauses; the pause lets events
// through, and `inputlock` keeps the clicks among them out. Like any first
// move, it closes the sizes.
void Triang::drawComputerLine(int line) {
  showSizeControls(false);
  ln1(line).BorderWidth = kMarkedWidth;
  if (bubbleland()) bbland(line);
  ln1(line).BorderColor = color::Yellow;
  flow_->computerPause();
  flow_->showLastMove(line);
  ln1(line).BorderColor = color::Red;
  lineowner.at(line) = kRedMark;
  markSides(line, mark);
}

// The twin of a rim line the computer draws, drawn and taken with it.
void Triang::bbland(int line) {
  int twin = twinOf(line);
  if (twin == 0) return;
  paintLine(twin, color::Red);
  lineowner.at(twin) = kRedMark;
  markSides(twin, mark);
}

// The circle games: the lowest free cell among those with the most drawn
// lines, else a random free cell. The expert plays no circle game on this
// board (Triang_expert.cpp says why): this computer plays them either way. It plays only when the
// status is Red; the count after its move finds the last free cell, which the program plays.
void Triang::redchack() {
  auto shows = [this](int cell) { return cellShows(cell); };
  linecount = cells_.countSides([this](int line) { return drawn(line); });
  int cell = cells_.vraskTarget(linecount, celltaken, shows);
  if (cell == 0) {
    // Every free cell is bare. No count follows: the next move's judging
    // makes it.
    if (flow_->moverColour() != color::Red) return;
    candidates = cells_.openCells(celltaken, shows);
    cell = flow_->pickFrom(candidates);
    Refresh();
    wait(kCirclePause);
    compmove(cell);
    paintRedExtension(cell);
    return;
  }
  // Once the program has played the last cell, nothing follows.
  if (endgameflag == 1) return;
  if (flow_->moverColour() == color::Red) {
    Refresh();
    wait(kCirclePause);
    flow_->showLastMove(cell);
    compmove(cell);
    paintRedExtension(cell);
    flow_->zeroScores();
    FreeCells before = countFreeCells();
    Label13->Caption = movesLeft(before.count);
    judgeCells();
    if (before.count == 1) {
      playLastCell(before.last);
      endgameflag = 1;
      return;
    }
  }
  FreeCells after = countFreeCells();
  Label13->Caption = movesLeft(after.count);
  if (after.count == 1) {
    playLastCell(after.last);
    endgameflag = 1;
  } else if (after.count == 0) {
    // The computer's move closed the last free cells at once.
    outtahere();
  }
}

// The computer's extension goes in Red; then the label turns Blue, so the
// player's next move paints in Blue, while its text still says Red's turn.
void Triang::paintRedExtension(int cell) {
  Label33->ForeColor = color::Red;
  paintExtension(cell, color::Red);
  Label33->ForeColor = color::Blue;
}

// A circle move by the program, in the colour of the status label: Red's
// move, or with the label Black and "Vrask!", the last cell of the game, which
// paints its extension and ends the game.
void Triang::compmove(int cell) {
  if (finished == 1 || freshboard == 1) return;
  celltaken.at(cell) = 1;
  Shape1(cell).BorderColor = color::Green;
  paintCell(cell, flow_->moverColour());
  if (flow_->status() != kVraskMove) return;
  paintExtension(cell, flow_->moverColour());
  Label13->Caption.clear();
  outtahere();
}

}  // namespace vrask
