// How the wall board marks its state: the width of a drawn line and of a
// played circle, and the board's own colours besides Blue, Red, Black and
// yellow.
#pragma once

namespace vrask::wall {

// A drawn line and a played circle are 8 wide; free ones 1.
inline constexpr int kDrawn = 8;
inline constexpr int kFree = 1;

// A square that left the game in Classic without being played.
inline constexpr int kDead = 16711935;  // magenta
// `squaretaken` of a dead square.
inline constexpr int kDeadMark = 2;
// The level button of the wall shown.
inline constexpr int kLevelChosen = 16777088;

}  // namespace vrask::wall
