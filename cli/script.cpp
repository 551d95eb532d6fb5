#include "cli/script.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace vrask::cli {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

void appendUtf8(std::string& out, std::uint32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// The four hex digits of a \u escape at `pos`.
std::uint32_t readHex4(std::string_view line, size_t pos) {
  std::uint32_t code = 0;
  if (pos + 4 > line.size()) throw ScriptError("bad string: \\u needs four hex digits");
  auto [end, ec] = std::from_chars(line.data() + pos, line.data() + pos + 4, code, 16);
  if (ec != std::errc() || end != line.data() + pos + 4) {
    throw ScriptError("bad string: \\u needs four hex digits");
  }
  return code;
}

// Reads the escape after a backslash at `pos` (pointing at the character
// after it) into `out`; returns the position after the escape.
size_t readEscape(std::string_view line, size_t pos, std::string& out) {
  if (pos >= line.size()) throw ScriptError("bad string: no closing quote");
  char c = line[pos];
  switch (c) {
    case '"':
    case '\\':
    case '/':
      out += c;
      return pos + 1;
    case 'b':
      out += '\b';
      return pos + 1;
    case 'f':
      out += '\f';
      return pos + 1;
    case 'n':
      out += '\n';
      return pos + 1;
    case 'r':
      out += '\r';
      return pos + 1;
    case 't':
      out += '\t';
      return pos + 1;
    case 'u':
      break;
    default:
      throw ScriptError(std::string("bad string: unknown escape \\") + c);
  }
  std::uint32_t code = readHex4(line, pos + 1);
  pos += 5;
  bool highSurrogate = code >= 0xD800 && code < 0xDC00;
  if (highSurrogate && line.substr(pos, 2) == "\\u") {
    std::uint32_t low = readHex4(line, pos + 2);
    if (low >= 0xDC00 && low < 0xE000) {
      code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
      pos += 6;
    }
  }
  appendUtf8(out, code);
  return pos;
}

// A quoted string starting at the quote at `pos`; returns the position after
// the closing quote.
size_t readString(std::string_view line, size_t pos, std::string& out) {
  ++pos;
  while (pos < line.size()) {
    char c = line[pos];
    if (c == '"') return pos + 1;
    if (c == '\\') {
      pos = readEscape(line, pos + 1, out);
    } else {
      out += c;
      ++pos;
    }
  }
  throw ScriptError("bad string: no closing quote");
}

// A bare word starting at `pos`; blanks inside brackets belong to it.
size_t readWord(std::string_view line, size_t pos, std::string& out) {
  int depth = 0;
  while (pos < line.size()) {
    char c = line[pos];
    if (c == '#' || (depth == 0 && (isBlank(c) || c == '"'))) break;
    if (c == '(') ++depth;
    if (c == ')' && depth > 0) --depth;
    if (!isBlank(c)) out += c;
    ++pos;
  }
  return pos;
}

}  // namespace

ScriptLine readLine(std::string_view line) {
  ScriptLine result;
  size_t pos = 0;
  size_t end = 0;  // after the last word, to give back the text without the comment
  while (pos < line.size()) {
    if (isBlank(line[pos])) {
      ++pos;
      continue;
    }
    if (line[pos] == '#') break;
    Token token;
    if (line[pos] == '"') {
      token.quoted = true;
      pos = readString(line, pos, token.text);
    } else {
      pos = readWord(line, pos, token.text);
    }
    result.tokens.push_back(std::move(token));
    end = pos;
  }
  size_t begin = 0;
  while (begin < end && isBlank(line[begin])) ++begin;
  result.text = std::string(line.substr(begin, end - begin));
  return result;
}

double parseNumber(std::string_view text) {
  double value = 0;
  const char* first = text.data();
  const char* last = first + text.size();
  if (!text.empty() && text.front() == '+') ++first;
  auto [end, ec] = std::from_chars(first, last, value);
  if (text.empty() || ec != std::errc() || end != last || !std::isfinite(value)) {
    throw ScriptError("bad number: " + std::string(text));
  }
  return value;
}

int parseInteger(std::string_view text) {
  int value = 0;
  const char* last = text.data() + text.size();
  auto [end, ec] = std::from_chars(text.data(), last, value);
  if (text.empty() || ec != std::errc() || end != last) {
    throw ScriptError("bad number: " + std::string(text) + " is not a whole number");
  }
  return value;
}

std::string Reference::written() const {
  if (indexes.empty()) return name;
  std::string out = name + "(";
  for (size_t i = 0; i < indexes.size(); ++i) {
    if (i > 0) out += ",";
    out += std::to_string(indexes[i]);
  }
  return out + ")";
}

Reference parseReference(std::string_view text) {
  Reference ref;
  size_t open = text.find('(');
  ref.name = std::string(text.substr(0, open));
  bool nameOk = !ref.name.empty();
  for (char c : ref.name) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0 && c != '_') nameOk = false;
  }
  if (!nameOk) throw ScriptError("bad name: " + std::string(text));
  if (open == std::string_view::npos) return ref;
  if (text.back() != ')') throw ScriptError("bad name: " + std::string(text));
  std::string_view inside = text.substr(open + 1, text.size() - open - 2);
  while (true) {
    size_t comma = inside.find(',');
    ref.indexes.push_back(parseInteger(inside.substr(0, comma)));
    if (comma == std::string_view::npos) break;
    inside.remove_prefix(comma + 1);
  }
  return ref;
}

}  // namespace vrask::cli
