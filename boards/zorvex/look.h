// How the cube board marks its state besides Blue, Red, Black and yellow.
#pragma once

namespace vrask::cube {

// Who moved, as `moverid` and the line tables of Ombrel keep it.
inline constexpr int kRedId = 1;
inline constexpr int kBlueId = 2;

// A painted line is drawn 5 wide, a free one 1.
inline constexpr int kPainted = 5;
inline constexpr int kFree = 1;
// A played ring is drawn 8 wide.
inline constexpr int kPlayedRing = 8;

// The status text of "No score" when Red moves next.
inline constexpr int kRedText = 16576;
// The ring of a square that filled up without scoring.
inline constexpr int kDead = 16711935;

// A mid grey behind the cube: the eight cube colours, white and black
// included, and the numbers drawn in them all stand out on it.
inline constexpr int kBoardColour = 0x989898;
// A pale blue for the side columns.
inline constexpr int kPanelColour = 0xF0E4D8;
inline constexpr int kNumberColour = 65535;

}  // namespace vrask::cube
