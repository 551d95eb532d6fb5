#include "frame/sudden_death.h"

#include <array>

#include "toolkit/form.h"

namespace vrask {

namespace {

struct Limit {
  const char* caption;
  int ms;  // 0: no limit
};

constexpr std::array<Limit, 12> kLimits{{{"No time limit", 0},
                                         {"2 minutes", 120000},
                                         {"1 1/2 minutes", 90000},
                                         {"1 minute", 60000},
                                         {"30 seconds", 30000},
                                         {"20 seconds", 20000},
                                         {"15 seconds", 15000},
                                         {"10 seconds", 10000},
                                         {"6 seconds", 6000},
                                         {"4 seconds", 4000},
                                         {"3 seconds", 3000},
                                         {"2 seconds", 2000}}};

// The two shortest limits are kept but not offered.
constexpr int kLastShown = 10;
constexpr int kTakenPerTick = 100;

constexpr double kBarWidth = 3000;
constexpr double kBarHeight = 240;

}  // namespace

SuddenDeath::SuddenDeath(Form& form, const SuddenDeathConfig& config) : form_(form) {
  form.addMenu(config.submenu, config.parentMenu, "Sudden Death");
  items_ = &form.addMenuArray("sd", config.submenu, 1, config.entries);
  for (Element& item : *items_) {
    item.Caption = kLimits.at(item.index - 1).caption;
    item.Visible = item.index <= kLastShown;
  }
  form.handleIndexed("sd_Click", [this](int i) { choose(i); });

  timer_ = &form.add(config.timer, Kind::Timer);
  timer_->Interval = config.interval;
  form.handle(config.timer + "_Timer", [this] { tick(); });

  bar_ = &form.add("Picture5", Kind::Picture);
  bar_->Left = config.bar.left;
  bar_->Top = config.bar.top;
  bar_->Width = kBarWidth;
  bar_->Height = kBarHeight;
  bar_->BackColor = color::Green;
  slider_ = &form.add("Picture6", Kind::Picture);
  slider_->container = "Picture5";
  slider_->Width = kBarWidth;
  slider_->Height = kBarHeight;
  slider_->BackColor = color::Red;
  fullBar();
  readout_ = &form.add(config.readout, Kind::Label);
  readout_->Left = config.bar.left;
  readout_->Top = config.bar.top + kBarHeight + 60;
  readout_->Width = 1200;
  readout_->Height = 255;
  readout_->BackStyle = 0;

  form.var(config.limitVar, timelimit_);
  form.var(config.leftVar, timeleft_);
}

void SuddenDeath::choose(int i) {
  if (!items_->contains(i)) return;
  for (Element& item : *items_) item.Checked = false;
  (*items_)[i].Checked = true;
  if (kLimits.at(i - 1).ms != 0) timelimit_ = kLimits.at(i - 1).ms;
}

bool SuddenDeath::noLimit() const {
  return (*items_)[1].Checked;
}

void SuddenDeath::stop() {
  timer_->Enabled = false;
}

void SuddenDeath::resetTime() {
  timeleft_ = timelimit_;
}

void SuddenDeath::restart() {
  if (noLimit()) return;
  resetTime();
  timer_->Enabled = false;
  timer_->Enabled = true;
}

void SuddenDeath::fullBar() {
  slider_->Left = bar_->Width;
}

void SuddenDeath::tick() {
  timeleft_ -= kTakenPerTick;
  readout_->Caption = std::to_string(timeleft_);
  slider_->Left = bar_->Width * timeleft_ / timelimit_;
  if (timeleft_ < 0) {
    form_.MsgBox("You lose.");
    form_.End();
  }
}

}  // namespace vrask
