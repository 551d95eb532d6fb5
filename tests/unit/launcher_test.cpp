#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "launcher/emblem.h"
#include "launcher/suite.h"
#include "launcher/title.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

// Stands in for a board: the launcher only needs the name to be known.
class StandIn : public Form {
 public:
  StandIn(Program& p, std::string name) : Form(p, std::move(name)) {}
  void Form_Load() override {}
};

struct LauncherFixture : ::testing::Test {
  explicit LauncherFixture(std::initializer_list<const char*> boards = {"Triang", "Form1large",
                                                                        "zorvex", "vraskthewall",
                                                                        "Quennel", "form5d",
                                                                        "form5d2"})
      : program(host) {
    registerSuite(program);
    for (const char* name : boards) {
      program.registerForm(name, [name](Program& p) { return std::make_unique<StandIn>(p, name); });
    }
    program.open("title");
  }
  Element& label(int i) { return (*program.current()->findArray("Label11"))[i]; }
  Element& el(const std::string& name, int i = 0) {
    return (*program.current()->findArray(name))[i];
  }
  Program::Outcome event(const std::string& handler, Element& e) {
    return program.userEvent(*program.current(), e, handler).outcome;
  }
  void showFrontPage() { program.timerTick(*program.current(), el("Timer2")); }
  HeadlessHost host;
  Program program;
};

struct Expected {
  int index;
  const char* board;
  int bubbleland;
  int wallLevel;
};

TEST_F(LauncherFixture, EachQuickLaunchOpensItsBoardWithItsSharedValue) {
  const Expected table[] = {{4, "Triang", 0, 1},        {5, "Triang", 1, 1},
                            {6, "Form1large", 0, 1},    {30, "zorvex", 0, 1},
                            {31, "vraskthewall", 0, 1}, {32, "vraskthewall", 0, 2},
                            {33, "vraskthewall", 0, 3}, {100, "Quennel", 0, 1},
                            {51, "form5d", 0, 1},       {52, "form5d2", 0, 1}};
  for (const Expected& row : table) {
    program.shared() = SharedState{};
    program.open("title");
    showFrontPage();
    event("Label11_Click", label(row.index));
    ASSERT_EQ(program.current()->name(), row.board) << "Label11(" << row.index << ")";
    EXPECT_EQ(program.alive().size(), 1U) << "title is gone";
    EXPECT_EQ(program.shared().bubbleland_start, row.bubbleland) << row.index;
    EXPECT_EQ(program.shared().wall_level, row.wallLevel) << row.index;
  }
}

TEST_F(LauncherFixture, HeadersPlainCaptionsAndTheHiddenSeventhLaunchNothing) {
  showFrontPage();
  for (int i : {0, 29, 49, 34, 50, 55, 101, 122}) {
    ASSERT_TRUE(label(i).Visible) << i;
    event("Label11_Click", label(i));
    ASSERT_EQ(program.current()->name(), "title") << "Label11(" << i << ")";
  }
  EXPECT_FALSE(label(7).Visible);
  EXPECT_EQ(event("Label11_Click", label(7)), Program::Outcome::Ignored);
  EXPECT_EQ(program.current()->name(), "title");
}

TEST_F(LauncherFixture, SplashHidesTheFrontPageUntilTimer2) {
  Form& form = *program.current();
  EXPECT_EQ(form.Caption, "Super Vrask Plus 2014 Desktop");
  EXPECT_EQ(el("Runner", 0).Left, el("Runner", 1).Left - 240);
  EXPECT_EQ(el("Runner", 1).Caption, "Super Vrask Plus 2014 Desktop");
  EXPECT_FALSE(label(6).Visible);
  EXPECT_FALSE(el("picViewer").Visible);
  EXPECT_EQ(event("Label11_Click", label(6)), Program::Outcome::Ignored);
  EXPECT_EQ(el("Timer2").Interval, 6000);
  EXPECT_FALSE(el("tmrAni").Enabled);
  showFrontPage();
  for (const char* name : {"Picture5", "picViewer", "Label5", "Image1"}) {
    EXPECT_TRUE(el(name).Visible) << name;
  }
  EXPECT_TRUE(el("Shape2", 2).Visible);
  EXPECT_TRUE(el("Runner", 0).Visible);
  EXPECT_TRUE(el("tmrAni").Enabled);
  EXPECT_FALSE(el("Timer2").Enabled) << "the splash shows once";
  program.timerTick(*program.current(), el("tmrAni"));
  EXPECT_EQ(el("picViewer").drawing.size(), 8U) << "four arms, each a line and a dot";
}

TEST_F(LauncherFixture, HoverLightsOneLaunchLabelAndTheBackdropRestsThem) {
  showFrontPage();
  event("Label11_MouseMove", label(30));
  EXPECT_EQ(label(30).ForeColor, title::kHover);
  event("Label11_MouseMove", label(31));
  EXPECT_EQ(label(31).ForeColor, title::kHover);
  EXPECT_EQ(label(30).ForeColor, title::kRest);
  int headerColour = label(29).ForeColor;
  event("Label11_MouseMove", label(29));
  EXPECT_EQ(label(29).ForeColor, headerColour) << "a header is not a launcher";
  event("Image3_MouseMove", el("Image3"));
  EXPECT_EQ(label(31).ForeColor, title::kRest);
  event("Label11_MouseMove", label(5));
  event("Label2_MouseMove", el("Label2"));
  EXPECT_EQ(label(5).ForeColor, title::kRest);
}

TEST_F(LauncherFixture, ExitButtonEndsTheProgram) {
  event("Command3_Click", el("Command3"));
  EXPECT_TRUE(program.ended());
}

struct LauncherWithoutBoards : LauncherFixture {
  LauncherWithoutBoards() : LauncherFixture({"Form1large"}) {}
};

TEST_F(LauncherWithoutBoards, BoardsNotBuiltAreShownButCannotBeLaunched) {
  showFrontPage();
  EXPECT_TRUE(label(30).Visible);
  EXPECT_FALSE(label(30).Enabled);
  EXPECT_EQ(label(30).ToolTipText, "Not yet available");
  EXPECT_EQ(event("Label11_Click", label(30)), Program::Outcome::Ignored);
  EXPECT_TRUE(label(6).Enabled);
  event("Label11_Click", label(6));
  EXPECT_EQ(program.current()->name(), "Form1large");
}

TEST(Emblem, ArmsStartAsDesignedAndDrawFromTheMiddle) {
  Element picture;
  picture.Width = 2400;
  picture.Height = 2400;
  Emblem emblem(picture);
  emblem.draw();
  ASSERT_EQ(picture.drawing.size(), 8U);
  // The first arm, (0, 90, 0), points straight right.
  EXPECT_DOUBLE_EQ(picture.drawing[0].x1, 1200);
  EXPECT_NEAR(picture.drawing[0].x2, 1200 + 1050, 1e-9);
  EXPECT_NEAR(picture.drawing[0].y2, 1200, 1e-9);
  EXPECT_EQ(picture.drawing[0].color, 8421631);
  EXPECT_TRUE(picture.drawing[1].dot);
  EXPECT_EQ(picture.drawing[7].color, 49152);
  emblem.turn();
  emblem.draw();
  EXPECT_EQ(picture.drawing.size(), 8U) << "each frame replaces the last";
}

}  // namespace
}  // namespace vrask
