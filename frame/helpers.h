// Small helpers that every board form needs around its elements.
#pragma once

#include <string>

namespace vrask {

struct Element;
class Form;

// Where a block of elements stands on its form, in twips from the top left.
struct Place {
  double left = 0;
  double top = 0;
};

// Sets where `e` stands on its form, in twips, and hands it back.
Element& placed(Element& e, double left, double top, double width, double height);

// The number at the head of `text`: leading blanks skipped, then an optional
// sign, digits, a decimal point and an exponent, up to the first character
// that does not fit. 0 when there is no number ("12abc" is 12, "abc" is 0).
// This is how typed moves and the score captions are read.
double Val(const std::string& text);

// Makes `button` the form's one default button (the one Enter presses): the
// Default mark is taken off every other button of the form.
void setDefaultButton(Form& form, Element& button);

}  // namespace vrask
