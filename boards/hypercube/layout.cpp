#include "boards/hypercube/layout.h"

#include <algorithm>
#include <cmath>

#include "boards/hypercube/tables.h"

namespace vrask::hypercube::layout {

namespace {

// An outer cube's face, and how far its back face is drawn up and to the
// right of the front, at a shallow angle; the nested cube is drawn at a
// fraction of the outer one. These leave every hit area and every ring of a
// picture clear of the others.
constexpr double kNormalFace = 1800;
constexpr double kLargeFace = 2250;
constexpr double kDepth = 0.4;
constexpr double kDepthAcross = 0.9397;  // cos 20 degrees
constexpr double kDepthUp = 0.342;       // sin 20 degrees
constexpr double kNestedInNormal = 0.3;
constexpr double kNestedInLarge = 0.35;
// A connector's hit area stands this far along it from the outer cube.
constexpr double kConnectorHit = 0.7;

constexpr double kHitWidth = 260;
constexpr double kHitHeight = 200;
constexpr double kRing = 400;
constexpr double kCircle = 280;

const Picture& pictureOf(int step, bool large) {
  return *std::find_if(kPictures.begin(), kPictures.end(),
                       [&](const Picture& p) { return p.step == step && p.large == large; });
}

Point centreOf(const Picture& p) {
  return {p.box.left + p.box.width / 2,
          p.box.top + kPictureCaptionHeight + (p.box.height - kPictureCaptionHeight) / 2};
}

// Corner k of a cube drawn with face `face` about the picture's centre.
Point corner(const Picture& p, double face, int k) {
  Point c = centreOf(p);
  double half = face / 2;
  double back = (isBack(k) ? face : -face) * kDepth / 2;
  return {c.x + (isRight(k) ? half : -half) + back * kDepthAcross,
          c.y + (isBottom(k) ? half : -half) - back * kDepthUp};
}

double outerFace(const Picture& p) {
  return p.large ? kLargeFace : kNormalFace;
}
double innerFace(const Picture& p) {
  return outerFace(p) * (p.large ? kNestedInLarge : kNestedInNormal);
}

Point along(Point a, Point b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}
Point middle(Point a, Point b) {
  return along(a, b, 0.5);
}

// Where a ray from `from` in direction `dir` leaves the box.
Point toEdge(const Rect& box, Point from, Point dir) {
  double t = 1e9;
  if (dir.x > 0) t = std::min(t, (box.left + box.width - from.x) / dir.x);
  if (dir.x < 0) t = std::min(t, (box.left - from.x) / dir.x);
  if (dir.y > 0) t = std::min(t, (box.top + box.height - from.y) / dir.y);
  if (dir.y < 0) t = std::min(t, (box.top - from.y) / dir.y);
  return {from.x + dir.x * t, from.y + dir.y * t};
}

Segment between(Point a, Point b) {
  return {a.x, a.y, b.x, b.y};
}
Point from(const Segment& s) {
  return {s.x1, s.y1};
}
Point to(const Segment& s) {
  return {s.x2, s.y2};
}

Segment edgeOf(const Picture& p, double face, int edge) {
  const auto& ends = kEdgeCorners.at(edge);
  return between(corner(p, face, ends[0]), corner(p, face, ends[1]));
}

// The normal picture where a cube is the outer one.
const Picture& normalPictureOf(int cube) {
  int step = static_cast<int>(std::find_if(kSteps.begin(), kSteps.end(),
                                           [cube](const RingStep& s) { return s.first == cube; }) -
                              kSteps.begin());
  return pictureOf(step, false);
}

}  // namespace

Segment cubeSegment(int edge, int segment) {
  for (const Picture& p : kPictures) {
    if (p.outerSet == segment) return edgeOf(p, outerFace(p), edge);
    if (p.innerSet == segment) return edgeOf(p, innerFace(p), edge);
  }
  return {};
}

Segment connectorSegment(int step, int k, int segment) {
  if (segment == Stub) {
    int second = kSteps.at(step).second;
    int leaving =
        static_cast<int>(std::find_if(kSteps.begin(), kSteps.end(),
                                      [second](const RingStep& s) { return s.first == second; }) -
                         kSteps.begin());
    const Picture& p = pictureOf(leaving, true);
    Point from = corner(p, outerFace(p), k);
    Point c = centreOf(p);
    return between(from, toEdge(p.box, from, {from.x - c.x, from.y - c.y}));
  }
  const Picture& p = pictureOf(step, segment == InLarge);
  return between(corner(p, outerFace(p), k), corner(p, innerFace(p), k));
}

Rect hitArea(int index) {
  if (isConnector(index)) {
    int step = (index - kCubeLines) / kCorners;
    Segment s = connectorSegment(step, (index - kCubeLines) % kCorners, InNormal);
    return centredOn(along(from(s), to(s), kConnectorHit), kHitWidth, kHitHeight);
  }
  const Picture& p = normalPictureOf(index / kEdges);
  Segment s = edgeOf(p, outerFace(p), index % kEdges);
  return centredOn(middle(from(s), to(s)), kHitWidth, kHitHeight);
}

Rect secondHitArea(int index) {
  int step = (index - kCubeLines) / kCorners;
  Segment s = connectorSegment(step, (index - kCubeLines) % kCorners, InLarge);
  return centredOn(along(from(s), to(s), kConnectorHit), kHitWidth, kHitHeight);
}

namespace {

Point squareCentre(int square) {
  if (square <= kCubes * kFaces) {
    int cube = (square - 1) / kFaces;
    const Picture& p = normalPictureOf(cube);
    Point sum;
    for (int e : kFaceEdges.at((square - 1) % kFaces)) {
      Segment s = edgeOf(p, outerFace(p), e);
      sum = {sum.x + s.x1 + s.x2, sum.y + s.y1 + s.y2};
    }
    return {sum.x / 8, sum.y / 8};
  }
  int step = (square - kCubes * kFaces - 1) / kEdges;
  int e = kBlockRows.at((square - kCubes * kFaces - 1) % kEdges).e;
  const Picture& p = pictureOf(step, true);
  Segment outer = edgeOf(p, outerFace(p), e);
  Segment inner = edgeOf(p, innerFace(p), e);
  return middle(middle(from(outer), to(outer)), middle(from(inner), to(inner)));
}

}  // namespace

Rect ringAt(int square) {
  return centredOn(squareCentre(square), kRing, kRing);
}

Rect circleAt(int square) {
  return centredOn(squareCentre(square), kCircle, kCircle);
}

Rect legendRow(double row) {
  constexpr Rect kFirstName{60, 480, 1000, kRowHeight};
  constexpr double kStep = 540;
  return {kFirstName.left, kFirstName.top + kStep * row, kFirstName.width, kFirstName.height};
}

}  // namespace vrask::hypercube::layout
