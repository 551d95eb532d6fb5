// Judging the board after every move, and the end of a round. In the line
// games points are added as squares are finished; in the square and Line
// Vrask games they are counted afresh from the board after every move, so a
// point can be lost.
#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/look.h"

namespace vrask {

using namespace hypercube;

// --- line games --------------------------------------------------------------

// `redtoplay` was flipped by the move, so it is 1 after Blue's line and 0
// after Red's. A scorer keeps the turn in Ombrel and Zorvex Lines; in
// Dorvel the turn passes whatever happens.
void form5d2::checkwins() {
  if (roundOver()) return;
  std::vector<int> finished = newlyFinished();
  int n = static_cast<int>(finished.size());
  bool dorvel = gamenum == 1;
  if (n != 0 && redtoplay == 1) {
    flow_->addPoints(Side::Blue, n);
    if (dorvel) {
      flow_->say(flow_->status(), color::Red);
    } else {
      redtoplay = 0;
    }
  } else if (n != 0) {
    flow_->addPoints(Side::Red, n);
    if (dorvel) {
      flow_->say(flow_->status(), color::Blue);
    } else {
      redtoplay = 1;
    }
  }
  announceLineScore(n);
  // The flash lets events through; a line clicked meanwhile is held out, the
  // computer's captures by `compbusy` and a person's own by `flashing`.
  flashing = 1;
  for (int square : finished) {
    sqflash(square);
    Refresh();
    waitWithEvents(kSquareFlashSeconds);
    sqpaint(square);
    Refresh();
  }
  flashing = 0;
  if (movesleft < 1) {
    endOfRound();
  } else if (onePlayer() && redtoplay == 1 && !dorvel) {
    computerLineMove();
  }
}

// The squares whose four sides are now painted (in Dorvel, all four by the
// player who just moved) and that no player has had yet.
std::vector<int> form5d2::newlyFinished() {
  int mover = redtoplay == 1 ? kBlueCode : kRedCode;
  std::vector<int> finished;
  for (int s = 1; s <= kSquares; ++s) {
    int count = 0;
    for (int k = 1; k <= 4; ++k) {
      int side = sqside.at(s).at(k);
      count += (gamenum == 1 ? side == mover : side != 0) ? 1 : 0;
    }
    if (count == 4 && sqdone.at(s) == 0) {
      sqdone.at(s) = 1;
      finished.push_back(s);
    }
  }
  return finished;
}

void form5d2::announceLineScore(int n) {
  bool redNext = redtoplay == 1;
  if (n == 0) {
    flow_->say(std::string("No score    ") + (redNext ? "Red" : "Blue") + "'s turn.",
               redNext ? color::Red : color::Blue);
    flow_->showTurn(redNext ? Side::Red : Side::Blue);
    return;
  }
  if (n >= 2) {
    flow_->say(kManyScores.at(static_cast<size_t>(n)), flow_->moverColour());
  } else if (gamenum == 1) {
    flow_->say(std::string(" Score!      ") + (redNext ? "Red" : "Blue") + "'s turn now.",
               flow_->moverColour());
  } else {
    // The scorer moves again: `redtoplay` names the scorer's opponent.
    flow_->say(std::string(" Score!      ") + (redNext ? "Red" : "Blue") + " goes again.",
               flow_->moverColour());
  }
}

// A finished square shows its lines in yellow; their owners' colours are
// noted to paint them back: Blue's, or for Red's the computer's dark red.
void form5d2::sqflash(int square) {
  for (int k = 1; k <= 4; ++k) {
    int slot = sqln.at(square).at(k);
    flashColours_.at(k) = lnown.at(slot) == kBlueCode ? Label333->BackColor : Label444->BackColor;
    paintLine(slot, kPainted, color::Yellow);
  }
}

void form5d2::sqpaint(int square) {
  for (int k = 1; k <= 4; ++k) paintLine(sqln.at(square).at(k), kPainted, flashColours_.at(k));
}

// --- square and Line Vrask games -------------------------------------------------

// Every square is judged from the colours of its sides: whole in one
// player's colour it scores for that player and closes. In the Classic games
// a square painted all round in mixed colours closes for nobody.
void form5d2::judge() {
  flow_->zeroScores();
  if (squareGame() && hidmov->Checked) hideNonScoringSquares();
  int blue = 0;
  int red = 0;
  for (int s = 1; s <= kSquares; ++s) {
    Element& ring = Shape1(s);
    ring.BorderColor = color::Black;
    int blueSides = 0;
    int redSides = 0;
    int painted = 0;
    for (int k = 1; k <= 4; ++k) {
      int side = lineVraskGame() ? lnown.at(sqln.at(s).at(k)) : sqside.at(s).at(k);
      blueSides += side == color::Blue ? 1 : 0;
      redSides += side == color::Red ? 1 : 0;
      painted += side != 0 ? 1 : 0;
    }
    if (redSides == 4 || blueSides == 4) {
      (redSides == 4 ? red : blue) += 1;
      ring.BorderColor = redSides == 4 ? color::Red : color::Blue;
      ring.BorderWidth = kClosedRing;
      ring.Visible = true;
      sqtaken.at(s) = 2;
      Label11(s).Visible = false;
    } else if (classicGame() && painted == 4 && ring.BorderWidth != kClosedRing) {
      sqtaken.at(s) = 2;
      ring.BorderWidth = kClosedRing;
      ring.BorderColor = kMagenta;
      ring.Visible = true;
      Label11(s).Visible = false;
    }
  }
  flow_->addPoints(Side::Blue, blue);
  flow_->addPoints(Side::Red, red);
  if (lineVraskGame()) {
    movesleft = lineVraskMovesLeft();
  } else {
    int closed = 0;
    for (int s = 1; s <= kSquares; ++s) closed += sqtaken.at(s) > 1 ? 1 : 0;
    movesleft = kSquares - closed;
  }
  Label99->Caption = movesLeft(movesleft);
}

// Closed squares that score for nobody leave the board's view.
void form5d2::hideNonScoringSquares() {
  for (int s = 1; s <= kSquares; ++s) {
    Element& ring = Shape1(s);
    if (ring.BorderWidth == kClosedRing && ring.BorderColor == color::Black) {
      ring.Visible = false;
      Label11(s).Visible = false;
    }
  }
}

int form5d2::lineVraskMovesLeft() const {
  int taken = 0;
  for (int slot = 1; slot <= kLines; ++slot) taken += lnown.at(slot) > 0 ? 1 : 0;
  return kLines - taken;
}

// --- the end of a round ------------------------------------------------------------

// Three rows in the round list and "GAME OVER", once; New starts the next.
// The keypad closes with the round and opens with the next if it is on.
void form5d2::endOfRound() {
  if (overflag == 1) return;
  overflag = 1;
  if (!lineGame()) sqtaken = {};
  flow_->endGame();
}

}  // namespace vrask
