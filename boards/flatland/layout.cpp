#include "boards/flatland/layout.h"

#include "boards/flatland/tables.h"

namespace vrask::flatland::layout {

namespace {

// A line's column of lines (1..10) and row (1..9) when it stands; its row of
// lines (1..10) and column (1..9) when it lies.
struct LinePlace {
  int row;
  int column;
};

LinePlace placeOf(int line) {
  if (line <= kVerticalLines) return {(line - 1) % kSide + 1, (line - 1) / kSide + 1};
  int n = line - kVerticalLines;
  return {(n - 1) / kSide + 1, (n - 1) % kSide + 1};
}

}  // namespace

Segment lineAt(int line) {
  auto [row, column] = placeOf(line);
  double top = kBoardTop + kCell * (row - 1);
  if (line <= kVerticalLines) return {kCell * column, top, kCell * column, top + kCell};
  return {kCell * (column + 1), top, kCell * column, top};
}

Rect stripAt(int line) {
  Segment s = lineAt(line);
  double inset = (kCell - kStripLong) / 2;
  if (line <= kVerticalLines) {
    return {s.x1 - kStripWide / 2, s.y1 + inset, kStripWide, kStripLong};
  }
  return {s.x2 + inset, s.y1 - kStripWide / 2, kStripLong, kStripWide};
}

Rect circleAt(int square) {
  return {240 + kCell * columnOf(square), kCell * rowOf(square), kCircle, kCircle};
}

}  // namespace vrask::flatland::layout
