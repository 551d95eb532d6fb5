// The menu "Other Games" (`opts`) that every board carries: one entry for each
// board of the suite, in three arrays (2D, 3D, 4D). A click drops the running
// game and opens the chosen board.
#pragma once

#include <string>

namespace vrask {

struct Element;
class Form;

// The names of the three entry arrays on a form. They differ from form to
// form: on the square board they are `cbm`, `zcbm` and `fcbm`.
struct OtherGamesNames {
  std::string twoD = "cbm";
  std::string threeD = "zcbm";
  std::string fourD = "fcbm";
};

class OtherGames {
 public:
  // Adds the menu `opts` "Other Games" to the menu bar of `form` (so construct
  // it where the menu stands among the form's menus) with the entries 2D at
  // indexes 2..3, 3D at 7..11 and 4D at 12..13, and registers a NAME_Click
  // handler for each array. The entry of the board that is open carries the
  // suffix "  (THIS VERSION!)" (of the three walls, the one of the wall level
  // shared at load). An entry whose board the program does not know is
  // disabled, with the tooltip "Not yet available".
  // A click unloads this form, writes `wall_level` for the wall entries (the
  // other entries write no shared value) and opens the target.
  OtherGames(Form& form, const OtherGamesNames& names = {});

  // `opts`: the board disables it at the first move and enables it at New.
  Element& menu() { return *menu_; }

 private:
  Element* menu_;
};

}  // namespace vrask
