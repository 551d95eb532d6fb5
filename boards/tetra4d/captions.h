// The texts the 4D triangular board shows, to the character.
#pragma once

#include <string>

namespace vrask::tetra4d {

inline constexpr const char* kClickALine = "Click a line to begin playing";
inline constexpr const char* kClickACircle = "Click a circle to begin playing";
inline constexpr const char* kBlueTurn = "Blue player's turn";
inline constexpr const char* kRedTurn = "Red player's turn";
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";
inline constexpr const char* kInvalidMove = "Invalid move!";
inline constexpr const char* kOmbrelOnly = "This hint is for the Ombrel game only.";
inline constexpr const char* kNoGoodMoves = "No good moves left";
inline constexpr const char* kNoSafeLines = "No non-scoring moves left";
inline constexpr const char* kDualCubeNote =
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
