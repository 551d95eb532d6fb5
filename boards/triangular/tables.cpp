#include "boards/triangular/tables.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace vrask::triangular {

namespace {

// Vertex rows widen by one point down to the middle row and narrow again.
int rowOffset(int row) {
  return std::abs(3 - row);
}
int pointsInRow(int row) {
  return kVertexRows - rowOffset(row);
}
int firstColumnOfBand(int band) {
  return std::min(rowOffset(band), rowOffset(band + 1));
}

// The first horizontal line of each vertex row, and the first slanted line
// and the first cell of each band, counted row by row and band by band.
int firstHorizontal(int row) {
  int line = 1;
  for (int r = 0; r < row; ++r) line += pointsInRow(r) - 1;
  return line;
}
int slantedInBand(int band) {
  return 2 * std::min(pointsInRow(band), pointsInRow(band + 1));
}
int firstSlanted(int band) {
  int line = kHorizontalLines + 1;
  for (int b = 0; b < band; ++b) line += slantedInBand(b);
  return line;
}
int lastSlanted(int band) {
  return firstSlanted(band) + slantedInBand(band) - 1;
}
int firstCell(int band) {
  int cell = 1;
  for (int b = 0; b < band; ++b) cell += slantedInBand(b) - 1;
  return cell;
}

struct CellPlace {
  int band;
  int i;  // 0 for the leftmost cell of the band
};
CellPlace placeOf(int cell) {
  int band = kBands - 1;
  while (firstCell(band) > cell) --band;
  return {band, cell - firstCell(band)};
}

Vertex beyond(Vertex from, Vertex through) {
  return {2 * through.row - from.row, 2 * through.column - from.column};
}

void addIfOnBoard(std::vector<int>& lines, Vertex a, Vertex b) {
  if (onBoard(a) && onBoard(b)) lines.push_back(lineBetween(a, b));
}

std::vector<int> sortedOnce(std::vector<int> lines) {
  std::sort(lines.begin(), lines.end());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  return lines;
}

// What the cells along the rim paint across it in Bubbleland, beyond their
// Flatland extension: in both circle games, and in Super Vrask Plus besides.
struct Reach {
  int cell;
  std::vector<int> both;
  std::vector<int> plusOnly;
};
const std::vector<Reach>& acrossTheRim() {
  static const std::vector<Reach> rows{
      {1, {23, 60, 82}, {81}},
      {2, {83, 86, 29}, {87}},
      {3, {85, 86}, {25}},
      {4, {85, 88, 28, 30}, {84, 89}},
      {5, {87, 88}, {26}},
      {6, {87, 90, 29}, {86}},
      {7, {19, 49, 73}, {75}},
      {8, {27, 71, 72, 90}, {18, 89}},
      {9, {23, 71}, {70}},
      {15, {19, 62}, {63}},
      {16, {61, 24, 62, 83}, {13, 84}},
      {17, {90, 30, 81, 82}, {23}},
      {18, {27, 81}, {80}},
      {26, {24, 74}, {75}},
      {27, {73, 28, 74}, {19}},
      {28, {47, 48, 3}, {12}},
      {29, {7, 47}, {46}},
      {37, {40, 4}, {41}},
      {38, {1, 39, 40}, {8}},
      {39, {60, 38, 7, 59}, {18, 37}},
      {40, {12, 59}, {58}},
      {46, {8, 50}, {51}},
      {47, {31, 49, 4, 50}, {13, 32}},
      {48, {12, 48, 72}, {47}},
      {49, {31, 2, 34}, {35}},
      {50, {33, 34}, {5}},
      {51, {1, 3, 33, 36}, {32, 37}},
      {52, {35, 36}, {6}},
      {53, {38, 2, 35}, {34}},
      {54, {39, 8, 61}, {40}},
  };
  return rows;
}

}  // namespace

bool onBoard(Vertex v) {
  if (v.row < 0 || v.row >= kVertexRows) return false;
  int first = rowOffset(v.row);
  int last = first + 2 * (pointsInRow(v.row) - 1);
  return v.column >= first && v.column <= last && (v.column - first) % 2 == 0;
}

