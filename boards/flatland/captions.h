// The texts the square board shows, to the character.
#pragma once

#include <array>
#include <string>

namespace vrask::flatland {

inline constexpr const char* kClickALine = "Click a line to begin playing";
inline constexpr const char* kClickACircle = "Click a circle to begin playing";
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";

// The bare name of each game mode, as New shows it; a chosen mode shows it
// after "Game = ".
inline constexpr std::array<const char*, 6> kGameNames{
    "Ombrel", "Dorvel", "Vrask", "Super Vrask", "Super Vrask Plus", "Ribbon Vrask"};

inline std::string movesLeft(int n) {
  return std::to_string(n) + " moves left";
}

}  // namespace vrask::flatland
