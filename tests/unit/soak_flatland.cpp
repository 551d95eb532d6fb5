// Random play on the square board: hundreds of whole games of clicks and
// typed numbers, good and bad, over every mode, size, world and number of
// players, with the board's own promises checked after every step. The form
// is reached only by its element, handler and variable names, as a person
// (or the script driver) reaches it.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

constexpr int kBlue = 16711680;
constexpr int kRed = 255;
constexpr int kMarked = 8;
constexpr int kGamesToPlay = 500;
constexpr int kStepLimit = 3000;  // far more than any game needs
constexpr int kSnapshotsPerGame = 6;

// The four sides of square `s`, from the board's numbering: top, right,
// bottom, left.
std::array<int, 4> sidesOf(int s) {
  int r = (s - 1) / 9 + 1;
  int c = (s - 1) % 9 + 1;
  return {90 + s, c * 9 + r, 99 + s, (c - 1) * 9 + r};
}

// What a caption holds as a number, read the way the board reads its scores.
int valueOf(const std::string& caption) {
  return static_cast<int>(std::strtol(caption.c_str(), nullptr, 10));
}

double asNumber(const Value& v) {
  if (const double* d = std::get_if<double>(&v)) return *d;
  if (const bool* b = std::get_if<bool>(&v)) return *b ? 1 : 0;
  return 0;
}

struct GameSetup {
  int mode = 4;
  int size = 9;
  bool bubbleland = false;
  bool twoPlayers = false;
};

// The state of one element as a person sees it.
struct ElementState {
  std::string name;
  std::string Caption, Text;
  std::vector<int> numbers;
  std::vector<std::string> List;
  bool operator==(const ElementState&) const = default;
};

// Everything a person could see or the program could remember, in a form
// that compares: every element's state and every variable's value.
struct Snapshot {
  std::vector<ElementState> elements;
  std::vector<std::pair<std::string, std::vector<Value>>> variables;
  bool operator==(const Snapshot&) const = default;
};

Snapshot snapshot(Form& form) {
  Snapshot snap;
  snap.elements.reserve(1024);
  snap.variables.reserve(form.variables().size());
  for (const ElementArray* array : form.designOrder()) {
    for (const Element& e : *array) {
      snap.elements.push_back(
          {e.name + "(" + std::to_string(e.index) + ")", e.Caption, e.Text,
           std::vector<int>{e.ForeColor, e.BackColor, e.BackStyle, e.BorderColor, e.BorderWidth,
                            e.FillColor, e.FillStyle, e.Shape, e.Visible, e.Enabled, e.Checked,
                            e.Default, e.Interval, static_cast<int>(e.Left),
                            static_cast<int>(e.Width)},
           e.List});
    }
  }
  for (const auto& [name, variable] : form.variables()) {
    std::vector<Value> values;
    values.reserve(400);
    if (variable.ranges.empty()) {
      values.push_back(variable.get({}));
    } else if (variable.ranges.size() == 1) {
      for (int i = variable.ranges[0].first; i <= variable.ranges[0].second; ++i) {
        values.push_back(variable.get({i}));
      }
    } else {
      for (int i = variable.ranges[0].first; i <= variable.ranges[0].second; ++i) {
        for (int j = variable.ranges[1].first; j <= variable.ranges[1].second; ++j) {
          values.push_back(variable.get({i, j}));
        }
      }
    }
    snap.variables.emplace_back(name, std::move(values));
  }
  return snap;
}

// The first thing that differs, for the failure message.
std::string firstDifference(const Snapshot& before, const Snapshot& after) {
  for (size_t i = 0; i < before.elements.size() && i < after.elements.size(); ++i) {
    if (!(before.elements[i] == after.elements[i])) return before.elements[i].name;
  }
  for (size_t i = 0; i < before.variables.size() && i < after.variables.size(); ++i) {
    if (before.variables[i] != after.variables[i]) return before.variables[i].first;
  }
  return "the number of elements or variables";
}

class SoakPlayer {
 public:
  explicit SoakPlayer(unsigned seed) : program_(host_), rng_(seed) {
    registerSuite(program_);
    program_.open("Form1large");
    lines_ = form().findArray("ln1");
    circles_ = form().findArray("Shape1");
    lineTargets_ = form().findArray("Label1");
    circleTargets_ = form().findArray("Label2");
    lineown_ = &form().variables().at("lineown");
    sqdone_ = &form().variables().at("sqdone");
  }

