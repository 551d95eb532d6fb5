#include "frame/keypad.h"

#include "frame/grid_switch.h"
#include "toolkit/form.h"

namespace vrask {

namespace {

constexpr double kMargin = 105;
constexpr double kKey = 495;  // a digit button is square-ish: 495 x 420
constexpr double kKeyHeight = 420;
constexpr double kStepX = 555;
constexpr double kStepY = 480;
constexpr double kRowsTop = 585;  // below the text box

Element& placeIn(Element& e, double left, double top, double width, double height) {
  e.container = "Picture1";
  e.Left = left;
  e.Top = top;
  e.Width = width;
  e.Height = height;
  return e;
}

// The digits stand as on a phone turned upside down, the way a numeric pad
// has them: 7 8 9 on top, 0 at the bottom left beside "clear".
void placeDigit(Element& key, int digit) {
  int row = digit == 0 ? 3 : 2 - (digit - 1) / 3;
  int column = digit == 0 ? 0 : (digit - 1) % 3;
  placeIn(key, kMargin + column * kStepX, kRowsTop + row * kStepY, kKey, kKeyHeight);
  key.Caption = std::to_string(digit);
}

}  // namespace

Keypad::Keypad(Form& form, GridSwitch& grid, Enter enter, const KeypadConfig& config)
    : form_(form), grid_(grid), onEnter_(std::move(enter)) {
  addPanel(config);

  opener_ = &form.add(config.openerButton, Kind::Button);
  opener_->Caption = "Keypad >>>";
  opener_->Left = config.opener.left;
  opener_->Top = config.opener.top;
  opener_->Width = 1215;
  opener_->Height = 375;
  form.handle(config.openerButton + "_Click", [this] { open(); });

  entry_ =
      &form.addMenu("shwkey", config.parentMenu,
                    "Show keypad for entering moves from online chats / text messages / phone");
  form.handle("shwkey_Click", [this] { toggleFromMenu(); });
}

void Keypad::addPanel(const KeypadConfig& config) {
  panel_ = &form_.add("Picture1", Kind::Picture);
  panel_->Left = config.panel.left;
  panel_->Top = config.panel.top;
  panel_->Width = 1815;
  panel_->Height = 2985;
  panel_->Visible = false;

  text_ = &placeIn(form_.add("Text1", Kind::TextBox), kMargin, kMargin, 1605, 375);
  text_->BackColor = color::White;
  form_.handle("Text1_GotFocus", [this] { setDefaultButton(form_, *enter_); });
  form_.handleKey("Text1_KeyDown", [this](int, int keyCode) {
    if (keyCode == key::Enter) onEnter_();
  });

  ElementArray& digits = form_.addArray("Command10", Kind::Button, 0, 9);
  for (Element& key : digits) placeDigit(key, key.index);
  form_.handleIndexed("Command10_Click",
                      [this](int digit) { text_->Text += std::to_string(digit); });

  double lastRow = kRowsTop + 3 * kStepY;
  Element& clear = placeIn(form_.add("Command20", Kind::Button), kMargin + kStepX, lastRow,
                           kStepX + kKey, kKeyHeight);
  clear.Caption = "clear";
  form_.handle("Command20_Click", [this] { text_->Text.clear(); });

  enter_ = &placeIn(form_.add(config.enterButton, Kind::Button), kMargin, lastRow + kStepY,
                    kStepX + kKey, kKeyHeight);
  enter_->Caption = "enter";
  form_.handle(config.enterButton + "_Click", [this] { onEnter_(); });

  Element& back = placeIn(form_.add(config.closeButton, Kind::Button), kMargin + 2 * kStepX,
                          lastRow + kStepY, kKey, kKeyHeight);
  back.Caption = "<<<";
  form_.handle(config.closeButton + "_Click", [this] { close(); });
}

void Keypad::showPanel(bool on) {
  panel_->Visible = on;
  opener_->Visible = !on;
  entry_->Checked = on;
}

void Keypad::open() {
  showPanel(true);
  focusText();
}

void Keypad::close() {
  showPanel(false);
}

void Keypad::toggleFromMenu() {
  // The numbers a typed move needs come and go with the keypad.
  if (on()) {
    close();
    if (grid_.on()) grid_.toggle();
    return;
  }
  // The opener is hidden too, as when it opens the panel itself: it would
  // only open what is already open.
  open();
  if (!grid_.on()) grid_.toggle();
}

void Keypad::focusText() {
  form_.SetFocus(*text_);
  setDefaultButton(form_, *enter_);
}

bool Keypad::takeListRow(const Element& list) {
  if (list.ListIndex < 0 || list.ListIndex >= list.ListCount()) return false;
  if (!on()) toggleFromMenu();
  text_->Visible = true;
  text_->Text = list.List.at(static_cast<size_t>(list.ListIndex));
  return true;
}

bool Keypad::on() const {
  return entry_->Checked;
}

}  // namespace vrask
