#include "boards/wall/play.h"

#include <string>

#include "boards/wall/captions.h"
#include "boards/wall/look.h"
#include "boards/wall/tables.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::wall {

namespace {

// "Wall 3 Vrask (Classic)": the cubes a side and the game.
std::string setupName(int bd, int gamecode) {
  return "Wall " + std::to_string(sideOf(bd)) + " " + gameLabel(gamecode).substr(7);
}

// Every wall and game, for one player against the computer (players 0) or
// two; each click is open between games.
std::vector<Setup> setups(std::initializer_list<int> players) {
  std::vector<Setup> all;
  for (int p : players) {
    for (int bd = 1; bd <= kLevels; ++bd) {
      for (int gamecode : kGameCodes) {
        all.push_back({setupName(bd, gamecode), {{"bd", bd}, {"game", gamecode}, {"ip", p}}});
      }
    }
  }
  return all;
}

// A square is a side's while its four lines are all in that side's colour.
std::optional<std::string> scoresDisagree(Form& form) {
  static const CellLines celllines = startwall();
  ElementArray& lines = *form.findArray("Line3");
  int blue = 0;
  int red = 0;
  for (int s = 1; s <= kSquares; ++s) {
    int blueLines = 0;
    int redLines = 0;
    for (int k = 1; k <= 4; ++k) {
      int colour = lines[celllines.at(s).at(k)].BorderColor;
      blueLines += colour == color::Blue ? 1 : 0;
      redLines += colour == color::Red ? 1 : 0;
    }
    blue += blueLines == 4 ? 1 : 0;
    red += redLines == 4 ? 1 : 0;
  }
  auto [shownBlue, shownRed] = shownPoints(form);
  if (shownBlue == blue && shownRed == red) return std::nullopt;
  return "the labels read " + std::to_string(shownBlue) + " and " + std::to_string(shownRed) +
         ", the wall " + std::to_string(blue) + " and " + std::to_string(red);
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "vraskthewall";
  d.setups = setups({0, 1});
  d.bench = setups({0});
  d.newGame = {"new", {}};
  d.kinds = {{"Label9", kInvalidMove}};
  d.kindInPlay = [](Form&) { return 0U; };
  // A played circle stays 8 wide after the end of the game, when the marks
  // of the squares are cleared.
  d.taken = [](Form& form, size_t, int n) {
    return elementOf(form, {"Shape1", 10 * n}).BorderWidth == kDrawn;
  };
  d.finished = [](Form& form) { return numberOf(form, "gameover") == 1; };
  d.points = shownPoints;
  d.scoresDisagree = scoresDisagree;
  d.roundList = "List4";
  d.afterWinner = "\t\t";
  d.enterButton = "Command4";
  return d;
}

}  // namespace vrask::wall
