#include "frame/helpers.h"

#include <cctype>
#include <cstdlib>

#include "toolkit/form.h"

namespace vrask {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// The longest head of `s` that reads as a number: sign, digits, one decimal
// point, and an exponent only when digits follow it.
std::string numberHead(const std::string& s) {
  std::size_t i = 0;
  auto digits = [&] {
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])) != 0) ++i;
  };
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  digits();
  if (i < s.size() && s[i] == '.') {
    ++i;
    digits();
  }
  std::size_t mantissaEnd = i;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    std::size_t exponentStart = i;
    digits();
    if (i == exponentStart) i = mantissaEnd;
  }
  return s.substr(0, i);
}

}  // namespace

Rect centredOn(Point middle, double width, double height) {
  return {middle.x - width / 2, middle.y - height / 2, width, height};
}

Element& placed(Element& e, double left, double top, double width, double height) {
  e.Left = left;
  e.Top = top;
  e.Width = width;
  e.Height = height;
  return e;
}

Element& placed(Element& e, const Rect& r) {
  return placed(e, r.left, r.top, r.width, r.height);
}

Element& placedLine(Element& e, const Segment& s) {
  e.X1 = s.x1;
  e.Y1 = s.y1;
  e.X2 = s.x2;
  e.Y2 = s.y2;
  return e;
}

ElementArray& addRings(Form& form, int count, const std::function<Rect(int)>& at, int fill) {
  ElementArray& rings = form.addArray("Shape1", Kind::Shape, 1, count);
  for (Element& ring : rings) {
    placed(ring, at(ring.index));
    ring.Shape = Circle;
    ring.FillStyle = 0;
    ring.FillColor = fill;
  }
  return rings;
}

Element& captioned(Element& e, const std::string& caption, double fontSize, bool bold) {
  e.Caption = caption;
  e.FontSize = fontSize;
  e.FontBold = bold;
  e.BackStyle = 0;
  return e;
}

double Val(const std::string& text) {
  // Blanks count for nothing anywhere in the text: "1 2" reads as 12.
  std::string packed;
  for (char c : text) {
    if (!isBlank(c)) packed += c;
  }
  std::string head = numberHead(packed);
  return head.empty() ? 0 : std::strtod(head.c_str(), nullptr);
}

void setDefaultButton(Form& form, Element& button) {
  for (ElementArray* array : form.designOrder()) {
    if (array->kind() != Kind::Button) continue;
    for (Element& e : *array) e.Default = false;
  }
  button.Default = true;
}

}  // namespace vrask
