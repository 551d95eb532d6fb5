#include "frame/board_frame.h"

#include "frame/session_menu.h"
#include "toolkit/form.h"

namespace vrask {

void BoardFrame::addOptionsMenu(Form& form, GridSwitch::ShowNumbers showNumbers,
                                Keypad::Enter enter, Place keypad) {
  ks = &form.addMenu("ks", "", "Options");
  ip_ = &addPlayerEntries(form, "ks");
  form.addMenu("osep", "ks", "-");
  sd_ = std::make_unique<SuddenDeath>(form, SuddenDeathConfig{.bar = panel_->timeBar()});
  grid_ = std::make_unique<GridSwitch>(form, "ks", std::move(showNumbers));
  keypad_ =
      std::make_unique<Keypad>(form, *grid_, std::move(enter),
                               KeypadConfig{.panel = keypad, .opener = panel_->keypadOpener()});
  addOnlineEntries(form, "ks");
}

void BoardFrame::addRoundsAndFlow(Form& form, const std::string& lastMove) {
  roundList_ = std::make_unique<RoundList>(form, RoundListConfig{.place = panel_->roundList()});
  flow_ = std::make_unique<TurnFlow>(
      form, *roundList_, *keypad_,
      TurnFlowNames{.lastMove = lastMove, .gameMenus = {"opts", "kda", "sks", "ks"}});
}

}  // namespace vrask
