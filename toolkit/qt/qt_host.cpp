#include "toolkit/qt/qt_host.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>

#include "toolkit/qt/form_windows.h"

namespace vrask::qt {

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
// one only repaints: input stays queued until it is over, and ticks are held
// back by the windows.
void QtHost::wait(double seconds, bool pump) {
  if (ended_) return;
  if (windows_ != nullptr) windows_->syncAll();
  QEventLoop loop;
  auto milliseconds = static_cast<int>(std::lround(std::max(0.0, seconds * waitScale_) * 1000));
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  waits_.push_back(&loop);
  loop.exec(pump ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  std::erase(waits_, &loop);
}

void QtHost::refresh(Form& form) {
  if (windows_ != nullptr && !ended_) windows_->repaintNow(form);
}

bool QtHost::openDocument(const std::string& path) {
  QFileInfo file(QString::fromStdString(path));
  if (!file.isFile()) return false;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
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
