#include "boards/flatland/tables.h"

#include <algorithm>

namespace vrask::flatland {

namespace {

constexpr int kRightEdge = 81;  // the right edge is the left edge plus this
constexpr int kTopEdgeFirst = 91;
constexpr int kBottomEdgeFirst = 172;

bool isLeftEdge(int line) {
  return line >= 1 && line <= kSide;
}
bool isRightEdge(int line) {
  return line > kRightEdge && line <= kVerticalLines;
}
bool isTopEdge(int line) {
  return line >= kTopEdgeFirst && line < kTopEdgeFirst + kSide;
}
bool isBottomEdge(int line) {
  return line >= kBottomEdgeFirst && line <= kLines;
}
bool isSideEdge(int line) {
  return isLeftEdge(line) || isRightEdge(line);
}
bool isTopOrBottomEdge(int line) {
  return isTopEdge(line) || isBottomEdge(line);
}

bool onBorder(int rowOrColumn) {
  return rowOrColumn == 1 || rowOrColumn == kSide;
}

void addOnce(std::vector<int>& lines, int line) {
  if (line != 0 && std::find(lines.begin(), lines.end(), line) == lines.end()) {
    lines.push_back(line);
  }
}

// The sides of the neighbours that a move in `mode` paints besides the
// square's own: in Super Vrask the sides that lie across the direction of the
// neighbour, in Super Vrask Plus all four.
std::vector<int> neighbourSides(const SideTable& sqline, int mode, int square, bool bubbleland) {
  std::vector<int> lines;
  for (Direction direction : kDirections) {
    int next = neighbour(square, direction, bubbleland);
    if (next == 0) continue;
    const auto& sides = sqline.at(next);
    if (mode == SuperVraskPlus) {
      for (int k = Top; k <= Left; ++k) addOnce(lines, sides.at(k));
    } else if (direction == Direction::Left || direction == Direction::Right) {
      addOnce(lines, sides[Top]);
      addOnce(lines, sides[Bottom]);
    } else {
      addOnce(lines, sides[Left]);
      addOnce(lines, sides[Right]);
    }
  }
  return lines;
}

// The two rows of lines along the square's row and the two columns of lines
// along its column.
std::vector<int> ribbonLines(int square) {
  std::vector<int> lines;
  int rowStart = kTopEdgeFirst + kSide * (rowOf(square) - 1);
  for (int line = rowStart; line < rowStart + 2 * kSide; ++line) lines.push_back(line);
  int columnStart = 1 + kSide * (columnOf(square) - 1);
  for (int line = columnStart; line < columnStart + 2 * kSide; ++line) lines.push_back(line);
  return lines;
}

// In Bubbleland a neighbour's edge line brings its twin only when the move is
// on the border across from it, and never from a corner.
bool neighbourEdgeBringsTwin(int line, int square) {
  bool onRowBorder = onBorder(rowOf(square));
  bool onColumnBorder = onBorder(columnOf(square));
  if (onRowBorder && onColumnBorder) return false;
  return (isTopOrBottomEdge(line) && onRowBorder) || (isSideEdge(line) && onColumnBorder);
}

}  // namespace

SideTable start() {
  SideTable sqline{};
  for (int line = 1; line <= kSide; ++line) sqline[squareAt(line, 1)][Left] = line;
  for (int column = 2; column <= kSide; ++column) {
    for (int line = kSide * (column - 1) + 1; line <= kSide * column; ++line) {
      int square = (line - kSide * (column - 1) - 1) * kSide + column;
      sqline[square][Left] = line;
      sqline[square - 1][Right] = line;
    }
  }
  for (int line = kRightEdge + 1; line <= kVerticalLines; ++line) {
    sqline[squareAt(line - kRightEdge, kSide)][Right] = line;
  }
  for (int line = kTopEdgeFirst; line < kTopEdgeFirst + kSide; ++line) {
    sqline[line - kVerticalLines][Top] = line;
  }
  for (int line = kTopEdgeFirst + kSide; line < kBottomEdgeFirst; ++line) {
    sqline[line - kVerticalLines][Top] = line;
    sqline[line - kVerticalLines - kSide][Bottom] = line;
  }
  for (int line = kBottomEdgeFirst; line <= kLines; ++line) {
    sqline[line - kVerticalLines - kSide][Bottom] = line;
  }
  return sqline;
}

int twinOf(int line) {
  if (isLeftEdge(line) || isTopEdge(line)) return line + kRightEdge;
  if (isRightEdge(line) || isBottomEdge(line)) return line - kRightEdge;
  return 0;
}

int neighbour(int square, Direction direction, bool bubbleland) {
  int row = rowOf(square);
  int column = columnOf(square);
  switch (direction) {
    case Direction::Up:
      --row;
      break;
    case Direction::Down:
      ++row;
      break;
    case Direction::Left:
      --column;
      break;
    case Direction::Right:
      ++column;
      break;
  }
  auto wrap = [](int n) { return (n + kSide - 1) % kSide + 1; };
  bool offGrid = row < 1 || row > kSide || column < 1 || column > kSide;
  if (offGrid && !bubbleland) return 0;
  return squareAt(wrap(row), wrap(column));
}

std::vector<int> vraskPattern(const SideTable& sqline, int mode, int square, bool bubbleland) {
  std::vector<int> lines;
  const auto& own = sqline.at(square);
  for (int k = Top; k <= Left; ++k) addOnce(lines, own.at(k));

  std::vector<int> fromNeighbours;
  if (mode == SuperVrask || mode == SuperVraskPlus) {
    fromNeighbours = neighbourSides(sqline, mode, square, bubbleland);
  } else if (mode == Ribbon) {
    fromNeighbours = ribbonLines(square);
  }
  for (int line : fromNeighbours) addOnce(lines, line);

  if (bubbleland) {
    for (int k = Top; k <= Left; ++k) addOnce(lines, twinOf(own.at(k)));
    for (int line : fromNeighbours) {
      if (neighbourEdgeBringsTwin(line, square)) addOnce(lines, twinOf(line));
    }
  }
  return lines;
}

int lineCount(int size) {
  return 2 * size * (size + 1);
}

Hidden hiddenBySize(int size) {
  Hidden hidden;
  for (int m = kSide; m > size && m > kSmallestSize; --m) {
    for (int row = 1; row <= m; ++row) hidden.squares.push_back(squareAt(row, m));
    for (int column = 1; column < m; ++column) hidden.squares.push_back(squareAt(m, column));

    // Vertical lines: row m in the columns of lines 1..m+1, and the column of
    // lines m+1 in the rows 1..m.
    for (int column = 1; column <= m + 1; ++column) {
      hidden.lines.push_back((column - 1) * kSide + m);
    }
    for (int row = 1; row <= m; ++row) hidden.lines.push_back(m * kSide + row);

    // Horizontal lines: column m in the rows of lines 1..m+1, and the row of
    // lines m+1 in the columns 1..m-1.
    for (int row = 1; row <= m + 1; ++row) {
      hidden.lines.push_back(kVerticalLines + (row - 1) * kSide + m);
    }
    for (int column = 1; column < m; ++column) {
      hidden.lines.push_back(kVerticalLines + m * kSide + column);
    }
  }
  return hidden;
}

// The lines of the joined surface are the edges of a 9 by 9 grid of points
// on a torus, and lines that meet at a point are the edges of one point; so a
// scatter where such lines differ is an edge colouring of that grid. Each row
// of lines gets three colours in a run 0 1 0 1 0 1 0 1 2 (shifted from row to
// row, so the board doesn't show stripes), which leaves every point one of
// the three free. Each column of lines takes that free colour once, where it
// is free at both ends, and alternates the other two colours round the rest.
std::array<int, kLines + 1> designColours() {
  constexpr std::array<int, kSide> kRun{0, 1, 0, 1, 0, 1, 0, 1, 2};
  constexpr int kRowShift = 4;
  auto across = [&](int x, int y) {
    int shifted = ((x - kRowShift * y) % kSide + kSide) % kSide;
    return kRun.at(static_cast<size_t>(shifted));
  };
  // The colour of 0..2 that neither line across meets at point (x, y).
  auto freeAt = [&](int x, int y) { return 3 - across((x + kSide - 1) % kSide, y) - across(x, y); };

  std::array<int, kLines + 1> colours{};
  auto paint = [&](int line, int index) {
    colours.at(static_cast<size_t>(line)) = kDesignColours.at(static_cast<size_t>(index));
    if (int twin = twinOf(line); twin > line) colours.at(static_cast<size_t>(twin)) = colours[line];
  };
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) paint(kTopEdgeFirst + kSide * y + x, across(x, y));
  }
  for (int x = 0; x < kSide; ++x) {
    int first = 0;
    while (freeAt(x, first) != freeAt(x, (first + 1) % kSide)) ++first;
    paint(kSide * x + first + 1, freeAt(x, first));
    for (int step = 1; step < kSide; ++step) {
      int y = (first + step) % kSide;
      paint(kSide * x + y + 1, 3 + (step - 1) % 2);
    }
  }
  return colours;
}

CellBoard cellBoard(const SideTable& sqline) {
  std::vector<std::vector<int>> sides(kSquares + 1);
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = Top; k <= Left; ++k) sides.at(s).push_back(sqline.at(s).at(k));
  }
  return {std::move(sides), kLines};
}

}  // namespace vrask::flatland
