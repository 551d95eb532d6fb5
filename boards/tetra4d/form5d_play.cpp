// The moves of a person: a line clicked, a number clicked or typed, a circle
// clicked. The computer's moves come through the same steps.
#include <cmath>

#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/look.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace tetra4d;

namespace {

// The slot of a hit area: its index + 1, or a spoke's second hit area.
int slotOfHitArea(int index) {
  if (index >= 0 && index < kSlots) return index + 1;
  if (index == 300) return 31;
  if (index == 390) return 39;
  if (index == 470) return 47;
  return 0;
}

}  // namespace

// A line of the line game. Lines taken stay with their taker.
void form5d::Label1_Click(int index) {
  int slot = slotOfHitArea(index);
  if (compbusy == 1 || gamenum != kOmbrel || slot == 0) return;
  if (board_.lnstate.at(static_cast<size_t>(slot)) != kFree) {
    MsgBox(std::string(kInvalidMove));
    return;
  }
  Label10->Visible = false;
  setMenusEnabled(false);
  sd_->stop();
  sd_->resetTime();
  playLine(slot);
}

// A grid number plays its line; a number of no line on the board does
// nothing.
void form5d::Label9_Click(int n) {
  int slot = slotOfNumber(n);
  if (slot == 0 || board_.lnstate.at(static_cast<size_t>(slot)) == kOffBoard) return;
  Label1_Click(slot - 1);
}

// The move itself, for either side: the line takes the mover's colour in
// every figure, the triangles it finishes score, and the turn passes unless
// one did.
void form5d::playLine(int slot) {
  lvm(kSingleCube).Enabled = false;
  lvm(kDualCube).Enabled = false;
  scoredflag = 0;
  countDownMoves();
  int number = numberOfSlot(slot);
  (*Label9_)[number].Visible = false;
  flow_->showLastMove(number);
  board_.lnstate.at(static_cast<size_t>(slot)) = curplayer;
  paintLine(slot, moverColour(), kPlayedWidth);
  griddle(slot);
  if (scoredflag == 0) passLineTurn();
  if (movesleft == 0) endRound();
}

void form5d::passLineTurn() {
  if (curplayer == kBlue) {
    curplayer = kRed;
    flow_->showTurn(Side::Red);
    flow_->say(std::string(kRedTurn), kRedColour);
    if (players == 1 && movesleft > 0) compmove();
  } else {
    curplayer = kBlue;
    flow_->say(std::string(kBlueTurn), kBlueColour);
    flow_->showTurn(Side::Blue);
  }
}

void form5d::countDownMoves() {
  --movesleft;
  Label8->Caption = movesLeft(movesleft);
}

// A circle: the triangle's three lines in the mover's colour.
void form5d::Label99_Click(int index) {
  // The computer's pauses let events through; its turn is not to be
  // interrupted.
  if (compbusy == 1 || gamenum == kOmbrel || index < 0 || index >= kTriangles) return;
  int t = index + 1;
  if (ring(t).BorderWidth == kClosedRing) {
    MsgBox(std::string(kInvalidMove));
    return;
  }
  Label10->Visible = false;
  flow_->setGameMenusEnabled(false);
  sd_->stop();
  sd_->resetTime();
  ring(t).BorderColor = color::Yellow;
  ring(t).BorderWidth = kClosedRing;
  flow_->showLastMove(t);
  circleMove(t);
}

// The rest of a circle move, by a person or the computer. The side to move
// is the one whose "Your turn" shows.
void form5d::circleMove(int t) {
  countDownMoves();
  int code = Label4->Visible ? kBlue : kRed;
  flow_->showTurn(code == kBlue ? Side::Red : Side::Blue);
  Label33->Caption = std::string(code == kBlue ? kRedTurn : kBlueTurn);
  Label99(t - 1).Visible = false;
  paintTriangle(board_, t, code);
  judgeCircles();
  newflash(t);
  if (gamenum == kClassic) {
    movesleft = 0;
    for (const Element& r : *Shape1_) movesleft += r.BorderWidth != kClosedRing ? 1 : 0;
    Label8->Caption = movesLeft(movesleft);
  }
  if (movesleft == 1 && (gamenum == kClassicVraskMove || gamenum == kSetCountVraskMove))
    outtahere();
  if (movesleft == 0) endRound();
  // After the Vrask move the status keeps its black; after the end nobody
  // moves.
  bool redNext = !Label4->Visible;
  if (flow_->status() != kVraskMove) Label33->ForeColor = redNext ? kRedColour : kBlueColour;
  if (overflag == 0 && redNext && players == 1) computerCircleMove();
}

// The keypad's "enter": a line's grid number in the line game, a circle's
// number in the others. A number is a move only while its line is free or its
// circle open, as its label is then on the board, whether the grid shows it or
// not; anything else is dropped without a word.
void form5d::Command4_Click() {
  if (compbusy == 1) return;
  Element& box = keypad_->text();
  double n = Val(box.Text);
  box.Text.clear();
  if (std::floor(n) != n || n < 1) return;
  int number = static_cast<int>(n);
  if (gamenum == kOmbrel) {
    int slot = slotOfNumber(number);
    if (slot != 0 && board_.lnstate.at(static_cast<size_t>(slot)) == kFree) Label9_Click(number);
  } else if (number <= kTriangles && Label99(number - 1).Visible) {
    Label99_Click(number - 1);
  }
}

// --- the drawn lines -----------------------------------------------------------

// A cube edge shows in every figure its cube stands in. In the larger level
// the middle cube's edge exists only once both like-named edges are played.
std::vector<Element*> form5d::segmentsOf(int slot) {
  std::vector<Element*> segments;
  auto views = [&segments](ElementArray* array) {
    for (Element& line : *array) segments.push_back(&line);
  };
  if (isSpoke(slot)) {
    views(spokes_.at(static_cast<size_t>(apexOf(slot))).at(static_cast<size_t>(cornerOf(slot))));
    return segments;
  }
  int e = edgeOf(slot);
  int cube = isFirstCube(slot) ? 1 : 2;
  bool dual = board_.level == kDualCube;
  views(cubes_.at(static_cast<size_t>(cube)).at(static_cast<size_t>(e)));
  if (!dual) views(cubes_.at(2).at(static_cast<size_t>(e)));
  int other = cubeSlot(3 - cube, e);
  if (!dual || board_.lnstate.at(static_cast<size_t>(other)) != kFree)
    views(middle_.at(static_cast<size_t>(e)));
  return segments;
}

// A triangle in its own figure: its cube edge there and its two spokes.
std::vector<Element*> form5d::triangleSegments(int t) {
  std::vector<Element*> segments;
  int apex = apexOfRow(t);
  int e = kFamilyPattern.at(static_cast<size_t>((t - 1) % kEdges)).e;
  ElementArray* base = apex == 3 ? middle_.at(static_cast<size_t>(e))
                                 : cubes_.at(static_cast<size_t>(apex)).at(static_cast<size_t>(e));
  for (Element& line : *base) segments.push_back(&line);
  for (int s = 2; s <= 3; ++s) {
    int slot = board_.triln.at(static_cast<size_t>(t)).at(static_cast<size_t>(s)) + 1;
    for (Element* spoke : segmentsOf(slot)) segments.push_back(spoke);
  }
  return segments;
}

void form5d::paintLine(int slot, int colour, int width) {
  for (Element* line : segmentsOf(slot)) {
    line->BorderColor = colour;
    line->BorderWidth = width;
  }
}

int form5d::moverColour() const {
  return curplayer == kBlue ? kBlueColour : kRedColour;
}

}  // namespace vrask
