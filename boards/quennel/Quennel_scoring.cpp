// Judging the board after every move, and the end of a game. Line games add
// to the points as faces close; face games count them afresh from the
// colours of the lines after every move, so points can be lost.
#include "boards/quennel/Quennel.h"
#include "boards/quennel/captions.h"
#include "boards/quennel/look.h"
#include "frame/helpers.h"
#include "frame/round_list.h"

namespace vrask {

using namespace quennel;

namespace {

constexpr double kFlash = 1;  // seconds a closed face shows yellow, and after

}  // namespace

// --- line games ----------------------------------------------------------------

// After a line: the faces it closed score for the side that drew it, who then
// moves again; the game ends when no line of the size is free.
void Quennel::linecheck() {
  flow_->setGameMenusEnabled(false);
  sidecount = countMarkedSides(sidemark, faces());
  std::vector<int> newFaces;
  for (int f = 1; f <= faces(); ++f) {
    if (sidecount.at(f) == 3 && facescored.at(f) == 0) newFaces.push_back(f);
  }
  announceLineScore(static_cast<int>(newFaces.size()));
  flash(newFaces);

  int free = 0;
  for (int line = 1; line <= lines(); ++line) free += linetaken.at(line) == 0 ? 1 : 0;
  Label34->Caption = std::to_string(free);
  if (free == 0) {
    recordRound();
  } else if (onePlayer() && whosnext == 1) {
    lineBrain();
  }
}

// `whosnext` already names the other side when this runs: 1 after Blue's line.
void Quennel::announceLineScore(int newFaces) {
  bool blueMoved = whosnext == 1;
  if (newFaces == 0) {
    flow_->say(noScoreText(blueMoved ? "Red" : "Blue"), blueMoved ? kRedStatus : color::Blue);
    return;
  }
  whosnext = blueMoved ? 0 : 1;
  Side mover = blueMoved ? Side::Blue : Side::Red;
  flow_->addPoints(mover, newFaces);
  flow_->showTurn(mover);
  Label33->Caption = scoreText(newFaces, blueMoved ? "Blue" : "Red");
}

// Each closed face shows its lines in yellow for a moment, where the view
// shows them.
void Quennel::flash(const std::vector<int>& closed) {
  for (int f : closed) {
    std::array<int, 4> colours{};
    for (int slot = 1; slot <= 3; ++slot) {
      Element& line = LN(screenLine(celllines.at(f).at(slot)));
      colours.at(slot) = line.BorderColor;
      line.BorderColor = color::Yellow;
    }
    Refresh();
    wait(kFlash);
    for (int slot = 1; slot <= 3; ++slot) {
      LN(screenLine(celllines.at(f).at(slot))).BorderColor = colours.at(slot);
    }
    Refresh();
    wait(kFlash);
    facescored.at(f) = 1;
  }
}

// --- face games ------------------------------------------------------------------

// After a face is painted, by a person or by the computer: the turn passes,
// every face is judged afresh from its lines, and the moves left decide the
// end. The last face of a Vrask-move game plays itself.
void Quennel::afterFaceMove(int face, bool computersOwn) {
  int colour = flow_->moverColour();
  for (int slot = 1; slot <= 3; ++slot) {
    int line = celllines.at(face).at(slot);
    for (int f = 1; f <= kFaces; ++f) {
      for (int k = 1; k <= 3; ++k) {
        if (celllines.at(f).at(k) == line) sidemark.at(f).at(k) = colour;
      }
    }
  }
  FaceLook& played = facelook.at(static_cast<size_t>(face));
  played.rim = colour;
  played.rimWidth = kPlayedRim;
  played.numbered = false;
  drawFace(face);

  passFaceTurn();
  readSides();
  countPoints();
  if (hidmov->Checked) hideNonScoring();
  movesleft = countMovesLeft();
  Label34->Caption = std::to_string(movesleft);
  if (movesleft == 1 && gamecode > 16) outtahere();
  if (movesleft < 1) recordRound();
  if (!ip(1).Checked && !computersOwn) faceBrain();
}

void Quennel::passFaceTurn() {
  bool redNext = Label4->Visible;
  flow_->showTurn(redNext ? Side::Red : Side::Blue);
  flow_->say(redNext ? kRedTurn : kBlueTurn, redNext ? kFaceRed : color::Blue);
}

// A side counts for the colour of its line when that is a player's.
void Quennel::readSides() {
  for (int f = 1; f <= kFaces; ++f) {
    for (int slot = 1; slot <= 3; ++slot) {
      int c = linecolour.at(static_cast<size_t>(celllines.at(f).at(slot)));
      sidemark.at(f).at(slot) = c == color::Blue || c == kFaceRed ? c : 0;
    }
  }
}

// The points from zero: a face scores for the side whose colour all three of
// its lines have now. In the Classic games a face not yet played whose lines
// are all drawn in both colours can never be played.
void Quennel::countPoints() {
  int blue = 0;
  int red = 0;
  bool classic = game().count == Count::Classic;
  for (int f = 1; f <= faces(); ++f) {
    const auto& sides = sidemark.at(f);
    FaceLook& look = facelook.at(static_cast<size_t>(f));
    bool allDrawn = sides[1] != 0 && sides[2] != 0 && sides[3] != 0;
    bool oneColour = sides[1] == sides[2] && sides[2] == sides[3];
    if (allDrawn && oneColour) {
      (sides[1] == color::Blue ? blue : red) += 1;
      look.rim = sides[1];
      look.shown = true;
      look.numbered = false;
    } else {
      look.rim = kNobody;
    }
    if (classic && allDrawn && !oneColour && facetaken.at(f) == 0) {
      facetaken.at(f) = 2;
      look.rim = kDead;
      look.rimWidth = kPlayedRim;
      look.shown = true;
    }
    drawFace(f);
  }
  flow_->zeroScores();
  flow_->addPoints(Side::Blue, blue);
  flow_->addPoints(Side::Red, red);
}

// "Hide non-scoring made moves": faces played or dead that score for nobody.
void Quennel::hideNonScoring() {
  for (int f = 1; f <= faces(); ++f) {
    FaceLook& look = facelook.at(static_cast<size_t>(f));
    look.shown = !(look.rimWidth == kPlayedRim && look.rim == kNobody);
    drawFace(f);
  }
}

int Quennel::countMovesLeft() {
  int left = 0;
  for (int f = 1; f <= faces(); ++f) left += facetaken.at(f) == 0 ? 1 : 0;
  return left;
}

// The Vrask move: the one face left plays itself in black, nobody's colour,
// and its lines count for nobody any more.
void Quennel::outtahere() {
  flow_->say(kVraskMove, color::Black);
  movesleft = countMovesLeft();
  int face = 0;
  for (int f = 1; f <= faces() && face == 0; ++f) {
    if (facetaken.at(f) == 0) face = f;
  }
  if (face == 0) return;
  facetaken.at(face) = 1;
  flow_->showLastMove(face);
  paintFace(face, color::Black);
  FaceLook& played = facelook.at(static_cast<size_t>(face));
  played.rimWidth = kPlayedRim;
  played.numbered = false;
  readSides();
  countPoints();
  recordRound();
}

// --- the end of a game -------------------------------------------------------------

// Three rows in the round list and "GAME OVER": the whole announcement. The
// menus stay closed until New.
void Quennel::recordRound() {
  if (finished == 1) return;
  flow_->endGame();
  Picture3->Visible = true;
  finished = 1;
  drawView();
}

}  // namespace vrask
