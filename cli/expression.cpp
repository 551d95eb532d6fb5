#include "cli/expression.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "cli/lookup.h"

namespace vrask::cli {

namespace {

Value readShared(const SharedValues& shared, const std::string& name) {
  if (!shared.has(name)) throw ScriptError("unknown shared value " + name);
  return shared.get(name);
}

Value lastMessage(const HeadlessHost& host, bool title) {
  if (host.messages().empty()) return Value{std::string()};
  const HeadlessHost::Message& last = host.messages().back();
  return Value{title ? last.title : last.text};
}

// `Form.PROPERTY`: the current form's own window.
Value readFormProperty(const Form& form, const std::string& property) {
  if (property == "Caption") return Value{form.Caption};
  if (property == "BackColor") return num(form.BackColor);
  throw ScriptError("unknown property " + property + " of the form (Caption or BackColor)");
}

std::optional<double> asNumber(const Value& v) {
  if (const double* d = std::get_if<double>(&v)) return *d;
  if (const std::string* s = std::get_if<std::string>(&v)) {
    try {
      return parseNumber(*s);
    } catch (const ScriptError&) {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

// Waits add up in binary fractions: 0.1 + 0.2 is to equal 0.3.
bool sameNumber(double a, double b) {
  return std::fabs(a - b) <= 1e-9 * std::max({1.0, std::fabs(a), std::fabs(b)});
}

bool isOrdering(const std::string& op) {
  return op == "<" || op == "<=" || op == ">" || op == ">=";
}

bool compareNumbers(double a, const std::string& op, double b) {
  bool same = sameNumber(a, b);
  if (op == "==") return same;
  if (op == "!=") return !same;
  if (op == "<") return a < b && !same;
  if (op == "<=") return a < b || same;
  if (op == ">") return a > b && !same;
  return a > b || same;
}

}  // namespace

Value evaluate(Program& program, const HeadlessHost& host, const std::string& lhs) {
  if (lhs == "form") {
    Form* form = program.current();
    return Value{form == nullptr ? std::string() : form->name()};
  }
  if (lhs == "ended") return Value{program.ended()};
  if (lhs == "clock") return num(host.clock());
  if (lhs == "messages") return num(static_cast<double>(host.messages().size()));
  if (lhs == "message") return lastMessage(host, false);
  if (lhs == "messagetitle") return lastMessage(host, true);
  if (lhs.rfind("shared.", 0) == 0) return readShared(program.shared(), lhs.substr(7));
  if (lhs.rfind("var.", 0) == 0) {
    return readVariable(currentForm(program), parseReference(lhs.substr(4)));
  }
  if (lhs == "focus") return Value{currentForm(program).focused()};
  if (lhs.rfind("Form.", 0) == 0) return readFormProperty(currentForm(program), lhs.substr(5));
  size_t dot = lhs.find('.');
  if (dot == std::string::npos) throw ScriptError("unknown expression " + lhs);
  Element& element = findElement(currentForm(program), parseReference(lhs.substr(0, dot)));
  return readProperty(element, lhs.substr(dot + 1));
}

Value parseLiteral(const Token& token) {
  if (token.quoted) return Value{token.text};
  if (token.text == "true") return Value{true};
  if (token.text == "false") return Value{false};
  return num(parseNumber(token.text));
}

void checkOperator(const std::string& op, const Value& expected) {
  bool isText = std::holds_alternative<std::string>(expected);
  if (op == "contains") {
    if (!isText) throw ScriptError("contains needs a quoted string");
    return;
  }
  if (isOrdering(op)) {
    if (!std::holds_alternative<double>(expected)) throw ScriptError(op + " needs a number");
    return;
  }
  if (op != "==" && op != "!=") throw ScriptError("unknown operator " + op);
}

bool compare(const Value& actual, const std::string& op, const Value& expected) {
  if (op == "contains") {
    return toText(actual).find(std::get<std::string>(expected)) != std::string::npos;
  }
  if (const double* b = std::get_if<double>(&expected)) {
    std::optional<double> a = asNumber(actual);
    if (!a) return op == "!=";
    return compareNumbers(*a, op, *b);
  }
  bool equal = actual == expected;
  return op == "==" ? equal : !equal;
}

}  // namespace vrask::cli
