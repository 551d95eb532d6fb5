// The texts that more than one board shows, to the character.
#pragma once

#include <string>

namespace vrask {

inline constexpr const char* kClickALine = "Click a line to begin playing";
inline constexpr const char* kClickACircle = "Click a circle to begin playing";
// The program's own move on the last circle.
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";

inline std::string movesLeft(int n) {
  return std::to_string(n) + " moves left";
}

}  // namespace vrask
