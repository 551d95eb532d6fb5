// `vrask`: the suite in its window.
#include <filesystem>
#include <system_error>

#include <QApplication>
#include <QIcon>

#include "app/help_folder.h"
#include "launcher/suite.h"
#include "toolkit/program.h"
#include "toolkit/qt/form_windows.h"
#include "toolkit/qt/qt_host.h"

namespace {

// The forms open the help page from the current directory: the program moves
// there from wherever it was started, when the page is not where it started.
void moveToHelpFolder() {
  std::error_code error;
  std::filesystem::path current = std::filesystem::current_path(error);
  std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
  if (auto folder = vrask::helpFolder(current, program); folder && *folder != current) {
    std::filesystem::current_path(*folder, error);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  // The program ends from its forms (Exit, closing the main window), never
  // because the window between two boards went away.
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationName(QStringLiteral("vrask"));
  QApplication::setDesktopFileName(QStringLiteral("org.supervraskplus.Vrask"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.supervraskplus.Vrask")));
  moveToHelpFolder();

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
