#include "frame/round_list.h"

#include <algorithm>
#include <vector>

#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask {

namespace {

constexpr double kColumn = 1100;  // the list's columns: round, Blue, Red
constexpr double kRow = 255;

}  // namespace

RoundList::RoundList(Form& form, const RoundListConfig& config) : config_(config) {
  const Place& at = config.place;
  bool ownHeaders = !config.headerLabels.empty();
  ElementArray* headers = nullptr;
  if (ownHeaders) {
    headers = &form.addArray(config.headerLabels, Kind::Label,
                             std::min(config.blueHeader, config.redHeader),
                             std::max(config.blueHeader, config.redHeader));
  }
  std::vector<int> own{config.blueTotal, config.redTotal};
  if (!ownHeaders) own.insert(own.end(), {config.blueHeader, config.redHeader});
  ElementArray& labels =
      form.addArray(config.labels, Kind::Label, *std::min_element(own.begin(), own.end()),
                    *std::max_element(own.begin(), own.end()));
  for (Element& label : labels) label.Visible = false;
  if (headers == nullptr) headers = &labels;

  auto place = [&](ElementArray& array, int index, const std::string& caption, double column,
                   double top) {
    Element& label = array[index];
    label.Visible = true;
    label.Caption = caption;
    label.Left = at.left + column * kColumn;
    label.Top = top;
    label.Width = kColumn;
    label.Height = kRow;
    label.BackStyle = 0;
    return &label;
  };
  place(*headers, config.blueHeader, "Blue points", 1, at.top)->ForeColor = color::Blue;
  place(*headers, config.redHeader, "Red points", 2, at.top)->ForeColor = color::Red;

  list_ = &form.add(config.list, Kind::ListBox);
  list_->Left = at.left;
  list_->Top = at.top + kRow;
  list_->Width = 3 * kColumn;
  list_->Height = 2900 - 2 * kRow;
  list_->BackColor = color::White;
  list_->AddItem(config.firstRow);

  double totalsTop = list_->Top + list_->Height;
  blueTotal_ = place(labels, config.blueTotal, "0", 1, totalsTop);
  redTotal_ = place(labels, config.redTotal, "0", 2, totalsTop);
}

std::string RoundList::winner(int blue, int red) {
  if (blue == red) return "Tie";
  return red < blue ? "Blue" : "Red";
}

void RoundList::recordGame(int blue, int red) {
  int round = (list_->ListCount() + 2) / 3;
  list_->AddItem("Round " + std::to_string(round) + " -" + winner(blue, red) + config_.afterWinner +
                 std::to_string(blue) + config_.betweenScores + std::to_string(red));
  int totalBlue = static_cast<int>(Val(blueTotal_->Caption)) + blue;
  int totalRed = static_cast<int>(Val(redTotal_->Caption)) + red;
  blueTotal_->Caption = std::to_string(totalBlue);
  redTotal_->Caption = std::to_string(totalRed);
  list_->AddItem("  Subtotal -" + winner(totalBlue, totalRed) + config_.afterWinner +
                 blueTotal_->Caption + config_.betweenScores + redTotal_->Caption);
  list_->AddItem(" ");
}

}  // namespace vrask
