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

// Each of the computer's two pauses, and the wall standing as it ended, in seconds.
inline constexpr double kComputerThinks = 2;
inline constexpr double kEndPause = 4;

// The solid: a dark slate round a wall of pale stone, on which Blue, Red,
// Black, magenta and the computer's yellow all stand out; its edges darker
// in front than behind.
struct WallColours {
  int board, panel, front, top, end, frontEdge, backEdge, circle, number;
};
inline constexpr WallColours kColours{.board = 0x403830,
                                      .panel = 0xF0E4D8,
                                      .front = 0xC0D0D8,
                                      .top = 0xDCE6EC,
                                      .end = 0xA0AEB8,
                                      .frontEdge = 0x505050,
                                      .backEdge = 0x8C9296,
                                      .circle = 0xFFFFFF,
                                      .number = 0x302820};

}  // namespace vrask::wall
