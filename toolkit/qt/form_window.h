// The window of one alive form: its painted canvas, its controls, its menu
// bar and its timers, all kept in step with the form's records.
#pragma once

#include <memory>
#include <string>

#include <QMainWindow>

#include "toolkit/qt/canvas.h"
#include "toolkit/qt/controls.h"
#include "toolkit/qt/form_timers.h"
#include "toolkit/qt/menus.h"
#include "toolkit/qt/smallest_scale.h"

namespace vrask::qt {

class FormWindows;

class FormWindow : public QMainWindow {
 public:
  // `over`: the window of the form this one is shown over (a dialog such as
  // the about box), or nullptr for the main window.
  FormWindow(FormWindows& windows, Form& form, FormWindow* over);

  // The form, or nullptr once it has gone.
  Form* form() const { return form_; }
  // Everything from the records: title, controls, menus, timers, and a
  // repaint when the event loop next runs.
  void sync();
  // Sync and paint now.
  void repaintNow();
  // The form is going: the window fires, paints and touches nothing of it
  // again.
  void detach();

  Canvas& canvas() { return *canvas_; }
  Controls& controls() { return *controls_; }
  Menus* menus() { return menus_.get(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fire(Element& e, const std::string& handler, int keyCode);
  void pressDefaultButton();
  void placeOnScreen(FormWindow* over);
  void keepMinimumSize();

  FormWindows& windows_;
  Form* form_;
  Canvas* canvas_;
  Controls* controls_;
  std::unique_ptr<Menus> menus_;
  std::unique_ptr<FormTimers> timers_;
  std::unique_ptr<SmallestScale> smallest_;
};

}  // namespace vrask::qt
