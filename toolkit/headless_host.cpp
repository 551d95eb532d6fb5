#include "toolkit/headless_host.h"

namespace vrask {

void HeadlessHost::msgbox(const std::string& text, const std::string& title) {
  messages_.push_back({text, title});
}

void HeadlessHost::wait(double seconds, bool pump) {
  if (waitHook_) waitHook_(pump);
  clock_ += seconds;
}

bool HeadlessHost::openDocument(const std::string& path) {
  documents_.push_back(path);
  return true;
}

}  // namespace vrask
