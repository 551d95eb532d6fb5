// The moves of a person: a line's number clicked, a face's circle clicked, a
// number typed. Screen numbers become real numbers here, by the view.
#include <cmath>

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
  setMenusEnabled(false);
  whosnext = redMoves ? 0 : 1;
  Label3->Visible = !redMoves;
  Label4->Visible = redMoves;
  markplayer = redMoves ? kRedMark : kBlueMark;
  Label20->Caption = kLastMove + std::to_string(line);
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
  if (auto beyond = extension(celllines, face)) {
    for (int line : *beyond) paintLine(line, colour);
  }
}

// A face move, by the circle on the screen, in the colour of the status.
void Quennel::Label12_Click(int screen) {
  if (finished == 1 || lineGame()) return;
  if (keypad_->on()) keypad_->focusText();
  int face = realFace(screen);
  if (facetaken.at(static_cast<size_t>(face)) != 0) {
    MsgBox(kFaceTaken);
    return;
  }
  setMenusEnabled(false);
  facetaken.at(static_cast<size_t>(face)) = 1;
  Label20->Caption = kLastMove + std::to_string(face);
  Refresh();
  paintFace(face, Label33->ForeColor);
  afterFaceMove(face, false);
}

// The keypad's "enter": the number typed is the number a line or circle
// shows on the screen now. A number that no shown label carries is dropped
// without a word.
void Quennel::Command6_Click() {
  Element& box = keypad_->text();
  double n = Val(box.Text);
  box.Text.clear();
  bool whole = std::floor(n) == n && n >= 1;
  if (whole && lineGame()) {
    for (Element& label : *sdfx_) {
      if (!label.Caption.empty() && Val(label.Caption) == n) {
        keyedmove(label.index);
        break;
      }
    }
  } else if (whole && n <= kFaces) {
    for (Element& label : *Label12_) {
      if (label.Visible && !label.Caption.empty() && Val(label.Caption) == n) {
        Label12_Click(label.index);
        break;
      }
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
