// `vrask`: the suite in its window.
#include <QApplication>

#include "launcher/suite.h"
#include "toolkit/program.h"
#include "toolkit/qt/form_windows.h"
#include "toolkit/qt/qt_host.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  // The program ends from its forms (Exit, closing the main window), never
  // because the window between two boards went away.
  QApplication::setQuitOnLastWindowClosed(false);

  vrask::qt::QtHost host;
  vrask::Program program(host);
  vrask::qt::FormWindows windows(program);
  host.attach(&windows);
  vrask::registerSuite(program);
  host.setMessageTitle(program.shared().text(vrask::shared::kProductTitle));

  program.open("title");
  if (program.ended()) return 0;
  return QApplication::exec();
}
