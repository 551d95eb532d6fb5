#include "toolkit/qt/form_windows.h"

#include <algorithm>

namespace vrask::qt {

FormWindows::FormWindows(Program& program) : program_(program) {
  program_.setListener(this);
}

FormWindows::~FormWindows() {
  program_.setListener(nullptr);
  // Dialogs first: a dialog belongs to the window it stands over.
  while (!windows_.empty()) {
    delete windows_.back().data();
    windows_.pop_back();
  }
  // Those the event loop had no chance to delete.
  for (const auto& window : retired_) delete window.data();
}

void FormWindows::formShown(Form& form) {
  const auto& alive = program_.alive();
  auto it =
      std::find_if(alive.begin(), alive.end(), [&](const auto& f) { return f.get() == &form; });
  FormWindow* over = nullptr;
  if (it != alive.begin() && it != alive.end()) over = windowOf(**std::prev(it));
  auto* window = new FormWindow(*this, form, over);
  windows_.emplace_back(window);
  window->show();
  window->activateWindow();
}

void FormWindows::formUnloading(Form& form) {
  FormWindow* window = windowOf(form);
  if (window == nullptr) return;
  window->detach();
  window->hide();
  std::erase_if(windows_, [window](const QPointer<FormWindow>& w) { return w == window; });
  // Later: the window may be in the middle of its own event.
  window->deleteLater();
  std::erase_if(retired_, [](const QPointer<FormWindow>& w) { return w.isNull(); });
  retired_.emplace_back(window);
}

void FormWindows::userEvent(Form& form, Element& e, const std::string& handler, int keyCode) {
  program_.userEvent(form, e, handler, keyCode);
  syncAll();
}

void FormWindows::rowEvent(Form& form, Element& list, int row, const std::string& handler) {
  program_.rowEvent(form, list, row, handler);
  syncAll();
}

void FormWindows::timerTick(Form& form, Element& timer) {
  // Held back in a plain wait, which lets nothing reach the forms.
  if (program_.inPlainWait() || program_.ended()) return;
  program_.timerTick(form, timer);
  syncAll();
}

void FormWindows::closeRequested(Form& form) {
  if (program_.ended()) return;
  if (!program_.alive().empty() && program_.alive().front().get() == &form) {
    program_.end();
    return;
  }
  program_.unload(form);
  syncAll();
}

void FormWindows::syncAll() {
  if (program_.ended()) return;
  // A copy: syncing never opens or closes windows, but stays safe if it did.
  std::vector<QPointer<FormWindow>> windows = windows_;
  for (const auto& window : windows) {
    if (window) window->sync();
  }
}

void FormWindows::repaintNow(Form& form) {
  if (FormWindow* window = windowOf(form)) window->repaintNow();
}

void FormWindows::hideAll() {
  for (const auto& window : windows_) {
    if (window) window->hide();
  }
}

FormWindow* FormWindows::windowOf(const Form& form) const {
  for (const auto& window : windows_) {
    if (window && window->form() == &form) return window;
  }
  return nullptr;
}

FormWindow* FormWindows::currentWindow() const {
  Form* current = program_.current();
  return current == nullptr ? nullptr : windowOf(*current);
}

}  // namespace vrask::qt
