// How the 4D triangular board marks its state.
#pragma once

namespace vrask::tetra4d {

// Red shows a little darker on this board.
inline constexpr int kRedColour = 192;
inline constexpr int kBlueColour = 16711680;
// A played line is drawn 4 wide, a free one 1; a played circle's ring 8.
inline constexpr int kPlayedWidth = 4;
inline constexpr int kClosedRing = 8;
// A triangle closed in the Classic game with sides of both colours.
inline constexpr int kMagenta = 16711935;
// The uprights of the middle cube, a little darker than its other edges.
inline constexpr int kMiddleUpright = 14737632;
// A mid grey on which the white cube, every spoke colour, Blue, Red and the
// black of the Vrask move all show.
inline constexpr int kBoardColour = 0x8C8C8C;
// The inside of a circle: light, so that its number and ring read clearly.
inline constexpr int kCircleFill = 0xE8E8E8;

}  // namespace vrask::tetra4d
