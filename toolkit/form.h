// A form: its elements, variables and handlers, registered by the program's
// own names so that the window and the script driver can reach them without
// knowing the board.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/element.h"
#include "toolkit/value.h"

namespace vrask {

class Host;
class Program;
class SharedValues;

// Key codes a handler sees.
namespace key {
inline constexpr int Enter = 13;
inline constexpr int Left = 37;
inline constexpr int Right = 39;
inline constexpr int Digit0 = 48;
}  // namespace key

struct Variable {
  std::vector<std::pair<int, int>> ranges;  // empty: a scalar; else one range per index
  std::function<Value(const std::vector<int>&)> get;
};

class Form {
 public:
  Form(Program& program, std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Called once by the program after construction.
  virtual void Form_Load() = 0;

  const std::string& name() const { return name_; }

  // Window properties, in twips for the client area.
  std::string Caption;
  int BackColor = color::ButtonFace;
  double Width = 9000, Height = 6000;
  // How far above the middle of the screen the window opens centred, so that
  // a tall form leaves room below it.
  double openAboveCentre = 0;
  // The control the keyboard focus was last given to, by display name: by
  // the form's code (SetFocus) or by a person clicking or tabbing into it.
  std::string focus;

  // --- registry ---------------------------------------------------------
  // Elements are kept in design order: the order they were added is the order
  // they are painted.
  Element& add(const std::string& name, Kind kind);
  ElementArray& addArray(const std::string& name, Kind kind, int lo, int hi);
  // A menu entry (or a whole menu) under `parent` ("" for the menu bar).
  Element& addMenu(const std::string& name, const std::string& parent, const std::string& caption);
  ElementArray& addMenuArray(const std::string& name, const std::string& parent, int lo, int hi);

  bool hasElement(const std::string& name) const { return elements_.count(name) != 0; }
  ElementArray* findArray(const std::string& name);
  const std::vector<ElementArray*>& designOrder() const { return order_; }

  void handle(const std::string& handler, std::function<void()> fn);
  void handleIndexed(const std::string& handler, std::function<void(int)> fn);
  void handleKey(const std::string& handler, std::function<void(int index, int key)> fn);
  bool hasHandler(const std::string& handler) const { return handlers_.count(handler) != 0; }
  // Runs handler `name` (e.g. "Label1_Click") with the element's index (-1
  // for a single element) and a key code for key events. False if none.
  bool invoke(const std::string& handler, int index, int keyCode = 0);

  void var(const std::string& name, std::function<Value()> get);
  void var(const std::string& name, int& v);
  void var(const std::string& name, double& v);
  void var(const std::string& name, std::string& v);
  void varArray(const std::string& name, int lo, int hi, std::function<Value(int)> get);
  void varTable(const std::string& name, std::pair<int, int> rows, std::pair<int, int> cols,
                std::function<Value(int, int)> get);
  // A table the form keeps, read as `name(i)` for i in lo..hi, stored at i.
  template <typename Table>
  void varArrayOf(const std::string& name, int lo, int hi, const Table& table) {
    varArray(name, lo, hi, [&table](int i) { return num(table.at(static_cast<size_t>(i))); });
  }
  // A table of rows, read as `name(i, j)`; column j is stored at j - shift.
  template <typename Table>
  void varTableOf(const std::string& name, std::pair<int, int> rows, std::pair<int, int> cols,
                  const Table& table, int shift = 0) {
    varTable(name, rows, cols, [&table, shift](int i, int j) {
      return num(table.at(static_cast<size_t>(i)).at(static_cast<size_t>(j - shift)));
    });
  }
  const std::map<std::string, Variable>& variables() const { return vars_; }

  // The control that has the keyboard focus now, by display name, or "" when
  // none has. A control that is hidden or disabled cannot hold the focus;
  // nothing else takes it meanwhile, so the control has it back once it can
  // be reached again, unless the focus was given elsewhere.
  std::string focused() const;

  // Why a person could not reach `e` now (hidden, disabled, inside a hidden
  // panel or a disabled menu), or nothing when it can be clicked.
  std::optional<std::string> whyUnreachable(const Element& e) const;

  // --- services, through the host ---------------------------------------
  Program& program() { return program_; }
  Host& host();
  SharedValues& shared();
  void MsgBox(const std::string& text, const std::string& title = "");
  void wait(double seconds) { pause(seconds, false); }
  void waitWithEvents(double seconds) { pause(seconds, true); }
  void Refresh();
  double Rnd();
  // Int(n * Rnd + 1): a whole number from 1 to n.
  int pick(int n);
  void SetFocus(const Element& e) { focus = e.displayName(); }
  // Unload this form and load `target` in its place, once the running handler
  // has returned.
  void goTo(const std::string& target);
  void Unload();
  void End();

 private:
  void pause(double seconds, bool pump);
  void put(const std::string& name, std::unique_ptr<ElementArray> array);

  Program& program_;
  std::string name_;
  std::map<std::string, std::unique_ptr<ElementArray>> elements_;
  std::vector<ElementArray*> order_;
  std::map<std::string, std::function<void(int, int)>> handlers_;
  std::map<std::string, Variable> vars_;
};

}  // namespace vrask
