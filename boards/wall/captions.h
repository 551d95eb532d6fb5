// The texts the wall board shows, to the character.
#pragma once

#include <array>
#include <string>

#include "frame/captions.h"

namespace vrask::wall {

// The players menu: "3 Players" and "2 Players versus the computer" are
// not offered.
inline constexpr std::array<const char*, 4> kPlayerCaptions{
    "1 player verus the computer", "2 Players", "3 Players", "2 Players versus the computer"};

// The list of games has eleven slots; those without a caption here are
// separators. Only the four games of `kGameCodes` are shown.
inline constexpr std::array<const char*, 11> kGameCaptions{"&Ombrel",
                                                           "&Dorvel",
                                                           "&Zorvex",
                                                           "-",
                                                           "Vrask  (Classic)",
                                                           "Vrask  (Set count)",
                                                           "-",
                                                           "Super Vrask Plus  (Classic)",
                                                           "Super Vrask Plus  (Set count)",
                                                           "-",
                                                           "Zorvex (Squares)"};

// What `Label36` says of each game shown, by `gamecode`.
inline std::string gameLabel(int gamecode) {
  switch (gamecode) {
    case 4:
      return "Game = Vrask (Classic)";
    case 5:
      return "Game = Vrask (Set count)";
    case 7:
      return "Game = Super Vrask Plus (Classic)";
    default:
      return "Game = Super Vrask Plus (Set count)";
  }
}

// The levels `bd(1..3)` in the menu, and on the buttons `Label13(1..3)` the
// cubes a side.
inline constexpr std::array<const char*, 3> kLevelCaptions{"Vrask The Wall", "Vrask a Bigger Wall",
                                                           "Vrask the Great Wall"};

// The status line, the last move, the one refusal and the count are the
// frame's (frame/captions.h); the heading of the count is the wall's own.
inline constexpr const char* kMovesLeftHeading = "Moves left:";

}  // namespace vrask::wall
