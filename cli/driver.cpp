#include "cli/driver.h"

#include <istream>
#include <map>
#include <ostream>

#include "cli/dump.h"
#include "cli/expression.h"
#include "cli/lookup.h"
#include "launcher/suite.h"

namespace vrask::cli {

namespace {

// `text` without its first word `word` and the blanks after it.
std::string afterFirstWord(const std::string& text, const std::string& word) {
  size_t from = text.find_first_not_of(" \t", word.size());
  return from == std::string::npos ? "" : text.substr(from);
}

}  // namespace

// The words of a command line after the command.
class Driver::Args {
 public:
  explicit Args(const ScriptLine& line) : line_(line) {}

  size_t size() const { return line_.tokens.size() - 1; }
  bool has(size_t i) const { return i < size(); }
  const Token& token(size_t i, const std::string& what) const {
    if (!has(i)) throw ScriptError("missing argument: " + what);
    return line_.tokens[i + 1];
  }
  // A bare word: names, numbers, keys.
  const std::string& word(size_t i, const std::string& what) const {
    const Token& t = token(i, what);
    if (t.quoted) throw ScriptError("expected " + what + ", not a quoted string");
    return t.text;
  }
  void atMost(size_t n) const {
    if (size() > n) throw ScriptError("unexpected argument: " + line_.tokens[n + 1].text);
  }
  // The text after the command word, as written.
  std::string rest() const { return afterFirstWord(line_.text, line_.tokens.front().text); }
  const ScriptLine& line() const { return line_; }

