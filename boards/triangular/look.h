// How the triangular board marks its state and how long it shows it: the
// width of a drawn line, the marks of the players' sides, the board's own
// colours besides Blue, Red, Black, green, yellow and grey, and its pauses.
#pragma once

namespace vrask::triangular {

// A drawn line is 8 wide, a free one 1.
inline constexpr int kDrawn = 8;

// The mark a side gets in Ombrel: Red's (the computer's too) and Blue's.
inline constexpr int kRedMark = 1;
inline constexpr int kBlueMark = 2;

// Red's colour in the line games' "No score" text; a cell closed while the
// status shows it is filled in Red.
inline constexpr int kRedStatus = 16576;
// The rim of a circle whose cell has all three lines drawn.
inline constexpr int kMagenta = 12583104;

// A closed cell's lines flash yellow for a second, then a quarter of one
// passes before the next.
inline constexpr double kFlashHold = 1;
inline constexpr double kFlashGap = 0.25;
// The computer thinks two seconds over a circle.
inline constexpr double kCirclePause = 2;

}  // namespace vrask::triangular
