// A value read off the forms for the driver and the dumps: a property, a
// variable, a shared value.
#pragma once

#include <string>
#include <variant>

namespace vrask {

using Value = std::variant<bool, double, std::string>;

inline Value num(double v) {
  return Value{v};
}

// Numbers print as integers when they are whole ("16711680", not "1.67e+07").
std::string formatNumber(double v);
// JSON text of a value (strings quoted with JSON escapes).
std::string toJson(const Value& v);
std::string jsonQuote(const std::string& s);
// The text of a value as a person reads it (strings bare).
std::string toText(const Value& v);

}  // namespace vrask