  void playGames(int count) {
    for (int game = 1; game <= count && !::testing::Test::HasFatalFailure(); ++game) {
      GameSetup setup = randomSetup();
      SCOPED_TRACE(describe(game, setup));
      dealAndConfigure(setup);
      if (::testing::Test::HasFatalFailure()) return;
      playToTheEnd(game);
    }
  }

 private:
  Form& form() { return *program_.current(); }
  Element& el(const std::string& name, int index = -1) {
    ElementArray* array = form().findArray(name);
    if (array == nullptr) throw std::runtime_error("no element " + name);
    return (*array)[index < 0 ? array->lo() : index];
  }
  double var(const std::string& name) { return asNumber(form().variables().at(name).get({})); }
  int chance(int n) { return std::uniform_int_distribution<int>(1, n)(rng_); }
  bool oneIn(int n) { return chance(n) == 1; }

  // An event from a person; false when it could not reach its target.
  bool fire(const std::string& name, int index, const std::string& event = "Click") {
    Element& target = el(name, index);
    return program_.userEvent(form(), target, name + "_" + event).outcome == Program::Outcome::Done;
  }
  bool menusOpen() { return el("sks").Enabled; }
  bool vraskGame() { return var("gamemode") >= 2; }

  GameSetup randomSetup() {
    static constexpr std::array<int, 5> kModes{0, 2, 3, 4, 5};
    GameSetup s;
    s.mode = kModes[static_cast<size_t>(chance(5) - 1)];
    // Bubbleland is 9 by 9 only and has no Ribbon Vrask; a quarter of the
    // other games are played there.
    s.bubbleland = s.mode != 5 && oneIn(4);
    s.size = s.mode == 5 || s.bubbleland ? 9 : 4 + chance(5);
    s.twoPlayers = oneIn(2);
    return s;
  }

  static std::string describe(int game, const GameSetup& s) {
    std::ostringstream out;
    out << "game " << game << ": mode " << s.mode << ", size " << s.size
        << (s.bubbleland ? ", Bubbleland" : ", Flatland")
        << (s.twoPlayers ? ", two players" : ", against the computer");
    return out.str();
  }

  // New until the menus are open (a New that hands the opening to Red closes
  // them again), then the choices in the menus, in a random order, and
  // sometimes one more New so that Red has the opening.
  void dealAndConfigure(const GameSetup& s) {
    if (var("gameover") == 1 || !menusOpen()) {
      ASSERT_TRUE(fire("gmc", -1));
    }
    if (!menusOpen()) {
      ASSERT_TRUE(fire("gmc", -1));
    }
    ASSERT_TRUE(menusOpen());
    ASSERT_TRUE(fire("ip", s.twoPlayers ? 1 : 0));
    // Ribbon Vrask can be chosen only once the board is 9 by 9 Flatland.
    bool modeFirst = s.mode != 5 && oneIn(2);
    if (modeFirst) {
      ASSERT_TRUE(fire("game", s.mode));
    }
    ASSERT_TRUE(fire("sizsq", s.size));
    bool inBubbleland = !el("ver", 1).Checked;
    if (inBubbleland != s.bubbleland) {
      ASSERT_TRUE(fire("ver", s.bubbleland ? 2 : 1));
    }
    if (!modeFirst) {
      ASSERT_TRUE(fire("game", s.mode));
    }
    ASSERT_EQ(var("gamemode"), s.mode);
    ASSERT_EQ(var("boardsize"), s.size);
    ASSERT_EQ(!el("ver", 1).Checked, s.bubbleland);
    if (oneIn(2)) {
      ASSERT_TRUE(fire("gmc", -1));
    }
    if (!el("Picture1").Visible) fire("Command3", -1);
    checkScores();
  }

  void playToTheEnd(int game) {
    int rowsBefore = el("List2").ListCount();
    int steps = 0;
    while (var("gameover") == 0) {
      ASSERT_LT(++steps, kStepLimit) << "the game does not end";
      randomStep();
      if (::testing::Test::HasFatalFailure()) return;
      checkScores();
      if (var("gameover") == 0) {
        ASSERT_EQ(el("List2").ListCount(), rowsBefore);
      }
    }
    ASSERT_EQ(el("List2").ListCount(), rowsBefore + 3);
    checkRoundRows(game, rowsBefore);
  }

  // One thing a person might do: mostly a move that is allowed, otherwise a
  // taken line or a played circle, a click on something that isn't there,
  // a click of the other kind, or a typed number good or bad.
  void randomStep() {
    bool vrask = vraskGame();
    std::string target = vrask ? "Label2" : "Label1";
    int last = vrask ? 81 : 180;
    switch (chance(10)) {
      case 1:
        typeRandomNumber(vrask, last);
        return;
      case 2:
        typeSomethingElse(last);
        return;
      case 3:
        clickOtherKind(vrask);
        return;
      case 4:
        clickRefusedTarget(target, last, vrask);
        return;
      default:
        clickOpenTarget(target, last, vrask);
    }
  }

