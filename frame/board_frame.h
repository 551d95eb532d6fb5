// The frame's parts a flat board holds: its side panel, the "Options" menu
// with the players, sudden death, the grid and the keypad, "Other Games", the
// round list and the turn flow. A board form derives from this beside Form
// and builds the parts in the order its design paints them.
#pragma once

#include <memory>
#include <string>

#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/side_panel.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

class BoardFrame {
 protected:
  // The menu `ks` "Options" on the menu bar: the players `ip`, a separator,
  // Sudden Death with its bar where the panel has it, the grid switch, the
  // keypad (its panel at `keypad`) and its switch, and the online entries.
  void addOptionsMenu(Form& form, GridSwitch::ShowNumbers showNumbers, Keypad::Enter enter,
                      Place keypad);
  // The round list where the panel has it, and the turn flow over the
  // panel's elements, `lastMove` being the board's label of the last move.
  // The menus `opts`, `kda`, `sks` and `ks` close during a game.
  void addRoundsAndFlow(Form& form, const std::string& lastMove);

  std::unique_ptr<SidePanel> panel_;
  std::unique_ptr<SuddenDeath> sd_;
  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;
  std::unique_ptr<TurnFlow> flow_;
  Element* ks = nullptr;
  ElementArray* ip_ = nullptr;
};

}  // namespace vrask
