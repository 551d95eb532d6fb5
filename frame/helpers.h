// Small helpers that every board form needs around its elements.
#pragma once

#include <functional>
#include <string>

namespace vrask {

struct Element;
class ElementArray;
class Form;

// Where a block of elements stands on its form, in twips from the top left.
struct Place {
  double left = 0;
  double top = 0;
};

// A point of a drawing on the form, in twips.
struct Point {
  double x = 0, y = 0;
};

// Where an element stands on its form, in twips: its box...
struct Rect {
  double left = 0, top = 0, width = 0, height = 0;
};
// ... or, for a drawn line, its two ends.
struct Segment {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

// The box of `width` by `height` centred on `middle`.
Rect centredOn(Point middle, double width, double height);

// Sets where `e` stands on its form, in twips, and hands it back.
Element& placed(Element& e, double left, double top, double width, double height);
Element& placed(Element& e, const Rect& r);
// Sets the ends of the drawn line `e`, and hands it back.
Element& placedLine(Element& e, const Segment& s);

// The rings `Shape1(1..count)` that show the state of a board's squares:
// circles, ring s where `at(s)` places it, filled with `fill` when a square's
// state fills it.
ElementArray& addRings(Form& form, int count, const std::function<Rect(int)>& at, int fill);

// A label that shows `caption` on the form's background, in the form's font
// at `fontSize` points.
Element& captioned(Element& e, const std::string& caption, double fontSize = 10, bool bold = false);

// How long the computer shows its move in yellow before it is played, and
// how long a flash of scored cells stays, in seconds.
inline constexpr double kComputerPause = 0.5;

// The number at the head of `text`: leading blanks skipped, then an optional
// sign, digits, a decimal point and an exponent, up to the first character
// that does not fit. 0 when there is no number ("12abc" is 12, "abc" is 0).
// This is how typed moves and the score captions are read.
double Val(const std::string& text);

// Makes `button` the form's one default button (the one Enter presses): the
// Default mark is taken off every other button of the form.
void setDefaultButton(Form& form, Element& button);

}  // namespace vrask
