// The sudden-death clock: a time limit on each move of the human in a
// one-player game. The board decides when the clock runs (only on the human's
// thinking time); this component holds the choice of limit, the clock, the
// time bar and the ending.
#pragma once

#include <string>

#include "frame/helpers.h"

namespace vrask {

struct Element;
class ElementArray;
class Form;

struct SuddenDeathConfig {
  std::string parentMenu = "ks";  // the menu the "Sudden Death" submenu stands in
  std::string submenu = "sdm";    // the submenu's own name
  int entries = 12;               // `sd(1..12)` (11 and 12 not shown) or `sd(1..10)`
  std::string timer = "Timer1";   // the clock's timer
  int interval = 10;              // its interval in ms; each tick takes 100 ms off all the same
  std::string limitVar = "timelimit";
  std::string leftVar = "timeleft";
  std::string readout = "Label11";  // the label that shows the time left
  Place bar;  // the time bar `Picture5` (3000 x 240 twips) with `Label11` below it (1200 x 255)
};

class SuddenDeath {
 public:
  // Adds the submenu with the entries `sd` ("No time limit", "2 minutes", ...),
  // the timer (off), the time bar `Picture5` with `Picture6` sliding inside it,
  // and the label `Label11`; registers `sd_Click` and the timer's handler, and
  // the two variables. `timelimit` is 100000 and no entry is ticked: the board
  // calls `choose(1)` in its load where it wants the tick set.
  SuddenDeath(Form& form, const SuddenDeathConfig& config = {});

  // `sd_Click(i)`: ticks entry i alone and sets the limit of that entry; entry
  // 1, "No time limit", leaves the limit as it was.
  void choose(int i);
  // True when "No time limit" is ticked: the clock is never restarted then.
  bool noLimit() const;

  // The clock off.
  void stop();
  // The time left back to the full limit (the bar is left as it stands).
  void resetTime();
  // Unless "No time limit" is ticked: the time left to the full limit and the
  // clock restarted (off, then on). With no limit, nothing.
  void restart();
  // The bar at full time: `Picture6` pushed right out of `Picture5`.
  void fullBar();

  // One tick of the clock: 100 ms off, `Label11` and the bar follow; below 0
  // the message "You lose." and the program ends.
  void tick();

  int timelimit() const { return timelimit_; }
  int timeleft() const { return timeleft_; }
  Element& timer() { return *timer_; }

 private:
  Form& form_;
  int timelimit_ = 100000;
  int timeleft_ = 100000;
  ElementArray* items_;
  Element* timer_;
  Element* bar_;
  Element* slider_;
  Element* readout_;
};

}  // namespace vrask