  bool isFree(bool vrask, int n) { return asNumber((vrask ? sqdone_ : lineown_)->get({n})) == 0; }
  Element& targetOf(bool vrask, int n) { return (*(vrask ? circleTargets_ : lineTargets_))[n]; }

  void expectUnchanged(const Snapshot& before, const std::string& what) {
    Snapshot after = snapshot(form());
    ASSERT_TRUE(after == before) << what << " changed " << firstDifference(before, after);
  }

  void clickOpenTarget(const std::string& target, int last, bool vrask) {
    std::vector<int> open;
    for (int n = 1; n <= last; ++n) {
      if (targetOf(vrask, n).Visible && isFree(vrask, n)) open.push_back(n);
    }
    ASSERT_FALSE(open.empty()) << "no move left in a running game";
    int n = open[static_cast<size_t>(chance(static_cast<int>(open.size())) - 1)];
    size_t messages = host_.messages().size();
    ASSERT_TRUE(fire(target, n));
    ASSERT_EQ(host_.messages().size(), messages) << "a free target was refused: " << n;
  }

  // A taken line or a played circle that can still be clicked: refused with
  // the message, and nothing else moves.
  void clickRefusedTarget(const std::string& target, int last, bool vrask) {
    std::vector<int> taken;
    for (int n = 1; n <= last; ++n) {
      if (targetOf(vrask, n).Visible && !isFree(vrask, n)) taken.push_back(n);
    }
    if (taken.empty() || snapshotsLeft_ == 0) return;
    --snapshotsLeft_;
    int n = taken[static_cast<size_t>(chance(static_cast<int>(taken.size())) - 1)];
    Snapshot before = snapshot(form());
    size_t messages = host_.messages().size();
    ASSERT_TRUE(fire(target, n));
    ASSERT_EQ(host_.messages().size(), messages + 1);
    EXPECT_EQ(host_.messages().back().text, vrask ? "Invalid move" : "Invalid move!");
    expectUnchanged(before, "the refused click on " + std::to_string(n));
  }

  // A line click in a Vrask game or a circle click in a line game: either
  // the target isn't there or the click does nothing.
  void clickOtherKind(bool vrask) {
    std::string other = vrask ? "Label1" : "Label2";
    int n = chance(vrask ? 180 : 81);
    if (!el(other, n).Visible || snapshotsLeft_ == 0) {
      fire(other, n);
      return;
    }
    --snapshotsLeft_;
    Snapshot before = snapshot(form());
    fire(other, n);
    expectUnchanged(before, "a click of the other kind");
  }

  // A number in range: a move, a refused move, or dropped when its target
  // is hidden.
  void typeRandomNumber(bool vrask, int last) {
    if (!keypadShows()) return;
    int n = chance(last);
    Element& target = targetOf(vrask, n);
    if (target.Visible && isFree(vrask, n)) {
      submitTyped(std::to_string(n));
      return;
    }
    if (target.Visible && vrask) return;  // a played circle that shows: as a click
    if (snapshotsLeft_ == 0) return;
    --snapshotsLeft_;
    Snapshot before = snapshot(form());
    size_t messages = host_.messages().size();
    submitTyped(std::to_string(n));
    bool refused = target.Visible;  // a taken line
    ASSERT_EQ(host_.messages().size(), messages + (refused ? 1 : 0));
    if (refused) {
      EXPECT_EQ(host_.messages().back().text, "Invalid move!");
    }
    expectUnchanged(before, "typed " + std::to_string(n));
  }

  // Out of range or not a number: dropped in silence.
  void typeSomethingElse(int last) {
    static const std::array<std::string, 6> kJunk{"0", "-7", "abc", "", " ", "x12"};
    std::string text =
        oneIn(2) ? std::to_string(last + chance(200)) : kJunk[static_cast<size_t>(chance(6) - 1)];
    if (!keypadShows() || snapshotsLeft_ == 0) return;
    --snapshotsLeft_;
    Snapshot before = snapshot(form());
    size_t messages = host_.messages().size();
    submitTyped(text);
    ASSERT_EQ(host_.messages().size(), messages);
    expectUnchanged(before, "typed \"" + text + "\"");
  }

  bool keypadShows() { return !program_.whyRefused(form(), el("Text1")); }

