#include "tests/gui/harness.h"

#include <QDir>
#include <QTest>

#include "launcher/suite.h"
#include "tests/gui/sketch_form.h"

namespace vrask::gui_test {

WindowRun::WindowRun(double waitScale) {
  host.attach(&windows);
  host.onEnd([this] { quit = true; });
  host.setWaitScale(waitScale);
  host.setMessageTitle(program.shared().product_title);
  registerSuite(program);
  registerSketchForms(program);
}

Form& WindowRun::form() {
  return *program.current();
}

qt::FormWindow& WindowRun::window() {
  return *windows.currentWindow();
}

Element& WindowRun::element(const std::string& name, int index) {
  ElementArray& array = *form().findArray(name);
  return array[index < 0 ? array.lo() : index];
}

QPoint WindowRun::centreOf(const Element& e) {
  return window().canvas().centreOf(e);
}

void WindowRun::click(const Element& e) {
  QTest::mouseClick(&window().canvas(), Qt::LeftButton, {}, centreOf(e));
}

void WindowRun::hover(const Element& e) {
  QTest::mouseMove(&window().canvas(), centreOf(e));
  QTest::qWait(20);
}

QWidget* WindowRun::control(const std::string& displayName) {
  return window().controls().widgetOf(displayName);
}

QImage WindowRun::canvasImage() {
  return window().canvas().grab().toImage();
}

void WindowRun::screenshot(QWidget& widget, const std::string& name) {
  QDir().mkpath(VRASK_SCREENSHOT_DIR);
  widget.grab().save(QString(VRASK_SCREENSHOT_DIR) + "/" + QString::fromStdString(name) + ".png");
}

bool WindowRun::waitFor(const std::function<bool()>& done, int milliseconds) {
  return QTest::qWaitFor(done, milliseconds);
}

QColor colourOf(int value) {
  return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

}  // namespace vrask::gui_test
