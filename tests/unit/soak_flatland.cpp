// Whole games of random clicks and typed numbers, good and bad, over every mode,
// size, world and number of players; the form is reached only by its names.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

constexpr int kGames = 500;
constexpr int kMarked = 8;            // the width of a line that has been played
constexpr int kStepLimit = 3000;      // far more than any game needs
constexpr int kSnapshotsPerGame = 6;  // whole-form comparisons are the slow part

// The four sides of square s in the board's numbering: top, right, bottom, left.
std::array<int, 4> sidesOf(int s) {
  int r = (s - 1) / 9 + 1, c = (s - 1) % 9 + 1;
  return {90 + s, c * 9 + r, 99 + s, (c - 1) * 9 + r};
}

// Each element's state and each variable's values, named for the failure message.
struct Item {
  std::string name;
  std::vector<std::string> texts, rows;
  std::vector<int> numbers;
  std::vector<Value> values;
  bool operator==(const Item&) const = default;
};
using Snapshot = std::vector<Item>;

void collect(const Variable& v, std::vector<int>& at, std::vector<Value>& out) {
  if (at.size() == v.ranges.size()) return out.push_back(v.get(at));
  for (int i = v.ranges[at.size()].first; i <= v.ranges[at.size()].second; ++i) {
    at.push_back(i);
    collect(v, at, out);
    at.pop_back();
  }
}

Snapshot snapshot(Form& form) {
  Snapshot snap;
  for (const ElementArray* array : form.designOrder()) {
    for (const Element& e : *array) {
      Item& item = snap.emplace_back(
          Item{e.displayName(), {e.Caption, e.Text}, e.List, {}, {num(e.Left), num(e.Width)}});
      item.numbers = {e.ForeColor, e.BackColor, e.BackStyle, e.BorderColor, e.BorderWidth,
                      e.FillColor, e.FillStyle, e.Shape,     e.Visible,     e.Enabled,
                      e.Checked,   e.Default,   e.Interval};
    }
  }
  for (const auto& [name, variable] : form.variables()) {
    std::vector<int> at;
    collect(variable, at, snap.emplace_back(Item{name, {}, {}, {}, {}}).values);
  }
  return snap;
}

class SoakPlayer {
 public:
  explicit SoakPlayer(unsigned seed) : program_(host_), rng_(seed) {
    registerSuite(program_);
    program_.open("Form1large");
    lines_ = form().findArray("ln1");
    circles_ = form().findArray("Shape1");
    targets_ = {form().findArray("Label1"), form().findArray("Label2")};
    owners_ = {&form().variables().at("lineown"), &form().variables().at("sqdone")};
  }

  // A game ends with "Round N -W<tab>B<tab>R", "  Subtotal -W<tab>TB<tab>TR", " ".
  void playGames(int count) {
    int totalBlue = 0, totalRed = 0;
    for (int game = 1; game <= count && !failed(); ++game) {
      // Ribbon (5) is 9 by 9 Flatland only. A New that gives Red the opening
      // closes the menus again; the choices come in a random order.
      int mode = std::array{0, 2, 3, 4, 5}[static_cast<size_t>(chance(5) - 1)];
      bool bubbleland = mode != 5 && oneIn(4), twoPlayers = oneIn(2);
      int size = mode == 5 || bubbleland ? 9 : 4 + chance(5);
      SCOPED_TRACE(::testing::Message()
                   << "game " << game << ": mode " << mode << ", size " << size << ", Bubbleland "
                   << bubbleland << ", two players " << twoPlayers);
      for (int i = 0; i < 2 && (var("gameover") == 1 || !el("sks").Enabled); ++i) press("gmc");
      ASSERT_TRUE(el("sks").Enabled);
      press("ip", twoPlayers ? 1 : 0);
      bool modeFirst = mode != 5 && oneIn(2);
      if (modeFirst) press("game", mode);
      press("sizsq", size);
      if (el("ver", 1).Checked == bubbleland) press("ver", bubbleland ? 2 : 1);
      if (!modeFirst) press("game", mode);
      ASSERT_EQ(
          std::tuple(var("gamemode"), var("boardsize"), !el("ver", 1).Checked, el("ip", 1).Checked),
          std::tuple(double(mode), double(size), bubbleland, twoPlayers));
      if (oneIn(2)) press("gmc");
      if (!el("Picture1").Visible) press("Command3");
      checkScores();
      size_t rows = el("List2").List.size();
      snapshotsLeft_ = kSnapshotsPerGame;
      for (int steps = 0; var("gameover") == 0 && !failed(); ++steps) {
        ASSERT_LT(steps, kStepLimit) << "the game does not end";
        step();
        checkScores();
        ASSERT_TRUE(var("gameover") == 1 || el("List2").List.size() == rows) << "a row mid-game";
      }
      if (failed()) return;
      auto [blue, red] = checkScores();
      totalBlue += blue;
      totalRed += red;
      auto row = [](const std::string& head, int b, int r) {
        std::string winner = b == r ? "Tie" : (b > r ? "Blue" : "Red");
        return head + winner + '\t' + std::to_string(b) + '\t' + std::to_string(r);
      };
      const std::vector<std::string>& list = el("List2").List;
      EXPECT_EQ(std::vector<std::string>(list.begin() + static_cast<long>(rows), list.end()),
                (std::vector<std::string>{row("Round " + std::to_string(game) + " -", blue, red),
                                          row("  Subtotal -", totalBlue, totalRed), " "}));
      EXPECT_EQ(el("Label7", 5).Caption, std::to_string(totalBlue));
      EXPECT_EQ(el("Label7", 6).Caption, std::to_string(totalRed));
    }
  }

