// vrask-cli: runs the suite without a screen, from a script of user actions
// (see --help), or plays series of games as a benchmark.
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

#include "cli/bench.h"
#include "cli/driver.h"
#include "cli/duel.h"

namespace {

constexpr const char* kUsage = R"(Usage:
  vrask-cli [SCRIPT]           run a script of user actions (from stdin without SCRIPT or with -)
  vrask-cli bench [--games N] [--board FORM]
                               play N games of each series of every board (or of FORM alone)
                               headless and report speed (N: 2)
  vrask-cli duel --board FORM --game G [--size N] [--games N]
                               the expert (Blue) against FORM's own computer in game G
                               ("Ombrel", "Bubbleland Ombrel", "Super Vrask"), N games (20), the
                               opener alternating; VRASK_EXPERT_MS bounds its time a move (1000)
  vrask-cli --help             this text

Script: one command a line; # starts a comment.
  start                      the program starts: the form title loads
  open FORM                  load FORM and make it current (no shared value written)
  shared NAME VALUE          set bubbleland_start or wall_level
  click NAME [I]             NAME_Click on the current form (also NAME(I))
  dblclick NAME [I]          NAME_DblClick
  mousemove NAME [I]         NAME_MouseMove
  text NAME VALUE            type VALUE into the text box NAME (a word or a "quoted string")
  key NAME KEY               a key in NAME: Enter, Left, Right or a digit 0-9
  select NAME ROW            click row ROW (from 0) of the list box NAME: it becomes NAME's
                             ListIndex, then NAME_Click; a dblclick NAME after it double-clicks it
  tick NAME [COUNT]          fire timer NAME COUNT times (1), each only while it is enabled
  rnd V1 [V2 ...]            the next calls of Rnd return V1, V2, ... (each in [0, 1))
  during-wait [K] COMMAND    deliver COMMAND (click, dblclick, mousemove, text, key, select,
                             tick) inside the K-th wait (1) of the next command that lets events
                             through; with expect or dump as COMMAND, look at the screen inside
                             its K-th wait of any kind. Such lines in a row are all held for the
                             next command, each at a wait of its own in the order written: a line
                             goes in at its K-th wait or, if the line before took that one, after
  expect LHS OP RHS          OP: == != < <= > >= contains
                             LHS: form, ended, clock, messages, message, messagetitle, focus,
                                  Form.Caption, Form.BackColor, shared.NAME,
                                  var.NAME[(i[,j])], ELEMENT.PROPERTY (ListIndex: -1 for none)
                             RHS: a number, true, false or a "string" with JSON escapes
  dump [NAME ...]            the current form as JSON; with names, only those elements or variables

A target a person could not reach now (also a list row that does not exist) and a held line
that no wait reached print "ignored line N: <why>" and the script goes on.
Exit status: 0 every expect held; 1 one or more failed ("FAIL line N: ..." on stderr);
2 a script error ("ERROR line N: <reason>" on stderr; the run stops there).
)";

int runScript(std::istream& script) {
  vrask::cli::Driver driver(std::cout, std::cerr);
  return driver.run(script);
}

int usageError(const std::string& what) {
  std::cerr << "vrask-cli: " << what << "\n\n" << kUsage;
  return 2;
}

int runBench(int argc, char** argv) {
  int games = 2;
  std::string board;
  for (int i = 2; i < argc; ++i) {
    bool hasValue = i + 1 < argc;
    if (std::strcmp(argv[i], "--board") == 0 && hasValue) {
      board = argv[++i];
      continue;
    }
    if (std::strcmp(argv[i], "--games") != 0 || !hasValue) {
      return usageError(std::string("unknown bench option ") + argv[i]);
    }
    try {
      games = std::stoi(argv[++i]);
    } catch (const std::exception&) {
      games = 0;
    }
    if (games < 1) return usageError("--games needs a whole number from 1");
  }
  return vrask::cli::bench(games, board, std::cout, std::cerr);
}

int wholeNumber(const char* text) {
  try {
    return std::stoi(text);
  } catch (const std::exception&) {
    return 0;
  }
}

int runDuel(int argc, char** argv) {
  vrask::cli::DuelOptions options;
  for (int i = 2; i < argc; ++i) {
    if (i + 1 >= argc) return usageError(std::string("duel option ") + argv[i] + " needs a value");
    std::string option = argv[i];
    const char* value = argv[++i];
    if (option == "--board") {
      options.board = value;
    } else if (option == "--game") {
      options.game = value;
    } else if (option == "--size" || option == "--games") {
      int n = wholeNumber(value);
      if (n < 1) return usageError(option + " needs a whole number from 1");
      (option == "--size" ? options.size : options.games) = n;
    } else {
      return usageError("unknown duel option " + option);
    }
  }
  if (options.board.empty() || options.game.empty())
    return usageError("duel needs --board and --game");
  return vrask::cli::duel(options, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc >= 2 && std::strcmp(argv[1], "bench") == 0) return runBench(argc, argv);
  if (argc >= 2 && std::strcmp(argv[1], "duel") == 0) return runDuel(argc, argv);
  if (argc > 2) return usageError("give at most one script");
  std::string arg = argc == 2 ? argv[1] : "-";
  if (arg == "--help" || arg == "-h") {
    std::cout << kUsage;
    return 0;
  }
  if (arg == "-") return runScript(std::cin);
  if (!arg.empty() && arg[0] == '-') return usageError("unknown option " + arg);
  std::ifstream script(arg);
  if (!script) {
    std::cerr << "vrask-cli: cannot read " << arg << '\n';
    return 2;
  }
  return runScript(script);
}
