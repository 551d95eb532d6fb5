// The texts the HyperCube board shows, to the character.
#pragma once

#include <array>
#include <string>

namespace vrask::hypercube {

// The entries of the games menu `gm`: the caption, and what `Label36` shows
// once the game is chosen. The separators (3, 7, 10, 14) have no caption.
struct GameEntry {
  int index;
  const char* caption;
  const char* name;
};
inline constexpr std::array<GameEntry, 12> kGames{{
    {0, "Ombrel", "Game = Ombrel"},
    {1, "Dorvel (2 Player only)", "Game = Dorvel"},
    {2, "Zorvex  (Lines)", "Game = Zorvex (Lines)"},
    {4, "Vrask  (Classic)", "Game = Vrask (Classic)"},
    {5, "Vrask  (Set count)", "Game = Vrask (Set count)"},
    {6, "Vrask  (Set count with Vrask move)", "Game = Vrask (Set count with Vrask move)"},
    {8, "Line Vrask  (with edge stacked HyperCubes - Easier)", "Game = Line Vrask"},
    {9, "Zorvex  (Squares)", "Game = Zorvex (Squares)"},
    {11, "Super Vrask Plus  (Classic)", "Game = Super Vrask Plus (Classic)"},
    {12, "Super Vrask Plus  (Set count)", "Game = Super Vrask Plus (Set count)"},
    {13, "Super Vrask Plus  (Set count with Vrask move)",
     "Game = Super Vrask Plus (Set count with Vrask move)"},
    {15, "Bonus game - Line Vrask (with Vrask move)", "Game = Line Vrask (with Vrask move)"},
}};

inline constexpr const char* kClickALine = "Click a line to begin playing";
inline constexpr const char* kClickACircle = "Click a circle to begin playing";
inline constexpr const char* kInvalidMove = "Invalid move!";
inline constexpr const char* kDorvelRefused =
    "   Dorvel is a two playergm only. Set number of players to two, then set to Dorvel.";
inline constexpr const char* kOmbrelHintOnly = "This hint is for the Ombrel game only.";
inline constexpr const char* kNoGoodMoves = "No good moves left";
inline constexpr const char* kNoSafeLinesLeft = "No non-scoring moves left";
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";
inline constexpr const char* kBluesTurn = "Blue player's turn";
inline constexpr const char* kRedsTurn = "Red player's turn";
inline constexpr const char* kYourTurn = "Your turn";
inline constexpr const char* kFirstTimeHint =
    "If you are not familiar with this level and are confused, turn on the grid on the top menu "
    "bar to see possible moves";

// What `Label33` says after a line, by how many squares it finished (2..4).
inline constexpr std::array<const char*, 5> kManyScores{"", "", "  Double score!      Two cool!",
                                                        "  Triple score!      Wow!",
                                                        "  Quadruple score!    Amazing!"};

inline std::string movesLeft(int n) {
  return std::to_string(n) + " moves left";
}
inline std::string safeMovesLeft(int n) {
  return std::to_string(n) + " non-scoring moves left";
}

}  // namespace vrask::hypercube
