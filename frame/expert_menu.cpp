#include "frame/expert_menu.h"

#include <chrono>
#include <cstdlib>
#include <future>
#include <string>

#include "frame/helpers.h"
#include "toolkit/form.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {

namespace {

constexpr int kDefaultMillis = 1000;
// How often the window looks whether the worker has finished.
constexpr double kLookEvery = 0.02;

}  // namespace

ExpertMenu::ExpertMenu(Form& form, const std::string& parentMenu, std::function<void()> hint)
    : form_(form), entry_(&form.addMenu("expc", parentMenu, "Expert computer")) {
  form.addMenu("hint", "", "Hint").Shortcut = "F2";
  form.handle("expc_Click", [this] { entry_->Checked = !entry_->Checked; });
  form.handle("hint_Click", std::move(hint));
}

bool ExpertMenu::on() const {
  return entry_->Checked;
}

int ExpertMenu::decide(const std::function<int()>& think, bool letEventsThrough) {
  if (dynamic_cast<HeadlessHost*>(&form_.host()) != nullptr) return think();
  std::future<int> answer = std::async(std::launch::async, think);
  while (answer.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready) {
    if (letEventsThrough) {
      form_.waitWithEvents(kLookEvery);
    } else {
      form_.wait(kLookEvery);
    }
  }
  return answer.get();
}

void ExpertMenu::showMove(const std::vector<Element*>& marks, int width) {
  std::vector<Element> before;
  for (Element* mark : marks) {
    before.push_back(*mark);
    mark->BorderWidth = width;
    mark->BorderColor = color::Yellow;
  }
  form_.Refresh();
  form_.wait(kComputerPause);
  for (size_t i = 0; i < marks.size(); ++i) {
    marks[i]->BorderWidth = before[i].BorderWidth;
    marks[i]->BorderColor = before[i].BorderColor;
  }
}

int expertMillis() {
  const char* setting = std::getenv("VRASK_EXPERT_MS");
  if (setting == nullptr) return kDefaultMillis;
  char* end = nullptr;
  long millis = std::strtol(setting, &end, 10);
  if (end == setting || *end != '\0' || millis <= 0 || millis > 600000) return kDefaultMillis;
  return static_cast<int>(millis);
}

}  // namespace vrask