 private:
  static bool failed() { return ::testing::Test::HasFailure(); }
  Form& form() { return *program_.current(); }
  Element& el(const std::string& name, int i = 0) { return (*form().findArray(name))[i]; }
  double var(const char* name) { return std::get<double>(form().variables().at(name).get({})); }
  int score(const char* label, int i = 0) { return std::atoi(el(label, i).Caption.c_str()); }
  int chance(int n) { return std::uniform_int_distribution<int>(1, n)(rng_); }
  bool oneIn(int n) { return chance(n) == 1; }
  bool vraskGame() { return var("gamemode") >= 2; }
  bool isFree(bool circles, int n) { return std::get<double>(owners_[circles]->get({n})) == 0; }
  Element& target(bool circles, int n) { return (*targets_[circles])[n]; }
  void press(const std::string& name, int i = 0) {
    program_.userEvent(form(), el(name, i), name + "_Click");
  }

  // A target that shows and is free (or taken); 0 when there is none.
  int pick(bool circles, bool free) {
    std::vector<int> found;
    for (int n = 1; n <= (circles ? 81 : 180); ++n) {
      if (target(circles, n).Visible && isFree(circles, n) == free) found.push_back(n);
    }
    EXPECT_TRUE(!free || !found.empty()) << "no move left in a running game";
    return found.empty() ? 0 : found[static_cast<size_t>(chance(int(found.size())) - 1)];
  }

  // Mostly a free target, clicked or typed; else a taken one, any number in range
  // (hidden on a small board), a click of the other kind, or junk typed. Only a
  // free target of the game's kind that shows is taken; anything else changes
  // nothing, with a message only for a taken target that shows.
  void step() {
    static const std::array<std::string, 7> kJunk{"0", "-7", "4.5", "abc", "", " ", "x12"};
    int roll = chance(10);
    bool circles = vraskGame() != (roll == 2);
    bool typed = roll != 2 && oneIn(3) && !program_.whyRefused(form(), el("Text1"));
    int last = circles ? 81 : 180;
    int n = roll <= 2 ? chance(last) : roll == 4 ? 0 : pick(circles, roll != 3);
    std::string text = roll != 4  ? std::to_string(n)
                       : oneIn(2) ? std::to_string(last + chance(200))
                                  : kJunk[static_cast<size_t>(chance(7) - 1)];
    if (n == 0 && !typed) return;
    bool shows = n != 0 && target(circles, n).Visible && circles == vraskGame();
    bool move = shows && isFree(circles, n);
    if (!move && snapshotsLeft_-- <= 0) return;
    std::string what =
        typed ? "typed \"" + text + "\"" : "clicked " + target(circles, n).displayName();
    std::string message = move || !shows ? "" : circles ? "Invalid move" : "Invalid move!";
    Snapshot before = move ? Snapshot{} : snapshot(form());
    size_t messages = host_.messages().size();
    if (typed) {
      el("Text1").Text = text;
      bool byKey = oneIn(2);
      Element& e = byKey ? el("Text1") : el("Command6");
      program_.userEvent(form(), e, byKey ? "Text1_KeyDown" : "Command6_Click", key::Enter);
      EXPECT_EQ(el("Text1").Text, "") << what << ": the box keeps it";
    } else {
      program_.userEvent(form(), target(circles, n), target(circles, n).name + "_Click");
    }
    ASSERT_EQ(host_.messages().size() - messages, message.empty() ? 0U : 1U) << what;
    EXPECT_EQ(message.empty() ? "" : host_.messages().back().text, message) << what;
    EXPECT_TRUE(!move || !isFree(circles, n)) << what << " was not played";
    if (move) return;
    Snapshot after = snapshot(form());
    auto [was, is] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    ASSERT_TRUE(was == before.end() && is == after.end())
        << what << " changed " << (was == before.end() ? "the form" : was->name);
  }

  // Vrask: each side has the squares whose four marked lines are all its colour;
  // line games: the two add up to the squares with four owned sides (squares that
  // show). Right after the black move the labels read "Vrask!"; the count stands.
  std::pair<int, int> checkScores() {
    bool vrask = vraskGame();
    int blue = 0, red = 0, closed = 0;
    for (int s = 1; s <= 81; ++s) {
      if (!(*circles_)[s].Visible) continue;
      int blueSides = 0, redSides = 0, owned = 0;
      for (int line : sidesOf(s)) {
        const Element& ln = (*lines_)[line];
        blueSides += ln.BorderWidth == kMarked && ln.BorderColor == color::Blue;
        redSides += ln.BorderWidth == kMarked && ln.BorderColor == color::Red;
        owned += !vrask && !isFree(false, line);
      }
      blue += blueSides == 4;
      red += redSides == 4;
      closed += owned == 4;
    }
    if (vrask && el("Label33").Caption == "Vrask!") return {blue, red};
    std::pair labels(score("Label5"), score("Label6"));
    EXPECT_EQ(vrask ? labels : std::pair(labels.first + labels.second, 0),
              vrask ? std::pair(blue, red) : std::pair(closed, 0))
        << "the scores against the board";
    return labels;
  }

  HeadlessHost host_;
  Program program_;
  std::mt19937 rng_;
  ElementArray *lines_ = nullptr, *circles_ = nullptr;
  std::array<ElementArray*, 2> targets_{};   // Label1, Label2, by `circles`
  std::array<const Variable*, 2> owners_{};  // lineown, sqdone, by `circles`
  int snapshotsLeft_ = 0;
};

TEST(SoakFlatland, RandomWholeGamesKeepScoresWithTheBoardAndRefusalsChangeNothing) {
  SoakPlayer(20140611U).playGames(kGames);
}

}  // namespace
}  // namespace vrask
