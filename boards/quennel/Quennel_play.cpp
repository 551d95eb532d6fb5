// The moves of a person: a line's number clicked, a face's circle clicked, a
// number typed. Screen numbers become real numbers here, by the view.
#include <optional>

#include "boards/quennel/Quennel.h"
#include "boards/quennel/captions.h"
#include "boards/quennel/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"

namespace vrask {

using namespace quennel;

void Quennel::sdfx_Click(int n) {
  keyedmove(n);
  if (keypad_->on()) focusTypedMoves();
}

// A line move, by the number on the screen. A line already taken costs
// nothing: the turn and the menus stay as they were.
void Quennel::keyedmove(int screen) {
  if (!lineGame() || finished == 1) return;
  bool redMoves = whosnext == 1;
  int line = realLine(screen);
  if (linetaken.at(static_cast<size_t>(line)) != 0) {
    MsgBox(kLineTaken);
    return;
  }
  flow_->setGameMenusEnabled(false);
  whosnext = redMoves ? 0 : 1;
  flow_->showTurn(redMoves ? Side::Blue : Side::Red);
  markplayer = redMoves ? kRedMark : kBlueMark;
  flow_->showLastMove(line);
  takeLine(line, redMoves ? kLineRed : color::Blue, markplayer);
  linecheck();
}

// The line is drawn in the mover's colour and its sides on every face carry
// the mover's mark.
void Quennel::takeLine(int line, int colour, int mark) {
  linetaken.at(static_cast<size_t>(line)) = mark;
  paintLine(line, colour);
  for (int f = 1; f <= kFaces; ++f) {
    for (int slot = 1; slot <= 3; ++slot) {
      if (celllines.at(f).at(slot) == line) sidemark.at(f).at(slot) = mark;
    }
  }
}

void Quennel::paintLine(int line, int colour) {
  linedrawn.at(static_cast<size_t>(line)) = true;
  linecolour.at(static_cast<size_t>(line)) = colour;
  drawLine(line);
}

// The three lines of the face, and in a Super game the two beyond it.
void Quennel::paintFace(int face, int colour) {
  for (int slot = 1; slot <= 3; ++slot) paintLine(celllines.at(face).at(slot), colour);
  if (!game().super) return;
  if (const auto& lines = beyond.at(static_cast<size_t>(face))) {
    for (int line : *lines) paintLine(line, colour);
  }
}

// A face move, by the circle on the screen, in the colour of the status.
void Quennel::Label12_Click(int screen) {
  if (finished == 1 || lineGame()) return;
  int face = realFace(screen);
  if (facetaken.at(static_cast<size_t>(face)) != 0) {
    MsgBox(kFaceTaken);
    return;
  }
  if (keypad_->on()) keypad_->focusText();
  flow_->setGameMenusEnabled(false);
  facetaken.at(static_cast<size_t>(face)) = 1;
  flow_->showLastMove(face);
  Refresh();
  paintFace(face, flow_->moverColour());
  afterFaceMove(face, false);
}

// The keypad's "enter": the number typed is the number of a line or circle
// on the screen now, and plays like a click on it. A number that names no
// target that shows is dropped without a word.
void Quennel::Command6_Click() {
  if (std::optional<int> n = flow_->typedTarget(lineGame() ? *sdfx_ : *Label12_)) {
    if (lineGame()) {
      keyedmove(*n);
    } else {
      Label12_Click(*n);
    }
  }
  focusTypedMoves();
}

void Quennel::focusTypedMoves() {
  if (finished == 1) {
    SetFocus(*Command3);
  } else {
    keypad_->focusText();
  }
}

}  // namespace vrask
