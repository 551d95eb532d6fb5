// The round list: one block of rows for each finished game on this form, with
// the running totals of both players. It lives as long as the form.
#pragma once

#include <string>

#include "frame/helpers.h"

namespace vrask {

struct Element;
class Form;

struct RoundListConfig {
  std::string list = "List2";     // `List2`, or `List4` on some boards
  std::string labels = "Label7";  // the label array of the totals, and of the headers too
  std::string headerLabels{};     // a label array of the headers alone, when there is one
  int blueHeader = 1;             // "Blue points"
  int redHeader = 2;              // "Red points"
  int blueTotal = 5;              // Blue's total over all games on the form
  int redTotal = 6;               // Red's total
  std::string firstRow = " ";     // the row added at load, so rounds count from 1
  std::string afterWinner = "\t";
  std::string betweenScores = "\t";
  Place place;  // the block is 3300 x 2900 twips: headers, list, totals
};

class RoundList {
 public:
  // Adds the list with its first row and the label array, spanning the four
  // indexes of the config (indexes between them that have no part are
  // hidden). The totals start at "0".
  RoundList(Form& form, const RoundListConfig& config = {});

  // Appends one finished game: "Round " n " -" winner, Blue's and Red's
  // points; the totals grow; "  Subtotal -" leader, both totals; a row " ".
  // The round number n is (rows + 2) / 3.
  void recordGame(int blue, int red);

  // "Tie", "Blue" or "Red": who has more.
  static std::string winner(int blue, int red);

  Element& list() { return *list_; }

 private:
  RoundListConfig config_;
  Element* list_;
  Element* blueTotal_;
  Element* redTotal_;
};

}  // namespace vrask
