// The host without a screen: waits advance a virtual clock instead of
// sleeping, message boxes are recorded and answered OK at once.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/host.h"

namespace vrask {

class HeadlessHost : public Host {
 public:
  struct Message {
    std::string text;
    std::string title;
  };

  void msgbox(const std::string& text, const std::string& title) override;
  void wait(double seconds, bool pump) override;
  void refresh(Form&) override {}  // nothing is painted
  bool openDocument(const std::string& path) override;
  void programEnded() override { ended_ = true; }

  // Called inside every wait, before the clock moves, with whether the wait
  // lets events through.
  void setWaitHook(std::function<void(bool pumping)> hook) { waitHook_ = std::move(hook); }

  double clock() const { return clock_; }
  const std::vector<Message>& messages() const { return messages_; }
  const std::vector<std::string>& documentsOpened() const { return documents_; }
  bool ended() const { return ended_; }

 private:
  double clock_ = 0;
  bool ended_ = false;
  std::vector<Message> messages_;
  std::vector<std::string> documents_;
  std::function<void(bool)> waitHook_;
};

}  // namespace vrask
