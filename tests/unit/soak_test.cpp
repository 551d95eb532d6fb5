// Whole games of random clicks and typed numbers, good and bad, on every board
// of the suite, over every setup its descriptor offers; a board is reached
// only through its descriptor and its element names.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "frame/helpers.h"
#include "launcher/suite.h"
#include "toolkit/headless_host.h"

namespace vrask {
namespace {

constexpr int kGamesPerBoard = 200;
constexpr int kStepLimit = 3000;      // far more than any game needs
constexpr int kSnapshotsPerGame = 6;  // whole-form comparisons are the slow part
constexpr int kNoTarget = -1000000;   // no target index of any board

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
  SoakPlayer(const PlayDescriptor& play, unsigned seed) : play_(play), program_(host_), rng_(seed) {
    registerSuite(program_);
    program_.open(play.form);
    for (int i = 0; i < play.introTicks; ++i) {
      program_.timerTick(form(), el(play.introTimer));
    }
  }

  // A game ends with "Round N -W<tab>B<tab>R", "  Subtotal -W<tab>TB<tab>TR", " ".
  void playGames(int count) {
    int totalBlue = 0, totalRed = 0;
    for (int game = 1; game <= count && !failed(); ++game) {
      const Setup& setup = play_.setups[static_cast<size_t>(chance(int(play_.setups.size())) - 1)];
      SCOPED_TRACE(::testing::Message() << play_.form << " game " << game << ": " << setup.name);
      setUp(setup);
      if (failed()) return;
      if (oneIn(2)) press(play_.newGame);
      if (!el({play_.keypadPanel, {}}).Visible) press(play_.keypadOpener);
      checkScores();
      size_t rows = el({play_.roundList, {}}).List.size();
      snapshotsLeft_ = kSnapshotsPerGame;
      for (int steps = 0; !play_.finished(form()) && !failed(); ++steps) {
        ASSERT_LT(steps, kStepLimit) << "the game does not end";
        step();
        checkScores();
        ASSERT_TRUE(play_.finished(form()) || el({play_.roundList, {}}).List.size() == rows)
            << "a row mid-game";
      }
      if (failed()) return;
      auto [blue, red] = play_.points(form());
      totalBlue += blue;
      totalRed += red;
      auto row = [this](const std::string& head, int b, int r) {
        std::string winner = b == r ? "Tie" : (b > r ? "Blue" : "Red");
        const std::string& tab = play_.roundTab;
        return head + winner + play_.afterWinner.value_or(tab) + std::to_string(b) + tab +
               std::to_string(r);
      };
      const std::vector<std::string>& list = el({play_.roundList, {}}).List;
      EXPECT_EQ(std::vector<std::string>(list.begin() + static_cast<long>(rows), list.end()),
                (std::vector<std::string>{row("Round " + std::to_string(game) + " -", blue, red),
                                          row("  Subtotal -", totalBlue, totalRed), " "}));
      EXPECT_EQ(el(play_.blueTotal).Caption, std::to_string(totalBlue));
      EXPECT_EQ(el(play_.redTotal).Caption, std::to_string(totalRed));
    }
  }

 private:
  static bool failed() { return ::testing::Test::HasFailure(); }
  Form& form() { return *program_.current(); }
  Element& el(const Choice& choice) { return elementOf(form(), choice); }
  int chance(int n) { return std::uniform_int_distribution<int>(1, n)(rng_); }
  bool oneIn(int n) { return chance(n) == 1; }
  bool reachable(const Choice& choice) { return !program_.whyRefused(form(), el(choice)); }
  Program::Outcome press(const Choice& choice) {
    return program_.userEvent(form(), el(choice), choice.element + "_Click").outcome;
  }

  // New until the last game is over and its menus are open again (a New that
  // gives the computer the opening closes them at once), then the setup, each
  // click of which opens the way to the next.
  void setUp(const Setup& setup) {
    auto ready = [&] { return !play_.finished(form()) && reachable(setup.clicks.front()); };
    for (int i = 0; i < 3 && !ready(); ++i) press(play_.newGame);
    ASSERT_TRUE(ready()) << "New does not open the setup";
    for (const Choice& choice : setup.clicks) {
      ASSERT_EQ(press(choice), Program::Outcome::Done) << choice.element;
    }
  }

  size_t kind() { return play_.kindInPlay(form()); }
  ElementArray& targets(size_t kind) { return *form().findArray(play_.kinds.at(kind).targets); }
  bool isFree(size_t kind, int n) { return !play_.taken(form(), kind, n); }

