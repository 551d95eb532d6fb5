// Counting after every move and the end of a game. Ombrel and the Zorvex
// games add what a move completes and keep it; the Vrask games count the
// whole board afresh after every move, so a score can fall.
#include <algorithm>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/look.h"
#include "boards/zorvex/zorvex.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/round_list.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

using namespace cube;

namespace {

constexpr double kSquareFlash = 0.5;
constexpr double kCubeFlash = 1;
constexpr double kVraskEndPause = 4;

const char* sideName(bool red) {
  return red ? "Red" : "Blue";
}

}  // namespace

// --- Ombrel and Zorvex (Lines) ---------------------------------------------------

void zorvex::scoremove() {
  flow_->setGameMenusEnabled(false);
  sd_->stop();
  for (Element& circle : *Label9_) circle.Visible = false;
  keypad_->text().Text.clear();

  std::vector<int> figures = newFigures();
  int n = static_cast<int>(figures.size());
  if (n != 0) {
    bool blueMoved = rednext == 1;
    rednext = blueMoved ? 0 : 1;
    flow_->showTurn(blueMoved ? Side::Blue : Side::Red);
    flow_->addPoints(blueMoved ? Side::Blue : Side::Red, n);
  }
  settleLineTurn(n);
  if (n == 0 && onePlayer()) sd_->restart();

  for (int figure : figures) {
    scoredflags.at(static_cast<size_t>(figure)) = 1;
    std::vector<int> lines;
    if (gamemode == Ombrel) {
      const auto& sides = tables.squarelines.at(static_cast<size_t>(figure));
      lines.assign(sides.begin() + 1, sides.end());
    } else {
      const auto& edges = tables.cubelines.at(static_cast<size_t>(figure));
      lines.assign(edges.begin() + 1, edges.end());
    }
    flashFigure(lines, gamemode == Ombrel ? kSquareFlash : kCubeFlash);
  }

  int m = freeLineCount();
  Label34->Caption = movesLeft(m);
  if (m == 0) {
    gameEnd(0);
  } else if (onePlayer() && rednext == 1 && gamemode == Ombrel) {
    ombrelReply();
  } else {
    handKeypadToMover();
  }
}

// The squares (Ombrel) or cubes (Zorvex (Lines)) that are whole now and were
// not counted before, in numeric order.
std::vector<int> zorvex::newFigures() const {
  std::vector<int> figures;
  if (gamemode == Ombrel) {
    PerSquare painted = paintedSides(squareinks);
    for (int s = 1; s <= kSquares; ++s) {
      if (painted.at(static_cast<size_t>(s)) == 4 && scoredflags.at(static_cast<size_t>(s)) == 0) {
        figures.push_back(s);
      }
    }
    return figures;
  }
  for (int c = 1; c <= kCubes; ++c) {
    const auto& inks = cubeinks.at(static_cast<size_t>(c));
    bool whole = std::all_of(inks.begin() + 1, inks.end(), [](int v) { return v != 0; });
    if (whole && scoredflags.at(static_cast<size_t>(c)) == 0) figures.push_back(c);
  }
  return figures;
}

void zorvex::settleLineTurn(int n) {
  bool redNext = rednext == 1;
  std::string next = sideName(redNext);
  switch (n) {
    case 0:
      flow_->say("No score    " + next + "'s turn.", redNext ? kRedText : color::Blue);
      return;
    case 1:
      Label33->Caption = " Score!      " + next +
                         (gamemode == Ombrel ? std::string("'s turn now.") : " goes again.");
      break;
    case 2:
      Label33->Caption = "  Double score!      Two cool!";
      break;
    case 3:
      Label33->Caption = "  Triple score!      Awesome!";
      break;
    default:
      Label33->Caption = " Quadruple score!   Killer move!";
      break;
  }
  Label33->ForeColor = color::Black;
}

// The figure's lines in yellow for a moment, then back. Clicks wait until
// the flash is over.
void zorvex::flashFigure(const std::vector<int>& boardLines, double seconds) {
  for (size_t i = 0; i < boardLines.size(); ++i) {
    int slot = slotLine(boardLines[i]);
    flashlist.at(i + 1) = slot;
    flashsave.at(i + 1) = LN(slot).BorderColor;
    LN(slot).BorderColor = color::Yellow;
  }
  Refresh();
  wait(seconds);
  for (size_t i = 0; i < boardLines.size(); ++i)
    LN(flashlist.at(i + 1)).BorderColor = flashsave.at(i + 1);
  Refresh();
}

int zorvex::freeLineCount() const {
  return static_cast<int>(freeLines(lineowner).size());
}

// The keypad goes to the side that moves next, in its colour.
void zorvex::handKeypadToMover() {
  keypad_->text().ForeColor = Label33->ForeColor;
  keypad_->focusText();
}

// --- the Vrask circle games ---------------------------------------------------------

