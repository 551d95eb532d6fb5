// The texts the 4D triangular board shows, to the character.
#pragma once

#include <string>
#include <string_view>

namespace vrask::tetra4d {

// The status line.
inline constexpr std::string_view kBlueTurn = "Blue player's turn";
inline constexpr std::string_view kClickALine = "Click a line to begin playing";
inline constexpr std::string_view kRedTurn = "Red player's turn";
inline constexpr std::string_view kClickACircle = "Click a circle to begin playing";
inline constexpr std::string_view kVraskMove = "Vrask!";

inline constexpr std::string_view kLastMove = "Last move: ";
inline constexpr std::string_view kInvalidMove = "Invalid move!";
inline constexpr std::string_view kOmbrelOnly = "This hint is for the Ombrel game only.";
inline constexpr std::string_view kNoGoodMoves = "No good moves left";
inline constexpr std::string_view kNoSafeLines = "No non-scoring moves left";
inline constexpr std::string_view kDualCubeNote =
    "If you are not familiar with this level and are confused, turn on the grid on to see "
    "possible moves - Inside the middle cube is the common outside of both the left and the "
    "right cubes";

inline std::string movesLeft(int n) {
  return n == 1 ? "1 move left" : std::to_string(n) + " moves left";
}

inline std::string safeLinesLeft(int n) {
  return std::to_string(n) + " non-scoring moves left";
}

}  // namespace vrask::tetra4d
