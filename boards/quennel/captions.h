// The texts the tetrahedron board shows, to the character.
#pragma once

#include <array>
#include <string>

namespace vrask::quennel {

// The status after a line move, by the faces it closed (1 to 4) and the
// player who scored; none: whose turn it is.
inline std::string scoreText(int faces, const std::string& player) {
  switch (faces) {
    case 1:
      return " Score!      " + player + " goes again.";
    case 2:
      return "  Double score!      Two cool!";
    case 3:
      return "  Triple score!      Awesome!";
    default:
      return " Quadruple score!   Killer move!";
  }
}
inline std::string noScoreText(const std::string& player) {
  return "No score    " + player + "'s turn.";
}

inline std::string viewText(int viewnum) {
  return "View " + std::to_string(viewnum);
}

// Prompts, messages and menu texts.
inline constexpr const char* kLastMove = "Last move: ";
inline constexpr const char* kLinePrompt = "Click on or type a line number";
inline constexpr const char* kLineStart = "Click on two connected circles to play";
inline constexpr const char* kFaceChosen = "Click a circle to begin playing";
inline constexpr const char* kFaceStart = "Click a circle to start playing";
inline constexpr const char* kIntroDone = "Click Games Menu or New Game";
inline constexpr const char* kRedTurn = "Red player's turn";
inline constexpr const char* kBlueTurn = "Blue player's turn";
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLineTaken = "   Invalid move!";
inline constexpr const char* kFaceTaken = "Invalid move!";
// The two sizes, by their menu index.
inline constexpr std::array<const char*, 3> kSizeNames{
    "", "Normal original-sized Quennel  (20 grids)", "New mirror-sized Quennel  (36 grids)"};
inline constexpr const char* kHideMoves = "Hide non-scoring made moves in Vrask games";
inline constexpr const char* kPyramidsTitle = "Well?";
inline constexpr const char* kPyramids =
    "   There are pyramids in the center of the Tetrahedron. How many are there?";

}  // namespace vrask::quennel
