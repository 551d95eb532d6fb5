// The computer plays Red when "1 player verus the computer" is ticked: a line
// brain at the end of the line judging and a face brain at the end of a face
// move (computer.h holds the decisions). These are the moves it makes, with
// their pauses, which let nothing through: the player waits for its move.
#include "boards/quennel/Quennel.h"
#include "boards/quennel/captions.h"
#include "boards/quennel/look.h"
#include "frame/expert_menu.h"

namespace vrask {

using namespace quennel;

// Seconds a line of the computer's shows yellow, and a face; the lines of
// faces with one marked side that it keeps count of.
constexpr double kLinePause = 1;
constexpr double kFacePause = 2;
constexpr size_t kMostDangerLines = 150;

// Close every face that has two sides, lowest first, judging again after
// each so that it scores and moves again; with none, a random line that
// gives no face its second side if there is one.
void Quennel::lineBrain() {
  if (expert_->on()) {
    expertLineMove();
    return;
  }
  sidecount = countMarkedSides(sidemark, faces());
  candidates = facesToClose(sidecount, faces());
  whosnext = 0;
  if (!candidates.empty()) {
    int f = candidates.front();
    for (int slot = 1; slot <= 3; ++slot) {
      if (sidemark.at(f).at(slot) == 0) computerTakesLine(celllines.at(f).at(slot));
    }
    linecheck();
    return;
  }
  dangerlines = dangerLines(celllines, sidecount, faces());
  if (dangerlines.size() > kMostDangerLines) dangerlines.resize(kMostDangerLines);
  candidates = lineCandidates(dangerlines, linetaken, lines());
  // No face had two sides, so this line closes none.
  takeQuietLine(flow_->pickFrom(candidates));
}

// A line of Red's that closes no face: the moves left count it, and Blue is
// next.
void Quennel::takeQuietLine(int line) {
  int free = 0;
  for (int l = 1; l <= lines(); ++l) free += linetaken.at(l) == 0 ? 1 : 0;
  Label34->Caption = std::to_string(free - 1);
  computerTakesLine(line);
  flow_->showTurn(Side::Blue);
  flow_->say(noScoreText("Blue"), color::Blue);
}

// The line shows yellow for a second before it turns Red; nothing moves on
// the board meanwhile.
void Quennel::computerTakesLine(int line) {
  finished = 1;
  flow_->showLastMove(line);
  markplayer = kRedMark;
  takeLine(line, kLineRed, kRedMark);
  Element& drawn = LN(screenLine(line));
  drawn.BorderColor = color::Yellow;
  Refresh();
  wait(kLinePause);
  drawn.BorderColor = kLineRed;
  finished = 0;
}

// The first free face with the most coloured sides, shown in yellow for two
// seconds, then painted Red; the move is judged as a person's, and the turn
// goes to Blue.
void Quennel::faceBrain() {
  if (openingmove == 1) {
    openingmove = 0;
    return;
  }
  if (finished == 1) return;
  sidecount = countMarkedSides(sidemark, faces());
  int face = faceTarget(sidecount, facetaken, faces());
  if (face == 0) return;
  Refresh();
  wait(kFacePause);
  flow_->showLastMove(face);
  flow_->showTurn(Side::Red);
  flow_->say(kRedTurn, kFaceRed);
  facetaken.at(static_cast<size_t>(face)) = 1;

  FaceLook& look = facelook.at(static_cast<size_t>(face));
  look.rim = color::Yellow;
  look.rimWidth = kPlayedRim;
  drawFace(face);
  for (int slot = 1; slot <= 3; ++slot) {
    int line = celllines.at(face).at(slot);
    paintLine(line, kFaceRed);
    LN(screenLine(line)).BorderColor = color::Yellow;
  }
  Refresh();
  wait(kFacePause);
  look.rim = kFaceRed;
  paintFace(face, kFaceRed);
  afterFaceMove(face, true);
}

}  // namespace vrask