int lineBetween(Vertex a, Vertex b) {
  if (!onBoard(a) || !onBoard(b)) return 0;
  int left = std::min(a.column, b.column);
  if (a.row == b.row && std::abs(a.column - b.column) == 2) {
    return firstHorizontal(a.row) + (left - rowOffset(a.row)) / 2;
  }
  if (std::abs(a.row - b.row) == 1 && std::abs(a.column - b.column) == 1) {
    int band = std::min(a.row, b.row);
    return firstSlanted(band) + left - firstColumnOfBand(band);
  }
  return 0;
}

std::array<Vertex, 2> endsOf(int line) {
  if (line <= kHorizontalLines) {
    int row = kVertexRows - 1;
    while (firstHorizontal(row) > line) --row;
    int column = rowOffset(row) + 2 * (line - firstHorizontal(row));
    return {Vertex{row, column}, Vertex{row, column + 2}};
  }
  int band = kBands - 1;
  while (firstSlanted(band) > line) --band;
  int left = firstColumnOfBand(band) + line - firstSlanted(band);
  // Of the two ends, the one in the left column lies in whichever row has a
  // point there.
  Vertex upper{band, left}, lower{band + 1, left};
  if (onBoard(upper)) return {upper, Vertex{band + 1, left + 1}};
  return {Vertex{band, left + 1}, lower};
}

bool pointsUp(int cell) {
  auto [band, i] = placeOf(cell);
  return (band < kBands / 2) == (i % 2 == 0);
}

std::array<Vertex, 3> cornersOf(int cell) {
  auto [band, i] = placeOf(cell);
  int left = firstColumnOfBand(band) + i;
  if (pointsUp(cell)) {
    return {Vertex{band, left + 1}, Vertex{band + 1, left}, Vertex{band + 1, left + 2}};
  }
  return {Vertex{band, left}, Vertex{band, left + 2}, Vertex{band + 1, left + 1}};
}

CellLines start() {
  CellLines celllines{};
  for (int band = 0; band < kBands; ++band) {
    int d = firstSlanted(band);
    int above = firstHorizontal(band);
    int below = firstHorizontal(band + 1);
    for (int i = 0; i < slantedInBand(band) - 1; ++i) {
      int cell = firstCell(band) + i;
      int left = d + i, right = d + i + 1;
      if (pointsUp(cell)) {
        celllines.at(cell) = {right, below + i / 2, left};
      } else {
        celllines.at(cell) = {above + i / 2, right, left};
      }
    }
  }
  return celllines;
}

CellBoard cellBoard(const CellLines& celllines) {
  std::vector<std::vector<int>> sides(kCells + 1);
  for (int cell = 1; cell <= kCells; ++cell) {
    sides.at(cell).assign(celllines.at(cell).begin(), celllines.at(cell).end());
  }
  return {std::move(sides), kLines};
}

Counts countMarkedSides(const SideMarks& sidemark) {
  Counts counts(kCells + 1, 0);
  for (int cell = 1; cell <= kCells; ++cell) {
    const auto& marks = sidemark.at(cell);
    counts.at(cell) =
        static_cast<int>(std::count_if(marks.begin(), marks.end(), [](int m) { return m != 0; }));
  }
  return counts;
}

bool onRim(int line) {
  auto [a, b] = endsOf(line);
  // A line inside has a triangle on either side; the third corners of the
  // two are the apexes below.
  std::array<Vertex, 2> apexes;
  if (a.row == b.row) {
    int middle = (a.column + b.column) / 2;
    apexes = {Vertex{a.row - 1, middle}, Vertex{a.row + 1, middle}};
  } else {
    apexes = {Vertex{a.row, a.column + 2 * (b.column - a.column)},
              Vertex{b.row, b.column + 2 * (a.column - b.column)}};
  }
  return !onBoard(apexes[0]) || !onBoard(apexes[1]);
}

int twinOf(int line) {
  constexpr int kTopRow = 1;
  int bottomRow = firstHorizontal(kVertexRows - 1);
  constexpr int kHalf = kBands / 2;
  if (line >= kTopRow && line < firstHorizontal(1)) return line - kTopRow + bottomRow;
  if (line >= bottomRow && line <= kHorizontalLines) return line - bottomRow + kTopRow;
  for (int band = 0; band < kBands; ++band) {
    int across = (band + kHalf) % kBands;
    // The upper left rim meets the lower right, the upper right the lower left.
    if (band < kHalf && line == firstSlanted(band)) return lastSlanted(across);
    if (band < kHalf && line == lastSlanted(band)) return firstSlanted(across);
    if (band >= kHalf && line == lastSlanted(band)) return firstSlanted(across);
    if (band >= kHalf && line == firstSlanted(band)) return lastSlanted(across);
  }
  return 0;
}

