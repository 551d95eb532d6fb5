// What a move scores: triangles finished in the line game, triangles whole in
// one colour in the circle games; the Vrask move; the end of a round.
#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/look.h"
#include "frame/helpers.h"
#include "frame/round_list.h"
#include "frame/sudden_death.h"

namespace vrask {

using namespace tetra4d;

namespace {

constexpr double kFlashTime = 1;

}  // namespace

// The sides the line gives; whoever plays a triangle's third line gets it,
// whoever owns the other two. Up to three triangles score, each with its
// own flash.
void form5d::griddle(int slot) {
  if (!sd_->noLimit()) sd_->resetTime();
  for (int t : tetra4d::griddle(board_, slot, curplayer)) flash(t);
}

// The triangle scores for the mover and its lines show yellow for a second.
void form5d::flash(int t) {
  scoredflag = 1;
  flow_->addPoints(curplayer == kBlue ? Side::Blue : Side::Red, 1);
  std::vector<Element*> lines = triangleSegments(t);
  std::vector<int> colours;
  for (Element* line : lines) {
    colours.push_back(line->BorderColor);
    line->BorderColor = color::Yellow;
  }
  Refresh();
  wait(kFlashTime);
  for (size_t i = 0; i < lines.size(); ++i) lines[i]->BorderColor = colours[i];
  Refresh();
}

// Every triangle judged afresh from its sides: it scores while all three are
// one side's. In the Classic game a triangle whole in one colour, or painted
// all round in two, is closed for good.
void form5d::judgeCircles() {
  flow_->zeroScores();
  bool classic = gamenum == kClassic;
  for (int t = 1; t <= kTriangles; ++t) {
    Element& r = ring(t);
    int owner = ownerOf(board_, t);
    if (owner != 0) {
      flow_->addPoints(owner == kBlue ? Side::Blue : Side::Red, 1);
      r.BorderColor = owner == kBlue ? kBlueColour : kRedColour;
      r.Visible = true;
      if (classic) r.BorderWidth = kClosedRing;
    } else {
      r.BorderColor = color::WindowText;
      if (classic && paintedSides(board_, t) == 3 && r.BorderWidth != kClosedRing) {
        r.BorderColor = kMagenta;
        r.BorderWidth = kClosedRing;
      }
    }
    if (r.BorderWidth == kClosedRing) Label99(t - 1).Visible = false;
    r.Visible =
        !(hidmov->Checked && r.BorderWidth == kClosedRing && r.BorderColor == color::WindowText);
  }
}

// The circle games paint a triangle's lines and leave them: yellow while the
// computer shows its choice, else in the colour of the status label.
void form5d::newflash(int t) {
  int colour = compflash == 1 ? color::Yellow : flow_->moverColour();
  for (int s = 1; s <= 3; ++s) {
    paintLine(board_.triln.at(static_cast<size_t>(t)).at(static_cast<size_t>(s)) + 1, colour,
              kPlayedWidth);
  }
}

// Nobody may play the last circle: the program plays it in black, nobody's
// colour. Its three lines are wiped, and every triangle that held one of
// them loses its point.
void form5d::outtahere() {
  movesleft = 0;
  int last = 0;
  for (int t = 1; t <= kTriangles && last == 0; ++t) {
    if (ring(t).BorderWidth == 1) last = t;
  }
  if (last == 0) return;
  ring(last).BorderColor = color::Black;
  ring(last).BorderWidth = kClosedRing;
  flow_->showLastMove(last);
  flow_->say(std::string(kVraskMove), color::Black);
  Label99(last - 1).Visible = false;
  paintTriangle(board_, last, 0);
  judgeCircles();
  newflash(last);
  movesleft = 0;
  for (const Element& r : *Shape1_) movesleft += r.BorderWidth != kClosedRing ? 1 : 0;
  Label8->Caption = movesLeft(movesleft);
  endRound();
}

// Three rows in the round list, the totals, "GAME OVER"; once a round.
void form5d::endRound() {
  if (overflag == 1) return;
  sd_->stop();
  flow_->endGame();
  overflag = 1;
}

}  // namespace vrask
