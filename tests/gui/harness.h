// One run of the program in the real window, set up as `vrask` sets it up,
// with the application's quit replaced by a flag and the helpers a test
// needs to act as a person: click, hover, type, look.
#pragma once

#include <functional>
#include <string>

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QWidget>

#include "toolkit/program.h"
#include "toolkit/qt/form_windows.h"
#include "toolkit/qt/qt_host.h"

namespace vrask::gui_test {

class WindowRun {
 public:
  // `waitScale` shortens every wait of the forms (0: none).
  explicit WindowRun(double waitScale = 0);

  qt::QtHost host;
  Program program{host};
  qt::FormWindows windows{program};
  bool quit = false;  // the program asked the application to quit

  Form& form();  // the current form
  qt::FormWindow& window();
  Element& element(const std::string& name, int index = -1);

  // A person's mouse on the current form's canvas, at the middle of `e`.
  void click(const Element& e);
  void click(const std::string& name, int index = -1) { click(element(name, index)); }
  void hover(const Element& e);
  QPoint centreOf(const Element& e);
  // The control (button, text box, list box) of the current form.
  QWidget* control(const std::string& displayName);

  QImage canvasImage();
  // Saves `widget` as build/gui-screenshots/NAME.png.
  void screenshot(QWidget& widget, const std::string& name);

  // Runs the event loop until `done` or `milliseconds` have passed.
  static bool waitFor(const std::function<bool()>& done, int milliseconds);
};

// The colour of an element record, as the window paints it.
QColor colourOf(int value);

}  // namespace vrask::gui_test
