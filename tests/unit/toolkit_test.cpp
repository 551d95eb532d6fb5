#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/form.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"
#include "toolkit/random.h"

namespace vrask {
namespace {

TEST(RandomGenerator, DealsTheSameSequenceEveryRun) {
  RandomGenerator g;
  EXPECT_NEAR(g.next(), 0.7055475, 5e-8);
  EXPECT_NEAR(g.next(), 0.533424, 5e-8);
  EXPECT_NEAR(g.next(), 0.5795186, 5e-8);
}

TEST(RandomGenerator, PinnedValuesComeFirstThenTheSequenceGoesOn) {
  RandomGenerator g;
  g.pin(0.25);
  g.pin(0.5);
  EXPECT_EQ(g.next(), 0.25);
  EXPECT_EQ(g.next(), 0.5);
  EXPECT_NEAR(g.next(), 0.7055475, 5e-8);
}

// A form with a little of everything the toolkit offers.
class TestForm : public Form {
 public:
  TestForm(Program& p, std::string name) : Form(p, std::move(name)) {}
  void Form_Load() override {
    ElementArray& lines = addArray("ln1", Kind::Line, 1, 3);
    lines[2].BorderWidth = 8;
    Element& panel = add("Picture1", Kind::Picture);
    Element& digit = add("Command10", Kind::Button);
    digit.container = "Picture1";
    addMenu("sks", "", "Games Menu");
    addMenu("gmc", "sks", "New");
    add("Timer1", Kind::Timer).Interval = 10;
    handleIndexed("ln1_Click", [this](int i) { clicks.push_back(i); });
    handle("Command10_Click", [this] { clicks.push_back(10); });
    handle("gmc_Click", [this] {
      goTo(next);
      clicks.push_back(-1);  // still running after asking to leave
    });
    handle("Timer1_Timer", [this] { ++ticks; });
    varArray("lineown", 1, 3, [](int i) { return num(i * 2); });
    (void)panel;
  }
  std::vector<int> clicks;
  int ticks = 0;
  std::string next = "other";
};

struct ProgramFixture : ::testing::Test {
  ProgramFixture() : program(host) {
    program.registerForm("first",
                         [](Program& p) { return std::make_unique<TestForm>(p, "first"); });
    program.registerForm("other",
                         [](Program& p) { return std::make_unique<TestForm>(p, "other"); });
    program.open("first");
  }
  TestForm& form() { return static_cast<TestForm&>(*program.current()); }
  Element& el(const std::string& name, int i = 0) { return (*form().findArray(name))[i]; }
  HeadlessHost host;
  Program program;
};

TEST_F(ProgramFixture, ControlArraysKeepTheirOwnIndexRange) {
  ElementArray& lines = *form().findArray("ln1");
  EXPECT_EQ(lines.lo(), 1);
  EXPECT_EQ(lines.hi(), 3);
  EXPECT_EQ(lines[2].displayName(), "ln1(2)");
  EXPECT_EQ(std::get<double>(*lines[2].get("BorderWidth")), 8);
  EXPECT_THROW(lines[0], std::out_of_range);
  EXPECT_THROW(lines[4], std::out_of_range);
  EXPECT_FALSE(lines[1].get("Caption").has_value());  // a line has no caption
  EXPECT_EQ(el("Picture1").displayName(), "Picture1");
  EXPECT_EQ(std::get<double>(form().variables().at("lineown").get({3})), 6);
}

TEST_F(ProgramFixture, ElementsOutOfReachAreNotClicked) {
  auto click = [&](Element& e) { return program.userEvent(form(), e, e.name + "_Click").outcome; };
  EXPECT_EQ(click(el("ln1", 1)), Program::Outcome::Done);
  el("ln1", 1).Visible = false;
  EXPECT_EQ(click(el("ln1", 1)), Program::Outcome::Ignored);
  el("Picture1").Visible = false;  // the button inside the hidden panel
  Program::Result r = program.userEvent(form(), el("Command10"), "Command10_Click");
  EXPECT_EQ(r.outcome, Program::Outcome::Ignored);
  EXPECT_NE(r.why.find("Picture1"), std::string::npos);
  el("sks").Enabled = false;  // an entry of a disabled menu
  EXPECT_EQ(click(el("gmc")), Program::Outcome::Ignored);
  program.setInPlainWait(true);
  el("ln1", 1).Visible = true;
  EXPECT_EQ(click(el("ln1", 1)), Program::Outcome::Ignored);
  program.setInPlainWait(false);
  EXPECT_EQ(form().clicks, std::vector<int>{1});
}

TEST_F(ProgramFixture, NavigationWaitsForTheHandlerToReturn) {
  // Records, at each unload, whether the leaving form's handler had run to its end.
  struct Watch : Program::Listener {
    std::vector<std::string> events;
    void formShown(Form& f) override { events.push_back("shown " + f.name()); }
    void formUnloading(Form& f) override {
      bool finished = !static_cast<TestForm&>(f).clicks.empty();
      events.push_back("unload " + f.name() + (finished ? " finished" : " mid-handler"));
    }
  } watch;
  program.setListener(&watch);
  program.userEvent(form(), el("gmc"), "gmc_Click");
  program.setListener(nullptr);
  EXPECT_EQ(watch.events, (std::vector<std::string>{"unload first finished", "shown other"}));
  ASSERT_EQ(program.alive().size(), 1U);
  EXPECT_EQ(program.current()->name(), "other");
}

TEST_F(ProgramFixture, ADialogStandsOverTheFormUntilUnloaded) {
  program.showOver("other");
  ASSERT_EQ(program.alive().size(), 2U);
  EXPECT_EQ(program.current()->name(), "other");
  program.showOver("other");  // at most one instance of a form
  EXPECT_EQ(program.alive().size(), 2U);
  program.unload(*program.current());
  EXPECT_EQ(program.current()->name(), "first");
}

TEST_F(ProgramFixture, TimersTickOnlyWhileEnabledAndNotAfterTheEnd) {
  Element& timer = el("Timer1");
  program.timerTick(form(), timer);
  timer.Enabled = true;
  program.timerTick(form(), timer);
  program.end();
  program.timerTick(form(), timer);
  EXPECT_EQ(form().ticks, 1);
  EXPECT_TRUE(host.ended());
  EXPECT_EQ(program.userEvent(form(), el("ln1", 1), "ln1_Click").outcome,
            Program::Outcome::Ignored);
}

TEST_F(ProgramFixture, WaitsAdvanceTheVirtualClockAndPumpOnlyWhenAsked) {
  int pumped = 0;
  host.setPump([&] { ++pumped; });
  form().wait(0.5);
  form().waitWithEvents(0.25);
  EXPECT_DOUBLE_EQ(host.clock(), 0.75);
  EXPECT_EQ(pumped, 1);
  EXPECT_FALSE(program.inPlainWait());
}

TEST(Value, NumbersPrintWholeWhenTheyAreWhole) {
  EXPECT_EQ(toJson(num(16711680)), "16711680");
  EXPECT_EQ(toJson(num(0.5)), "0.5");
  EXPECT_EQ(toJson(Value{std::string("Round 1 -Blue\t5\t3")}), "\"Round 1 -Blue\\t5\\t3\"");
  EXPECT_EQ(toJson(Value{true}), "true");
}

}  // namespace
}  // namespace vrask