  // Into the keypad's box and entered, by the Enter key or the button.
  void submitTyped(const std::string& text) {
    Element& box = el("Text1");
    box.Text = text;
    if (oneIn(2)) {
      program_.userEvent(form(), box, "Text1_KeyDown", 13);
    } else {
      fire("Command6", -1);
    }
    EXPECT_EQ(el("Text1").Text, "") << "the box keeps \"" << text << "\"";
    box.Text.clear();
  }

  // The scores against the board. In Vrask games a square is a side's while
  // its four marked lines are all in its colour; in line games the points
  // of both add up to the squares with four taken sides. After the black
  // move the labels may have been cleared ("Vrask!" shows then); the round
  // row is checked against the board instead.
  void checkScores() {
    if (el("Label33").Caption == "Vrask!") return;
    int blue = valueOf(el("Label5", 0).Caption);
    int red = valueOf(el("Label6").Caption);
    if (vraskGame()) {
      auto [blueSquares, redSquares] = squaresInColour();
      ASSERT_EQ(blue, blueSquares) << "Blue's score against the board";
      ASSERT_EQ(red, redSquares) << "Red's score against the board";
    } else {
      ASSERT_EQ(blue + red, squaresWithFourTakenSides()) << "points against the board";
    }
  }

  std::pair<int, int> squaresInColour() {
    int blue = 0;
    int red = 0;
    for (int s = 1; s <= 81; ++s) {
      if (!(*circles_)[s].Visible) continue;
      int blueSides = 0;
      int redSides = 0;
      for (int line : sidesOf(s)) {
        const Element& ln = (*lines_)[line];
        if (ln.BorderWidth != kMarked) continue;
        blueSides += ln.BorderColor == kBlue ? 1 : 0;
        redSides += ln.BorderColor == kRed ? 1 : 0;
      }
      blue += blueSides == 4 ? 1 : 0;
      red += redSides == 4 ? 1 : 0;
    }
    return {blue, red};
  }

  int squaresWithFourTakenSides() {
    int count = 0;
    for (int s = 1; s <= 81; ++s) {
      if (!(*circles_)[s].Visible) continue;
      int taken = 0;
      for (int line : sidesOf(s)) taken += asNumber(lineown_->get({line})) != 0 ? 1 : 0;
      count += taken == 4 ? 1 : 0;
    }
    return count;
  }

  // "Round N -W<tab>B<tab>R", "  Subtotal -W<tab>TB<tab>TR", " ".
  void checkRoundRows(int game, int rowsBefore) {
    const std::vector<std::string>& rows = el("List2").List;
    int blue = valueOf(el("Label5", 0).Caption);
    int red = valueOf(el("Label6").Caption);
    if (vraskGame()) std::tie(blue, red) = squaresInColour();
    totalBlue_ += blue;
    totalRed_ += red;
    std::ostringstream round;
    round << "Round " << game << " -" << winner(blue, red) << '\t' << blue << '\t' << red;
    std::ostringstream subtotal;
    subtotal << "  Subtotal -" << winner(totalBlue_, totalRed_) << '\t' << totalBlue_ << '\t'
             << totalRed_;
    auto first = static_cast<size_t>(rowsBefore);
    EXPECT_EQ(rows[first], round.str());
    EXPECT_EQ(rows[first + 1], subtotal.str());
    EXPECT_EQ(rows[first + 2], " ");
    EXPECT_EQ(el("Label7", 5).Caption, std::to_string(totalBlue_));
    EXPECT_EQ(el("Label7", 6).Caption, std::to_string(totalRed_));
    snapshotsLeft_ = kSnapshotsPerGame;
  }

  static std::string winner(int blue, int red) {
    if (blue == red) return "Tie";
    return red < blue ? "Blue" : "Red";
  }

  HeadlessHost host_;
  Program program_;
  std::mt19937 rng_;
  // The board's arrays and tables that every step reads.
  ElementArray* lines_ = nullptr;
  ElementArray* circles_ = nullptr;
  ElementArray* lineTargets_ = nullptr;
  ElementArray* circleTargets_ = nullptr;
  const Variable* lineown_ = nullptr;
  const Variable* sqdone_ = nullptr;
  int totalBlue_ = 0;
  int totalRed_ = 0;
  int snapshotsLeft_ = kSnapshotsPerGame;
};

TEST(SoakFlatland, RandomWholeGamesKeepTheBoardsPromises) {
  SoakPlayer player(20140611U);
  player.playGames(kGamesToPlay);
}

}  // namespace
}  // namespace vrask
