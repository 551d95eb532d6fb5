// The toolkit's program where neither the behaviour scripts nor the window reach it.
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
    add("Timer1", Kind::Timer);
    Element& list = add("List1", Kind::ListBox);
    handleIndexed("ln1_Click", [this](int i) { clicks.push_back(i); });
    handle("Timer1_Timer", [this] { clicks.push_back(0); });
    handle("List1_Click", [this, &list] { rows.push_back(list.ListIndex); });
  }
  std::vector<int> clicks;
  std::vector<int> rows;  // ListIndex as the click handler of List1 saw it
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
  Program::Outcome click(int i) {
    return program.userEvent(form(), el("ln1", i), "ln1_Click").outcome;
  }
  HeadlessHost host;
  Program program{host};
};

TEST_F(ProgramFixture, AnArrayHasOnlyItsOwnIndexesAndADialogIsOneOfAKind) {
  EXPECT_THROW(el("ln1", 0), std::out_of_range);
  EXPECT_THROW(el("ln1", 4), std::out_of_range);
  for (int i = 0; i < 2; ++i) program.showOver("other");
  EXPECT_EQ(program.alive().size(), 2U);
  program.unload(*program.current());
  EXPECT_EQ(program.current()->name(), "first");
}

TEST_F(ProgramFixture, TimersTickWhileEnabledAndAPlainWaitOrTheEndLetsNothingIn) {
  std::vector<bool> waits;
  host.setWaitHook([&](bool pumping) { waits.push_back(pumping); });
  form().wait(0.5);
  form().waitWithEvents(0.25);
  EXPECT_DOUBLE_EQ(host.clock(), 0.75);
  EXPECT_EQ(waits, (std::vector<bool>{false, true}));
  program.timerTick(form(), el("Timer1"));  // a timer starts off
  el("Timer1").Enabled = true;
  program.timerTick(form(), el("Timer1"));
  EXPECT_EQ(click(1), Program::Outcome::Done);
  for (bool inWait : {true, false}) {
    program.setInPlainWait(inWait);
    if (!inWait) program.end();
    program.timerTick(form(), el("Timer1"));
    EXPECT_EQ(click(2), Program::Outcome::Ignored);
  }
  EXPECT_EQ(form().clicks, (std::vector<int>{0, 1}));
  EXPECT_TRUE(host.ended());
}

TEST_F(ProgramFixture, ARowClickSelectsAnExistingRowBeforeTheHandlerRuns) {
  Element& list = el("List1");
  list.AddItem("a");
  list.AddItem("b");
  auto pick = [&](int row) { return program.rowEvent(form(), list, row, "List1_Click").outcome; };
  EXPECT_EQ(pick(1), Program::Outcome::Done);
  EXPECT_EQ(pick(2), Program::Outcome::Ignored);
  list.Enabled = false;
  EXPECT_EQ(pick(0), Program::Outcome::Ignored);
  EXPECT_EQ(list.ListIndex, 1);
  EXPECT_EQ(form().rows, (std::vector<int>{1}));
  list.Clear();
  EXPECT_EQ(list.ListIndex, -1);
}

}  // namespace
}  // namespace vrask
