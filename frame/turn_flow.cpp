#include "frame/turn_flow.h"

#include <cmath>

#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/round_list.h"
#include "toolkit/form.h"

namespace vrask {

TurnFlow::TurnFlow(Form& form, RoundList& rounds, Keypad& keypad, const TurnFlowNames& names)
    : form_(form), rounds_(rounds), keypad_(keypad), lastMoveCaption_(names.lastMoveCaption) {
  status_ = &element({names.status, std::nullopt});
  bluePoints_ = &element(names.bluePoints);
  redPoints_ = &element(names.redPoints);
  if (!names.blueTurn.element.empty()) blueTurn_ = &element(names.blueTurn);
  if (!names.redTurn.element.empty()) redTurn_ = &element(names.redTurn);
  lastMove_ = &element({names.lastMove, std::nullopt});
  if (!names.gameOver.empty()) gameOver_ = form.findArray(names.gameOver);
  newButton_ = &element({names.newButton, std::nullopt});
  for (const std::string& menu : names.gameMenus) gameMenus_.push_back(&element({menu, {}}));
}

Element& TurnFlow::element(const Choice& choice) {
  ElementArray* array = form_.findArray(choice.element);
  return (*array)[choice.index.value_or(array->lo())];
}

void TurnFlow::say(const std::string& caption, int colour) {
  status_->Caption = caption;
  status_->ForeColor = colour;
}

const std::string& TurnFlow::status() const {
  return status_->Caption;
}

int TurnFlow::moverColour() const {
  return status_->ForeColor;
}

void TurnFlow::showTurn(Side next) {
  if (blueTurn_ != nullptr) blueTurn_->Visible = next == Side::Blue;
  if (redTurn_ != nullptr) redTurn_->Visible = next == Side::Red;
}

Side TurnFlow::passLineTurn(int& redNext) {
  Side mover = redNext == 1 ? Side::Red : Side::Blue;
  redNext = mover == Side::Red ? 0 : 1;
  showTurn(mover == Side::Red ? Side::Blue : Side::Red);
  return mover;
}

void TurnFlow::addPoints(Side side, int points) {
  score(side).Caption = std::to_string(this->points(side) + points);
}

void TurnFlow::zeroScores() {
  bluePoints_->Caption = "0";
  redPoints_->Caption = "0";
}

int TurnFlow::points(Side side) const {
  return static_cast<int>(Val(score(side).Caption));
}

void TurnFlow::showLastMove(int n) {
  lastMove_->Caption = lastMoveCaption_ + std::to_string(n);
}

void TurnFlow::clearLastMove() {
  lastMove_->Caption = lastMoveCaption_;
}

void TurnFlow::setGameMenusEnabled(bool on) {
  for (Element* menu : gameMenus_) menu->Enabled = on;
}

void TurnFlow::flash(ElementArray& drawn, const std::vector<int>& lines, double gap, double hold) {
  std::vector<int> colours;
  for (int line : lines) {
    colours.push_back(drawn[line].BorderColor);
    drawn[line].BorderColor = color::Yellow;
  }
  form_.Refresh();
  form_.wait(hold);
  for (size_t i = 0; i < lines.size(); ++i) drawn[lines[i]].BorderColor = colours[i];
  form_.Refresh();
  form_.wait(gap);
}

void TurnFlow::endGame() {
  rounds_.recordGame(points(Side::Blue), points(Side::Red));
  if (gameOver_ != nullptr) {
    for (Element& label : *gameOver_) label.Visible = true;
  }
  setDefaultButton(form_, *newButton_);
  form_.SetFocus(*newButton_);
  keypad_.panel().Visible = false;
}

void TurnFlow::startNewGame() {
  clearLastMove();
  if (gameOver_ != nullptr) {
    for (Element& label : *gameOver_) label.Visible = false;
  }
  if (keypad_.on()) {
    keypad_.text().Text.clear();
    keypad_.panel().Visible = true;
    keypad_.focusText();
  }
  setDefaultButton(form_, keypad_.enterButton());
}

std::optional<int> TurnFlow::typedTarget(const ElementArray& targets) {
  std::optional<int> n = typedNumber();
  if (!n || !targets.contains(*n) || !targets[*n].Visible) return std::nullopt;
  return n;
}

std::optional<int> TurnFlow::typedNumber() {
  Element& box = keypad_.text();
  double n = Val(box.Text);
  box.Text.clear();
  if (std::floor(n) != n || std::abs(n) > 1e9) return std::nullopt;
  return static_cast<int>(n);
}

void TurnFlow::computerPause(double seconds) {
  form_.Refresh();
  form_.waitWithEvents(seconds);
}

int TurnFlow::pickFrom(const std::vector<int>& candidates) {
  auto drawn = static_cast<size_t>(form_.pick(static_cast<int>(candidates.size())));
  return drawn >= 1 && drawn <= candidates.size() ? candidates[drawn - 1] : 0;
}

}  // namespace vrask
