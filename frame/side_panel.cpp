#include "frame/side_panel.h"

#include <array>

#include "toolkit/form.h"

namespace vrask {

namespace {

// A pale blue, on which the grey size buttons show.
constexpr int kPanelColour = 0xF0E4D8;

constexpr double kColumnWidth = 3450;
constexpr double kLineHeight = 285;
constexpr double kScoreWidth = 1650;
constexpr double kRedScoreOffset = 1800;
constexpr double kGameOverTop = 5250;
constexpr double kGameOverRow = 600;
constexpr double kGameOverWidth = 1650;

}  // namespace

SidePanel::SidePanel(Form& form, const SidePanelConfig& config) : form_(form), config_(config) {
  placed(form.add("Picture2", Kind::Picture), config.left, 0, form.Width - config.left, form.Height)
      .BackColor = kPanelColour;
}

void SidePanel::addColumn() {
  addStatus();
  addScores();
  addSizesAndEnd();
}

void SidePanel::addStatus() {
  double left = columnLeft();
  gameName_ = &captioned(placed(form_.add("Label36", Kind::Label), left, 240, kColumnWidth, 330),
                         "", 11, true);
  status_ = &captioned(placed(form_.add("Label33", Kind::Label), left, 630, kColumnWidth, 600), "",
                       11, true);
  // Its colour is the mover's, Black included, so it stands on white.
  status_->BackStyle = 1;
  status_->BackColor = color::White;
  status_->ForeColor = color::Blue;
  status_->Alignment = AlignCenter;
  movesLeft_ = &captioned(
      placed(form_.add(config_.movesLeft, Kind::Label), left, 2850, kColumnWidth, kLineHeight), "");
  captioned(placed(form_.add(config_.lastMove, Kind::Label), left, 3150, kColumnWidth, kLineHeight),
            config_.lastMoveCaption);
}

// Blue's column on the left, Red's on the right: a heading, the points, and
// the "Your turn" marker of the side to move.
void SidePanel::addScores() {
  ElementArray& headings = form_.addArray("Label3", Kind::Label, 0, 1);
  Element& bluePoints = form_.addArray("Label5", Kind::Label, 0, 0)[0];
  Element& redPoints = form_.add("Label6", Kind::Label);
  ElementArray& markers = form_.addArray("Label4", Kind::Label, 0, 1);
  struct Column {
    Element& heading;
    Element& points;
    Element& yourTurn;
    const char* name;
    int colour;
    double left;
  };
  std::array<Column, 2> columns{
      {{headings[0], bluePoints, markers[1], "Blue", color::Blue, columnLeft()},
       {headings[1], redPoints, markers[0], "Red", color::Red, columnLeft() + kRedScoreOffset}}};
  for (Column& column : columns) {
    placed(captioned(column.heading, column.name, 10, true), column.left, 1380, kScoreWidth,
           kLineHeight);
    placed(captioned(column.points, "0", 28, true), column.left, 1650, kScoreWidth, 720);
    placed(captioned(column.yourTurn, "Your turn", 10, true), column.left, 2400, kScoreWidth,
           kLineHeight);
    for (Element* e : {&column.heading, &column.points, &column.yourTurn}) {
      e->ForeColor = column.colour;
      e->Alignment = AlignCenter;
    }
  }
  // Blue moves first on a board just opened.
  markers[0].Visible = false;
}

void SidePanel::addSizesAndEnd() {
  double left = columnLeft();
  sizeHeading_ =
      &captioned(placed(form_.add("Label14", Kind::Label), left, 3570, kColumnWidth, kLineHeight),
                 "Board size");
  sizeButtons_ =
      &form_.addArray(config_.sizeButtons, Kind::Label, config_.firstSize, config_.lastSize);
  for (Element& button : *sizeButtons_) {
    placed(captioned(button, config_.sizeCaption(button.index)),
           left + 690 * (button.index - config_.firstSize), 3870, 600, 390);
    button.BackStyle = 1;
    button.Alignment = AlignCenter;
  }

  placed(form_.add("Command1", Kind::Button), left, 4500, 1650, 450).Caption = "New game";

  ElementArray& gameOver = form_.addArray("Label15", Kind::Label, 0, 3);
  for (Element& label : gameOver) {
    int row = label.index / 2;
    int column = label.index % 2;
    placed(captioned(label, column == 0 ? "GAME" : "OVER", 24, true),
           left + column * (kColumnWidth - kGameOverWidth), kGameOverTop + row * kGameOverRow,
           kGameOverWidth, kGameOverRow);
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
  captioned(placed(form_.add("Label16", Kind::Label), left, 6600, kColumnWidth, kLineHeight),
            "Time for a move");
}

void SidePanel::showSizeButtons(bool on) {
  for (Element& button : *sizeButtons_) button.Visible = on;
  sizeHeading_->Visible = on;
}

void SidePanel::markSize(int size) {
  for (Element& button : *sizeButtons_) {
    button.BackColor = button.index == size ? kSizeChosen : color::ButtonFace;
  }
}

}  // namespace vrask
