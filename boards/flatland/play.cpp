#include "boards/flatland/play.h"

#include <array>
#include <string>

#include "boards/flatland/Form1large.h"
#include "boards/flatland/tables.h"
#include "frame/cell_board.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::flatland {

namespace {

constexpr std::array<const char*, 6> kSeriesNames{
    "Ombrel", "Dorvel", "Vrask", "Super Vrask", "Super Vrask Plus", "Ribbon Vrask"};

std::string seriesName(bool bubbleland, int size, int mode) {
  return std::string(bubbleland ? "Bubbleland " : "Flatland ") + std::to_string(size) + " " +
         kSeriesNames.at(static_cast<size_t>(mode));
}

// The bench's series, from a board just opened: every mode the computer
// plays, at the smallest and largest size of Flatland and in Bubbleland (9
// only); Ribbon Vrask is offered only on the 9 by 9 Flatland board.
std::vector<Setup> benchSeries() {
  std::vector<Setup> series;
  auto add = [&](bool bubbleland, int size, int mode) {
    Setup setup{seriesName(bubbleland, size, mode), {}};
    if (bubbleland) setup.clicks.push_back({"ver", 2});
    setup.clicks.insert(setup.clicks.end(), {{"sizsq", size}, {"game", mode}, {"ip", 0}});
    series.push_back(setup);
  };
  for (int mode : {Ombrel, Vrask, SuperVrask, SuperVraskPlus}) add(false, 5, mode);
  for (int mode : {Ombrel, Vrask, SuperVrask, SuperVraskPlus, Ribbon}) add(false, 9, mode);
  for (int mode : {Ombrel, Vrask, SuperVrask, SuperVraskPlus}) add(true, 9, mode);
  return series;
}

// Every game a person can set up, from any state between games. The world
// menu toggles, so a size below 9 first brings the board back to Flatland;
// Bubbleland is then one toggle away.
std::vector<Setup> allSetups() {
  std::vector<Setup> setups;
  for (int players : {0, 1}) {
    for (int mode : {Ombrel, Vrask, SuperVrask, SuperVraskPlus, Ribbon}) {
      for (int size = kSmallestSize; size <= kSide; ++size) {
        for (bool bubbleland : {false, true}) {
          if ((mode == Ribbon || bubbleland) && size != kSide) continue;
          if (mode == Ribbon && bubbleland) continue;
          Setup setup{seriesName(bubbleland, size, mode), {{"sizsq", kSmallestSize}}};
          setup.clicks.push_back({"sizsq", size});
          if (bubbleland) setup.clicks.push_back({"ver", 2});
          setup.clicks.insert(setup.clicks.end(), {{"game", mode}, {"ip", players}});
          setups.push_back(setup);
        }
      }
    }
  }
  return setups;
}

bool marked(const Element& line, int colour) {
  return line.BorderWidth == kMarkedWidth && line.BorderColor == colour;
}

struct BoardCount {
  int blue = 0;    // squares whose four lines are marked Blue
  int red = 0;     // ... Red
  int closed = 0;  // squares whose four lines have an owner
};

BoardCount countBoard(Form& form) {
  static const CellBoard board = cellBoard(start());
  ElementArray& lines = *form.findArray("ln1");
  ElementArray& circles = *form.findArray("Shape1");
  BoardCount count;
  for (int s = 1; s <= kSquares; ++s) {
    if (!circles[s].Visible) continue;
    int blueSides = 0;
    int redSides = 0;
    int owned = 0;
    for (int line : board.sides(s)) {
      blueSides += marked(lines[line], color::Blue) ? 1 : 0;
      redSides += marked(lines[line], color::Red) ? 1 : 0;
      owned += numberOf(form, "lineown", {line}) != 0 ? 1 : 0;
    }
    count.blue += blueSides == 4 ? 1 : 0;
    count.red += redSides == 4 ? 1 : 0;
    count.closed += owned == 4 ? 1 : 0;
  }
  return count;
}

bool vraskGame(Form& form) {
  return isVraskMode(static_cast<int>(numberOf(form, "gamemode")));
}

// Right after the black move the labels read 0, while the status reads
// "Vrask!" and the round list has the board's count.
bool afterVraskMove(Form& form) {
  return vraskGame(form) && elementOf(form, {"Label33", {}}).Caption == "Vrask!";
}

std::pair<int, int> points(Form& form) {
  if (!afterVraskMove(form)) return shownPoints(form);
  BoardCount count = countBoard(form);
  return {count.blue, count.red};
}

// Vrask games: each side has the squares whose four marked lines are all its
// colour. Line games: the two add up to the squares with four owned sides.
std::optional<std::string> scoresDisagree(Form& form) {
  if (afterVraskMove(form)) return std::nullopt;
  BoardCount count = countBoard(form);
  auto [blue, red] = shownPoints(form);
  bool vrask = vraskGame(form);
  if (vrask ? blue == count.blue && red == count.red : blue + red == count.closed) {
    return std::nullopt;
  }
  return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
         ", the board " +
         (vrask ? std::to_string(count.blue) + " and " + std::to_string(count.red)
                : std::to_string(count.closed) + " closed squares");
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "Form1large";
  d.setups = allSetups();
  d.bench = benchSeries();
  d.newGame = {"gmc", {}};
  d.kinds = {{"Label1", "Invalid move!"}, {"Label2", "Invalid move"}};
  d.kindInPlay = [](Form& form) {
    return static_cast<int>(numberOf(form, "gamemode")) == Ombrel ? 0U : 1U;
  };
  d.taken = [](Form& form, size_t kind, int n) {
    return numberOf(form, kind == 0 ? "lineown" : "sqdone", {n}) != 0;
  };
  d.finished = [](Form& form) { return numberOf(form, "gameover") == 1; };
  d.points = points;
  d.scoresDisagree = scoresDisagree;
  d.expertMove = [](Form& form) { return dynamic_cast<Form1large&>(form).expertMove(); };
  return d;
}

}  // namespace vrask::flatland
