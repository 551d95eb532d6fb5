// How the triangular board marks its state and how long it shows it: the
// marks of the players' sides, the board's own colours besides Blue, Red,
// Black, green, yellow and grey, and its pauses.
#pragma once

namespace vrask::triangular {

// The mark a side gets in Ombrel: Red's (the computer's too) and Blue's.
enum Mark { kRedMark = 1, kBlueMark = 2 };

// Red's colour in the line games' "No score" text; a cell closed while the
// status shows it is filled in Red. And the rim of a circle whose cell has
// all three lines drawn.
inline constexpr int kRedStatus = 16576, kMagenta = 12583104;

// A closed cell's lines flash yellow for a second, then a quarter of one
// passes before the next; the computer thinks two seconds over a circle.
inline constexpr double kFlashHold = 1, kFlashGap = 0.25, kCirclePause = 2;

}  // namespace vrask::triangular
