#include "boards/hypercube/play.h"

#include <algorithm>
#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/layout.h"
#include "boards/hypercube/look.h"
#include "boards/hypercube/tables.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::hypercube {

namespace {

// The games the computer plays: all but Dorvel, which is for two.
constexpr std::array<int, 11> kComputerGames{0, 2, 4, 5, 6, 8, 9, 11, 12, 13, 15};

bool isSquareGame(int gamenum) {
  return gamenum >= 4 && gamenum != 8 && gamenum != 15;
}

int gameNumber(Form& form) {
  return static_cast<int>(numberOf(form, "gamenum"));
}

// The players' entries swap at each click, so a setup either leaves them as
// they are or swaps them. Dorvel is refused while one player is ticked, and
// the game that was chosen goes on.
std::vector<Setup> allSetups() {
  std::vector<Setup> setups;
  for (const GameEntry& game : kGames) {
    setups.push_back({game.title.entry, {{"gm", game.index}}});
    setups.push_back(
        {std::string(game.title.entry) + ", players swapped", {{"pl", 1}, {"gm", game.index}}});
  }
  return setups;
}

// From a board just opened, one player ticked.
std::vector<Setup> benchSeries() {
  std::vector<Setup> series;
  for (const GameEntry& game : kGames) {
    for (int index : kComputerGames) {
      if (index == game.index) series.push_back({game.title.entry, {{"gm", game.index}}});
    }
  }
  return series;
}

// The drawn line of a slot: its segment in the first picture that shows it.
const Element& drawnLine(Form& form, int slot) {
  int index = indexOf(slot);
  ElementArray& segments = *form.findArray(segmentArrayName(index));
  return segments[isConnector(index) ? 0 : 10 * (index / kEdges)];
}

struct BoardCount {
  int blue = 0;    // squares whose four lines are drawn Blue
  int red = 0;     // ... Red, or the computer's dark red in the line games
  int closed = 0;  // squares whose four lines are painted
};

BoardCount countBoard(Form& form) {
  static const SideTable sqln = startr();
  bool lineGame = gameNumber(form) <= 2;
  BoardCount count;
  for (int s = 1; s <= kSquares; ++s) {
    int blue = 0;
    int red = 0;
    int painted = 0;
    for (int k = 1; k <= 4; ++k) {
      const Element& line = drawnLine(form, sqln.at(s).at(k));
      bool isPainted = line.BorderWidth == kPainted;
      painted += isPainted ? 1 : 0;
      blue += isPainted && line.BorderColor == color::Blue ? 1 : 0;
      red += isPainted &&
                     (line.BorderColor == color::Red || (lineGame && line.BorderColor == kDarkRed))
                 ? 1
                 : 0;
    }
    count.blue += blue == 4 ? 1 : 0;
    count.red += red == 4 ? 1 : 0;
    count.closed += painted == 4 ? 1 : 0;
  }
  return count;
}

std::pair<int, int> points(Form& form) {
  return {static_cast<int>(Val(elementOf(form, {"Label5", {}}).Caption)),
          static_cast<int>(Val(elementOf(form, {"Label6", {}}).Caption))};
}

// Ombrel and Zorvex Lines: the points add up to the squares painted all
// round. Every other game: each side has the squares drawn all in its
// colour (in Dorvel, the squares a player closed with four lines of his own).
std::optional<std::string> scoresDisagree(Form& form) {
  BoardCount count = countBoard(form);
  auto [blue, red] = points(form);
  int game = gameNumber(form);
  bool sum = game == 0 || game == 2;
  if (sum ? blue + red == count.closed : blue == count.blue && red == count.red) {
    return std::nullopt;
  }
  return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
         ", the board " +
         (sum ? std::to_string(count.closed) + " closed squares"
              : std::to_string(count.blue) + " and " + std::to_string(count.red));
}

// A line's hit area is its index, its second one ten times that; the
// indexes between them stand for no line, and their numbers for none either.
int lineOfTarget(int n) {
  bool second = std::find(layout::kSecondHitAreas.begin(), layout::kSecondHitAreas.end(), n) !=
                layout::kSecondHitAreas.end();
  return second ? n / 10 : n;
}

}  // namespace

PlayDescriptor play() {
  return {
      .form = "form5d2",
      .setups = allSetups(),
      .bench = benchSeries(),
      .newGame = {"gmm", 1},
      .kinds = {{"Label1", kInvalidMove, [](int n) { return lineOfTarget(n) + 1; }},
                {"Label11", kInvalidMove}},
      .kindInPlay = [](Form& form) { return isSquareGame(gameNumber(form)) ? 1U : 0U; },
      // Once a round is over nothing is left to play, though the square games
      // free their squares then.
      .taken =
          [](Form& form, size_t kind, int n) {
            if (numberOf(form, "overflag") == 1) return true;
            int line = lineOfTarget(n);
            if (kind == 0 && line >= kLines) return false;
            return kind == 0 ? numberOf(form, "lnown", {slotOf(line)}) != 0
                             : numberOf(form, "sqtaken", {n}) != 0;
          },
      .finished = [](Form& form) { return numberOf(form, "overflag") == 1; },
      .points = points,
      .scoresDisagree = scoresDisagree,
      .expertMove = [](Form& form) { return dynamic_cast<form5d2&>(form).expertMove(); },
      .noExpertMove = form5d2::kNoExpertMove,
      .enterButton = "Command3",
      .keypadOpener = {"Command4", std::nullopt},
  };
}

}  // namespace vrask::hypercube
