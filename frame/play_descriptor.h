// What the benchmark and the soak test need to know to play a board without
// knowing it: how a game is set up, which elements are its moves, and how to
// tell a taken move and a finished game. Each board hands one over beside its
// factory (launcher/suite.cpp); nothing else outside the board names its
// elements or its game modes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vrask {

class Form;

// A click a person makes: an element, with its index when it is one of an
// array (`game(4)`), without for a single element (`gmc`).
struct Choice {
  std::string element;
  std::optional<int> index;
};

// One way to set up a game: the clicks, in order, on a board just opened or
// just reset by New.
struct Setup {
  std::string name;  // as the benchmark prints it: "Flatland 9 Super Vrask Plus"
  std::vector<Choice> clicks;
};

// One kind of move: the array of hit targets a person clicks (or whose number
// he types) and the message a taken one that shows answers with.
struct MoveKind {
  std::string targets;
  std::string refusal;
  // The number a person types for target n, where it is not n itself (a
  // board whose targets count from 0 and its numbers from 1).
  std::function<int(int)> typed = nullptr;
};

struct PlayDescriptor {
  std::string form;
  // Every setup a person can make (modes, sizes or levels, worlds, one or two
  // players): the soak test plays among them.
  std::vector<Setup> setups;
  // The benchmark's series: each mode the computer plays, the computer as Red.
  std::vector<Setup> bench;
  // New: the next game of the round list.
  Choice newGame;

  // Every kind of move the board has, and which one the game set up plays.
  std::vector<MoveKind> kinds;
  std::function<size_t(Form&)> kindInPlay;
  // Whether target `n` of kind `kind` has been played.
  std::function<bool(Form&, size_t kind, int n)> taken;
  std::function<bool(Form&)> finished;

  // The points of Blue and Red as the board shows them, and what is wrong when
  // they disagree with the board's drawn state (nothing when they agree).
  std::function<std::pair<int, int>(Form&)> points;
  std::function<std::optional<std::string>(Form&)> scoresDisagree;

  // A board that opens with an introduction holds everything closed until
  // its timer has ticked so often; the introduction then opens the first game.
  Choice introTimer{};
  int introTicks = 0;

  // The expert's move for the side to move: the number of the target of the
  // kind in play; 0 when there is none. Empty on a board without an expert.
  std::function<int(Form&)> expertMove{};
  // What `expertMove` answers when there is no move, where 0 is a target.
  int noExpertMove = 0;

  // Where a finished game is written: the round list and the labels of the
  // two totals.
  std::string roundList = "List2";
  // What stands between the winner and each score in a row of it.
  std::string roundTab = "\t";
  // Between the winner and Blue's points, where a board's rows have another
  // gap there than between the scores.
  std::optional<std::string> afterWinner{};
  Choice blueTotal{"Label7", 5};
  Choice redTotal{"Label7", 6};

  // The keypad: the text box, its enter button, and the button that opens the
  // panel when it is closed.
  std::string typedBox = "Text1";
  std::string enterButton = "Command6";
  Choice keypadOpener{"Command3", std::nullopt};
  std::string keypadPanel = "Picture1";
};

// Reading a board the way its descriptor does: an element by its name and
// index, and a number of its state variables.
struct Element;
Element& elementOf(Form& form, const Choice& choice);
double numberOf(Form& form, const std::string& variable, const std::vector<int>& indexes = {});
// The points of Blue and Red as the captions of `Label5` (its first, where it
// is an array) and `Label6` show them.
std::pair<int, int> shownPoints(Form& form);

}  // namespace vrask
