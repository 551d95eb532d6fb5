#include "toolkit/qt/form_timers.h"

#include <algorithm>

#include "toolkit/form.h"

namespace vrask::qt {

FormTimers::FormTimers(QObject& owner, Form& form, Tick tick) : tick_(std::move(tick)) {
  for (ElementArray* array : form.designOrder()) {
    if (array->kind() != Kind::Timer) continue;
    for (Element& e : *array) {
      auto t = std::make_unique<Timer>(Timer{&e, new QTimer(&owner)});
      t->timer->setTimerType(Qt::PreciseTimer);
      QObject::connect(t->timer, &QTimer::timeout, &owner, [this, raw = t.get()] { fire(*raw); });
      timers_.push_back(std::move(t));
    }
  }
  sync();
}

// A timer does not fire again while its last tick is still being handled
// (a tick may wait, or show a message): ticks that fall meanwhile are lost,
// as the ticks of a busy clock are.
void FormTimers::fire(Timer& t) {
  if (detached_ || t.ticking) return;
  t.ticking = true;
  tick_(*t.element);
  t.ticking = false;
}

void FormTimers::sync() {
  if (detached_) return;
  for (const auto& t : timers_) {
    const Element& e = *t->element;
    if (!e.Enabled || e.Interval <= 0) {
      t->timer->stop();
      continue;
    }
    int interval = std::max(e.Interval, kShortestInterval);
    if (!t->timer->isActive() || t->timer->interval() != interval) t->timer->start(interval);
  }
}

void FormTimers::detach() {
  detached_ = true;
  for (const auto& t : timers_) t->timer->stop();
}

}  // namespace vrask::qt
