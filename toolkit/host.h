// What a form needs of the platform. Forms never sleep, read a clock or touch
// a window themselves: they ask the host. Two hosts exist, the window and the
// headless one (script driver, tests, benchmarks).
#pragma once

#include <string>

#include "toolkit/random.h"

namespace vrask {

class Form;

class Host {
 public:
  virtual ~Host() = default;

  // A message box with an OK button; returns when it is answered.
  virtual void msgbox(const std::string& text, const std::string& title) = 0;

  // Pause for `seconds`. With `pump`, clicks and timer ticks are delivered
  // meanwhile (the forms guard against them with their busy flags); without,
  // the window repaints but nothing reaches the forms.
  virtual void wait(double seconds, bool pump) = 0;

  // Show the form's elements as they stand now.
  virtual void refresh(Form& form) = 0;

  // Open a document with the system's default program; false if that failed.
  virtual bool openDocument(const std::string& path) = 0;

  // The program has ended: no more events reach any form.
  virtual void programEnded() = 0;

  // Rnd: the next value of the run's one generator.
  double rnd() { return random_.next(); }
  RandomGenerator& random() { return random_; }

 private:
  RandomGenerator random_;
};

}  // namespace vrask
