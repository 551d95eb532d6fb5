// The flow of a game that every board shares: the status line and its colour
// (the mover's), the "Your turn" markers, the points in their captions, the
// last move, the menus closed during a game, the flash of scored cells, the
// end of a game into the round list with "GAME" "OVER", the part of New that
// every board does, a typed number turned into the target it names, and the
// computer's pause and its random pick.
//
// The board designs and places its own elements; the flow finds them by the
// names it is given, so each board keeps the names its rules use.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/helpers.h"
#include "frame/play_descriptor.h"

namespace vrask {

struct Element;
class ElementArray;
class Form;
class Keypad;
class RoundList;

enum class Side { Blue, Red };

struct TurnFlowNames {
  std::string status = "Label33";  // its caption is the status, its colour the mover's
  Choice bluePoints{"Label5", 0};
  Choice redPoints{"Label6", std::nullopt};
  // "Your turn" over the side to move; an empty name for a board without.
  Choice blueTurn{"Label4", 1};
  Choice redTurn{"Label4", 0};
  std::string lastMove = "Label18";
  std::string lastMoveCaption = "Last move: ";
  std::string gameOver = "Label15";    // the "GAME" "OVER" labels, shown at the end
  std::string newButton = "Command1";  // the default button once a game is over
  // The menus that close with the first move and open again with New.
  std::vector<std::string> gameMenus;
};

class TurnFlow {
 public:
  // The elements named must exist on `form` already.
  TurnFlow(Form& form, RoundList& rounds, Keypad& keypad, const TurnFlowNames& names = {});

  // --- the status line ----------------------------------------------------
  void say(const std::string& caption, int colour);
  const std::string& status() const;
  int moverColour() const;
  // "Your turn" over `next` alone.
  void showTurn(Side next);
  // A line drawn in a line game by the side `redNext` names (Red at 1): the
  // flag turns over to the other side, whose "Your turn" shows. The side that
  // draws is returned.
  Side passLineTurn(int& redNext);

  // --- points ---------------------------------------------------------------
  void addPoints(Side side, int points);
  void zeroScores();
  // The number at the head of the caption.
  int points(Side side) const;

  // --- the last move ----------------------------------------------------------
  void showLastMove(int n);
  void clearLastMove();

  void setGameMenusEnabled(bool on);

  // Each line of a scored cell shows in yellow for `hold` seconds (the
  // computer's pause unless the board says otherwise), then its own colour
  // again, then `gap` seconds before the next.
  void flash(ElementArray& drawn, const std::vector<int>& lines, double gap,
             double hold = kComputerPause);

  // The end of a game: its row, the subtotal and a blank row in the round
  // list, "GAME" "OVER" shown, New the default button with the focus, the
  // keypad's panel closed.
  void endGame();
  // The part of New that every board does: "GAME" "OVER" hidden, the last
  // move cleared, the keypad emptied and open again if it is switched on,
  // with the focus in its box, and its enter the default button.
  void startNewGame();

  // The number typed on the keypad, which empties its box: the target of
  // `targets` it names, when it is whole, in the array's range and shows;
  // else nothing, without a word.
  std::optional<int> typedTarget(const ElementArray& targets);
  // The whole number typed on the keypad, which empties its box; nothing,
  // without a word, when it is not one.
  std::optional<int> typedNumber();

  // The computer's move shows for a moment (`seconds`, where a board's
  // computer takes longer); clicks that come in the pause reach the
  // handlers, which the board's busy flag keeps out.
  void computerPause(double seconds = kComputerPause);
  // Int(count * Rnd + 1): one of `candidates`, drawn with the program's
  // random numbers; 0 when the draw falls outside them (an empty list still
  // takes its random number).
  int pickFrom(const std::vector<int>& candidates);

 private:
  Element& element(const Choice& choice);
  Element& score(Side side) const { return side == Side::Blue ? *bluePoints_ : *redPoints_; }

  Form& form_;
  RoundList& rounds_;
  Keypad& keypad_;
  Element* status_;
  Element* bluePoints_;
  Element* redPoints_;
  Element* blueTurn_ = nullptr;
  Element* redTurn_ = nullptr;
  Element* lastMove_;
  std::string lastMoveCaption_;
  ElementArray* gameOver_ = nullptr;
  Element* newButton_;
  std::vector<Element*> gameMenus_;
};

}  // namespace vrask
