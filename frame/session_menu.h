// The small menu entries every board carries: help, about, exit and the two
// online entries. Each call adds one entry (or two) under a menu of the form
// and registers its NAME_Click handler.
#pragma once

#include <string>

namespace vrask {

class ElementArray;
class Form;

// The help page, looked for in the current directory.
inline constexpr const char* kHelpFile = "vrask zorvex help.htm";

// Help (`rh`, `rulen`, ...): opens the help page with the system's default
// program, or says it was not found (message "Vrask zorvex help.htm was not
// found in program directory.", title "No help"). F1 on every board.
void addHelpEntry(Form& form, const std::string& name, const std::string& parentMenu,
                  const std::string& caption = "Rules and Help");
// What the help entry does, for a board that opens help from elsewhere too.
void openHelp(Form& form);

// About (`abt`, `abtt`): shows the form `AboutBox` over this one.
void addAboutEntry(Form& form, const std::string& name, const std::string& parentMenu,
                   const std::string& caption = "About");

// Exit (`ex`): the program ends at once, no question asked. Ctrl+Q on every
// board.
void addExitEntry(Form& form, const std::string& parentMenu, const std::string& caption = "Exit");

// The players `ip(0..3)` under `parentMenu`: "1 player verus the computer"
// (ticked) and "2 Players"; "3 Players" and "2 Players versus the computer"
// are there but not shown.
ElementArray& addPlayerEntries(Form& form, const std::string& parentMenu);

// The worlds `ver(1)` "Flatland" (ticked) and `ver(2)` "Bubbleland" under
// `parentMenu`, and a separator `ksep` after them.
ElementArray& addWorldEntries(Form& form, const std::string& parentMenu);

// The menu `hlp` "Help" with help `rh` and about `abt`, then Exit on the menu
// bar. Help and About stay open during a game, and so does Exit.
void addHelpAboutExit(Form& form);

// `setserv` and `setclient`: online play is not in the program; each shows a
// notice that says so and points to the keypad.
void addOnlineEntries(Form& form, const std::string& parentMenu);

}  // namespace vrask