 private:
  const ScriptLine& line_;
};

namespace {

const std::map<std::string, int>& keyCodes() {
  static const std::map<std::string, int> codes{
      {"Enter", key::Enter}, {"Left", key::Left}, {"Right", key::Right}};
  return codes;
}

int keyCode(const std::string& name) {
  auto it = keyCodes().find(name);
  if (it != keyCodes().end()) return it->second;
  if (name.size() == 1 && name[0] >= '0' && name[0] <= '9') return key::Digit0 + (name[0] - '0');
  throw ScriptError("unknown key " + name + " (Enter, Left, Right or a digit)");
}

bool isDigitKey(int code) {
  return code >= key::Digit0 && code <= key::Digit0 + 9;
}

// The commands a `during-wait` may hold: what a person can do while the
// program waits, and looking at the screen meanwhile.
bool canBeHeld(const std::string& command) {
  return command == "click" || command == "dblclick" || command == "mousemove" ||
         command == "text" || command == "key" || command == "select" || command == "tick" ||
         command == "expect" || command == "dump";
}

bool looksAtScreen(const std::string& command) {
  return command == "expect" || command == "dump";
}

bool startsLikeNumber(const std::string& word) {
  return !word.empty() && word.find_first_of("0123456789+-") == 0;
}

}  // namespace

Driver::Driver(std::ostream& out, std::ostream& err) : out_(out), err_(err), program_(host_) {
  program_.setListener(&unloadCounter_);
  registerSuite(program_);
}

int Driver::run(std::istream& script) {
  std::string text;
  try {
    while (std::getline(script, text)) {
      ++line_;
      runLine(readLine(text));
    }
    // Held lines at the end of the script meet no wait at all.
    for (const Held& held : held_) {
      line_ = held.number;
      ignored(held.looks ? "the script ended before any wait"
                         : "the script ended before any wait let events through");
    }
  } catch (const ScriptError& e) {
    err_ << "ERROR line " << line_ << ": " << e.what() << '\n';
    return 2;
  } catch (const std::exception& e) {
    err_ << "ERROR line " << line_ << ": the program failed: " << e.what() << '\n';
    return 2;
  }
  return failed_ ? 1 : 0;
}

void Driver::runLine(const ScriptLine& line) {
  if (line.tokens.empty()) return;
  const Token& command = line.tokens.front();
  if (program_.ended() && command.text != "expect" && command.text != "dump") {
    throw ScriptError("the program has ended: only expect and dump may follow");
  }
  if (command.text == "during-wait" && !command.quoted) {
    execute(line);
    return;
  }
  std::vector<Held> held = std::move(held_);
  held_.clear();
  size_t next = 0;
  Waits waits;
  if (!held.empty()) {
    host_.setWaitHook(
        [this, &held, &next, &waits](bool pumping) { atWait(held, next, waits, pumping); });
  }
  try {
    execute(line);
  } catch (...) {
    host_.setWaitHook(nullptr);
    throw;
  }
  host_.setWaitHook(nullptr);
  reportHeld(held, waits, line_);
}

void Driver::execute(const ScriptLine& line) {
  static const std::map<std::string, Command> commands{
      {"start", &Driver::start},       {"open", &Driver::open},
      {"shared", &Driver::shared},     {"click", &Driver::click},
      {"dblclick", &Driver::dblclick}, {"mousemove", &Driver::mousemove},
      {"text", &Driver::text},         {"key", &Driver::key},
      {"select", &Driver::select},     {"tick", &Driver::tick},
      {"rnd", &Driver::rnd},           {"during-wait", &Driver::duringWait},
      {"expect", &Driver::expect},     {"dump", &Driver::dump}};
  const Token& command = line.tokens.front();
  auto it = commands.find(command.text);
  if (command.quoted || it == commands.end()) {
    throw ScriptError("unknown command " + command.text);
  }
  (this->*(it->second))(Args(line));
}

// Held lines go in the order written, each at a wait of its own: a line
// aims at the nth fitting wait of the command, and goes in at the first
// fitting wait from there that comes after the wait of the line before it.
// Waits inside a held line's own command belong to that line, not to the
// command the lines were held for.
void Driver::atWait(std::vector<Held>& held, size_t& next, Waits& waits, bool pumping) {
  if (delivering_) return;
  ++waits.any;
  if (pumping) ++waits.pumping;
  if (next >= held.size()) return;
  Held& first = held[next];
  if ((!pumping && !first.looks) || waits.fitting(first) < first.nth) return;
  ++next;
  deliver(first);
}

// A mistake in a held line is kept until the wait is over, so that it never
// unwinds through the form's own code.
void Driver::deliver(Held& held) {
  held.delivered = true;
  delivering_ = true;
  int outer = line_;
  line_ = held.number;
  try {
    execute(held.line);
  } catch (const ScriptError& e) {
    held.error = e.what();
  }
  line_ = outer;
  delivering_ = false;
}

void Driver::reportHeld(const std::vector<Held>& held, const Waits& waits, int command) {
  for (size_t i = 0; i < held.size(); ++i) {
    const Held& h = held[i];
    line_ = h.number;
    if (h.error) throw ScriptError(*h.error);
    if (!h.delivered) ignored(whyNotDelivered(held, i, waits, command));
  }
  line_ = command;
}

std::string Driver::whyNotDelivered(const std::vector<Held>& held, size_t i, const Waits& waits,
                                    int command) {
  if (i > 0 && !held[i - 1].delivered) {
    return "held behind line " + std::to_string(held[i - 1].number) + ", which was not delivered";
  }
  const Held& h = held[i];
  int n = waits.fitting(h);
  std::string why = "line " + std::to_string(command);
  // Enough waits came, but the line before took the last one it could have.
  if (n >= h.nth) {
    return why + (h.looks ? " reached no wait" : " let no events through") + " after line " +
           std::to_string(held[i - 1].number) + "'s";
  }
  if (n == 0) return why + (h.looks ? " reached no wait" : " let no events through");
  if (h.looks) {
    return why + " reached only " +
           (n == 1 ? std::string("one wait") : std::to_string(n) + " waits");
  }
  return why + " let events through only " +
         (n == 1 ? std::string("once") : std::to_string(n) + " times");
}

void Driver::ignored(const std::string& why) {
  out_ << "ignored line " << line_ << ": " << why << '\n';
}

Element& Driver::eventTarget(const Args& args, bool indexMayFollow) {
  Reference ref = parseReference(args.word(0, "an element name"));
  // `click Label1 5` and `click Label1(5)` are the same click.
  if (indexMayFollow && ref.indexes.empty() && args.has(1)) {
    ref.indexes.push_back(parseInteger(args.word(1, "an index")));
  }
  return findElement(currentForm(program_), ref);
}

void Driver::fireEvent(const Args& args, const std::string& event) {
  args.atMost(2);
  Element& target = eventTarget(args, true);
  Program::Result result =
      program_.userEvent(currentForm(program_), target, target.name + "_" + event);
  if (result.outcome == Program::Outcome::Ignored) ignored(result.why);
}

bool Driver::focusOn(Form& form, Element& box) {
  if (auto why = program_.whyRefused(form, box)) {
    ignored(*why);
    return false;
  }
  if (form.focus == box.displayName()) return true;
  form.focus = box.displayName();
  long unloads = unloadCounter_.unloads;
  program_.userEvent(form, box, box.name + "_GotFocus");
  return unloadCounter_.unloads == unloads && !program_.whyRefused(form, box);
}

void Driver::start(const Args& args) {
  args.atMost(0);
  program_.open("title");
}

void Driver::open(const Args& args) {
  args.atMost(1);
  const std::string& name = args.word(0, "a form name");
  if (!program_.knowsForm(name)) throw ScriptError("unknown form " + name);
  program_.open(name);
}

void Driver::shared(const Args& args) {
  args.atMost(2);
  const std::string& name = args.word(0, "a shared value's name");
  int value = parseInteger(args.word(1, "a value"));
  // The title is the program's own; a script sets only the numbers.
  if (!program_.shared().has(name) || name == shared::kProductTitle) {
    throw ScriptError("unknown shared value " + name + " (bubbleland_start or wall_level)");
  }
  program_.shared().set(name, num(value));
}

void Driver::click(const Args& args) {
  fireEvent(args, "Click");
}

void Driver::dblclick(const Args& args) {
  fireEvent(args, "DblClick");
}

void Driver::mousemove(const Args& args) {
  fireEvent(args, "MouseMove");
}

// The whole text is replaced, as by selecting it and typing; the box's Change
// event follows when the text did change.
void Driver::text(const Args& args) {
  args.atMost(2);
  Element& box = eventTarget(args, false);
  if (box.kind != Kind::TextBox) throw ScriptError(box.displayName() + " is not a text box");
  std::string value = args.token(1, "the text").text;
  Form& form = currentForm(program_);
  if (!focusOn(form, box) || box.Text == value) return;
  box.Text = value;
  program_.userEvent(form, box, box.name + "_Change");
}

// A key goes to its control's KeyDown. A digit typed into a text box then
// also stands in the box, as it would for a person: the key first, then the
// text grows by the digit and the box's Change event follows.
void Driver::key(const Args& args) {
  args.atMost(2);
  Element& target = eventTarget(args, false);
  int code = keyCode(args.word(1, "a key"));
  Form& form = currentForm(program_);
  bool isBox = target.kind == Kind::TextBox;
  if (isBox && !focusOn(form, target)) return;
  long unloads = unloadCounter_.unloads;
  Program::Result result = program_.userEvent(form, target, target.name + "_KeyDown", code);
  if (result.outcome == Program::Outcome::Ignored) {
    ignored(result.why);
    return;
  }
  if (!isBox || !isDigitKey(code)) return;
  if (unloadCounter_.unloads != unloads || program_.whyRefused(form, target)) return;
  target.Text += static_cast<char>(code);
  program_.userEvent(form, target, target.name + "_Change");
}

void Driver::select(const Args& args) {
  args.atMost(2);
  Element& list = eventTarget(args, false);
  if (list.kind != Kind::ListBox) throw ScriptError(list.displayName() + " is not a list box");
  int row = parseInteger(args.word(1, "a row"));
  Program::Result result =
      program_.rowEvent(currentForm(program_), list, row, list.name + "_Click");
  if (result.outcome == Program::Outcome::Ignored) ignored(result.why);
}

void Driver::tick(const Args& args) {
  args.atMost(2);
  Form& form = currentForm(program_);
  Element& timer = findElement(form, parseReference(args.word(0, "a timer's name")));
  if (timer.kind != Kind::Timer) throw ScriptError(timer.displayName() + " is not a timer");
  int count = args.has(1) ? parseInteger(args.word(1, "a count")) : 1;
  if (count < 0) throw ScriptError("bad number: a count cannot be negative");
  if (!timer.Enabled) {
    ignored(timer.displayName() + " is off");
    return;
  }
  // A tick may end the program or leave the form; the rest then never come.
  long unloads = unloadCounter_.unloads;
  for (int i = 0; i < count; ++i) {
    if (program_.ended() || unloadCounter_.unloads != unloads || !timer.Enabled) return;
    program_.timerTick(form, timer);
  }
}

void Driver::rnd(const Args& args) {
  args.word(0, "a value in [0, 1)");
  std::vector<double> values;
  for (size_t i = 0; args.has(i); ++i) {
    const std::string& word = args.word(i, "a value in [0, 1)");
    double v = parseNumber(word);
    if (v < 0 || v >= 1) throw ScriptError("bad number: " + word + " is not in [0, 1)");
    values.push_back(v);
  }
  for (double v : values) host_.random().pin(v);
}

// `during-wait [K] COMMAND`. An expectation is checked for its form here
// already, so that a mistake in it shows even when no wait comes.
void Driver::duringWait(const Args& args) {
  Held held;
  held.number = line_;
  const std::string& first = args.word(0, "a command to hold");
  size_t at = 0;
  std::string text = args.rest();
  if (startsLikeNumber(first)) {
    held.nth = parseInteger(first);
    if (held.nth < 1) throw ScriptError("bad number: " + first + ", the waits count from 1");
    text = afterFirstWord(text, first);
    at = 1;
  }
  const std::string& command = args.word(at, "a command to hold");
  if (!canBeHeld(command)) {
    throw ScriptError(
        "during-wait holds a click, dblclick, mousemove, text, key, select, tick, expect or dump "
        "line, not " +
        command);
  }
  held.looks = looksAtScreen(command);
  held.line.tokens.assign(args.line().tokens.begin() + 1 + static_cast<long>(at),
                          args.line().tokens.end());
  held.line.text = text;
  if (command == "expect") readExpectation(Args(held.line));
  held_.push_back(std::move(held));
}

Driver::Expectation Driver::readExpectation(const Args& args) {
  args.atMost(3);
  Expectation e{args.word(0, "what to check"), args.word(1, "an operator"),
                parseLiteral(args.token(2, "a value to compare with"))};
  checkOperator(e.op, e.expected);
  return e;
}

void Driver::expect(const Args& args) {
  Expectation e = readExpectation(args);
  Value actual = evaluate(program_, host_, e.lhs);
  if (compare(actual, e.op, e.expected)) return;
  failed_ = true;
  err_ << "FAIL line " << line_ << ": " << args.rest() << " (got " << toJson(actual) << ")\n";
}

void Driver::dump(const Args& args) {
  std::vector<std::string> names;
  for (size_t i = 0; args.has(i); ++i) names.push_back(args.word(i, "a name"));
  out_ << cli::dump(program_, host_, names) << '\n';
}

}  // namespace vrask::cli
