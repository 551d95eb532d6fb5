#include "boards/triangular/play.h"

#include <string>

#include "boards/triangular/Triang.h"
#include "boards/triangular/captions.h"
#include "boards/triangular/tables.h"
#include "frame/cell_board.h"
#include "toolkit/form.h"

namespace vrask::triangular {

namespace {

constexpr std::array<int, 3> kGames{Ombrel, SuperVrask, SuperVraskPlus};

// A game on the board: world, size, game and players, and the clicks that
// set it up from a board just opened (`fromAnyState` false) or from any state
// between games, where the Mini size first brings the board back to Flatland
// (the world entries toggle).
struct Setting {
  bool bubbleland;
  int size;
  int game;
  int players;

  Setup setup(bool fromAnyState) const {
    Setup s{std::string(bubbleland ? "Bubbleland " : "Flatland ") + std::to_string(size) + " " +
                kGameCaptions.at(static_cast<size_t>(game)),
            {}};
    if (fromAnyState) s.clicks.push_back({"szmen", 1});
    s.clicks.push_back({"szmen", size});
    if (bubbleland) s.clicks.push_back({"ver", 2});
    s.clicks.insert(s.clicks.end(), {{"game", game}, {"ip", players}});
    return s;
  }
};

// Every game at every size of Flatland, then in Bubbleland (normal size only).
std::vector<Setting> allGames(int players) {
  std::vector<Setting> games;
  for (int size = 1; size <= kNormalSize; ++size) {
    for (int game : kGames) games.push_back({false, size, game, players});
  }
  for (int game : kGames) games.push_back({true, kNormalSize, game, players});
  return games;
}

bool drawnIn(const Element& line, int colour) {
  return line.BorderWidth == kMarkedWidth && line.BorderColor == colour;
}

// What the drawn board says: the cells each side holds in the circle games,
// the closed cells in Ombrel. A circle taken and not yet judged is the
// computer's random reply, which the next move's judging counts.
struct BoardCount {
  int blue = 0;
  int red = 0;
  int closed = 0;
  bool uncounted = false;
};

BoardCount countBoard(Form& form) {
  static const CellBoard board = cellBoard(start());
  ElementArray& lines = *form.findArray("ln1");
  auto owned = [&](int line) { return numberOf(form, "lineowner", {line}) != 0; };
  auto blue = [&](int line) { return drawnIn(lines[line], color::Blue); };
  auto red = [&](int line) { return drawnIn(lines[line], color::Red); };
  Counts closed = board.countSides(owned), blues = board.countSides(blue),
         reds = board.countSides(red);
  BoardCount count;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (!elementOf(form, {"Shape1", cell}).Visible) continue;
    count.blue += blues.at(cell) == 3 ? 1 : 0;
    count.red += reds.at(cell) == 3 ? 1 : 0;
    count.closed += closed.at(cell) == 3 ? 1 : 0;
    count.uncounted |=
        elementOf(form, {"Label2", cell}).Visible && numberOf(form, "celltaken", {cell}) != 0;
  }
  return count;
}

bool onLines(Form& form) {
  return playedOnLines(static_cast<int>(numberOf(form, "gameindex")));
}

std::optional<std::string> scoresDisagree(Form& form) {
  BoardCount count = countBoard(form);
  auto [blue, red] = shownPoints(form);
  bool lines = onLines(form);
  bool agree = lines ? blue + red == count.closed
                     : count.uncounted || (blue == count.blue && red == count.red);
  if (agree) return std::nullopt;
  return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
         ", the board " +
         (lines ? std::to_string(count.closed) + " closed cells"
                : std::to_string(count.blue) + " and " + std::to_string(count.red));
}

}  // namespace

PlayDescriptor play() {
  std::vector<Setup> setups, bench;
  for (int players : {0, 1}) {
    for (const Setting& game : allGames(players)) setups.push_back(game.setup(true));
  }
  for (const Setting& game : allGames(0)) bench.push_back(game.setup(false));
  return {
      .form = "Triang",
      .setups = setups,
      .bench = bench,
      .newGame = {"gmc", {}},
      .kinds = {{"Label1", kLineTaken}, {"Label2", kCircleTaken}},
      .kindInPlay = [](Form& form) { return onLines(form) ? 0U : 1U; },
      .taken =
          [](Form& form, size_t kind, int n) {
            return numberOf(form, kind == 0 ? "lineowner" : "celltaken", {n}) != 0;
          },
      .finished = [](Form& form) { return numberOf(form, "gameover") == 1; },
      .points = shownPoints,
      .scoresDisagree = scoresDisagree,
      .expertMove = [](Form& form) { return dynamic_cast<Triang&>(form).expertMove(); },
  };
}

}  // namespace vrask::triangular
