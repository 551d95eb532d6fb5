#include "boards/tetra4d/play.h"

#include <array>
#include <string>

#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/rules.h"
#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask::tetra4d {

namespace {

constexpr std::array<const char*, 8> kGameNames{"",
                                                "Ombrel",
                                                "",
                                                "Vrask (Classic)",
                                                "Vrask (Set count)",
                                                "",
                                                "Vrask (Classic with Vrask move)",
                                                "Vrask (Set count with Vrask move)"};

// The clicks that set a game up between games: the players, the game, the
// level (the circle games have the single cube only), and the grid, whose
// numbers are the line game's targets. Choosing a game turns the grid off, so
// one click turns it on.
Setup setupOf(int players, int game, int level) {
  Setup setup{std::string(level == kDualCube ? "Dual Cube " : "Single Cube ") +
                  kGameNames.at(static_cast<size_t>(game)),
              {{"pl", players}, {"game", game}}};
  if (game == kOmbrel) setup.clicks.push_back({"lvm", level});
  setup.clicks.push_back({"shgrid", std::nullopt});
  return setup;
}

std::vector<Setup> setupsFor(std::initializer_list<int> players) {
  std::vector<Setup> setups;
  for (int p : players) {
    for (int level : {kSingleCube, kDualCube}) setups.push_back(setupOf(p, kOmbrel, level));
    for (int game : {kClassic, kSetCount, kClassicVraskMove, kSetCountVraskMove}) {
      setups.push_back(setupOf(p, game, kSingleCube));
    }
  }
  return setups;
}

bool lineGame(Form& form) {
  return static_cast<int>(numberOf(form, "gamenum")) == kOmbrel;
}

// The line game: the points add up to the triangles with three sides. The
// circle games: each side has the triangles whose three sides are its own.
std::optional<std::string> scoresDisagree(Form& form) {
  int full = 0;
  std::array<int, 3> owned{};
  for (int t = 1; t <= kTriangles; ++t) {
    std::array<int, 3> sides{};
    for (int s = 1; s <= 3; ++s) {
      sides.at(static_cast<size_t>(s - 1)) = static_cast<int>(numberOf(form, "triside", {t, s}));
    }
    full += sides[0] != 0 && sides[1] != 0 && sides[2] != 0 ? 1 : 0;
    if (sides[0] == sides[1] && sides[1] == sides[2]) ++owned.at(static_cast<size_t>(sides[0]));
  }
  auto [blue, red] = shownPoints(form);
  bool agree = lineGame(form) ? blue + red == full : blue == owned[kBlue] && red == owned[kRed];
  if (agree) return std::nullopt;
  return "the labels read " + std::to_string(blue) + " and " + std::to_string(red) +
         ", the board " +
         (lineGame(form) ? std::to_string(full) + " finished triangles"
                         : std::to_string(owned[kBlue]) + " and " + std::to_string(owned[kRed]));
}

}  // namespace

PlayDescriptor play() {
  PlayDescriptor d;
  d.form = "form5d";
  d.setups = setupsFor({1, 2});
  d.bench = setupsFor({1});
  d.newGame = {"gmm", 1};
  // The triangles count from 0 and are typed from 1.
  d.kinds = {{"Label9", "Invalid move!"},
             {"Label99", "Invalid move!", [](int n) { return n + 1; }}};
  d.kindInPlay = [](Form& form) { return lineGame(form) ? 0U : 1U; };
  d.taken = [](Form& form, size_t kind, int n) {
    if (kind == 0) return static_cast<int>(numberOf(form, "lnstate", {slotOfNumber(n)})) != kFree;
    return elementOf(form, {"Shape1", n}).BorderWidth != 1;
  };
  d.finished = [](Form& form) { return numberOf(form, "overflag") == 1; };
  // Circle t is `Label99(t - 1)`.
  d.points = shownPoints;
  d.scoresDisagree = scoresDisagree;
  d.expertMove = [](Form& form) { return dynamic_cast<form5d&>(form).expertMove(); };
  d.enterButton = "Command4";
  return d;
}

}  // namespace vrask::tetra4d
