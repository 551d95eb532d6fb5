// The texts the cube board shows, to the character.
#pragma once

#include <string>

namespace vrask::cube {

inline constexpr const char* kWindowTitle =
    "Vrask Zorvex 2014 in 3D  -  Zorvex Ultra Squared and Ultra Vrasked";
// How this board names itself among the other games of its own menu.
inline constexpr const char* kOwnEntry = "3D - Zorvex Ultra Squared and Vrasked";

inline constexpr const char* kPleaseWait = "Please wait...";
// Picking a game says "begin"; New says "start".
inline constexpr const char* kPickedLineGame = "Click a line to begin playing";
inline constexpr const char* kPickedCircleGame = "Click a circle to begin playing";
inline constexpr const char* kNewLineGame = "Click a line to start playing";
inline constexpr const char* kNewCircleGame = "Click a circle to start playing";
inline constexpr const char* kRedsTurn = "Red player's turn";
inline constexpr const char* kBluesTurn = "Blue player's turn";
inline constexpr const char* kRedsLineTurn = "Red's turn - Click a line";
inline constexpr const char* kBluesLineTurn = "Blue's turn - Click a line";
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";
inline constexpr const char* kInvalidLine = "   Invalid move!";
inline constexpr const char* kInvalidCircle = "Invalid move!";
inline constexpr const char* kNoGoodMoves = "No good moves left";
inline constexpr const char* kOmbrelOnly = "This hint is for the Ombrel game only.";
inline constexpr const char* kNoNonScoring = "No non-scoring moves left";

inline constexpr const char* kHintCaption =
    "(Ombrel game only)  Hint when no good (non-scoring) moves are left (computer's turn)";
inline constexpr const char* kSuperHintCaption =
    "(Ombrel game only)  Super Hint: How many non-scoring moves left (your turn)";
inline constexpr const char* kBestHintCaption =
    "(Ombrel game only)  Best Hint: Tell you what non-scoring moves are left";

inline std::string movesLeft(int n) {
  return std::to_string(n) + " moves left";
}
inline std::string nonScoringLeft(int n) {
  return std::to_string(n) + " non-scoring moves left";
}

// The entry of each game mode in the games menu and the name `Label36`
// shows; modes with no game behind them have no name.
struct ModeText {
  int mode;
  const char* entry;
  const char* name;
};
inline constexpr ModeText kModeTexts[] = {
    {1, "&Ombrel", "Game = Ombrel (Original)"},
    {2, "&Zorvex  (Lines)", "Game = Zorvex (Lines)"},
    {3, "Zorvex  (Squares)", "Game = Zorvex (Squares)"},
    {4, "Vrask  (Classic)", ""},
    {5, "Vrask  (Set count)", ""},
    {7, "Line Vrask", "Game = Line Vrask"},
    {8, "Vrask  (Classic)", "Game = Vrask (Classic)"},
    {9, "Vrask  (Set count)", "Game = Vrask (Set count)"},
    {11, "Super Vrask Plus  (Classic)", "Game = Super Vrask Plus (Classic)"},
    {12, "Super Vrask Plus  (Set count)", "Game = Super Vrask Plus (Set count)"},
    {14, "Vrask  (Set count with Vrask move)", "Game = Vrask (Set count with Vrask move)"},
    {15, "Super Vrask Plus  (Set count with Vrask move)",
     "Game = Super Vrask Plus (Set count with Vrask move)"},
    {17, "Bonus game - Line Vrask with Vrask Move", "Game = Line Vrask (with Vrask move)"},
};

inline const ModeText& modeText(int mode) {
  for (const ModeText& text : kModeTexts) {
    if (text.mode == mode) return text;
  }
  return kModeTexts[0];
}

}  // namespace vrask::cube
