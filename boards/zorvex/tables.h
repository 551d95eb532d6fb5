// The cube board's numbers: a cube of 2 by 2 by 2 small cubes on a lattice of
// 3 by 3 by 3 nodes, with 54 lines, 36 squares and 8 cubes. Every table here
// is built from the lattice: which lines bound a square, which squares and
// lines make a cube, the cross lines and plane neighbours the Vrask moves
// paint, and how a quarter turn of the cube moves lines and squares from one
// drawn place to another. Plain data and pure functions.
#pragma once

#include <array>
#include <vector>

namespace vrask::cube {

inline constexpr int kLines = 54;
inline constexpr int kSquares = 36;
inline constexpr int kCubes = 8;
inline constexpr int kViews = 4;

// A node of the lattice, each coordinate 0..2; z = 0 is the top layer.
struct Node {
  int x = 0, y = 0, z = 0;
  bool operator==(const Node&) const = default;
};

// The two ends of line `index` (1..54), the lower end first.
struct Ends {
  Node from, to;
};
Ends lineEnds(int index);
// The line between two neighbouring nodes, in either order; 0 if none.
int lineBetween(Node a, Node b);

// The number a player sees beside line `index`, types and reads in "Last
// move: ", and back.
int lineNumber(int index);
int lineIndexOfNumber(int number);

// Index 0 unused throughout, so that the board's own numbers index the tables.
using SquareLines = std::array<std::array<int, 5>, kSquares + 1>;
using CubeSquares = std::array<std::array<int, 7>, kCubes + 1>;
using CubeLines = std::array<std::array<int, 13>, kCubes + 1>;

struct Tables {
  SquareLines squarelines{};
  CubeSquares cubesquares{};
  CubeLines cubelines{};
};

// Built once when the form loads: a square's four lines go round it from its
// low corner, first along its first axis; a cube's squares are in ascending
// order; a cube's lines are its top square's four, its four verticals, and
// its bottom square's four.
Tables settables();

// The squares that line `index` lies in (2, 3 or 4), in ascending order.
std::vector<int> squaresOfLine(int index);
// The cubes that line `index` is an edge of (1, 2 or 4), in ascending order.
std::vector<int> cubesOfLine(int index);

// The lines that lie in a square with `index` and are not parallel to it: 4,
// 6 or 8 of them, in ascending order.
std::vector<int> crossLines(int index);

// The two squares of the same 2 by 2 plane that share an edge with `square`,
// the smaller first.
std::array<int, 2> planeNeighbours(int square);

// The quarter turn about the vertical axis: node (x, y, z) goes to
// (2 - y, x, z), and lines and squares go with their nodes.
Node turned(Node n);
int turnLine(int index);
int turnSquare(int square);

// What a drawn place shows in view `view` (1..4): the drawn line `slot` (an
// index in the first view's figure) shows a board line, and the drawn square
// `slot` a board square. The inverse gives the drawn place of a board element.
int boardLine(int view, int slot);
int slotOfLine(int view, int index);
int boardSquare(int view, int slot);
int slotOfSquare(int view, int square);

// The eight colours of the small cubes, cube 1 first: a free line is drawn in
// the colour of one of its cubes.
inline constexpr std::array<int, kCubes + 1> kCubeColours{
    0, 255, 65535, 0, 49152, 16776960, 16777215, 8388736, 16711680};

// The colour a free board line is drawn in: the colour of one of its cubes.
int designColour(int index);

// The thin strands drawn along a line that belongs to more than one cube, in
// the colour of a second cube: one on a line of two cubes, two on an inner
// line. 36 in all, numbered from 1.
struct Strand {
  int line = 0;    // the board line it runs along
  int colour = 0;  // the colour of the second (or third) cube
  int offset = 0;  // 1 or 2: how far from the line it is drawn
};
const std::vector<Strand>& strands();

// The game modes, the indexes of the games menu `game`.
enum GameMode {
  Ombrel = 1,
  ZorvexLines = 2,
  ZorvexSquares = 3,
  OldVraskClassic = 4,  // kept in the menu, not shown, no game behind it
  OldVraskSetCount = 5,
  LineVrask = 7,
  VraskClassic = 8,
  VraskSetCount = 9,
  SuperClassic = 11,
  SuperSetCount = 12,
  VraskMoveSetCount = 14,
  SuperVraskMove = 15,
  LineVraskBonus = 17,
};
inline constexpr int kFirstMode = 1;
inline constexpr int kLastMode = 17;

bool isSeparator(int mode);
// Lines are played in Ombrel, Zorvex (Lines) and the two Line Vrask games;
// circles in every other game.
bool isLineGame(int mode);
bool isLineVrask(int mode);
// The Vrask games played on circles: a move paints a square's lines.
bool isVraskCircleGame(int mode);
// A move paints the square's two plane neighbours as well.
bool isSuperVrask(int mode);
// A square whose lines fill up in two colours goes dead.
bool isClassic(int mode);
// The last square or line is painted black by the game itself.
bool hasVraskMove(int mode);
// The view buttons are offered in these modes only.
bool turnsView(int mode);

}  // namespace vrask::cube
