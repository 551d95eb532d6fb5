// The star field of the launcher and the about box: stars flying out from the
// middle of a black picture, drawn as strokes into the picture.
#pragma once

#include <array>

namespace vrask {

struct Element;
class Form;

class StarField {
 public:
  static constexpr int kStars = 30;
  // The field the stars fly in, in twips: x 0..14900, y 0..8410.
  static constexpr int kWidth = 14900;
  static constexpr int kHeight = 8410;

  // The stars start at the top left corner; they leave the field on their
  // first moves and are dealt anew at random places. No random number is
  // drawn before the first tick.
  explicit StarField(Element& picture) : picture_(picture) {}

  // One tick: each star moves a fortieth of its distance away from the
  // middle, a star out of the field is dealt anew (with the form's Rnd), and
  // the picture's drawing is replaced by the stars where they now stand,
  // the field scaled to the picture's size.
  void tick(Form& form);

  struct Star {
    int x = 0;
    int y = 0;
  };
  const std::array<Star, kStars>& stars() const { return stars_; }

  // Where one star goes in one tick (without the re-deal).
  static Star moved(Star star);

 private:
  Element& picture_;
  std::array<Star, kStars> stars_{};
};

}  // namespace vrask
