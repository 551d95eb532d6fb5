// The spinning emblem of the launcher's front page: four coloured arms turning
// in space around the middle of a picture, drawn as strokes.
#pragma once

#include <array>

namespace vrask {

struct Element;

class Emblem {
 public:
  // An arm: three rotation angles in degrees and its colour.
  struct Arm {
    double a, b, c;
    int color;
  };

  // The arms at their starting angles; nothing drawn yet.
  explicit Emblem(Element& picture);

  // One tick of `tmrAni`: the angles move on a step.
  void turn();
  // `showblurb`: the picture cleared and each arm drawn as a line from the
  // middle to its end, with a filled dot at the end.
  void draw();

  const std::array<Arm, 4>& arms() const { return arms_; }

 private:
  Element& picture_;
  std::array<Arm, 4> arms_;
};

}  // namespace vrask
