// How the triangular board marks its state: the width of a drawn line and the
// board's own colours, besides Blue, Red, Black, green, yellow and grey.
#pragma once

namespace vrask::triangular {

// A drawn line is 8 wide, a free one 1.
inline constexpr int kDrawn = 8;

// Red's colour in the line games' "No score" text; a cell closed while the
// status shows it is filled in Red.
inline constexpr int kRedStatus = 16576;
// The rim of a circle whose cell has all three lines drawn.
inline constexpr int kMagenta = 12583104;

}  // namespace vrask::triangular