int rimTwinOf(const CellLines& celllines, int cell) {
  for (int line : celllines.at(cell)) {
    if (int twin = twinOf(line)) return twin;
  }
  return 0;
}

std::vector<int> vraskexten(int game, int cell) {
  if (game != SuperVrask && game != SuperVraskPlus) return {};
  std::vector<int> lines;
  auto corners = cornersOf(cell);
  for (int k = 0; k < 3; ++k) {
    Vertex corner = corners.at(k);
    Vertex farA = beyond(corners.at((k + 1) % 3), corner);
    Vertex farB = beyond(corners.at((k + 2) % 3), corner);
    addIfOnBoard(lines, corner, farA);
    addIfOnBoard(lines, corner, farB);
    if (game == SuperVraskPlus) addIfOnBoard(lines, farA, farB);
  }
  return sortedOnce(lines);
}

std::vector<int> withbubble(int game, int cell) {
  std::vector<int> lines = vraskexten(game, cell);
  if (lines.empty()) return lines;
  for (const Reach& reach : acrossTheRim()) {
    if (reach.cell != cell) continue;
    lines.insert(lines.end(), reach.both.begin(), reach.both.end());
    if (game == SuperVraskPlus)
      lines.insert(lines.end(), reach.plusOnly.begin(), reach.plusOnly.end());
  }
  return sortedOnce(lines);
}

Hidden hiddenBySize(int size) {
  static const std::vector<int> kSetB{3,  7,  12, 18, 23, 27, 28, 29, 30, 37, 38, 47, 48, 59,
                                      60, 71, 72, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90};
  static const std::vector<int> kSetA{1,  2,  3,  4,  8,  13, 19, 24, 31, 32, 33, 34,
                                      35, 36, 37, 38, 39, 40, 49, 50, 61, 62, 73, 74};
  static const std::vector<int> kSetQ{6,  7,  15, 16, 26, 27, 37, 38, 46,
                                      47, 48, 49, 50, 51, 52, 53, 54};
  static const std::vector<int> kSetP{1, 2, 3, 4, 5, 6, 7, 8, 9, 17, 18, 28, 29, 39, 40};
  Hidden hidden;
  if (size < kNormalSize) hidden = {kSetB, kSetQ};
  if (size < kNormalSize - 1) {
    hidden.lines.insert(hidden.lines.end(), kSetA.begin(), kSetA.end());
    hidden.cells.insert(hidden.cells.end(), kSetP.begin(), kSetP.end());
  }
  return {sortedOnce(hidden.lines), sortedOnce(hidden.cells)};
}

int movestotal(int game, int size) {
  Hidden hidden = hiddenBySize(size);
  // Dorvel is counted by its cells, as the circle games are.
  if (game == Ombrel || game == LineVrask) return kLines - static_cast<int>(hidden.lines.size());
  return kCells - static_cast<int>(hidden.cells.size());
}

std::array<int, kLines + 1> designColours() {
  // One letter a line, 1 to 90: M magenta, Y ochre, C teal, O orange, G green.
  constexpr std::string_view kScatter =
      "MYCMCOYOMG"
      "YGGCGYMGMC"
      "YMYGYMYMYC"
      "YOYOCGMOOG"
      "CGMYCOMYCM"
      "YGOYMCGYOC"
      "OCGYMCOGCG"
      "MYYOMGOCYO"
      "MOCYCOGOMC";
  std::array<int, kLines + 1> colours{};
  for (int line = 1; line <= kLines; ++line) {
    switch (kScatter.at(static_cast<size_t>(line - 1))) {
      case 'M':
        colours.at(line) = 12583104;
        break;
      case 'Y':
        colours.at(line) = 49344;
        break;
      case 'C':
        colours.at(line) = 12632064;
        break;
      case 'O':
        colours.at(line) = 16576;
        break;
      default:
        colours.at(line) = 49152;
        break;
    }
  }
  return colours;
}

}  // namespace vrask::triangular
