// The buttons, text boxes and list boxes of a form as real widgets, placed at
// their scaled rectangles over the painted form, so that focus, the default
// button, Enter and typing work as people expect.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "toolkit/qt/placement.h"

namespace vrask {
struct Element;
class Form;
}  // namespace vrask

namespace vrask::qt {

// An event for the form: `handler` of element `e`, with a key code for key
// events.
using FireEvent = std::function<void(Element& e, const std::string& handler, int keyCode)>;
// A person's click (or double click, by `handler`) on row `row` of a list box.
using PickRow = std::function<void(Element& list, int row, const std::string& handler)>;

class FocusRing;

class Controls : public QObject {
 public:
  // Creates a widget for each button, text box and list box of `form` as a
  // child of `surface`.
  Controls(QWidget& surface, Form& form, FireEvent fire, PickRow pick);

  // Geometry, visibility, enabled state, texts, rows, the selected row, the
  // default mark and the keyboard focus, from the records.
  void sync(const Placement& placement, const ViewScale& scale);
  // The form is going: its widgets fire nothing any more.
  void detach() { form_ = nullptr; }

  // The widget of the element called `displayName` ("Text1", "Command10(3)").
  QWidget* widgetOf(const std::string& displayName) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Control {
    Element* element;
    QPointer<QWidget> widget;
  };

  void addButton(Element& e);
  void addTextBox(Element& e);
  void addListBox(Element& e);
  void watch(Element& e, QWidget* widget);
  void syncOne(const Control& control, const Placement& placement, const ViewScale& scale);
  void syncFocus();
  // Takes the focus off `widget` before it hides or is disabled, so that it
  // does not pass on to the next control as if a person had pressed Tab.
  void letGoOfFocus(QWidget& widget);
  const Control* controlOf(const QObject* widget) const;
  bool keyDown(Element& e, int qtKey);

  QWidget& surface_;
  Form* form_;
  FireEvent fire_;
  PickRow pick_;
  std::vector<Control> controls_;
  FocusRing* ring_;  // the mark round the control the player tabbed to
};

// The toolkit's key code of a key, or -1 when the forms know no such key.
int keyCodeOf(int qtKey);

}  // namespace vrask::qt
