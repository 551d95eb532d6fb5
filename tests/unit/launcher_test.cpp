// The launcher with stand-ins for the boards the behaviour scripts cannot open.
#include <gtest/gtest.h>

#include <tuple>

#include "launcher/emblem.h"
#include "launcher/suite.h"
#include "launcher/title.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

struct StandIn : Form {
  using Form::Form;
  void Form_Load() override {}
};

struct LauncherFixture : ::testing::Test {
  // The front page, past the splash, with stand-ins for `boards`.
  // The square board, and stand-ins for `boards`; the others not built.
  void start(std::initializer_list<const char*> boards) {
    registerSuite(program, "Form1large");
    for (const char* name : boards) {
      program.registerForm(name, [name](Program& p) { return std::make_unique<StandIn>(p, name); });
    }
    program.open("title");
    program.timerTick(*program.current(), el("Timer2"));
  }
  Element& el(const std::string& name, int i = 0) {
    return (*program.current()->findArray(name))[i];
  }
  Element& label(int i) { return el("Label11", i); }
  Program::Outcome event(const std::string& handler, Element& e) {
    return program.userEvent(*program.current(), e, handler).outcome;
  }
  HeadlessHost host;
  Program program{host};
};

TEST_F(LauncherFixture, EachQuickLaunchOpensItsBoardAloneWithItsSharedValues) {
  const int kLabel[] = {4, 5, 30, 31, 32, 33, 100, 51, 52};
  const std::string kBoard[] = {"Triang",       "Triang",  "zorvex", "vraskthewall", "vraskthewall",
                                "vraskthewall", "Quennel", "form5d", "form5d2"};
  const int kBubbleland[] = {0, 1, 0, 0, 0, 0, 0, 0, 0}, kWall[] = {1, 1, 1, 1, 2, 3, 1, 1, 1};
  for (size_t i = 0; i < std::size(kLabel); ++i) {
    program.shared().restart();
    start({"Triang", "zorvex", "vraskthewall", "Quennel", "form5d", "form5d2"});
    event("Label11_Click", label(kLabel[i]));
    EXPECT_EQ(std::tuple(program.current()->name(), program.alive().size(),
                         program.shared().number(shared::kBubblelandStart),
                         program.shared().number(shared::kWallLevel)),
              std::tuple(kBoard[i], size_t{1}, kBubbleland[i], kWall[i]))
        << "Label11(" << kLabel[i] << ")";
  }
}

TEST_F(LauncherFixture, FrontPageSpinsTheEmblemLightsOneLaunchAtATimeAndOffersOnlyBuiltBoards) {
  start({"Triang", "zorvex"});
  EXPECT_TRUE(label(100).Visible && !label(100).Enabled);
  EXPECT_EQ(label(100).ToolTipText, "Not yet available");
  program.timerTick(*program.current(), el("tmrAni"));
  program.timerTick(*program.current(), el("tmrAni"));
  EXPECT_EQ(el("picViewer").drawing.size(), 8U) << "four arms, each a line and a dot, anew";
  event("Label11_MouseMove", label(4));
  event("Label11_MouseMove", label(30));
  event("Label11_MouseMove", label(29));  // a header, not a launcher
  EXPECT_EQ(std::vector({label(4).ForeColor, label(30).ForeColor}),
            std::vector({title::kRest, title::kHover}));
  EXPECT_NE(label(29).ForeColor, title::kHover);
  event("Image3_MouseMove", el("Image3"));
  EXPECT_EQ(label(30).ForeColor, title::kRest);
}

TEST(Emblem, ArmsStartAsDesignedAndDrawFromTheMiddle) {
  Element picture;
  picture.Width = picture.Height = 2400;
  Emblem(picture).draw();
  ASSERT_EQ(picture.drawing.size(), 8U);
  const Stroke& arm = picture.drawing[0];  // (0, 90, 0): 1050 twips straight right
  EXPECT_NEAR(arm.x2 - arm.x1, 1050, 1e-9);
  EXPECT_NEAR(arm.y2 - arm.y1, 0, 1e-9);
  EXPECT_EQ(std::tuple(arm.x1, arm.y1, arm.color, picture.drawing[1].dot, picture.drawing[7].color),
            std::tuple(1200.0, 1200.0, 8421631, true, 49152));
}

}  // namespace
}  // namespace vrask
