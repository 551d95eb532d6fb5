#include "launcher/emblem.h"

#include <cmath>
#include <numbers>

#include "toolkit/element.h"

namespace vrask {

namespace {

// The arms are 70 pixels long, 15 twips to the pixel.
constexpr double kRadius = 70 * 15;
constexpr double kDot = 60;

// The steps of one tick, in degrees. Each angle turns at its own pace so the
// emblem never repeats a pose for long.
constexpr double kStepA = 3;
constexpr double kStepB = 2;
constexpr double kStepC = 1;

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

double turned(double degrees, double step) {
  return std::fmod(degrees + step, 360);
}

}  // namespace

Emblem::Emblem(Element& picture)
    : picture_(picture),
      arms_{
          {{0, 90, 0, 8421631}, {90, 90, 0, 65535}, {90, 90, 90, 16744576}, {130, 90, 0, 49152}}} {}

void Emblem::turn() {
  for (Arm& arm : arms_) {
    arm.a = turned(arm.a, kStepA);
    arm.b = turned(arm.b, kStepB);
    arm.c = turned(arm.c, kStepC);
  }
}

void Emblem::draw() {
  picture_.Cls();
  double cx = picture_.Width / 2;
  double cy = picture_.Height / 2;
  for (const Arm& arm : arms_) {
    // The arm points at azimuth a and polar angle b, and the whole figure is
    // tipped by c about the horizontal axis; the screen shows it from the front.
    double a = radians(arm.a);
    double b = radians(arm.b);
    double c = radians(arm.c);
    double x = std::sin(b) * std::cos(a);
    double y = std::sin(b) * std::sin(a);
    double z = std::cos(b);
    double tipped = y * std::cos(c) - z * std::sin(c);
    Stroke line{cx, cy, cx + kRadius * x, cy - kRadius * tipped, arm.color, false};
    Stroke dot{line.x2, line.y2, kDot, 0, arm.color, true};
    picture_.drawing.push_back(line);
    picture_.drawing.push_back(dot);
  }
}

}  // namespace vrask
