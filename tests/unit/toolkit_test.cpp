#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/form.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"
#include "toolkit/random.h"

namespace vrask {
namespace {

TEST(RandomGenerator, PinnedValuesComeFirstThenTheSameSequenceEveryRun) {
  RandomGenerator g;
  g.pin(0.25);
  EXPECT_EQ(g.next(), 0.25);
  EXPECT_NEAR(g.next(), 0.7055475, 5e-8);
  EXPECT_NEAR(g.next(), 0.533424, 5e-8);
  EXPECT_NEAR(g.next(), 0.5795186, 5e-8);
}

struct TestForm : Form {
  using Form::Form;
  void Form_Load() override {
    addArray("ln1", Kind::Line, 1, 3);
    add("Picture1", Kind::Picture);
    add("Command10", Kind::Button).container = "Picture1";
    addMenu("sks", "", "Games Menu");
    addMenu("gmc", "sks", "New");
    add("Timer1", Kind::Timer);
    handleIndexed("ln1_Click", [this](int i) { clicks.push_back(i); });
    handle("gmc_Click", [this] {
      goTo("other");
      clicks.push_back(-1);  // still running after asking to leave
    });
    handle("Timer1_Timer", [this] { clicks.push_back(0); });
  }
  std::vector<int> clicks;
};

struct ProgramFixture : ::testing::Test {
  ProgramFixture() {
    for (const char* name : {"first", "other"}) {
      program.registerForm(name,
                           [name](Program& p) { return std::make_unique<TestForm>(p, name); });
    }
    program.open("first");
  }
  TestForm& form() { return static_cast<TestForm&>(*program.current()); }
  Element& el(const std::string& name, int i = 0) { return (*form().findArray(name))[i]; }
  Program::Result click(Element& e) { return program.userEvent(form(), e, e.name + "_Click"); }
  HeadlessHost host;
  Program program{host};
};

TEST_F(ProgramFixture, ElementsOutsideTheirArrayOrOutOfReachAreNotReached) {
  EXPECT_THROW(el("ln1", 0), std::out_of_range);
  EXPECT_THROW(el("ln1", 4), std::out_of_range);
  EXPECT_EQ(click(el("ln1", 1)).outcome, Program::Outcome::Done);
  el("ln1", 1).Visible = false;
  EXPECT_EQ(click(el("ln1", 1)).outcome, Program::Outcome::Ignored);
  el("Picture1").Visible = false;  // the button inside the hidden panel
  EXPECT_NE(click(el("Command10")).why.find("Picture1"), std::string::npos);
  el("sks").Enabled = false;  // an entry of a disabled menu
  EXPECT_EQ(click(el("gmc")).outcome, Program::Outcome::Ignored);
  program.setInPlainWait(true);  // a wait that lets no input through
  EXPECT_EQ(click(el("ln1", 2)).outcome, Program::Outcome::Ignored);
  EXPECT_EQ(form().clicks, std::vector<int>{1});
}

TEST_F(ProgramFixture, NavigationWaitsForTheHandlerAndADialogStandsOverTheForm) {
  // Records, at each unload, whether the leaving form's handler had run to its end.
  struct Watch : Program::Listener {
    std::vector<std::string> events;
    void formShown(Form& f) override { events.push_back("shown " + f.name()); }
    void formUnloading(Form& f) override {
      events.push_back(static_cast<TestForm&>(f).clicks.empty() ? "unload mid-handler"
                                                                : "unload finished");
    }
  } watch;
  program.setListener(&watch);
  click(el("gmc"));
  program.setListener(nullptr);
  EXPECT_EQ(watch.events, (std::vector<std::string>{"unload finished", "shown other"}));
  // A dialog stands over the form, one of a kind, until unloaded.
  for (int i = 0; i < 2; ++i) program.showOver("first");
  EXPECT_EQ(program.alive().size(), 2U);
  program.unload(*program.current());
  EXPECT_EQ(program.current()->name(), "other");
}

TEST_F(ProgramFixture, TimersTickWhileEnabledWaitsPumpOnlyWhenAskedAndTheEndStopsAll) {
  int pumped = 0;
  host.setPump([&] { ++pumped; });
  form().wait(0.5);
  form().waitWithEvents(0.25);
  EXPECT_DOUBLE_EQ(host.clock(), 0.75);
  EXPECT_EQ(pumped, 1);
  program.timerTick(form(), el("Timer1"));  // a timer starts off
  el("Timer1").Enabled = true;
  program.timerTick(form(), el("Timer1"));
  program.end();
  program.timerTick(form(), el("Timer1"));
  EXPECT_EQ(click(el("ln1", 1)).outcome, Program::Outcome::Ignored);
  EXPECT_EQ(form().clicks, std::vector<int>{0});
  EXPECT_TRUE(host.ended());
}

}  // namespace
}  // namespace vrask
