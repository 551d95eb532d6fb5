// The values that outlive a form: named numbers and texts that every form of
// the run sees. The program keeps them for the run; which names exist, and
// what they start as, is told by whoever builds the program (the launcher).
#pragma once

#include <map>
#include <string>

#include "toolkit/value.h"

namespace vrask {

class SharedValues {
 public:
  // Makes `name` known, with its value at the start of the run.
  void define(const std::string& name, Value initial);
  bool has(const std::string& name) const { return values_.count(name) != 0; }

  // Reading or writing a name that was never defined is a programming error
  // (std::out_of_range).
  const Value& get(const std::string& name) const { return values_.at(name); }
  int number(const std::string& name) const;
  std::string text(const std::string& name) const;
  void set(const std::string& name, Value value);

  // Every value back to the one it was defined with, as at the start of a run.
  void restart() { values_ = initial_; }

 private:
  std::map<std::string, Value> values_;
  std::map<std::string, Value> initial_;
};

}  // namespace vrask
