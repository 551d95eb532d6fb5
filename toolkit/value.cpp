#include "toolkit/value.h"

#include <cmath>
#include <cstdio>

namespace vrask {

std::string formatNumber(double v) {
  if (std::isfinite(v) && std::floor(v) == v && std::fabs(v) < 1e15) {
    return std::to_string(static_cast<long long>(v));
  }
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.9g", v);
  return buf;
}

std::string jsonQuote(const std::string& s) {
  std::string out = "\"";
  for (unsigned char c : s) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out += buf;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  return out + "\"";
}

std::string toJson(const Value& v) {
  if (const bool* b = std::get_if<bool>(&v)) return *b ? "true" : "false";
  if (const double* d = std::get_if<double>(&v)) return formatNumber(*d);
  return jsonQuote(std::get<std::string>(v));
}

std::string toText(const Value& v) {
  if (const std::string* s = std::get_if<std::string>(&v)) return *s;
  return toJson(v);
}

}  // namespace vrask
