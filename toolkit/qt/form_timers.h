// A real timer for each timer record of a form, following its Interval and
// Enabled after every event.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QTimer>

namespace vrask {
struct Element;
class Form;
}  // namespace vrask

namespace vrask::qt {

class FormTimers {
 public:
  using Tick = std::function<void(Element& timer)>;

  FormTimers(QObject& owner, Form& form, Tick tick);

  void sync();
  // The form is going: every timer stops for good.
  void detach();

  // Timers never fire faster than this: the animations are paced for a
  // clock of about this grain, and a faster one would only burn the
  // processor. The sudden-death clock's 10 ms is kept.
  static constexpr int kShortestInterval = 10;

 private:
  struct Timer {
    Element* element;
    QTimer* timer;
    bool ticking = false;  // its handler is running
  };

  void fire(Timer& t);

  Tick tick_;
  bool detached_ = false;
  std::vector<std::unique_ptr<Timer>> timers_;
};

}  // namespace vrask::qt
