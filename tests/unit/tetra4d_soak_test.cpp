// Whole rounds of random clicks and typed numbers, good and bad, over every
// game, level and number of players of the 4D triangular board, reached only
// by the names of its elements and variables. After every step the points
// agree with the triangles on the board, and a refused move changes nothing.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

constexpr int kRoundsPerSetting = 6;
constexpr int kStepLimit = 600;

class Soak {
 public:
  explicit Soak(unsigned seed) : program_(host_), rng_(seed) {
    registerSuite(program_);
    program_.open("form5d");
  }

  void playRounds(int game, int level, int players) {
    for (int round = 0; round < kRoundsPerSetting && !::testing::Test::HasFailure(); ++round) {
      SCOPED_TRACE(::testing::Message() << "game " << game << " level " << level << " players "
                                        << players << " round " << round);
      press("gmm", 1);
      if (!el("gamz").Enabled) press("gmm", 1);  // the computer opened; the next New is Blue's
      press("pl", players);
      press("game", game);
      press("lvm", level);
      ASSERT_EQ(var("gamenum"), game);
      ASSERT_EQ(var("level"), game == 1 ? level : 1);
      for (int steps = 0; var("overflag") == 0; ++steps) {
        ASSERT_LT(steps, kStepLimit) << "the round does not end";
        step(game == 1);
        checkPoints(game == 1);
        if (::testing::Test::HasFailure()) return;
      }
      EXPECT_EQ(var("movesleft"), 0);
      EXPECT_TRUE(el("Label15").Visible);
    }
  }

 private:
  Form& form() { return *program_.current(); }
  Element& el(const std::string& name, int i = -1) {
    ElementArray& array = *form().findArray(name);
    return array[i < 0 ? array.lo() : i];
  }
  double var(const std::string& name, const std::vector<int>& at = {}) {
    return std::get<double>(form().variables().at(name).get(at));
  }
  int chance(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }
  void press(const std::string& name, int i) {
    Element& e = el(name, i);
    program_.userEvent(form(), e, name + "_Click");
  }

  // The state a refused move must leave as it was.
  std::vector<double> state() {
    std::vector<double> s{var("movesleft"), var("curplayer"), var("overflag")};
    for (int slot = 1; slot <= 48; ++slot) s.push_back(var("lnstate", {slot}));
    for (int t = 1; t <= 36; ++t) {
      for (int k = 1; k <= 3; ++k) s.push_back(var("triside", {t, k}));
    }
    for (const char* label : {"Label5", "Label6"})
      s.push_back(std::atof(el(label).Caption.c_str()));
    return s;
  }

  // A line or circle at random, a number typed, or junk typed.
  void step(bool lines) {
    size_t messages = host_.messages().size();
    std::vector<double> before = state();
    int kind = chance(10);
    if (kind == 0) {
      const std::array<const char*, 5> junk{"0", "49", "abc", "-3", "2.5"};
      el("Text1").Text = junk.at(static_cast<size_t>(chance(5)));
      program_.userEvent(form(), el("Command4"), "Command4_Click");
    } else if (kind == 1) {
      el("Text1").Text = std::to_string(1 + chance(lines ? 48 : 36));
      program_.userEvent(form(), el("Command4"), "Command4_Click");
    } else if (lines) {
      std::array<int, 3> second{300, 390, 470};
      int index = chance(12) == 0 ? second.at(static_cast<size_t>(chance(3))) : chance(48);
      program_.userEvent(form(), el("Label1", index), "Label1_Click");
    } else {
      program_.userEvent(form(), el("Label99", chance(36)), "Label99_Click");
    }
    if (host_.messages().size() != messages) {
      EXPECT_EQ(host_.messages().back().text, "Invalid move!");
      EXPECT_EQ(state(), before) << "a refused move changed the board";
    }
  }

  // Line game: every triangle with three sides has been scored once. Circle
  // games: the points are the triangles whole in one colour now.
  void checkPoints(bool lines) {
    int blue = std::atoi(el("Label5").Caption.c_str());
    int red = std::atoi(el("Label6").Caption.c_str());
    int full = 0, blueOwns = 0, redOwns = 0, free = 0;
    for (int t = 1; t <= 36; ++t) {
      double a = var("triside", {t, 1}), b = var("triside", {t, 2}), c = var("triside", {t, 3});
      full += a != 0 && b != 0 && c != 0 ? 1 : 0;
      blueOwns += a == 1 && b == 1 && c == 1 ? 1 : 0;
      redOwns += a == 2 && b == 2 && c == 2 ? 1 : 0;
    }
    for (int slot = 1; slot <= 48; ++slot) free += var("lnstate", {slot}) == 0 ? 1 : 0;
    if (lines) {
      EXPECT_EQ(blue + red, full);
      EXPECT_EQ(var("movesleft"), free);
    } else {
      EXPECT_EQ(blue, blueOwns);
      EXPECT_EQ(red, redOwns);
    }
  }

  HeadlessHost host_;
  Program program_;
  std::mt19937 rng_;
};

TEST(Tetra4dSoak, RandomRoundsKeepThePointsTrueAndEnd) {
  Soak soak(4242);
  for (int players : {1, 2}) {
    for (int level : {1, 2}) soak.playRounds(1, level, players);
    for (int game : {3, 4, 6, 7}) soak.playRounds(game, 1, players);
  }
}

}  // namespace
}  // namespace vrask
