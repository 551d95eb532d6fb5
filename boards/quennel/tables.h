// The tetrahedron board's numbers: its vertices, the 39 lines between them,
// the 36 triangular faces and the lines each face has, the turn of the solid
// by a third, the lines a Super move paints beyond a face, the two sizes and
// the list of games. Plain data and pure functions; the form reads and writes
// the drawn elements, these only say which ones.
//
// Every number here is a real number: the one a line or face has in the
// first view. A turned view shows other real elements under the same screen
// numbers (see `turned`).
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vrask::quennel {

// --- vertices -------------------------------------------------------------

// The solid is built on five big corners: the apex V, the base D, F, G and
// the foot N. Every vertex is a big corner or the midpoint of an edge between
// two of them, and is known by that pair (a corner by itself twice).
enum Corner { CornerV, CornerD, CornerF, CornerG, CornerN };
inline constexpr int kVertices = 14;

struct Vertex {
  char name;
  double x, y;  // where it stands on the screen, in twips
  Corner first, second;
  bool isCorner() const { return first == second; }
};

// V, A, B, C, D, E, F, G, H, I, J, K, M, N, in that order.
const std::array<Vertex, kVertices>& vertices();
// The index in `vertices()` of the vertex named `name`.
int vertexIndex(char name);

// --- counts ---------------------------------------------------------------

inline constexpr int kLines = 39;
inline constexpr int kFaces = 36;
inline constexpr int kViews = 3;

// The two sizes: the tetrahedron of side 2 (20 faces, lines 1..24), and the
// same with its mirror image below the base (all 36 faces and 39 lines).
// `levelfull` is 0 for the first, 1 for the second.
inline int facesOfSize(int levelfull) {
  return levelfull == 1 ? kFaces : 20;
}
inline int linesOfSize(int levelfull) {
  return levelfull == 1 ? kLines : 24;
}

// --- lines and faces ------------------------------------------------------

struct Ends {
  int from, to;  // indexes in `vertices()`
};
// The ends of line 1..39 (index 0 unused).
const std::array<Ends, kLines + 1>& lineEnds();
// The line between two vertices, or 0 when there is none.
int lineBetween(int a, int b);

// The eight small tetrahedra, each by its four vertex names: the four corners
// of the first size, then the four that the mirror adds.
inline constexpr std::array<const char*, 8> kTetrahedra{"VABC", "ADEH", "BEFI", "CHIG",
                                                        "DEHJ", "EFIK", "HIGM", "JKMN"};
// The lines of a small tetrahedron, in ascending order.
std::vector<int> tetrahedronLines(int tetrahedron);
// The small tetrahedron a line is drawn with: the first that holds it.
int tetrahedronOf(int line);

// celllines: the three lines of face 1..36 in its three slots (row 0 and
// slot 0 unused, so the board's own numbers index it).
using CellLines = std::array<std::array<int, 4>, kFaces + 1>;
CellLines startgrids();
// The three vertices of a face, in ascending order of their index.
std::array<int, 3> faceVertices(const CellLines& celllines, int face);

// --- the turn of the solid ------------------------------------------------

// A third of a turn about the axis V-N: the real line (or face) that comes
// to stand where `n` stood. Built from the turn of the corners, D to F to G.
int turnLine(int line);
int turnFace(const CellLines& celllines, int face);

// What screen number `n` stands for in view 1..3: n, R(n), R(R(n)).
struct Turn {
  std::array<std::array<int, kLines + 1>, kViews + 1> line{};  // [view][screen] = real
  std::array<std::array<int, kFaces + 1>, kViews + 1> face{};
  std::array<std::array<int, kLines + 1>, kViews + 1> lineScreen{};  // [view][real] = screen
  std::array<std::array<int, kFaces + 1>, kViews + 1> faceScreen{};
};
Turn turned(const CellLines& celllines);

// --- Super moves ----------------------------------------------------------

// The two lines a Super move paints beyond face 1..36, ascending, or nothing.
// A face at a big corner of the solid has two vertices on the big edges from
// that corner; the move runs on along both edges to their far ends.
std::optional<std::array<int, 2>> extension(const CellLines& celllines, int face);

// --- the game list --------------------------------------------------------

enum class Count { Lines, Classic, SetCount, VraskMove };

struct Game {
  int gamecode;        // the index of the entry in the games menu `ga`
  const char* menu;    // its menu text
  const char* status;  // `Label36` once it is chosen
  Count count;
  bool super;     // the move runs on beyond the face
  int levelfull;  // 0: the first size, 1: the second
  bool turnable;  // the view buttons are shown
};

// The fourteen games, in the order of the menu.
const std::array<Game, 14>& games();
// The game of menu index `gamecode`, or nothing for a separator or unused index.
const Game* gameOf(int gamecode);
inline constexpr int kGameEntries = 22;   // `ga(0..21)`
inline constexpr int kFirstGame = 5;      // chosen at load, and for the first size
inline constexpr int kFullFirstGame = 8;  // chosen for the second size

inline bool playsLines(int gamecode) {
  return gamecode < 3;
}

}  // namespace vrask::quennel
