// The host of the real window: message boxes, waits that run the event loop,
// repaints, the help page, and the end of the program.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>

#include "toolkit/host.h"

class QEventLoop;
class QString;
class QMessageBox;

namespace vrask::qt {

class FormWindows;

class QtHost : public Host {
 public:
  // The wait scale comes from the environment variable VRASK_WAIT_SCALE
  // (a factor for every wait; 0 for none), 1 when it is not set.
  QtHost();

  // The windows to repaint and to hang message boxes on.
  void attach(FormWindows* windows) { windows_ = windows; }
  // Called when the program ends, after its waits and message boxes were
  // told to return. By default the application quits, which happens once
  // the running handler is back in the event loop.
  void onEnd(std::function<void()> quit) { quit_ = std::move(quit); }
  // The title of a message box that has none of its own.
  void setMessageTitle(std::string title) { messageTitle_ = std::move(title); }
  void setWaitScale(double scale) { waitScale_ = scale; }

  void msgbox(const std::string& text, const std::string& title) override;
  void wait(double seconds, bool pump) override;
  void refresh(Form& form) override;
  // False when there is no such file. A file that is there goes to the
  // desktop's opener; when no browser can show it, the player is told where
  // the file is, and the game goes on.
  bool openDocument(const std::string& path) override;
  void programEnded() override;

  bool ended() const { return ended_; }

  // The factor in VRASK_WAIT_SCALE, or 1 when it is unset or not a number
  // of zero or more.
  static double waitScaleFromEnvironment();

 private:
  void cannotShow(const QString& page);

  FormWindows* windows_ = nullptr;
  std::function<void()> quit_;
  std::string messageTitle_;
  double waitScale_ = 1;
  bool ended_ = false;
  std::vector<QEventLoop*> waits_;
  std::vector<QMessageBox*> messages_;
  // Holds the openers still running: they go with the host, and their answer
  // never reaches a host that has gone.
  QObject openers_;
};

}  // namespace vrask::qt
