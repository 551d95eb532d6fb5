#include "toolkit/element.h"

#include <stdexcept>

namespace vrask {

std::string_view kindName(Kind kind) {
  switch (kind) {
    case Kind::Line:
      return "Line";
    case Kind::Shape:
      return "Shape";
    case Kind::Label:
      return "Label";
    case Kind::MenuItem:
      return "Menu";
    case Kind::ListBox:
      return "ListBox";
    case Kind::TextBox:
      return "TextBox";
    case Kind::Button:
      return "CommandButton";
    case Kind::Picture:
      return "PictureBox";
    case Kind::Timer:
      return "Timer";
    case Kind::Image:
      return "Image";
  }
  return "?";
}

std::string Element::displayName() const {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

namespace {

bool has(Kind kind, std::string_view property) {
  for (std::string_view p : Element::stateProperties(kind)) {
    if (p == property) return true;
  }
  return false;
}

bool geometric(std::string_view property) {
  return property == "Left" || property == "Top" || property == "Width" || property == "Height";
}

}  // namespace

std::optional<Value> Element::get(std::string_view property, std::optional<int> arg) const {
  if (property == "List") {
    if (kind != Kind::ListBox || !arg || *arg < 0 || *arg >= ListCount()) return std::nullopt;
    return Value{List[static_cast<size_t>(*arg)]};
  }
  if (arg) return std::nullopt;
  // Readable, but not part of the state a dump lists: the selection is what
  // a person last clicked, not what the game holds.
  if (property == "ListIndex") {
    return kind == Kind::ListBox ? std::optional<Value>(num(ListIndex)) : std::nullopt;
  }
  if (kind == Kind::Line) {
    if (property == "X1") return num(X1);
    if (property == "Y1") return num(Y1);
    if (property == "X2") return num(X2);
    if (property == "Y2") return num(Y2);
  } else if (kind != Kind::MenuItem && kind != Kind::Timer && geometric(property)) {
    if (property == "Left") return num(Left);
    if (property == "Top") return num(Top);
    if (property == "Width") return num(Width);
    return num(Height);
  }
  // A shape's back colour and style are read, though a dump leaves them out:
  // only some boards paint a shape's inside with them.
  bool shapeBack = kind == Kind::Shape && (property == "BackColor" || property == "BackStyle");
  if (!has(kind, property) && !shapeBack && property != "ToolTipText" && property != "FontSize") {
    return std::nullopt;
  }
  if (property == "Caption") return Value{Caption};
  if (property == "Text") return Value{Text};
  if (property == "ToolTipText") return Value{ToolTipText};
  if (property == "ForeColor") return num(ForeColor);
  if (property == "BackColor") return num(BackColor);
  if (property == "BackStyle") return num(BackStyle);
  if (property == "BorderColor") return num(BorderColor);
  if (property == "BorderWidth") return num(BorderWidth);
  if (property == "FillColor") return num(FillColor);
  if (property == "FillStyle") return num(FillStyle);
  if (property == "Shape") return num(Shape);
  if (property == "FontSize") return num(FontSize);
  if (property == "Visible") return Value{Visible};
  if (property == "Enabled") return Value{Enabled};
  if (property == "Checked") return Value{Checked};
  if (property == "Default") return Value{Default};
  if (property == "Interval") return num(Interval);
  if (property == "ListCount") return num(ListCount());
  return std::nullopt;
}

const std::vector<std::string_view>& Element::stateProperties(Kind kind) {
  static const std::vector<std::string_view> line{"BorderWidth", "BorderColor", "Visible"};
  static const std::vector<std::string_view> shape{"FillColor",   "FillStyle", "BorderColor",
                                                   "BorderWidth", "Shape",     "Visible"};
  static const std::vector<std::string_view> label{"Caption",   "ForeColor", "BackColor",
                                                   "BackStyle", "Visible",   "Enabled"};
  static const std::vector<std::string_view> menu{"Caption", "Checked", "Enabled", "Visible"};
  static const std::vector<std::string_view> list{"ListCount", "List", "Visible"};
  static const std::vector<std::string_view> text{"Text", "Visible", "Enabled"};
  static const std::vector<std::string_view> button{"Caption", "Default", "Visible", "Enabled"};
  static const std::vector<std::string_view> picture{"BackColor", "Left", "Width", "Visible"};
  static const std::vector<std::string_view> timer{"Interval", "Enabled"};
  static const std::vector<std::string_view> image{"Visible"};
  switch (kind) {
    case Kind::Line:
      return line;
    case Kind::Shape:
      return shape;
    case Kind::Label:
      return label;
    case Kind::MenuItem:
      return menu;
    case Kind::ListBox:
      return list;
    case Kind::TextBox:
      return text;
    case Kind::Button:
      return button;
    case Kind::Picture:
      return picture;
    case Kind::Timer:
      return timer;
    case Kind::Image:
      return image;
  }
  return image;
}

ElementArray::ElementArray(std::string name, Kind kind, int lo, int hi, bool indexed)
    : name_(std::move(name)), kind_(kind), lo_(lo), hi_(hi), indexed_(indexed) {
  if (hi < lo) throw std::invalid_argument("empty control array " + name_);
  items_.resize(static_cast<size_t>(hi - lo) + 1);
  for (int i = lo; i <= hi; ++i) {
    Element& e = items_[static_cast<size_t>(i - lo)];
    e.name = name_;
    e.index = indexed ? i : -1;
    e.kind = kind;
    if (kind == Kind::Timer) e.Enabled = false;
    // A shape is transparent behind its fill until a form makes it opaque.
    if (kind == Kind::Shape) e.BackStyle = 0;
  }
}

Element& ElementArray::operator[](int i) {
  if (!contains(i)) {
    throw std::out_of_range(name_ + "(" + std::to_string(i) + ") is out of the control array");
  }
  return items_[static_cast<size_t>(i - lo_)];
}

const Element& ElementArray::operator[](int i) const {
  if (!contains(i)) {
    throw std::out_of_range(name_ + "(" + std::to_string(i) + ") is out of the control array");
  }
  return items_[static_cast<size_t>(i - lo_)];
}

}  // namespace vrask
