#include "toolkit/qt/form_window.h"

#include <algorithm>
#include <cmath>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "toolkit/form.h"
#include "toolkit/qt/form_windows.h"

namespace vrask::qt {

namespace {

// A main window opens as large as fits in this part of the screen.
constexpr double kShareOfScreen = 0.8;

}  // namespace

FormWindow::FormWindow(FormWindows& windows, Form& form, FormWindow* over)
    : QMainWindow(over), windows_(windows), form_(&form) {
  if (over != nullptr) {
    setWindowFlag(Qt::Dialog);
    setWindowModality(Qt::WindowModal);
  }
  FireEvent fire = [this](Element& e, const std::string& handler, int keyCode) {
    this->fire(e, handler, keyCode);
  };
  canvas_ = new Canvas(form, fire, this);
  setCentralWidget(canvas_);
  PickRow pick = [this](Element& list, int row, const std::string& handler) {
    if (form_ != nullptr) windows_.rowEvent(*form_, list, row, handler);
  };
  controls_ = new Controls(*canvas_, form, fire, pick);
  canvas_->onResize([this] {
    if (form_ != nullptr) controls_->sync(canvas_->placement(), canvas_->scale());
  });
  bool hasMenus = std::any_of(form.designOrder().begin(), form.designOrder().end(),
                              [](const ElementArray* a) { return a->kind() == Kind::MenuItem; });
  if (hasMenus) menus_ = std::make_unique<Menus>(*menuBar(), form, fire);
  timers_ = std::make_unique<FormTimers>(*this, form, [this](Element& timer) {
    if (form_ != nullptr) windows_.timerTick(*form_, timer);
  });
  // The form starts with the keyboard on the form itself, not on its first
  // button, where Enter or Space would press it: an exit or a new game
  // should take a player's choice. Tab goes on to the controls.
  if (form.focus.empty()) canvas_->setFocus(Qt::OtherFocusReason);
  smallest_ = std::make_unique<SmallestScale>(canvas_->font(), *canvas_);
  keepMinimumSize();
  placeOnScreen(over);
  sync();
}

void FormWindow::placeOnScreen(FormWindow* over) {
  QSizeF natural(form_->Width / kTwipsPerPixel, form_->Height / kTwipsPerPixel);
  QRect room = (over != nullptr ? over->screen() : screen())->availableGeometry();
  double fit = std::min(room.width() * kShareOfScreen / natural.width(),
                        room.height() * kShareOfScreen / natural.height());
  // A dialog keeps its own size unless the screen is too small for it; a
  // main window fills a good part of the screen.
  if (over != nullptr) fit = std::min(fit, 1.0);
  QSize client = (natural * fit).toSize();
  int menuHeight = menus_ != nullptr ? menuBar()->sizeHint().height() : 0;
  resize(client.width(), client.height() + menuHeight);
  QRect around = over != nullptr ? over->geometry() : room;
  QRect frame = frameGeometry();
  QPoint centre = around.center();
  if (over == nullptr)
    centre.ry() -= static_cast<int>(form_->openAboveCentre / kTwipsPerPixel * fit);
  frame.moveCenter(centre);
  // Never above the top of the screen, where the title bar could not be reached.
  frame.moveTop(std::max(frame.top(), room.top()));
  move(frame.topLeft());
}

void FormWindow::sync() {
  if (form_ == nullptr) return;
  QString caption = QString::fromStdString(form_->Caption);
  if (windowTitle() != caption) setWindowTitle(caption);
  controls_->sync(canvas_->placement(), canvas_->scale());
  if (menus_ != nullptr) menus_->sync();
  timers_->sync();
  keepMinimumSize();
  canvas_->update();
}

// The window never shrinks below the size at which every caption still fits
// and reads, nor below its menu bar's full width, where entries would hide
// behind the bar's overflow button.
void FormWindow::keepMinimumSize() {
  double factor = smallest_->of(*form_);
  QSize minimum(static_cast<int>(std::ceil(form_->Width * factor)),
                static_cast<int>(std::ceil(form_->Height * factor)));
  if (menus_ != nullptr) {
    QSize bar = menuBar()->sizeHint();
    minimum = QSize(std::max(minimum.width(), bar.width()), minimum.height() + bar.height());
  }
  if (minimumSize() != minimum) setMinimumSize(minimum);
}

void FormWindow::repaintNow() {
  sync();
  canvas_->repaint();
}

void FormWindow::detach() {
  form_ = nullptr;
  canvas_->detach();
  controls_->detach();
  if (menus_ != nullptr) menus_->detach();
  timers_->detach();
}

void FormWindow::fire(Element& e, const std::string& handler, int keyCode) {
  if (form_ != nullptr) windows_.userEvent(*form_, e, handler, keyCode);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (form_ == nullptr) {
    event->accept();
    return;
  }
  // The program decides: it ends, or unloads the form, and the window
  // follows.
  event->ignore();
  windows_.closeRequested(*form_);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && form_ != nullptr) {
    pressDefaultButton();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

// Enter anywhere on the form presses its default button, if one can be
// pressed now.
void FormWindow::pressDefaultButton() {
  for (ElementArray* array : form_->designOrder()) {
    if (array->kind() != Kind::Button) continue;
    for (Element& e : *array) {
      if (e.Default && !form_->whyUnreachable(e)) {
        fire(e, e.name + "_Click", 0);
        return;
      }
    }
  }
}

}  // namespace vrask::qt
