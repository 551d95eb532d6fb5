#include "boards/tetra4d/rules.h"

#include <algorithm>

namespace vrask::tetra4d {

namespace {

int& side(Board& board, int t, int s) {
  return board.triside.at(static_cast<size_t>(t)).at(static_cast<size_t>(s));
}

int lineAt(const Board& board, int row, int s) {
  return board.triln.at(static_cast<size_t>(row)).at(static_cast<size_t>(s));
}

int state(const Board& board, int slot) {
  return board.lnstate.at(static_cast<size_t>(slot));
}

// A spoke is a side of the three triangles of its apex's family that meet
// at its corner.
void claimSpoke(Board& board, int slot, int player, std::vector<int>& touched) {
  int apex = apexOf(slot);
  int first = apex == 1 ? 1 : (apex == 3 ? kEdges + 1 : 2 * kEdges + 1);
  for (int t = first; t < first + kEdges; ++t) {
    for (int s = 2; s <= 3; ++s) {
      if (lineAt(board, t, s) == slot - 1) {
        side(board, t, s) = player;
        touched.push_back(t);
      }
    }
  }
}

}  // namespace

LineStates freshLines(int level) {
  LineStates lnstate{};
  if (level == kSingleCube) {
    for (int slot = kEdges + 1; slot <= 2 * kEdges; ++slot) {
      lnstate.at(static_cast<size_t>(slot)) = kOffBoard;
    }
  }
  return lnstate;
}

std::vector<int> griddle(Board& board, int slot, int player) {
  std::vector<int> touched;
  bool dual = board.level == kDualCube;
  if (isFirstCube(slot)) {
    int r = rowOfEdge(slot);
    side(board, r, 1) = player;
    touched.push_back(r);
    if (!dual || state(board, slot + kEdges) != kFree) {
      side(board, r + kEdges, 1) = player;
      touched.push_back(r + kEdges);
    }
    if (!dual) {
      side(board, r + 2 * kEdges, 1) = player;
      touched.push_back(r + 2 * kEdges);
    }
  } else if (isSecondCube(slot)) {
    int r = rowOfEdge(edgeOf(slot));
    side(board, r + 2 * kEdges, 1) = player;
    touched.push_back(r + 2 * kEdges);
    if (state(board, edgeOf(slot)) != kFree) {
      side(board, r + kEdges, 1) = player;
      touched.push_back(r + kEdges);
    }
  } else if (isSpoke(slot)) {
    claimSpoke(board, slot, player, touched);
  }
  std::vector<int> finished;
  for (int t : touched) {
    if (paintedSides(board, t) == 3) finished.push_back(t);
  }
  return finished;
}

void paintTriangle(Board& board, int t, int code) {
  const auto& lines = board.triln.at(static_cast<size_t>(t));
  for (int row = 1; row <= kTriangles; ++row) {
    for (int s = 1; s <= 3; ++s) {
      int line = lineAt(board, row, s);
      if (line == lines[1] || line == lines[2] || line == lines[3]) side(board, row, s) = code;
    }
  }
}

int ownerOf(const Board& board, int t) {
  const auto& sides = board.triside.at(static_cast<size_t>(t));
  if (sides[1] == sides[2] && sides[2] == sides[3] && sides[1] != 0) return sides[1];
  return 0;
}

int paintedSides(const Board& board, int t) {
  const auto& sides = board.triside.at(static_cast<size_t>(t));
  return static_cast<int>(
      std::count_if(sides.begin() + 1, sides.end(), [](int o) { return o != 0; }));
}

int slotForSide(const Board& board, int t, int s) {
  if (board.level == kDualCube && s == 1 && t > kEdges) {
    int e = edgeOf(lineAt(board, t, 1) + 1);
    if (t > 2 * kEdges) return cubeSlot(2, e);
    if (state(board, e) == kFree && state(board, cubeSlot(2, e)) == kFree) return 0;
    return state(board, e) == kFree ? e : cubeSlot(2, e);
  }
  return lineAt(board, t, s) + 1;
}

std::vector<int> freeLines(const Board& board) {
  std::vector<int> lines;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (state(board, slot) == kFree) lines.push_back(slot);
  }
  return lines;
}

std::vector<int> safeLines(const Board& board) {
  std::array<bool, kSlots + 1> risky{};
  for (int t = 1; t <= kTriangles; ++t) {
    if (paintedSides(board, t) != 1) continue;
    // A line that gives this triangle nothing now (slot 0) is no risk to it.
    for (int s = 1; s <= 3; ++s) risky.at(static_cast<size_t>(slotForSide(board, t, s))) = true;
  }
  std::vector<int> lines;
  for (int slot : freeLines(board)) {
    if (!risky.at(static_cast<size_t>(slot))) lines.push_back(slot);
  }
  return lines;
}

}  // namespace vrask::tetra4d
