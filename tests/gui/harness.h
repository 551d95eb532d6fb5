// One run of the program in the real window, set up as `vrask` sets it up,
// with the application's quit replaced by a flag, and the few things a test
// needs to click as a person would and to look at the result.
#pragma once

#include <string>

#include <QDir>
#include <QImage>
#include <QTest>

#include "launcher/suite.h"
#include "toolkit/program.h"
#include "toolkit/qt/form_windows.h"
#include "toolkit/qt/qt_host.h"

namespace vrask::gui_test {

struct WindowRun {
  // `waitScale` shortens every wait of the forms (0: none).
  explicit WindowRun(double waitScale = 0) {
    host.attach(&windows);
    host.onEnd([this] { quit = true; });
    host.setWaitScale(waitScale);
    registerSuite(program);
    host.setMessageTitle(program.shared().text(shared::kProductTitle));
  }

  qt::QtHost host;
  Program program{host};
  qt::FormWindows windows{program};
  bool quit = false;  // the program asked the application to quit

  Form& form() { return *program.current(); }
  qt::FormWindow& window() { return *windows.currentWindow(); }
  Element& element(const std::string& name, int index = -1) {
    ElementArray& array = *form().findArray(name);
    return array[index < 0 ? array.lo() : index];
  }
  QWidget* control(const std::string& name) { return window().controls().widgetOf(name); }
  QPoint centreOf(const Element& e) { return window().canvas().centreOf(e); }

  // A person's mouse on the current form's canvas, at the middle of `e`.
  void click(const std::string& name, int index = -1) {
    QTest::mouseClick(&window().canvas(), Qt::LeftButton, {}, centreOf(element(name, index)));
  }

  // Saves `widget` as <build>/gui-screenshots/NAME.png.
  static void screenshot(QWidget& widget, const std::string& name) {
    QDir().mkpath(VRASK_SCREENSHOT_DIR);
    widget.grab().save(QString(VRASK_SCREENSHOT_DIR "/") + QString::fromStdString(name) + ".png");
  }
};

}  // namespace vrask::gui_test
