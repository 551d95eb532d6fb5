// The script driver: runs a script of user actions against the whole program
// without a screen, prints what is asked, and tells by its exit status
// whether every expectation held (0), one failed (1) or the script was wrong
// (2).
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "cli/script.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"
#include "toolkit/value.h"

namespace vrask::cli {

class Driver {
 public:
  // `out` gets dumps and the notes on ignored lines; `err` the failed
  // expectations and the script error.
  Driver(std::ostream& out, std::ostream& err);

  int run(std::istream& script);

 private:
  class Args;
  using Command = void (Driver::*)(const Args&);
  // A line of `during-wait`, held for a wait of the next command.
  struct Held {
    ScriptLine line;
    int number = 0;
    int nth = 1;         // goes in at the nth fitting wait of the command, or later
    bool looks = false;  // expect or dump: any wait fits; else one that lets events through
    bool delivered = false;
    std::optional<std::string> error;
  };
  void runLine(const ScriptLine& line);
  void execute(const ScriptLine& line);
  // The waits of the command that lines are held for, of each kind.
  struct Waits {
    int any = 0;
    int pumping = 0;
    int fitting(const Held& held) const { return held.looks ? any : pumping; }
  };
  void atWait(std::vector<Held>& held, size_t& next, Waits& waits, bool pumping);
  void deliver(Held& held);
  void reportHeld(const std::vector<Held>& held, const Waits& waits, int command);
  static std::string whyNotDelivered(const std::vector<Held>& held, size_t i, const Waits& waits,
                                     int command);
  void ignored(const std::string& why);
  // The element a command names: `NAME`, `NAME(I)`, or `NAME I` where the
  // index may follow as a word of its own.
  Element& eventTarget(const Args& args, bool indexMayFollow);
  // Puts the keyboard focus on a text box, as a person's click into it does;
  // false when the box could not be reached.
  bool focusOn(Form& form, Element& box);
  void fireEvent(const Args& args, const std::string& event);

  void start(const Args& args);
  void open(const Args& args);
  void shared(const Args& args);
  void click(const Args& args);
  void dblclick(const Args& args);
  void mousemove(const Args& args);
  void text(const Args& args);
  void key(const Args& args);
  void select(const Args& args);
  void tick(const Args& args);
  void rnd(const Args& args);
  void duringWait(const Args& args);
  struct Expectation {
    std::string lhs;
    std::string op;
    Value expected;
  };
  static Expectation readExpectation(const Args& args);
  void expect(const Args& args);
  void dump(const Args& args);

  // Counts forms unloaded, so that a command can tell whether the form it
  // started on is still there (a new form may well get the old one's address).
  struct UnloadCounter : Program::Listener {
    long unloads = 0;
    void formShown(Form&) override {}
    void formUnloading(Form&) override { ++unloads; }
  };

  std::ostream& out_;
  std::ostream& err_;
  UnloadCounter unloadCounter_;
  HeadlessHost host_;
  Program program_;
  int line_ = 0;
  bool failed_ = false;
  std::vector<Held> held_;  // for the next command
  bool delivering_ = false;
};

}  // namespace vrask::cli
