#include "boards/quennel/play.h"

#include <string>

#include "boards/quennel/Quennel.h"
#include "boards/quennel/look.h"
#include "boards/quennel/tables.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::quennel {

namespace {

// "Super Vrask set count full": short enough for the benchmark's column.
std::string nameOf(const Game& g, int players) {
  std::string name = g.count == Count::Lines ? "Ombrel" : g.super ? "Super Vrask" : "Vrask";
  if (g.count == Count::Classic) name += " classic";
  if (g.count == Count::SetCount) name += " set count";
  if (g.count == Count::VraskMove) name += " Vrask move";
  name += g.levelfull == 1 ? " full" : " easy";
  return players == 1 ? name + ", 2 players" : name;
}

// A game of either size, from any state between games: the size first, which
// brings its games into the menu.
Setup setupOf(const Game& g, int players) {
  return {nameOf(g, players), {{"tetsize", g.levelfull + 1}, {"ga", g.gamecode}, {"ip", players}}};
}

const Turn& turn() {
  static const Turn t = turned(startgrids());
  return t;
}

// The real line or face that screen target `n` stands for in the view shown.
int realOf(Form& form, size_t kind, int n) {
  auto view = static_cast<size_t>(numberOf(form, "viewnum"));
  const auto& table = kind == 0 ? turn().line.at(view).data() : turn().face.at(view).data();
  return table[n];
}

int number(Form& form, const char* variable, int i) {
  return static_cast<int>(numberOf(form, variable, {i}));
}

std::pair<int, int> points(Form& form) {
  return {static_cast<int>(Val(elementOf(form, {"Label5", {}}).Caption)),
          static_cast<int>(Val(elementOf(form, {"Label6", {}}).Caption))};
}

// Face games: each side has the faces of the size whose three lines are in
// its colour now. Line games: the two add up to the faces with three lines.
std::optional<std::string> scoresDisagree(Form& form) {
  static const CellLines celllines = startgrids();
  bool lines = playsLines(static_cast<int>(numberOf(form, "gamecode")));
  int faces = facesOfSize(static_cast<int>(numberOf(form, "levelfull")));
  int blue = 0;
  int red = 0;
  int closed = 0;
  for (int f = 1; f <= faces; ++f) {
    int blueSides = 0;
    int redSides = 0;
    int taken = 0;
    for (int slot = 1; slot <= 3; ++slot) {
      int line = celllines.at(f).at(slot);
      int colour = number(form, "linecolour", line);
      blueSides += colour == color::Blue ? 1 : 0;
      redSides += colour == kFaceRed ? 1 : 0;
      taken += number(form, "linetaken", line) != 0 ? 1 : 0;
    }
    blue += blueSides == 3 ? 1 : 0;
    red += redSides == 3 ? 1 : 0;
    closed += taken == 3 ? 1 : 0;
  }
  auto [shownBlue, shownRed] = points(form);
  if (lines ? shownBlue + shownRed == closed : shownBlue == blue && shownRed == red) {
    return std::nullopt;
  }
  return "the labels read " + std::to_string(shownBlue) + " and " + std::to_string(shownRed) +
         ", the board " +
         (lines ? std::to_string(closed) + " closed faces"
                : std::to_string(blue) + " and " + std::to_string(red));
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "Quennel";
  for (int players : {0, 1}) {
    for (const Game& g : games()) d.setups.push_back(setupOf(g, players));
  }
  for (const Game& g : games()) d.bench.push_back(setupOf(g, 0));
  d.newGame = {"Command3", {}};
  d.kinds = {{"sdfx", "   Invalid move!"}, {"Label12", "Invalid move!"}};
  d.kindInPlay = [](Form& form) {
    return playsLines(static_cast<int>(numberOf(form, "gamecode"))) ? 0U : 1U;
  };
  d.taken = [](Form& form, size_t kind, int n) {
    return number(form, kind == 0 ? "linetaken" : "facetaken", realOf(form, kind, n)) != 0;
  };
  d.finished = [](Form& form) { return numberOf(form, "finished") == 1; };
  d.points = points;
  d.scoresDisagree = scoresDisagree;
  d.expertMove = [](Form& form) { return dynamic_cast<Quennel&>(form).expertMove(); };
  d.introTimer = {"Timer1", {}};
  d.introTicks = 24;
  d.roundList = "List4";
  d.afterWinner = "\t\t";
  d.keypadOpener = {"Command9", {}};
  return d;
}

}  // namespace vrask::quennel
