#include "frame/star_field.h"

#include <cmath>

#include "toolkit/form.h"

namespace vrask {

namespace {

constexpr int kStroke = 20;  // a star is a short vertical stroke

// Int() of a quotient: the whole number at or below it.
int intOf(double v) {
  return static_cast<int>(std::floor(v));
}

bool outOfField(const StarField::Star& star) {
  return star.y < 0 || star.y > StarField::kHeight || star.x < 0 || star.x > StarField::kWidth;
}

}  // namespace

StarField::Star StarField::moved(Star star) {
  // The centre the stars flee is not quite the same on both sides, so the
  // field drifts: left of 8411 a star is pulled towards 2952, not pushed from
  // the middle.
  if (star.y < 4251) {
    star.y -= intOf((4252 - star.y) / 40.0);
  } else {
    star.y += intOf((star.y - 4250) / 40.0);
  }
  if (star.x < 8411) {
    star.x -= intOf((2952 - star.x) / 40.0);
  } else {
    star.x += intOf((star.x - 4250) / 40.0);
  }
  return star;
}

void StarField::tick(Form& form) {
  // The field is mapped onto the picture, whatever its size.
  double sx = picture_.Width / kWidth;
  double sy = picture_.Height / kHeight;
  picture_.Cls();
  for (Star& star : stars_) {
    star = moved(star);
    if (outOfField(star)) {
      star.y = form.pick(kHeight);
      star.x = form.pick(kWidth);
    }
    Stroke stroke;
    stroke.x1 = stroke.x2 = star.x * sx;
    stroke.y1 = star.y * sy;
    stroke.y2 = (star.y + kStroke) * sy;
    stroke.color = color::White;
    picture_.drawing.push_back(stroke);
  }
}

}  // namespace vrask
