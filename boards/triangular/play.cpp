#include "boards/triangular/play.h"

#include <string>

#include "boards/triangular/captions.h"
#include "boards/triangular/tables.h"
#include "frame/cell_board.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::triangular {

namespace {

constexpr std::array<int, 3> kGames{Ombrel, SuperVrask, SuperVraskPlus};

std::string setupName(bool bubbleland, int size, int game) {
  return std::string(bubbleland ? "Bubbleland " : "Flatland ") + std::to_string(size) + " " +
         kGameCaptions.at(static_cast<size_t>(game));
}

// The bench's series, from a board just opened: every game the computer
// plays at every size of Flatland, and in Bubbleland (normal size only).
std::vector<Setup> benchSeries() {
  std::vector<Setup> series;
  auto add = [&](bool bubbleland, int size, int game) {
    Setup setup{setupName(bubbleland, size, game), {}};
    if (bubbleland) setup.clicks.push_back({"ver", 2});
    setup.clicks.insert(setup.clicks.end(), {{"szmen", size}, {"game", game}, {"ip", 0}});
    series.push_back(setup);
  };
  for (int size = 1; size <= kNormalSize; ++size) {
    for (int game : kGames) add(false, size, game);
  }
  for (int game : kGames) add(true, kNormalSize, game);
  return series;
}

// Every game a person can set up, from any state between games. The world
// menu toggles, so the Mini size first brings the board back to Flatland;
// Bubbleland is then one toggle away at the normal size.
std::vector<Setup> allSetups() {
  std::vector<Setup> setups;
  for (int players : {0, 1}) {
    for (int game : kGames) {
      for (int size = 1; size <= kNormalSize; ++size) {
        for (bool bubbleland : {false, true}) {
          if (bubbleland && size != kNormalSize) continue;
          Setup setup{setupName(bubbleland, size, game), {{"szmen", 1}, {"szmen", size}}};
          if (bubbleland) setup.clicks.push_back({"ver", 2});
          setup.clicks.insert(setup.clicks.end(), {{"game", game}, {"ip", players}});
          setups.push_back(setup);
        }
      }
    }
  }
  return setups;
}

bool drawnIn(const Element& line, int colour) {
  return line.BorderWidth == kMarkedWidth && line.BorderColor == colour;
}

struct BoardCount {
  int blue = 0;    // cells on the board whose three lines are drawn Blue
  int red = 0;     // ... Red
  int closed = 0;  // cells whose three sides are marked
  // A circle taken whose cell is not yet judged: the computer's random
  // reply, which the next move's judging counts.
  bool uncounted = false;
};

BoardCount countBoard(Form& form) {
  static const CellBoard board = cellBoard(start());
  ElementArray& lines = *form.findArray("ln1");
  ElementArray& circles = *form.findArray("Shape1");
  ElementArray& targets = *form.findArray("Label2");
  BoardCount count;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (!circles[cell].Visible) continue;
    int blue = 0, red = 0, marked = 0;
    for (int line : board.sides(cell)) {
      blue += drawnIn(lines[line], color::Blue) ? 1 : 0;
      red += drawnIn(lines[line], color::Red) ? 1 : 0;
      marked += numberOf(form, "lineowner", {line}) != 0 ? 1 : 0;
    }
    count.blue += blue == 3 ? 1 : 0;
    count.red += red == 3 ? 1 : 0;
    count.closed += marked == 3 ? 1 : 0;
    count.uncounted |= targets[cell].Visible && numberOf(form, "celltaken", {cell}) != 0;
  }
  return count;
}

bool onLines(Form& form) {
  return playedOnLines(static_cast<int>(numberOf(form, "gameindex")));
}

std::pair<int, int> points(Form& form) {
  return {static_cast<int>(Val(elementOf(form, {"Label5", 0}).Caption)),
          static_cast<int>(Val(elementOf(form, {"Label6", {}}).Caption))};
}

// Circle games: each side has the cells whose three lines are all its colour.
// Ombrel: the two add up to the cells with three marked sides.
std::optional<std::string> scoresDisagree(Form& form) {
  BoardCount count = countBoard(form);
  auto [blue, red] = points(form);
  bool lines = onLines(form);
  if (!lines && count.uncounted) return std::nullopt;
  if (lines ? blue + red == count.closed : blue == count.blue && red == count.red) {
    return std::nullopt;
  }
  return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
         ", the board " +
         (lines ? std::to_string(count.closed) + " closed cells"
                : std::to_string(count.blue) + " and " + std::to_string(count.red));
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "Triang";
  d.setups = allSetups();
  d.bench = benchSeries();
  d.newGame = {"gmc", {}};
  d.kinds = {{"Label1", kLineTaken}, {"Label2", kCircleTaken}};
  d.kindInPlay = [](Form& form) { return onLines(form) ? 0U : 1U; };
  d.taken = [](Form& form, size_t kind, int n) {
    return numberOf(form, kind == 0 ? "lineowner" : "celltaken", {n}) != 0;
  };
  d.finished = [](Form& form) { return numberOf(form, "gameover") == 1; };
  d.points = points;
  d.scoresDisagree = scoresDisagree;
  return d;
}

}  // namespace vrask::triangular
