// How the 4D triangular board marks its state, besides the colours every
// board shares.
#pragma once

namespace vrask::tetra4d {

inline constexpr int kBlueColour = 16711680;
inline constexpr int kRedColour = 192;           // Red shows a little darker on this board
inline constexpr int kMagenta = 16711935;        // a Classic triangle closed in two colours
inline constexpr int kMiddleUpright = 14737632;  // the middle cube's uprights, off-white
inline constexpr int kPlayedWidth = 4;           // a played line; a free one is 1 wide
inline constexpr int kClosedRing = 8;            // the ring of a played or closed circle

// How long the computer shows its line, and its circle before and after it
// lights up, in seconds.
inline constexpr double kShowLine = 1.5;
inline constexpr double kShowCircle = 2;

// A mid grey on which the white cube, every spoke colour, Blue, Red and the
// black of the Vrask move all show, and the light inside of a circle, on
// which its number and ring read clearly.
inline constexpr int kBoardColour = 0x8C8C8C;
inline constexpr int kCircleFill = 0xE8E8E8;

}  // namespace vrask::tetra4d
