#include "toolkit/qt/qt_host.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

#include "toolkit/qt/form_windows.h"

namespace vrask::qt {

namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    default:
      return false;
  }
}

// What a person does during a plain wait is dropped as it arrives. Held in
// the window system's queue instead, it would all be played the moment the
// wait ends: a click made during the computer's pause would become a move.
class InputDropper : public QObject {
 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    // Taken as handled, a key cannot reach a menu entry's shortcut either.
    if (event->type() == QEvent::ShortcutOverride) {
      event->accept();
      return true;
    }
    return isInput(event->type());
  }
};

}  // namespace

QtHost::QtHost()
    : quit_([] { QCoreApplication::exit(0); }), waitScale_(waitScaleFromEnvironment()) {}

double QtHost::waitScaleFromEnvironment() {
  const char* text = std::getenv("VRASK_WAIT_SCALE");
  if (text == nullptr || *text == '\0') return 1;
  char* end = nullptr;
  double scale = std::strtod(text, &end);
  if (*end != '\0' || !std::isfinite(scale) || scale < 0) return 1;
  return scale;
}

void QtHost::msgbox(const std::string& text, const std::string& title) {
  if (ended_) return;
  FormWindow* over = windows_ != nullptr ? windows_->currentWindow() : nullptr;
  if (windows_ != nullptr) windows_->syncAll();
  QMessageBox box(QMessageBox::NoIcon,
                  QString::fromStdString(title.empty() ? messageTitle_ : title),
                  QString::fromStdString(text), QMessageBox::Ok, over);
  messages_.push_back(&box);
  box.exec();
  std::erase(messages_, &box);
}

// A wait that lets events through delivers clicks, keys and ticks; a plain
// one only repaints: input that arrives meanwhile is dropped, and ticks are
// held back by the windows.
void QtHost::wait(double seconds, bool pump) {
  if (ended_) return;
  if (windows_ != nullptr) windows_->syncAll();
  QEventLoop loop;
  auto milliseconds = static_cast<int>(std::lround(std::max(0.0, seconds * waitScale_) * 1000));
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  InputDropper dropper;
  if (!pump) QCoreApplication::instance()->installEventFilter(&dropper);
  waits_.push_back(&loop);
  loop.exec();
  std::erase(waits_, &loop);
}

void QtHost::refresh(Form& form) {
  if (windows_ != nullptr && !ended_) windows_->repaintNow(form);
}

bool QtHost::openDocument(const std::string& path) {
  QFileInfo file(QString::fromStdString(path));
  if (!file.isFile()) return false;
  QString page = file.absoluteFilePath();
  // The desktop's opener hands the page to the browser and says whether it
  // could; it may also run for as long as the browser does.
  auto* opener = new QProcess(&openers_);
  QObject::connect(opener, &QProcess::errorOccurred, opener, [this, opener, page](auto error) {
    if (error != QProcess::FailedToStart) return;
    cannotShow(page);
    opener->deleteLater();
  });
  QObject::connect(opener, &QProcess::finished, opener,
                   [this, opener, page](int exitCode, QProcess::ExitStatus status) {
                     if (status != QProcess::NormalExit || exitCode != 0) cannotShow(page);
                     opener->deleteLater();
                   });
  opener->start(QStringLiteral("xdg-open"), {page});
  return true;
}

void QtHost::cannotShow(const QString& page) {
  msgbox(
      "The help page could not be shown: no web browser could be started.\n\n"
      "Open this file in a web browser to read it:\n" +
          page.toStdString(),
      "No help");
}

// The windows go at once; the running handler finishes (its waits and
// message boxes return at once), and the application quits when it has.
void QtHost::programEnded() {
  if (ended_) return;
  ended_ = true;
  if (windows_ != nullptr) windows_->hideAll();
  for (QEventLoop* loop : waits_) loop->quit();
  for (QMessageBox* box : messages_) box->done(QMessageBox::Ok);
  if (quit_) quit_();
}

}  // namespace vrask::qt
