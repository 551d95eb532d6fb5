// How the tetrahedron board marks its state: the width of a taken line, the
// colours of the sides and of the faces.
#pragma once

#include <array>

#include "toolkit/element.h"

namespace vrask::quennel {

// A taken line is drawn 5 wide; a free one 1 to 4 by its depth.
inline constexpr int kTaken = 5;
// A played or dead face's rim.
inline constexpr int kPlayedRim = 8;

// Red draws in this darker red in the face games, in full red on lines.
inline constexpr int kFaceRed = 192;
inline constexpr int kLineRed = color::Red;
// The status colour when Red is next after a line that scored nothing.
inline constexpr int kRedStatus = 16576;
// The rim of a face that can no longer score for anybody (Classic games).
inline constexpr int kDead = 16711935;
// The rim of a face played or closed that scores for nobody now.
inline constexpr int kNobody = color::WindowText;

// Line marks in the line games.
inline constexpr int kRedMark = 1;
inline constexpr int kBlueMark = 2;

// Each small tetrahedron's own colour for its free lines, in the order of
// `kTetrahedra`; none is Blue, either Red, black or yellow, so no free line
// ever reads as a player's.
inline constexpr std::array<int, 8> kTetrahedronColours{0x00C000, 0xC0C000, 0x00C0C0, 0xC000C0,
                                                        0x80FF80, 0xFFFF00, 0xC0C0C0, 0x808000};

}  // namespace vrask::quennel
