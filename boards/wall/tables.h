// The wall's numbers: a slab one cube thick of n by n cubes, of which the
// square faces are played. One numbering serves every size, that of the 5 by
// 5 wall; a smaller wall keeps its numbers and leaves the rest off. Plain
// data and pure functions: the form reads and writes the drawn elements,
// these only say which ones.
#pragma once

#include <array>
#include <vector>

namespace vrask::wall {

inline constexpr int kSquares = 110;
inline constexpr int kLines = 156;
inline constexpr int kLargest = 5;  // cubes a side of the Great Wall
inline constexpr int kLevels = 3;   // `bd`: 1 the Wall, 2 a Bigger Wall, 3 the Great Wall

// Cubes a side of the wall of level `bd`: 3, 4 or 5.
inline int sideOf(int bd) {
  return bd + 2;
}

// The games of the list, by `gamecode`. Classic takes a square out of play
// once all its lines are drawn; Super Vrask Plus takes the neighbours too.
enum GameCode { Classic = 4, SetCount = 5, PlusClassic = 7, PlusSetCount = 8 };
inline constexpr std::array<int, 4> kGameCodes{Classic, SetCount, PlusClassic, PlusSetCount};

inline bool isClassic(int gamecode) {
  return gamecode == Classic || gamecode == PlusClassic;
}
inline bool takesNeighbours(int gamecode) {
  return gamecode == PlusClassic || gamecode == PlusSetCount;
}

// The four kinds of square: the faces of the front and the back, the level
// faces that lie between cubes stacked one on another (and on top and under
// the wall), and the upright faces between cubes side by side (and at the
// two ends).
enum class FaceKind { Front, Back, Level, Upright };

// Where a square is: its kind, its row (front, back, upright: 0 to 4 from the
// top) or level (level faces: 0 to 5 from the top), and its column (0 to 4;
// upright faces 0 to 5 from the left).
struct Face {
  FaceKind kind;
  int row;
  int column;
};
Face faceOf(int square);
int squareOf(const Face& face);

// celllines: the four lines of square s (1..110) in slots 1 to 4; row 0 and
// slot 0 are unused so that the board's own numbers index it.
using CellLines = std::array<std::array<int, 5>, kSquares + 1>;
CellLines startwall();

// The squares whose lines a Super Vrask Plus move on `square` paints too, in
// the order they are taken: a front or back square's above, left, right and
// below on its side; a level face's left and right on its level; an upright
// face's above and below in its slice. All of the Great Wall, also those a
// smaller wall leaves off.
std::vector<int> neighbours(int square);

// True when the wall of level `bd` has `square`.
bool onWall(int square, int bd);
// The squares the wall of level `bd` leaves off, in number order.
std::vector<int> hiddenSquares(int bd);
// Squares on the wall of level `bd`, the moves at the start: 4 n² + 2 n.
int wallsize(int bd);

// A corner of the lattice of the Great Wall: column 0 to 5 from the left,
// level 0 to 5 from the top, depth 0 at the front and 1 at the back.
struct Corner {
  int column;
  int level;
  int depth;
  bool operator==(const Corner&) const = default;
};
// The two ends of line `line` (1..156).
std::array<Corner, 2> endsOf(int line);

}  // namespace vrask::wall