void zorvex::recount() {
  int blue = 0;
  int red = 0;
  for (int s = 1; s <= kSquares; ++s) {
    int p = slotSquare(s);
    Shape1(p).BorderColor = color::Black;
    const auto& inks = squareinks.at(static_cast<size_t>(s));
    for (int colour : {color::Red, color::Blue}) {
      if (!std::all_of(inks.begin() + 1, inks.end(), [colour](int v) { return v == colour; })) {
        continue;
      }
      circlestate.at(static_cast<size_t>(s)) = 2;
      (colour == color::Red ? red : blue) += 1;
      Shape1(p).BorderColor = colour;
      Shape1(p).BorderWidth = kPlayedRing;
      Label9(p).Visible = false;
    }
  }
  if (isClassic(gamemode)) {
    for (int s = 1; s <= kSquares; ++s) {
      int p = slotSquare(s);
      if (Shape1(p).BorderWidth == kPlayedRing) continue;
      const auto& lines = tables.squarelines.at(static_cast<size_t>(p));
      bool full = std::all_of(lines.begin() + 1, lines.end(),
                              [this](int slot) { return LN(slot).BorderWidth == kPainted; });
      if (!full) continue;
      circlestate.at(static_cast<size_t>(s)) = 2;
      Shape1(p).BorderColor = kDead;
      Shape1(p).BorderWidth = kPlayedRing;
      Shape1(p).Visible = true;
      Label9(p).Visible = false;
    }
  }
  for (Element& ring : *Shape1_) {
    bool played = ring.BorderWidth == kPlayedRing;
    if (played && ring.BorderColor == color::Black && hidmov->Checked) {
      ring.Visible = false;
      Label9(ring.index).Visible = false;
    }
    if (played && (ring.BorderColor == color::Red || ring.BorderColor == color::Blue)) {
      ring.Visible = true;
    }
  }
  Label9(0).Visible = Label9(30).Visible;
  flow_->zeroScores();
  flow_->addPoints(Side::Blue, blue);
  flow_->addPoints(Side::Red, red);
  Label35->Caption = movesLeft(kSquares - usedSquares());
}

int zorvex::usedSquares() const {
  return static_cast<int>(
      std::count_if(circlestate.begin() + 1, circlestate.end(), [](int v) { return v > 1; }));
}

// After the paints of a move in a Vrask circle game: the count, then the
// Vrask move when one square is left, or the end. True when the game ended.
bool zorvex::afterCircleMove() {
  recount();
  int left = kSquares - usedSquares();
  if (left == 1 && hasVraskMove(gamemode)) {
    outtahere();
    return true;
  }
  if (left == 0) {
    gameEnd(kVraskEndPause);
    return true;
  }
  return false;
}

// --- Zorvex (Squares) --------------------------------------------------------------------

// Every cube whose six squares are claimed scores once, for the side that
// claimed the sixth; the status has already passed the turn, so it tells who
// that was, and a score gives the turn back.
void zorvex::countCubes() {
  bool scored = false;
  for (int c = 1; c <= kCubes; ++c) {
    const auto& faces = cubefaces.at(static_cast<size_t>(c));
    bool whole = std::all_of(faces.begin() + 1, faces.end(), [](int f) { return f == 1; });
    if (!whole || cubescored.at(static_cast<size_t>(c)) != 0) continue;
    const auto& edges = tables.cubelines.at(static_cast<size_t>(c));
    flashFigure(std::vector<int>(edges.begin() + 1, edges.end()), kCubeFlash);
    flow_->addPoints(mover() != color::Blue ? Side::Blue : Side::Red, 1);
    cubescored.at(static_cast<size_t>(c)) = 1;
    scored = true;
  }
  if (!scored) return;
  bool blue = mover() != color::Blue;
  flow_->say(blue ? "Score! Blue goes again" : "Score! Red goes again",
             blue ? color::Blue : color::Red);
  flow_->showTurn(blue ? Side::Blue : Side::Red);
}

// --- the end of a game -----------------------------------------------------------------

// The round list and its totals come up with the result; "GAME OVER" stays
// until New. Against the computer or between two people alike.
void zorvex::gameEnd(double pause) {
  if (pause > 0) {
    Refresh();
    wait(pause);
  }
  sd_->stop();
  Command2_Click();
  flow_->endGame();
  gameover = 1;
}

// --- the cumulative panel ------------------------------------------------------------------

void zorvex::Command2_Click() {
  showCumulativePanel(true);
}

void zorvex::Command5_Click() {
  showCumulativePanel(false);
}

void zorvex::cuscore_Click() {
  showCumulativePanel(!cuscore->Checked);
}

void zorvex::hideCumulativePanel() {
  showCumulativePanel(false);
}

// The rounds with their headers and totals, or the button that brings them.
void zorvex::showCumulativePanel(bool on) {
  cuscore->Checked = on;
  for (Element& label : *Label20_) label.Visible = on;
  for (Element& total : *Label7_) total.Visible = on;
  for (Element* e : {List4, Label14, Command5}) e->Visible = on;
  Command2->Visible = !on;
}

}  // namespace vrask
