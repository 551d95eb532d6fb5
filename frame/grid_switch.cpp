#include "frame/grid_switch.h"

#include "toolkit/form.h"

namespace vrask {

GridSwitch::GridSwitch(Form& form, const std::string& parentMenu, ShowNumbers showNumbers,
                       const std::string& name)
    : entry_(&form.addMenu(name, parentMenu, "Show grid")), showNumbers_(std::move(showNumbers)) {
  form.handle(name + "_Click", [this] { toggle(); });
}

void GridSwitch::toggle() {
  entry_->Checked = !entry_->Checked;
  showNumbers_(entry_->Checked);
}

void GridSwitch::clearTick() {
  entry_->Checked = false;
}

bool GridSwitch::on() const {
  return entry_->Checked;
}

}  // namespace vrask
