// The windows of the program: one for each alive form, opened and closed as
// the program shows and unloads forms. Every event a person makes reaches
// the forms through here, and every window is brought up to date after it.
#pragma once

#include <string>
#include <vector>

#include <QPointer>

#include "toolkit/program.h"
#include "toolkit/qt/form_window.h"

namespace vrask::qt {

class FormWindows : public Program::Listener {
 public:
  explicit FormWindows(Program& program);
  ~FormWindows() override;
  FormWindows(const FormWindows&) = delete;
  FormWindows& operator=(const FormWindows&) = delete;

  void formShown(Form& form) override;
  void formUnloading(Form& form) override;

  // `handler` of `e` on `form`, as from a person; then every window syncs.
  void userEvent(Form& form, Element& e, const std::string& handler, int keyCode = 0);
  // A person clicks row `row` of the list box `list` (or double-clicks it,
  // by `handler`); then every window syncs.
  void rowEvent(Form& form, Element& list, int row, const std::string& handler);
  // A tick of `timer`, unless a plain wait holds ticks back.
  void timerTick(Form& form, Element& timer);
  // A person closed the window of `form`: the main window ends the program,
  // a dialog unloads its form.
  void closeRequested(Form& form);

  void syncAll();
  void repaintNow(Form& form);
  void hideAll();

  FormWindow* windowOf(const Form& form) const;
  // The window of the form events go to, or nullptr.
  FormWindow* currentWindow() const;

 private:
  Program& program_;
  std::vector<QPointer<FormWindow>> windows_;
  std::vector<QPointer<FormWindow>> retired_;  // unloaded, to be deleted by the event loop
};

}  // namespace vrask::qt
