#include "boards/quennel/tables.h"

#include <algorithm>
#include <stdexcept>

namespace vrask::quennel {

namespace {

// Each line by the names of its two ends, lines 1 to 39.
constexpr std::array<const char*, kLines> kLineEnds{
    "VA", "VB", "VC", "AB", "CB", "AC", "AD", "AE", "AH", "DE", "HE", "HD", "BE",
    "BF", "BI", "EF", "IF", "EI", "CH", "CI", "CG", "HI", "GI", "HG", "JD", "EJ",
    "HJ", "EK", "FK", "IK", "HM", "IM", "GM", "MJ", "KJ", "MK", "NJ", "NK", "NM"};

// The faces in the board's own order, each by its three lines.
constexpr std::array<std::array<int, 3>, kFaces> kFaceLines{{
    {1, 2, 4},    {7, 8, 10},   {4, 8, 13},   {13, 14, 16}, {2, 3, 5},    {14, 15, 17},
    {5, 15, 20},  {20, 21, 23}, {1, 3, 6},    {19, 21, 24}, {6, 9, 19},   {7, 9, 12},
    {4, 5, 6},    {8, 9, 11},   {13, 15, 18}, {19, 20, 22}, {10, 11, 12}, {16, 17, 18},
    {11, 18, 22}, {22, 23, 24}, {10, 25, 26}, {16, 28, 29}, {26, 28, 35}, {35, 37, 38},
    {17, 29, 30}, {23, 32, 33}, {30, 32, 36}, {36, 38, 39}, {24, 31, 33}, {12, 25, 27},
    {27, 31, 34}, {34, 37, 39}, {11, 26, 27}, {18, 28, 30}, {22, 31, 32}, {34, 35, 36},
}};

// The turn of a third about V-N carries the base corners round, D to F to G
// to D; V and N stay.
Corner turnCorner(Corner c) {
  switch (c) {
    case CornerD:
      return CornerF;
    case CornerF:
      return CornerG;
    case CornerG:
      return CornerD;
    default:
      return c;
  }
}

int vertexOf(Corner a, Corner b) {
  const auto& all = vertices();
  for (int i = 0; i < kVertices; ++i) {
    const Vertex& v = all.at(static_cast<size_t>(i));
    if ((v.first == a && v.second == b) || (v.first == b && v.second == a)) return i;
  }
  return -1;
}

int turnVertex(int i) {
  const Vertex& v = vertices().at(static_cast<size_t>(i));
  return vertexOf(turnCorner(v.first), turnCorner(v.second));
}

// The corner of midpoint `v` other than `corner`.
Corner farCorner(const Vertex& v, Corner corner) {
  return v.first == corner ? v.second : v.first;
}

}  // namespace

const std::array<Vertex, kVertices>& vertices() {
  static const std::array<Vertex, kVertices> all{{
      {'V', 3600, 600, CornerV, CornerV},
      {'A', 1920, 3000, CornerV, CornerD},
      {'B', 4680, 3480, CornerV, CornerF},
      {'C', 5640, 2640, CornerV, CornerG},
      {'D', 360, 5520, CornerD, CornerD},
      {'E', 3240, 6200, CornerD, CornerF},
      {'F', 5880, 6840, CornerF, CornerF},
      {'G', 7680, 4680, CornerG, CornerG},
      {'H', 4200, 5040, CornerD, CornerG},
      {'I', 6840, 5640, CornerF, CornerG},
      {'J', 2880, 7800, CornerD, CornerN},
      {'K', 5700, 8520, CornerF, CornerN},
      {'M', 6720, 7320, CornerG, CornerN},
      {'N', 5520, 10200, CornerN, CornerN},
  }};
  return all;
}

int vertexIndex(char name) {
  const auto& all = vertices();
  for (int i = 0; i < kVertices; ++i) {
    if (all.at(static_cast<size_t>(i)).name == name) return i;
  }
  throw std::invalid_argument(std::string("no vertex ") + name);
}

const std::array<Ends, kLines + 1>& lineEnds() {
  static const std::array<Ends, kLines + 1> ends = [] {
    std::array<Ends, kLines + 1> table{};
    for (int line = 1; line <= kLines; ++line) {
      const char* pair = kLineEnds.at(static_cast<size_t>(line - 1));
      table.at(static_cast<size_t>(line)) = {vertexIndex(pair[0]), vertexIndex(pair[1])};
    }
    return table;
  }();
  return ends;
}

int lineBetween(int a, int b) {
  const auto& ends = lineEnds();
  auto joins = [a, b](const Ends& e) {
    return (e.from == a && e.to == b) || (e.from == b && e.to == a);
  };
  auto found = std::find_if(ends.begin() + 1, ends.end(), joins);
  return found == ends.end() ? 0 : static_cast<int>(found - ends.begin());
}

std::vector<int> tetrahedronLines(int tetrahedron) {
  std::string corners = kTetrahedra.at(static_cast<size_t>(tetrahedron));
  std::vector<int> lines;
  for (size_t i = 0; i < corners.size(); ++i) {
    for (size_t j = i + 1; j < corners.size(); ++j) {
      lines.push_back(lineBetween(vertexIndex(corners[i]), vertexIndex(corners[j])));
    }
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

int tetrahedronOf(int line) {
  for (int t = 0; t < static_cast<int>(kTetrahedra.size()); ++t) {
    std::vector<int> lines = tetrahedronLines(t);
    if (std::find(lines.begin(), lines.end(), line) != lines.end()) return t;
  }
  return -1;
}

CellLines startgrids() {
  CellLines celllines{};
  for (int face = 1; face <= kFaces; ++face) {
    const auto& lines = kFaceLines.at(static_cast<size_t>(face - 1));
    for (int slot = 1; slot <= 3; ++slot) {
      celllines.at(static_cast<size_t>(face)).at(static_cast<size_t>(slot)) =
          lines.at(static_cast<size_t>(slot - 1));
    }
  }
  return celllines;
}

std::array<int, 3> faceVertices(const CellLines& celllines, int face) {
  std::vector<int> ends;
  for (int slot = 1; slot <= 3; ++slot) {
    const Ends& e = lineEnds().at(static_cast<size_t>(celllines.at(face).at(slot)));
    for (int v : {e.from, e.to}) {
      if (std::find(ends.begin(), ends.end(), v) == ends.end()) ends.push_back(v);
    }
  }
  std::sort(ends.begin(), ends.end());
  return {ends.at(0), ends.at(1), ends.at(2)};
}

int turnLine(int line) {
  const Ends& e = lineEnds().at(static_cast<size_t>(line));
  return lineBetween(turnVertex(e.from), turnVertex(e.to));
}

int turnFace(const CellLines& celllines, int face) {
  std::array<int, 3> corners = faceVertices(celllines, face);
  for (int& v : corners) v = turnVertex(v);
  std::sort(corners.begin(), corners.end());
  for (int other = 1; other <= kFaces; ++other) {
    if (faceVertices(celllines, other) == corners) return other;
  }
  return 0;
}

Turn turned(const CellLines& celllines) {
  Turn t;
  for (int n = 1; n <= kLines; ++n) {
    int real = n;
    for (int view = 1; view <= kViews; ++view) {
      t.line.at(view).at(n) = real;
      t.lineScreen.at(view).at(real) = n;
      real = turnLine(real);
    }
  }
  for (int n = 1; n <= kFaces; ++n) {
    int real = n;
    for (int view = 1; view <= kViews; ++view) {
      t.face.at(view).at(n) = real;
      t.faceScreen.at(view).at(real) = n;
      real = turnFace(celllines, real);
    }
  }
  return t;
}

std::optional<std::array<int, 2>> extension(const CellLines& celllines, int face) {
  const auto& all = vertices();
  std::array<int, 3> corners = faceVertices(celllines, face);
  for (int x : corners) {
    const Vertex& corner = all.at(static_cast<size_t>(x));
    if (!corner.isCorner()) continue;
    std::vector<int> beyond;
    for (int p : corners) {
      if (p == x) continue;
      Corner far = farCorner(all.at(static_cast<size_t>(p)), corner.first);
      beyond.push_back(lineBetween(p, vertexOf(far, far)));
    }
    std::sort(beyond.begin(), beyond.end());
    return std::array<int, 2>{beyond.at(0), beyond.at(1)};
  }
  return std::nullopt;
}

const std::array<Game, 14>& games() {
  static const std::array<Game, 14> all{{
      {0, "Ombrel  (Easy level)", "Game = Ombrel (Easy Level)", Count::Lines, false, 0, true},
      {2, "Ombrel  (Full level)", "Game = Ombrel", Count::Lines, false, 1, true},
      {5, "Vrask  (Classic - Easy level)", "Game = Vrask (Classic - Easy Level)", Count::Classic,
       false, 0, true},
      {6, "Vrask  (Set count - Easy level)", "Game = Vrask (Set count - Easy Level)",
       Count::SetCount, false, 0, false},
      {8, "Vrask  (Classic - Full level)", "Game = Vrask (Classic)", Count::Classic, false, 1,
       true},
      {9, "Vrask  (Set count - Full level)", "Game = Vrask (Set count)", Count::SetCount, false, 1,
       false},
      {11, "Super Vrask (Classic - Easy level)", "Game = Super Vrask (Classic - Easy Level)",
       Count::Classic, true, 0, true},
      {12, "Super Vrask (Set count - Easy level)", "Game = Super Vrask (Set count - Easy Level)",
       Count::SetCount, true, 0, false},
      {14, "Super Vrask  (Classic - Full level)", "Game = Super Vrask (Classic)", Count::Classic,
       true, 1, true},
      {15, "Super Vrask  (Set count - Full level)", "Game = Super Vrask (Set count)",
       Count::SetCount, true, 1, false},
      {17, "Vrask  (Set count with Vrask move - Easy level)",
       "Game = Vrask (Vrask move - Easy Level)", Count::VraskMove, false, 0, false},
      {18, "Vrask  (Set count with Vrask move - Full level)", "Game = Vrask (Vrask move)",
       Count::VraskMove, false, 1, false},
      {20, "Super Vrask  (Set count with Vrask move - Easy level)",
       "Game = Super Vrask (w/ Vrask move - Easy)", Count::VraskMove, true, 0, false},
      {21, "Super Vrask  (Set count with Vrask move - Full level)",
       "Game = Super Vrask (w/ Vrask move)", Count::VraskMove, true, 1, false},
  }};
  return all;
}

const Game* gameOf(int gamecode) {
  for (const Game& g : games()) {
    if (g.gamecode == gamecode) return &g;
  }
  return nullptr;
}

}  // namespace vrask::quennel
