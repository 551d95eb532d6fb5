// The computer player's decisions on the tetrahedron board, from the board
// alone: greedy, no memory, no look-ahead, no skill levels. Everything here
// is in real numbers; the one random step is left to the form, which owns
// the generator.
#pragma once

#include <array>
#include <vector>

#include "boards/quennel/tables.h"

namespace vrask::quennel {

// Per face (1..36) or per line (1..39); index 0 unused.
using FaceCounts = std::array<int, kFaces + 1>;
using LineValues = std::array<int, kLines + 1>;
// sidemark: a mark (line games) or a colour (face games) on each face side.
using SideMarks = std::array<std::array<int, 4>, kFaces + 1>;

// How many sides of each of the first `faces` faces carry a mark.
FaceCounts countMarkedSides(const SideMarks& sidemark, int faces);

// Line games. The faces with two marked sides, lowest first: the computer
// closes them before anything else.
std::vector<int> facesToClose(const FaceCounts& sidecount, int faces);

// The lines of faces with one marked side: a line among them hands a face
// its second side. Each face adds its three lines, so a line may repeat.
std::vector<int> dangerLines(const CellLines& celllines, const FaceCounts& sidecount, int faces);

// The lines it draws from when there is nothing to close: the free lines of
// the size that are not dangerous, ascending; when there are none, every
// free line of the size.
std::vector<int> lineCandidates(const std::vector<int>& dangerlines, const LineValues& linetaken,
                                int lines);

// Face games. The first free face of the size with three coloured sides,
// else with two, one, none: playing a face with two sides coloured repaints
// them and wins it. 0 when no face is free.
int faceTarget(const FaceCounts& sidecount, const FaceCounts& facetaken, int faces);

}  // namespace vrask::quennel
