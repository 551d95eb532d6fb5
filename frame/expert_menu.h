// The expert computer in a board's menus: the checkable entry "Expert
// computer" in its Options menu (off when the form loads; New leaves it as it
// is), a choice made between games like the number of players; and "Hint"
// (F2) on the menu bar itself, which asks the board to show the move the
// expert would make for the player to move. The game menus close with a
// game's first move; the hint is wanted most during a game, so it stands
// beside them. The board does the thinking and the showing; this holds the
// entries, the time the expert may take, and where its thinking runs.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vrask {

struct Element;
class Form;

class ExpertMenu {
 public:
  // Adds "Expert computer" (`expc`) under `parentMenu` and "Hint" (`hint`)
  // on the menu bar, after the menus added so far, and their handlers; a
  // click on "Hint" or F2 calls `hint`.
  ExpertMenu(Form& form, const std::string& parentMenu, std::function<void()> hint);

  bool on() const;

  // The answer of `think`. In the window it runs on a worker thread while
  // the form pauses, as long as it needs; with `letEventsThrough` clicks
  // reach the handlers meanwhile (the board's busy flag keeps them out),
  // else the window only repaints. Without a window it runs at once, so the
  // clock a script reads does not move.
  int decide(const std::function<int()>& think, bool letEventsThrough);

  // A hint's move, shown for a moment: `marks` (its lines, or a circle's
  // ring) drawn `width` wide in yellow, then as they were. The pause lets
  // nothing in.
  void showMove(const std::vector<Element*>& marks, int width);

 private:
  Form& form_;
  Element* entry_;
};

// How long the expert may think over one move, in milliseconds: the setting
// VRASK_EXPERT_MS when it holds a positive whole number, else a second.
int expertMillis();

}  // namespace vrask
