#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "frame/about_box.h"
#include "frame/grid_switch.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/star_field.h"
#include "frame/sudden_death.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

// A board with nothing but the frame on it.
class TinyBoard : public Form {
 public:
  TinyBoard(Program& p, std::string name) : Form(p, std::move(name)) {}
  void Form_Load() override {
    addMenu("ks", "", "Options");
    sudden = std::make_unique<SuddenDeath>(*this);
    grid = std::make_unique<GridSwitch>(*this, "ks", [this](bool on) { numbers.push_back(on); });
    keypad = std::make_unique<Keypad>(*this, *grid, [this] {
      entered.push_back(keypad->text().Text);
      keypad->text().Text.clear();
    });
    other = std::make_unique<OtherGames>(*this);
    rounds = std::make_unique<RoundList>(*this);
    addHelpEntry(*this, "rh", "ks");
    addAboutEntry(*this, "abt", "ks");
    addExitEntry(*this, "ks");
  }
  std::unique_ptr<SuddenDeath> sudden;
  std::unique_ptr<GridSwitch> grid;
  std::unique_ptr<Keypad> keypad;
  std::unique_ptr<OtherGames> other;
  std::unique_ptr<RoundList> rounds;
  std::vector<bool> numbers;
  std::vector<std::string> entered;
};

struct FrameFixture : ::testing::Test {
  FrameFixture() : program(host) {
    for (const char* name : {"Form1large", "vraskthewall"}) {
      program.registerForm(name,
                           [name](Program& p) { return std::make_unique<TinyBoard>(p, name); });
    }
    program.registerForm("AboutBox", [](Program& p) { return std::make_unique<AboutBox>(p); });
    program.open("Form1large");
  }
  TinyBoard& board() { return static_cast<TinyBoard&>(*program.current()); }
  Element& el(const std::string& name, int i = 0) {
    return (*program.current()->findArray(name))[i];
  }
  Program::Outcome click(const std::string& name, int i = 0) {
    Element& e = el(name, i);
    return program.userEvent(*program.current(), e, name + "_Click").outcome;
  }
  void tick(int times) {
    for (int n = 0; n < times; ++n) program.timerTick(*program.current(), el("Timer1"));
  }
  HeadlessHost host;
  Program program;
};

TEST_F(FrameFixture, RoundListNumbersRoundsAndKeepsRunningTotals) {
  board().rounds->recordGame(5, 3);
  board().rounds->recordGame(1, 6);
  board().rounds->recordGame(0, 0);
  std::vector<std::string> rows{" ", "Round 1 -Blue\t5\t3", "  Subtotal -Blue\t5\t3",
                                " ", "Round 2 -Red\t1\t6",  "  Subtotal -Red\t6\t9",
                                " ", "Round 3 -Tie\t0\t0",  "  Subtotal -Red\t6\t9",
                                " "};
  EXPECT_EQ(el("List2").List, rows);
  EXPECT_EQ(el("Label7", 5).Caption, "6");
  EXPECT_EQ(el("Label7", 6).Caption, "9");
  EXPECT_EQ(el("Label7", 1).Caption, "Blue points");
  EXPECT_EQ(el("Label7", 2).Caption, "Red points");
}

TEST_F(FrameFixture, SuddenDeathChoosesLimitsAndNoLimitKeepsTheLastOne) {
  SuddenDeath& sd = *board().sudden;
  EXPECT_EQ(sd.timelimit(), 100000);
  EXPECT_FALSE(el("sd", 11).Visible);
  EXPECT_FALSE(el("sd", 12).Visible);
  EXPECT_TRUE(el("sd", 10).Visible);
  click("sd", 5);
  EXPECT_EQ(sd.timelimit(), 30000);
  click("sd", 1);
  EXPECT_EQ(sd.timelimit(), 30000);
  EXPECT_TRUE(el("sd", 1).Checked);
  EXPECT_FALSE(el("sd", 5).Checked);
  sd.restart();
  EXPECT_FALSE(el("Timer1").Enabled) << "no limit: the clock never runs";
  tick(3);
  EXPECT_EQ(sd.timeleft(), 100000);
}

