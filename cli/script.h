// Reading one line of a script: its words, quoted strings, numbers and names.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vrask::cli {

// A mistake in the script. The run stops with "ERROR line N: <reason>".
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Token {
  std::string text;
  bool quoted = false;  // a double-quoted string, its escapes already read
};

struct ScriptLine {
  std::vector<Token> tokens;
  std::string text;  // the line as written, without its comment and outer blanks
};

// Splits a line into words up to its comment (`#` outside a string). A
// double-quoted string is one word, with JSON escapes; an index list in
// brackets stays in its word even with blanks inside ("sqline(1, 2)").
ScriptLine readLine(std::string_view line);

// Whole strings only: "12abc" is a bad number, not 12.
double parseNumber(std::string_view text);
int parseInteger(std::string_view text);

// A name with its indexes: "ln1(5)", "sqline(1,2)", "Label33".
struct Reference {
  std::string name;
  std::vector<int> indexes;

  // The name as a script writes it back: "ln1(5)".
  std::string written() const;
};
Reference parseReference(std::string_view text);

}  // namespace vrask::cli
