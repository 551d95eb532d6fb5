// The drawn elements of a form. In this program the elements are the game
// state: the rules read a line's width and colour back, a score lives in a
// caption. So an element is a plain record with the toolkit's property names;
// the window paints these records and nothing else.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/value.h"

namespace vrask {

enum class Kind { Line, Shape, Label, MenuItem, ListBox, TextBox, Button, Picture, Timer, Image };

std::string_view kindName(Kind kind);

// Colours are 0xBBGGRR. Negative values are the system's colours, which the
// window maps to its palette.
namespace color {
inline constexpr int Black = 0;
inline constexpr int Red = 255;
inline constexpr int Blue = 16711680;
inline constexpr int Yellow = 65535;
inline constexpr int Green = 65280;
inline constexpr int White = 16777215;
inline constexpr int Grey = 8421504;
inline constexpr int ButtonFace = -2147483633;        // system colour 15
inline constexpr int WindowText = -2147483640;        // system colour 8
inline constexpr int WindowBackground = -2147483643;  // system colour 5
}  // namespace color

// Shape kinds of a Shape element.
enum ShapeKind { Rectangle = 0, Square = 1, Oval = 2, Circle = 3 };
// Alignment of a label's caption.
enum Alignment { AlignLeft = 0, AlignRight = 1, AlignCenter = 2 };

// One stroke drawn into a Picture by the form's code (stars, the emblem).
struct Stroke {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  int color = 0;
  bool dot = false;  // a filled dot of radius `x2` at (x1, y1)
};

struct Element {
  std::string name;
  int index = -1;  // -1: not part of a control array
  Kind kind = Kind::Label;

  // Geometry in twips. Lines use X1..Y2; everything else Left/Top/Width/Height,
  // relative to `container` when it has one.
  double Left = 0, Top = 0, Width = 0, Height = 0;
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  std::string container;  // name of the Picture that holds this element

  std::string Caption;
  std::string Text;
  std::string ToolTipText;
  int ForeColor = color::WindowText;
  int BackColor = color::ButtonFace;
  int BackStyle = 1;  // 0 = transparent
  int BorderColor = color::Black;
  int BorderWidth = 1;
  int FillColor = color::Black;
  int FillStyle = 1;  // 0 = solid, 1 = transparent
  int Shape = Rectangle;
  int Alignment = AlignLeft;
  double FontSize = 8;
  bool FontBold = false;
  bool Visible = true;
  bool Enabled = true;
  bool Checked = false;
  bool Default = false;
  int Interval = 0;

  std::string parent;             // menu entries: the name of the menu they stand in
  std::string Shortcut;           // menu entries: the keys that choose them ("F1", "Ctrl+N")
  std::vector<std::string> List;  // list boxes: the rows
  int ListIndex = -1;             // list boxes: the selected row, -1 for none
  std::vector<Stroke> drawing;    // pictures: what the code drew into them

  // "ln1(5)" or "Label33".
  std::string displayName() const;

  // The toolkit property `property` (with `arg` for List(i)), or nothing when
  // this kind of element has no such property.
  std::optional<Value> get(std::string_view property, std::optional<int> arg = {}) const;

  // The properties that describe the state of this kind of element, in the
  // order a dump lists them.
  static const std::vector<std::string_view>& stateProperties(Kind kind);

  void AddItem(std::string row) { List.push_back(std::move(row)); }
  void Clear() {
    List.clear();
    ListIndex = -1;
  }
  int ListCount() const { return static_cast<int>(List.size()); }
  void Cls() { drawing.clear(); }
};

// A control array: elements of one name with their own index range. A single
// element is an array of one that is not indexed.
class ElementArray {
 public:
  ElementArray(std::string name, Kind kind, int lo, int hi, bool indexed);

  Element& operator[](int i);
  const Element& operator[](int i) const;
  bool contains(int i) const { return i >= lo_ && i <= hi_; }
  int lo() const { return lo_; }
  int hi() const { return hi_; }
  bool indexed() const { return indexed_; }
  const std::string& name() const { return name_; }
  Kind kind() const { return kind_; }

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::string name_;
  Kind kind_;
  int lo_, hi_;
  bool indexed_;
  std::vector<Element> items_;
};

}  // namespace vrask
