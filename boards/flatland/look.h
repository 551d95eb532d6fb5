// The square board's own colours, besides Blue, Red, Black, yellow and grey.
#pragma once

namespace vrask::flatland {

// The turn label in a line game when Red is next.
inline constexpr int kOrange = 16576;
// The rim of a circle whose square has been whole in one colour.
inline constexpr int kPurple = 12583104;

}  // namespace vrask::flatland
