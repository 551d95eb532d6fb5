// The moves of a person: a line clicked, a circle clicked, a number typed.
#include <optional>
#include <string>

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/look.h"

namespace vrask {

using namespace triangular;

// A move on a line. In Bubbleland a rim line is drawn with its twin, and the
// cells on both sides of the seam get the side.
void Triang::Label1_Click(int line) {
  if (inputlock == 1 || gameindex > Dorvel) return;
  showSizeControls(false);
  if (lineowner.at(line) != 0) {
    MsgBox(kLineTaken);
    return;
  }
  flow_->showLastMove(line);
  ln1(line).BorderWidth = kMarkedWidth;

  int colour = passLineTurn();

  ln1(line).BorderColor = colour;
  lineowner.at(line) = mark;
  int twin = bubbleland() ? twinOf(line) : 0;
  if (twin != 0) {
    paintLine(twin, colour);
    lineowner.at(twin) = mark;
  }
  markSides(line, mark);
  if (twin != 0) markSides(twin, mark);
  sd_->resetTime();
  checkwins();
}

// The side `whosnext` names draws the line with its mark and its colour.
int Triang::passLineTurn() {
  Side mover = flow_->passLineTurn(whosnext);
  mark = mover == Side::Red ? kRedMark : kBlueMark;
  return mover == Side::Red ? color::Red : color::Blue;
}

void Triang::markSides(int line, int mark) {
  for (int cell = 1; cell <= kCells; ++cell) {
    for (size_t slot = 0; slot < 3; ++slot) {
      if (celllines.at(cell).at(slot) == line) sidemark.at(cell).at(slot) = mark;
    }
  }
}

// A move on a circle, in the colour the status label shows: the cell's three
// lines, in Bubbleland the twin a rim cell carries, and the extension. A
// circle can't be played in a game on lines, even through a typed number.
void Triang::Label2_Click(int cell) {
  if (finished == 1 || playedOnLines(gameindex)) return;
  showSizeControls(false);
  freshboard = 0;
  if (celltaken.at(cell) != 0) {
    MsgBox(kCircleTaken);
    return;
  }
  celltaken.at(cell) = 1;
  flow_->showLastMove(cell);
  Shape1(cell).BorderColor = color::Green;
  paintCell(cell, Label33->ForeColor);
  paintExtension(cell, Label33->ForeColor);
  chackmoves();
}

void Triang::paintCell(int cell, int colour) {
  for (int line : celllines.at(cell)) paintLine(line, colour);
  if (bubbleland()) {
    if (int twin = rimTwinOf(celllines, cell)) paintLine(twin, colour);
  }
}

// Until a circle is clicked after New the board holds still: so a computer's
// opening dealt by a second New in a row paints nothing.
void Triang::paintExtension(int cell, int colour) {
  if (freshboard == 1) return;
  for (int line : bubbleland() ? withbubble(gameindex, cell) : vraskexten(gameindex, cell)) {
    paintLine(line, colour);
  }
}

void Triang::paintLine(int line, int colour) {
  ln1(line).BorderWidth = kMarkedWidth;
  ln1(line).BorderColor = colour;
}

// The keypad's "enter": the number typed plays like a click on that line or
// circle; one that names nothing on the board is dropped without a word.
void Triang::Command6_Click() {
  if (inputlock == 1) return;
  bool onLines = gameindex == Ombrel;
  std::optional<int> target = flow_->typedTarget(onLines ? *board_.strips : *board_.targets);
  if (!target) return;
  if (onLines) {
    Label1_Click(*target);
  } else {
    Label2_Click(*target);
  }
}

bool Triang::drawn(int line) const {
  return (*board_.lines)[line].BorderWidth == kMarkedWidth;
}

}  // namespace vrask