TEST_F(FrameFixture, SuddenDeathTickRunsTheBarDownAndTimeOutEndsTheProgram) {
  SuddenDeath& sd = *board().sudden;
  sd.choose(12);  // 2 seconds, the shortest
  sd.restart();
  ASSERT_TRUE(el("Timer1").Enabled);
  EXPECT_EQ(el("Timer1").Interval, 10);
  tick(5);
  EXPECT_EQ(sd.timeleft(), 1500);
  EXPECT_EQ(el("Label11").Caption, "1500");
  EXPECT_DOUBLE_EQ(el("Picture6").Left, el("Picture5").Width * 0.75);
  sd.stop();
  tick(100);
  EXPECT_EQ(sd.timeleft(), 1500) << "a stopped clock does not tick";
  sd.restart();
  EXPECT_EQ(sd.timeleft(), 2000);
  tick(20);
  EXPECT_EQ(sd.timeleft(), 0);
  EXPECT_FALSE(program.ended()) << "the time runs out only below 0";
  tick(1);
  ASSERT_EQ(host.messages().size(), 1U);
  EXPECT_EQ(host.messages()[0].text, "You lose.");
  EXPECT_TRUE(program.ended());
  EXPECT_TRUE(host.ended());
}

TEST_F(FrameFixture, KeypadMenuEntryBringsTheGridWithItAndTakesItAway) {
  click("shwkey");
  EXPECT_TRUE(el("Picture1").Visible);
  EXPECT_TRUE(el("shwkey").Checked);
  EXPECT_TRUE(el("shgrid").Checked);
  EXPECT_FALSE(el("Command3").Visible);
  click("shwkey");
  EXPECT_FALSE(el("Picture1").Visible);
  EXPECT_FALSE(el("shgrid").Checked);
  EXPECT_TRUE(el("Command3").Visible);
  EXPECT_EQ(board().numbers, (std::vector<bool>{true, false}));

  // The grid already on stays on when the keypad comes.
  click("shgrid");
  click("shwkey");
  EXPECT_TRUE(el("shgrid").Checked);
  EXPECT_EQ(board().numbers, (std::vector<bool>{true, false, true}));
}

TEST_F(FrameFixture, KeypadButtonsTypeAndEnterTheMove) {
  EXPECT_EQ(click("Command10", 4), Program::Outcome::Ignored) << "the panel is closed";
  click("Command3");
  EXPECT_TRUE(el("Picture1").Visible);
  EXPECT_TRUE(el("shwkey").Checked);
  EXPECT_FALSE(el("shgrid").Checked) << "the opener button leaves the grid alone";
  EXPECT_EQ(board().focus, "Text1");
  EXPECT_TRUE(el("Command6").Default);
  click("Command10", 9);
  click("Command10", 1);
  EXPECT_EQ(el("Text1").Text, "91");
  click("Command20");
  EXPECT_EQ(el("Text1").Text, "");
  click("Command10", 2);
  click("Command6");
  el("Text1").Text = "17";
  program.userEvent(board(), el("Text1"), "Text1_KeyDown", key::Enter);
  program.userEvent(board(), el("Text1"), "Text1_KeyDown", key::Digit0 + 5);
  EXPECT_EQ(board().entered, (std::vector<std::string>{"2", "17"}));
  click("Command2");
  EXPECT_FALSE(el("Picture1").Visible);
  EXPECT_FALSE(el("shwkey").Checked);
  EXPECT_TRUE(el("Command3").Visible);
}

TEST_F(FrameFixture, OtherGamesMarksThisBoardAndOffersOnlyBoardsThatExist) {
  EXPECT_EQ(el("cbm", 3).Caption,
            "2D - Super Vrask Plus in Flatland and Bubbleland  (THIS VERSION!)");
  EXPECT_EQ(el("cbm", 2).Caption, "2D - Vrask Quennel in Flatland and Bubbleland   (Triangular)");
  EXPECT_FALSE(el("cbm", 2).Enabled);
  EXPECT_EQ(el("cbm", 2).ToolTipText, "Not yet available");
  EXPECT_EQ(click("fcbm", 13), Program::Outcome::Ignored);
  EXPECT_TRUE(el("zcbm", 9).Enabled);
  EXPECT_EQ(el("zcbm", 8).Caption, "3D - Vrask the Wall");
}

TEST_F(FrameFixture, OtherGamesDropsTheGameAndCarriesOnlyTheWallLevel) {
  board().rounds->recordGame(4, 2);
  click("shwkey");
  click("sd", 4);
  click("zcbm", 9);
  ASSERT_EQ(program.current()->name(), "vraskthewall");
  EXPECT_EQ(program.alive().size(), 1U);
  EXPECT_EQ(program.shared().wall_level, 2);
  EXPECT_EQ(program.shared().bubbleland_start, 0);
  EXPECT_EQ(el("zcbm", 9).Caption, "3D - Vrask a Bigger Wall  (THIS VERSION!)");
  EXPECT_EQ(el("zcbm", 8).Caption, "3D - Vrask the Wall");

  click("cbm", 3);
  ASSERT_EQ(program.current()->name(), "Form1large");
  EXPECT_EQ(el("List2").List, std::vector<std::string>{" "});
  EXPECT_EQ(el("Label7", 5).Caption, "0");
  EXPECT_FALSE(el("shwkey").Checked);
  EXPECT_EQ(board().sudden->timelimit(), 100000);
}

