#include "toolkit/shared_values.h"

#include <stdexcept>

namespace vrask {

void SharedValues::define(const std::string& name, Value initial) {
  values_[name] = initial;
  initial_[name] = std::move(initial);
}

int SharedValues::number(const std::string& name) const {
  const Value& v = get(name);
  if (const double* d = std::get_if<double>(&v)) return static_cast<int>(*d);
  throw std::out_of_range("shared value " + name + " is not a number");
}

std::string SharedValues::text(const std::string& name) const {
  return toText(get(name));
}

void SharedValues::set(const std::string& name, Value value) {
  values_.at(name) = std::move(value);
}

}  // namespace vrask
