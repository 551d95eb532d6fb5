// The grid switch (`shgrid` or `grid`): a ticked menu entry that shows the
// numbers of the lines or circles, which a player reads out for a typed move.
#pragma once

#include <functional>
#include <string>

namespace vrask {

struct Element;
class Form;

class GridSwitch {
 public:
  // What showing the numbers means is the board's: `showNumbers(on)` is
  // called with the new tick after every toggle.
  using ShowNumbers = std::function<void(bool on)>;

  // Adds the entry `name` "Show grid" under `parentMenu` (unticked) and its
  // NAME_Click handler.
  GridSwitch(Form& form, const std::string& parentMenu, ShowNumbers showNumbers,
             const std::string& name = "shgrid");

  // As a click on the entry: the tick toggles, then `showNumbers`.
  void toggle();
  // Only the tick off, the numbers stay as they are (choosing a game mode).
  void clearTick();
  bool on() const;
  Element& entry() { return *entry_; }

 private:
  Element* entry_;
  ShowNumbers showNumbers_;
};

}  // namespace vrask
