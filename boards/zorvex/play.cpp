#include "boards/zorvex/play.h"

#include <algorithm>
#include <string>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/tables.h"
#include "boards/zorvex/zorvex.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::cube {

namespace {

// The games a person can pick, and the ones the computer plays (all but
// Zorvex (Lines), which is not offered).
constexpr int kOffered[] = {Ombrel,         ZorvexSquares, LineVrask,     VraskClassic,
                            VraskSetCount,  SuperClassic,  SuperSetCount, VraskMoveSetCount,
                            SuperVraskMove, LineVraskBonus};

std::string seriesName(int mode) {
  std::string name = modeText(mode).name;
  return name.substr(std::string("Game = ").size());
}

// Picking a game turns the numbers off; they come on again so that a typed
// number finds its line or circle.
Setup setupFor(int mode, int players) {
  return {seriesName(mode), {{"game", mode}, {"grid", std::nullopt}, {"ip", players}}};
}

int mode(Form& form) {
  return static_cast<int>(numberOf(form, "gamemode"));
}

int view(Form& form) {
  return static_cast<int>(numberOf(form, "viewno"));
}

// A target taken: a line owned (Ombrel) or painted by a move (Line Vrask), a
// circle played.
bool taken(Form& form, size_t kind, int n) {
  if (kind == 0) {
    int L = boardLine(view(form), lineIndexOfNumber(n));
    return numberOf(form, isLineVrask(mode(form)) ? "hitlines" : "lineowner", {L}) != 0;
  }
  int s = boardSquare(view(form), n == 0 ? 30 : n);
  return numberOf(form, "circlestate", {s}) != 0;
}

std::pair<int, int> points(Form& form) {
  return {static_cast<int>(Val(elementOf(form, {"Label5", {}}).Caption)),
          static_cast<int>(Val(elementOf(form, {"Label6", {}}).Caption))};
}

bool allOf(Form& form, int s, int value) {
  for (int k = 1; k <= 4; ++k) {
    if (numberOf(form, "squareinks", {s, k}) != value) return false;
  }
  return true;
}

// Ombrel: the points add up to the squares with four lines; Zorvex (Squares)
// to the cubes counted; the Vrask games: each side has the squares whose four
// lines are all in its colour.
std::optional<std::string> scoresDisagree(Form& form) {
  auto [blue, red] = points(form);
  int m = mode(form);
  auto wrong = [&](const std::string& board) -> std::optional<std::string> {
    return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
           ", the board " + board;
  };
  if (m == Ombrel) {
    int whole = 0;
    for (int s = 1; s <= kSquares; ++s) {
      bool all = true;
      for (int k = 1; k <= 4; ++k) all = all && numberOf(form, "squareinks", {s, k}) != 0;
      whole += all ? 1 : 0;
    }
    return blue + red == whole ? std::nullopt : wrong(std::to_string(whole) + " squares");
  }
  if (m == ZorvexSquares) {
    int cubes = 0;
    for (int c = 1; c <= kCubes; ++c) cubes += numberOf(form, "cubescored", {c}) != 0 ? 1 : 0;
    return blue + red == cubes ? std::nullopt : wrong(std::to_string(cubes) + " cubes");
  }
  int blueSquares = 0;
  int redSquares = 0;
  for (int s = 1; s <= kSquares; ++s) {
    blueSquares += allOf(form, s, color::Blue) ? 1 : 0;
    redSquares += allOf(form, s, color::Red) ? 1 : 0;
  }
  if (blue == blueSquares && red == redSquares) return std::nullopt;
  return wrong(std::to_string(blueSquares) + " and " + std::to_string(redSquares));
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "zorvex";
  for (int players : {0, 1}) {
    for (int m : kOffered) d.setups.push_back(setupFor(m, players));
  }
  // The bench starts on a board just opened, where the menus open with New.
  for (int m : kOffered) {
    Setup series = setupFor(m, 0);
    series.clicks.insert(series.clicks.begin(), {"Command7", std::nullopt});
    d.bench.push_back(series);
  }
  d.newGame = {"Command7", std::nullopt};
  // The second circle of square 30, `Label9(0)`, is typed as 30.
  d.kinds = {{"Label11", kInvalidLine},
             {"Label9", kInvalidMove, [](int c) { return c == 0 ? 30 : c; }}};
  d.kindInPlay = [](Form& form) { return isLineGame(mode(form)) ? 0U : 1U; };
  d.taken = taken;
  d.finished = [](Form& form) { return numberOf(form, "gameover") == 1; };
  d.points = points;
  d.scoresDisagree = scoresDisagree;
  d.expertMove = [](Form& form) { return dynamic_cast<zorvex&>(form).expertMove(); };
  d.roundList = "List4";
  d.roundTab = "\t\t";
  return d;
}

}  // namespace vrask::cube
