// The triangular board's own texts, to the character (frame/captions.h holds
// those it shares).
#pragma once

#include <array>
#include <string>

#include "frame/captions.h"

namespace vrask::triangular {

// A line or a circle already played: the two refusals differ by the
// exclamation mark.
inline constexpr const char* kLineTaken = "Invalid move!";
inline constexpr const char* kCircleTaken = "Invalid move";
inline constexpr const char* kBluesTurn = "Blue player's turn";
inline constexpr const char* kRedsTurn = "Red player's turn";
inline constexpr const char* kDoubleScore = "  Double score!      Two cool!";

inline std::string scoredAgain(const std::string& player) {
  return " Score!      " + player + " goes again.";
}
inline std::string noScore(const std::string& player) {
  return "No score    " + player + "'s turn.";
}

// The games menu, slot by slot; slot 5 is a separator.
inline constexpr std::array<const char*, 7> kGameCaptions{
    "Ombrel", "Dorvel", "Vrask", "Super Vrask", "Super Vrask Plus", "-", "Line Vrask"};

inline std::string gameLabel(int game) {
  return std::string("Game = ") + kGameCaptions.at(static_cast<size_t>(game));
}

// The size menu and the size buttons, by size 1..3.
inline constexpr std::array<const char*, 4> kSizeCaptions{"", "Mini Size", "Smaller size",
                                                          "Normal size"};

}  // namespace vrask::triangular
