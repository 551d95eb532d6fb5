// The HyperCube board's own texts, to the character (frame/captions.h holds
// those it shares).
#pragma once

#include <array>
#include <string>

#include "frame/captions.h"

namespace vrask::hypercube {

// The entries of the games menu `gm` and what `Label36` shows once the game
// is chosen. The separators (3, 7, 10, 14) have no caption.
inline constexpr std::array<GameEntry, 12> kGames{{
    {0, {"Ombrel", "Game = Ombrel"}},
    {1, {"Dorvel (2 Player only)", "Game = Dorvel"}},
    {2, {"Zorvex  (Lines)", "Game = Zorvex (Lines)"}},
    {4, kVraskClassicTitle},
    {5, kVraskSetCountTitle},
    {6, kVraskMoveTitle},
    {8, {"Line Vrask  (with edge stacked HyperCubes - Easier)", "Game = Line Vrask"}},
    {9, kZorvexSquaresTitle},
    {11, kSuperClassicTitle},
    {12, kSuperSetCountTitle},
    {13, kSuperVraskMoveTitle},
    {15, {"Bonus game - Line Vrask (with Vrask move)", "Game = Line Vrask (with Vrask move)"}},
}};

inline constexpr const char* kDorvelRefused =
    "   Dorvel is a two playergm only. Set number of players to two, then set to Dorvel.";
inline constexpr const char* kYourTurn = "Your turn";
inline constexpr const char* kFirstTimeHint =
    "If you are not familiar with this level and are confused, turn on the grid on the top menu "
    "bar to see possible moves";

// What `Label33` says after a line, by how many squares it finished (2..4).
inline constexpr std::array<const char*, 5> kManyScores{"", "", "  Double score!      Two cool!",
                                                        "  Triple score!      Wow!",
                                                        "  Quadruple score!    Amazing!"};

}  // namespace vrask::hypercube
