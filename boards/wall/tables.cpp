#include "boards/wall/tables.h"

#include <stdexcept>

namespace vrask::wall {

namespace {

// The first number of each kind of square and how many stand in a row.
constexpr int kFirstBack = 26;
constexpr int kFirstLevel = 51;
constexpr int kFirstUpright = 81;
constexpr int kFaceRow = 5;     // front, back and level faces a row
constexpr int kUprightRow = 6;  // upright faces a row

// The first number of each kind of line.
constexpr int kFirstBackUpright = 31;
constexpr int kFirstDepth = 61;
constexpr int kFirstFrontLevel = 97;
constexpr int kFirstBackLevel = 127;
constexpr int kUprightLinesARow = 6;  // upright and depth lines a row or level
constexpr int kLevelLinesALevel = 5;

// The lines of the front and the back: uprights counted by row, level lines
// by level.
int upright(int firstOfSide, int row, int column) {
  return firstOfSide + kUprightLinesARow * row + column;
}
int levelLine(int firstOfSide, int level, int column) {
  return firstOfSide + kLevelLinesALevel * level + column;
}
int depthLine(int level, int column) {
  return kFirstDepth + kUprightLinesARow * level + column;
}

}  // namespace

Face faceOf(int square) {
  if (square < 1 || square > kSquares) throw std::out_of_range("no such square");
  if (square < kFirstBack)
    return {FaceKind::Front, (square - 1) / kFaceRow, (square - 1) % kFaceRow};
  if (square < kFirstLevel) {
    int n = square - kFirstBack;
    return {FaceKind::Back, n / kFaceRow, n % kFaceRow};
  }
  if (square < kFirstUpright) {
    int n = square - kFirstLevel;
    return {FaceKind::Level, n / kFaceRow, n % kFaceRow};
  }
  int n = square - kFirstUpright;
  return {FaceKind::Upright, n / kUprightRow, n % kUprightRow};
}

int squareOf(const Face& face) {
  switch (face.kind) {
    case FaceKind::Front:
      return 1 + kFaceRow * face.row + face.column;
    case FaceKind::Back:
      return kFirstBack + kFaceRow * face.row + face.column;
    case FaceKind::Level:
      return kFirstLevel + kFaceRow * face.row + face.column;
    case FaceKind::Upright:
      break;
  }
  return kFirstUpright + kUprightRow * face.row + face.column;
}

// Slots 1 and 3 hold the two lines of one direction, 2 and 4 the two of the
// other: the front's left and right uprights with its level lines above and
// below; for a level face the two depth lines with the back and the front
// level line; for an upright face the front and back upright with the depth
// lines above and below.
CellLines startwall() {
  CellLines celllines{};
  for (int s = 1; s <= kSquares; ++s) {
    auto [kind, a, j] = faceOf(s);
    switch (kind) {
      case FaceKind::Front:
        celllines[s] = {0, upright(1, a, j), levelLine(kFirstFrontLevel, a, j),
                        upright(1, a, j + 1), levelLine(kFirstFrontLevel, a + 1, j)};
        break;
      case FaceKind::Back:
        celllines[s] = {0, upright(kFirstBackUpright, a, j), levelLine(kFirstBackLevel, a, j),
                        upright(kFirstBackUpright, a, j + 1), levelLine(kFirstBackLevel, a + 1, j)};
        break;
      case FaceKind::Level:
        celllines[s] = {0, depthLine(a, j), levelLine(kFirstBackLevel, a, j), depthLine(a, j + 1),
                        levelLine(kFirstFrontLevel, a, j)};
        break;
      case FaceKind::Upright:
        celllines[s] = {0, upright(1, a, j), depthLine(a, j), upright(kFirstBackUpright, a, j),
                        depthLine(a + 1, j)};
        break;
    }
  }
  return celllines;
}

std::vector<int> neighbours(int square) {
  Face face = faceOf(square);
  int rows = face.kind == FaceKind::Level ? kLargest + 1 : kLargest;
  int columns = face.kind == FaceKind::Upright ? kUprightRow : kFaceRow;
  bool acrossRows = face.kind != FaceKind::Level;       // above and below
  bool acrossColumns = face.kind != FaceKind::Upright;  // left and right
  std::vector<int> next;
  auto add = [&](int row, int column) {
    if (row < 0 || row >= rows || column < 0 || column >= columns) return;
    next.push_back(squareOf({face.kind, row, column}));
  };
  if (acrossRows) add(face.row - 1, face.column);
  if (acrossColumns) {
    add(face.row, face.column - 1);
    add(face.row, face.column + 1);
  }
  if (acrossRows) add(face.row + 1, face.column);
  return next;
}

// A wall of n cubes a side has n rows of front, back and upright faces and
// n + 1 levels of level faces; n columns of front, back and level faces and
// n + 1 of upright faces.
bool onWall(int square, int bd) {
  int n = sideOf(bd);
  auto [kind, row, column] = faceOf(square);
  switch (kind) {
    case FaceKind::Front:
    case FaceKind::Back:
      return row < n && column < n;
    case FaceKind::Level:
      return row <= n && column < n;
    case FaceKind::Upright:
      break;
  }
  return row < n && column <= n;
}

std::vector<int> hiddenSquares(int bd) {
  std::vector<int> hidden;
  for (int s = 1; s <= kSquares; ++s) {
    if (!onWall(s, bd)) hidden.push_back(s);
  }
  return hidden;
}

int wallsize(int bd) {
  int n = sideOf(bd);
  return 4 * n * n + 2 * n;
}

std::array<Corner, 2> endsOf(int line) {
  if (line < 1 || line > kLines) throw std::out_of_range("no such line");
  if (line < kFirstDepth) {
    int depth = line < kFirstBackUpright ? 0 : 1;
    int n = line - (depth == 0 ? 1 : kFirstBackUpright);
    int row = n / kUprightLinesARow;
    int column = n % kUprightLinesARow;
    return {Corner{column, row, depth}, Corner{column, row + 1, depth}};
  }
  if (line < kFirstFrontLevel) {
    int n = line - kFirstDepth;
    int level = n / kUprightLinesARow;
    int column = n % kUprightLinesARow;
    return {Corner{column, level, 0}, Corner{column, level, 1}};
  }
  int depth = line < kFirstBackLevel ? 0 : 1;
  int n = line - (depth == 0 ? kFirstFrontLevel : kFirstBackLevel);
  int level = n / kLevelLinesALevel;
  int column = n % kLevelLinesALevel;
  return {Corner{column, level, depth}, Corner{column + 1, level, depth}};
}

}  // namespace vrask::wall