struct InDirectory {
  explicit InDirectory(const std::filesystem::path& dir) : before(std::filesystem::current_path()) {
    std::filesystem::create_directories(dir);
    std::filesystem::current_path(dir);
  }
  ~InDirectory() { std::filesystem::current_path(before); }
  InDirectory(const InDirectory&) = delete;
  InDirectory& operator=(const InDirectory&) = delete;
  std::filesystem::path before;
};

TEST_F(FrameFixture, HelpOpensThePageBesideTheProgramOrSaysItIsMissing) {
  std::filesystem::path dir = std::filesystem::temp_directory_path() / "vrask-frame-help-test";
  std::filesystem::remove_all(dir);
  InDirectory here(dir);
  click("rh");
  ASSERT_EQ(host.messages().size(), 1U);
  EXPECT_EQ(host.messages()[0].text, "Vrask zorvex help.htm was not found in program directory.");
  EXPECT_EQ(host.messages()[0].title, "No help");
  EXPECT_TRUE(host.documentsOpened().empty());

  std::ofstream(dir / kHelpFile) << "<html></html>";
  click("rh");
  ASSERT_EQ(host.documentsOpened().size(), 1U);
  EXPECT_EQ(std::filesystem::path(host.documentsOpened()[0]), std::filesystem::absolute(kHelpFile));
  EXPECT_EQ(host.messages().size(), 1U);
  EXPECT_FALSE(program.ended());
}

TEST_F(FrameFixture, AboutBoxShowsOverTheBoardAndOkReturnsToIt) {
  board().rounds->recordGame(2, 1);
  click("abt");
  ASSERT_EQ(program.current()->name(), "AboutBox");
  EXPECT_EQ(program.current()->Caption, "About Super Vrask Plus 2014 Desktop");
  EXPECT_EQ(el("Label1").Caption, "Super Vrask Plus 2014 Desktop");
  program.timerTick(*program.current(), el("Timer1"));
  EXPECT_EQ(el("stars").drawing.size(), 30U);
  click("Cmd_OK");
  ASSERT_EQ(program.current()->name(), "Form1large");
  EXPECT_EQ(el("List2").ListCount(), 4) << "the board under the box is the same";
}

TEST_F(FrameFixture, ExitEndsAtOnce) {
  click("ex");
  EXPECT_TRUE(program.ended());
  EXPECT_TRUE(host.messages().empty());
}

TEST(Val, ReadsTheNumberAtTheHeadOfAText) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val(" 1 2"), 12);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("-3.5e1x"), -35);
  EXPECT_EQ(Val("7e"), 7);
  EXPECT_EQ(Val("4.5.6"), 4.5);
}

TEST(StarField, StarsFleeTheirLopsidedCentresInWholeSteps) {
  using S = StarField::Star;
  auto same = [](S a, S b) { return a.x == b.x && a.y == b.y; };
  EXPECT_TRUE(same(StarField::moved({1000, 1000}), S{952, 919}));
  EXPECT_TRUE(same(StarField::moved({10000, 6000}), S{10143, 6043}));
  // Between 2952 and 8410 a star is drawn right, towards the far centre.
  EXPECT_TRUE(same(StarField::moved({5000, 4251}), S{5052, 4251}));
  EXPECT_TRUE(same(StarField::moved({8411, 4250}), S{8515, 4250}));
}

TEST(StarField, StarsLeavingTheFieldAreDealtAnew) {
  HeadlessHost host;
  Program program(host);
  program.registerForm("AboutBox", [](Program& p) { return std::make_unique<AboutBox>(p); });
  program.open("AboutBox");
  Form& form = *program.current();
  Element picture;
  picture.Width = StarField::kWidth;
  picture.Height = StarField::kHeight;
  StarField field(picture);
  host.random().pin(0.5);
  host.random().pin(0.25);
  field.tick(form);  // every star starts in the corner and leaves at once
  EXPECT_EQ(field.stars()[0].y, 4206);
  EXPECT_EQ(field.stars()[0].x, 3726);
  ASSERT_EQ(picture.drawing.size(), 30U);
  const Stroke& first = picture.drawing[0];
  EXPECT_EQ(first.x1, 3726);
  EXPECT_EQ(first.x2, 3726);
  EXPECT_EQ(first.y2 - first.y1, 20);
  EXPECT_EQ(first.color, color::White);
}

}  // namespace
}  // namespace vrask
