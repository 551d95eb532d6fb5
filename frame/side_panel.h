// The side panel a flat board carries on the right of its board: the game's
// name, the status line, both players' points with the "Your turn" markers,
// the moves left and the last move, the size buttons under their heading,
// New, "GAME" "OVER" twice and the heading of the time bar; and where the
// round list, the keypad, its opener and the time bar stand beside them.
#pragma once

#include <functional>
#include <string>

#include "frame/helpers.h"

namespace vrask {

struct Element;
class ElementArray;
class Form;

struct SidePanelConfig {
  double left = 0;  // where the panel begins, in twips from the form's left edge
  std::string movesLeft = "Label12";
  std::string lastMove = "Label18";
  std::string lastMoveCaption = "Last move: ";
  // One button a size, indexed by the board's own sizes.
  std::string sizeButtons = "Label13";
  int firstSize = 1;
  int lastSize = 1;
  std::function<std::string(int)> sizeCaption;
};

class SidePanel {
 public:
  // The back colour of the chosen size's button.
  static constexpr int kSizeChosen = 16777088;

  // Adds the panel `Picture2` behind both columns, from `left` to the form's
  // right edge and as tall as the form: make it before the board so the
  // board's elements are painted over nothing of it.
  SidePanel(Form& form, const SidePanelConfig& config);

  // Adds the first column's elements, in paint order: `Label36` (the game),
  // `Label33` (the status, Blue), the moves left, the last move, `Label3(0..1)`
  // "Blue" "Red", the points `Label5(0)` and `Label6`, the markers
  // `Label4(1)` (Blue's, shown) and `Label4(0)` (Red's, hidden), `Label14`
  // "Board size", the size buttons, `Command1` "New game", `Label15(0..3)`
  // "GAME" "OVER" (hidden) and `Label16` "Time for a move".
  void addColumn();

  // The size buttons and their heading shown or hidden together.
  void showSizeButtons(bool on);
  // The chosen size's button marked, the others plain.
  void markSize(int size);

  Place roundList() const { return {config_.left + 3750, 240}; }
  Place keypad() const { return {config_.left + 4470, 3480}; }
  Place keypadOpener() const { return {columnLeft() + 1800, 4530}; }
  Place timeBar() const { return {columnLeft(), 6930}; }
  // Where a working element that shows nothing stands.
  Rect hidden() const { return {columnLeft(), 9000, 1200, 255}; }

  Element& gameName() { return *gameName_; }
  Element& status() { return *status_; }
  Element& movesLeft() { return *movesLeft_; }

 private:
  double columnLeft() const { return config_.left + 180; }
  void addStatus();
  void addScores();
  void addSizesAndEnd();

  Form& form_;
  SidePanelConfig config_;
  Element* gameName_ = nullptr;
  Element* status_ = nullptr;
  Element* movesLeft_ = nullptr;
  Element* sizeHeading_ = nullptr;
  ElementArray* sizeButtons_ = nullptr;
};

}  // namespace vrask
