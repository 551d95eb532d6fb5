// The cube board's own texts, to the character (frame/captions.h holds those
// it shares).
#pragma once

#include <array>
#include <string>

#include "frame/captions.h"

namespace vrask::cube {

inline constexpr const char* kWindowTitle =
    "Vrask Zorvex 2014 in 3D  -  Zorvex Ultra Squared and Ultra Vrasked";
// How this board names itself among the other games of its own menu.
inline constexpr const char* kOwnEntry = "3D - Zorvex Ultra Squared and Vrasked";

inline constexpr const char* kPleaseWait = "Please wait...";
// Picking a game says "begin" (the shared words); New says "start".
inline constexpr const char* kNewLineGame = "Click a line to start playing";
inline constexpr const char* kNewCircleGame = "Click a circle to start playing";
inline constexpr const char* kRedsLineTurn = "Red's turn - Click a line";
inline constexpr const char* kBluesLineTurn = "Blue's turn - Click a line";
inline constexpr const char* kInvalidLine = "   Invalid move!";

inline constexpr const char* kHintCaption =
    "(Ombrel game only)  Hint when no good (non-scoring) moves are left (computer's turn)";
inline constexpr const char* kSuperHintCaption =
    "(Ombrel game only)  Super Hint: How many non-scoring moves left (your turn)";
inline constexpr const char* kBestHintCaption =
    "(Ombrel game only)  Best Hint: Tell you what non-scoring moves are left";

// The entry of each game mode in the games menu and the name `Label36`
// shows; modes with no game behind them have no name.
inline constexpr std::array<GameEntry, 13> kModeTexts{{
    {1, {"&Ombrel", "Game = Ombrel (Original)"}},
    {2, {"&Zorvex  (Lines)", "Game = Zorvex (Lines)"}},
    {3, kZorvexSquaresTitle},
    {4, {"Vrask  (Classic)", ""}},
    {5, {"Vrask  (Set count)", ""}},
    {7, {"Line Vrask", "Game = Line Vrask"}},
    {8, kVraskClassicTitle},
    {9, kVraskSetCountTitle},
    {11, kSuperClassicTitle},
    {12, kSuperSetCountTitle},
    {14, kVraskMoveTitle},
    {15, kSuperVraskMoveTitle},
    {17, {"Bonus game - Line Vrask with Vrask Move", "Game = Line Vrask (with Vrask move)"}},
}};

inline const GameTitle& modeText(int mode) {
  const GameTitle* title = titleOf(kModeTexts, mode);
  return title != nullptr ? *title : kModeTexts[0].title;
}

}  // namespace vrask::cube
