// The keypad for moves read out over a phone or a chat: a panel `Picture1`
// with the digit buttons, "clear", "enter" and "<<<", the text box `Text1`, a
// button that opens the panel, and the menu entry `shwkey` that switches it.
#pragma once

#include <functional>
#include <string>

#include "frame/helpers.h"

namespace vrask {

struct Element;
class Form;
class GridSwitch;

struct KeypadConfig {
  std::string parentMenu = "ks";  // where the entry `shwkey` stands
  std::string enterButton = "Command6";
  std::string openerButton = "Command3";
  std::string closeButton = "Command2";  // "<<<", where the board has no other use for the name
  Place panel;                           // `Picture1`: 1815 x 2985 twips
  Place opener;                          // the opener button: 1215 x 375 twips
};

class Keypad {
 public:
  // The board's "enter": reads `text()` and plays it (the board decides what
  // a typed number means and when `Text1` is emptied).
  using Enter = std::function<void()>;

  // Adds the panel `Picture1` (hidden) holding `Text1`, `Command10(0..9)`,
  // `Command20` "clear", the enter button "enter" and `Command2` "<<<"; the
  // opener button (shown); the entry `shwkey` under the parent menu
  // (unticked). Registers their Click handlers, `Text1_GotFocus` (the enter
  // button becomes the default) and `Text1_KeyDown` (Enter presses enter).
  // `grid` is the board's grid switch, which the entry turns on and off.
  Keypad(Form& form, GridSwitch& grid, Enter enter, const KeypadConfig& config = {});

  // The opener's click, also "2 Players": panel shown, opener hidden, tick
  // on, focus to `Text1`.
  void open();
  // `Command2` "<<<", also choosing the computer: panel hidden, opener shown,
  // tick off.
  void close();
  // `shwkey_Click`: off (with the grid, if it was on) when ticked; else on,
  // and the grid on with it if it was off.
  void toggleFromMenu();
  // Focus to `Text1`, which makes the enter button the default.
  void focusText();
  // A row chosen in a list of line numbers (a hint list) goes into `Text1`,
  // the keypad switched on first as its menu entry would. False, and nothing
  // changes, when no row of `list` is chosen.
  bool takeListRow(const Element& list);

  // True while `shwkey` is ticked.
  bool on() const;
  Element& panel() { return *panel_; }
  Element& text() { return *text_; }
  Element& enterButton() { return *enter_; }
  Element& entry() { return *entry_; }

 private:
  void addPanel(const KeypadConfig& config);
  void showPanel(bool on);

  Form& form_;
  GridSwitch& grid_;
  Enter onEnter_;
  Element* panel_ = nullptr;
  Element* text_ = nullptr;
  Element* enter_ = nullptr;
  Element* opener_ = nullptr;
  Element* entry_ = nullptr;
};

}  // namespace vrask
