// The HyperCube pictures: every hit area and circle stands inside a picture
// and clear of the others, so each line and square can be clicked.
#include <gtest/gtest.h>

#include <vector>

#include "boards/hypercube/layout.h"
#include "boards/hypercube/tables.h"

namespace vrask::hypercube::layout {
namespace {

bool overlap(const Rect& a, const Rect& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

bool insideAPicture(const Rect& r) {
  for (const Picture& p : kPictures) {
    if (r.left >= p.box.left && r.top >= p.box.top + kPictureCaptionHeight &&
        r.left + r.width <= p.box.left + p.box.width &&
        r.top + r.height <= p.box.top + p.box.height) {
      return true;
    }
  }
  return false;
}

void expectApartAndInside(const std::vector<Rect>& rects, const char* what) {
  for (size_t i = 0; i < rects.size(); ++i) {
    EXPECT_TRUE(insideAPicture(rects[i])) << what << " " << i;
    for (size_t j = i + 1; j < rects.size(); ++j) {
      EXPECT_FALSE(overlap(rects[i], rects[j])) << what << " " << i << " and " << j;
    }
  }
}

TEST(HypercubeLayout, HitAreasAndRingsStandInsideThePicturesAndApart) {
  std::vector<Rect> hits;
  for (int index = 0; index < kLines; ++index) hits.push_back(hitArea(index));
  for (int copy : kSecondHitAreas) hits.push_back(secondHitArea(copy / 10));
  expectApartAndInside(hits, "hit area");
  std::vector<Rect> rings;
  for (int s = 1; s <= kSquares; ++s) rings.push_back(ringAt(s));
  expectApartAndInside(rings, "ring");
}

TEST(HypercubeLayout, ConnectorsJoinTheCornersOfTheCubesTheyDraw) {
  // In the normal picture of t1 (White outside, Red inside) the connector at
  // corner k runs from White's corner k to Red's.
  for (int k = 0; k < kCorners; ++k) {
    Segment c = connectorSegment(0, k, InNormal);
    int edge = k == 0 ? 1 : 0;  // an edge at corner k
    for (int e = 0; e < kEdges; ++e) {
      if (kEdgeCorners[e][0] == k || kEdgeCorners[e][1] == k) edge = e;
    }
    int end = kEdgeCorners[edge][0] == k ? 0 : 1;
    Segment white = cubeSegment(edge, 20), red = cubeSegment(edge, 32);
    Point w = end == 0 ? Point{white.x1, white.y1} : Point{white.x2, white.y2};
    Point r = end == 0 ? Point{red.x1, red.y1} : Point{red.x2, red.y2};
    EXPECT_DOUBLE_EQ(c.x1, w.x);
    EXPECT_DOUBLE_EQ(c.y1, w.y);
    EXPECT_DOUBLE_EQ(c.x2, r.x);
    EXPECT_DOUBLE_EQ(c.y2, r.y);
  }
}

}  // namespace
}  // namespace vrask::hypercube::layout