  // A target that shows and is free (or taken); kNoTarget when there is none
  // (a board's targets may count from 0).
  int pick(size_t kind, bool free) {
    std::vector<int> found;
    for (const Element& target : targets(kind)) {
      if (target.Visible && isFree(kind, target.index) == free) found.push_back(target.index);
    }
    EXPECT_TRUE(!free || !found.empty()) << "no move left in a running game";
    return found.empty() ? kNoTarget : found[static_cast<size_t>(chance(int(found.size())) - 1)];
  }

  // Mostly a free target, clicked or typed; else a taken one, any number in range
  // (hidden on a small board), a target of another kind, or junk typed. Only a
  // free target of the game's kind that shows is taken; anything else changes
  // nothing, with a message only for a taken target of the game's kind that shows.
  void step() {
    static const std::array<std::string, 7> kJunk{"0", "-7", "4.5", "abc", "", " ", "x12"};
    int roll = chance(10);
    size_t playing = kind();
    size_t k = roll == 2 && play_.kinds.size() > 1
                   ? (playing + static_cast<size_t>(chance(int(play_.kinds.size()) - 1))) %
                         play_.kinds.size()
                   : playing;
    Element& box = el({play_.typedBox, {}});
    bool typed = roll != 2 && oneIn(3) && !program_.whyRefused(form(), box);
    ElementArray& all = targets(k);
    int n = roll <= 2   ? all.lo() + chance(all.hi() - all.lo() + 1) - 1
            : roll == 4 ? kNoTarget
                        : pick(k, roll != 3);
    const MoveKind& moveKind = play_.kinds.at(k);
    std::string text = roll != 4  ? std::to_string(moveKind.typed ? moveKind.typed(n) : n)
                       : oneIn(2) ? std::to_string(all.hi() + chance(200))
                                  : kJunk[static_cast<size_t>(chance(7) - 1)];
    if (roll == 4 && !typed) return;
    if (roll != 4 && n == kNoTarget) return;
    // Typed numbers start at 1: a target that has none is only clicked.
    if (typed && roll != 4 && (moveKind.typed ? moveKind.typed(n) : n) < 1) return;
    bool shows = roll != 4 && all[n].Visible && k == playing;
    bool move = shows && isFree(k, n);
    if (!move && snapshotsLeft_-- <= 0) return;
    std::string what = typed ? "typed \"" + text + "\"" : "clicked " + all[n].displayName();
    std::string message = move || !shows ? "" : play_.kinds.at(k).refusal;
    Snapshot before = move ? Snapshot{} : snapshot(form());
    size_t messages = host_.messages().size();
    if (typed) {
      box.Text = text;
      bool byKey = oneIn(2);
      Element& e = byKey ? box : el({play_.enterButton, {}});
      program_.userEvent(form(), e,
                         byKey ? play_.typedBox + "_KeyDown" : play_.enterButton + "_Click",
                         key::Enter);
      EXPECT_EQ(box.Text, "") << what << ": the box keeps it";
    } else {
      program_.userEvent(form(), all[n], all.name() + "_Click");
    }
    ASSERT_EQ(host_.messages().size() - messages, message.empty() ? 0U : 1U) << what;
    EXPECT_EQ(message.empty() ? "" : host_.messages().back().text, message) << what;
    EXPECT_TRUE(!move || !isFree(k, n)) << what << " was not played";
    if (move) return;
    Snapshot after = snapshot(form());
    auto [was, is] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    ASSERT_TRUE(was == before.end() && is == after.end())
        << what << " changed " << (was == before.end() ? "the form" : was->name);
  }

  void checkScores() {
    std::optional<std::string> wrong = play_.scoresDisagree(form());
    EXPECT_FALSE(wrong.has_value()) << "the scores against the board: " << wrong.value_or("");
  }

  const PlayDescriptor& play_;
  HeadlessHost host_;
  Program program_;
  std::mt19937 rng_;
  int snapshotsLeft_ = 0;
};

class Soak : public ::testing::TestWithParam<std::string> {};

TEST_P(Soak, RandomWholeGamesKeepScoresWithTheBoardAndRefusalsChangeNothing) {
  SoakPlayer(findBoard(GetParam())->play, 20140611U).playGames(kGamesPerBoard);
}

std::vector<std::string> boardNames() {
  std::vector<std::string> names;
  for (const Board& board : boards()) names.push_back(board.play.form);
  return names;
}

INSTANTIATE_TEST_SUITE_P(EveryBoard, Soak, ::testing::ValuesIn(boardNames()),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace vrask
