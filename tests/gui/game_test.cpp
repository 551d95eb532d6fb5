// A whole game against the computer in the real window, with the waits cut
// to nothing: the board takes the player's clicks, the computer answers, and
// the round list shows the result.
#include <variant>

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

namespace {

double variable(Form& form, const std::string& name, const std::vector<int>& index = {}) {
  return std::get<double>(form.variables().at(name).get(index));
}

}  // namespace

TEST(Game, OnePlayerSuperVraskPlusPlayedToTheEnd) {
  WindowRun run(0);
  run.program.open("Form1large");
  run.window().resize(1100, 820);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  QTest::qWait(100);
  run.screenshot(run.window(), "game-start");

  Form& board = run.form();
  // The first move typed on the keypad, as read out over a phone: the panel
  // opens with the focus in its text box, and Enter there plays the number.
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  auto* text = qobject_cast<QLineEdit*>(run.control("Text1"));
  ASSERT_NE(text, nullptr);
  EXPECT_TRUE(text->isVisible());
  EXPECT_EQ(run.window().focusWidget(), text);
  QTest::keyClicks(text, "41");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(variable(board, "sqdone", {41}), 1);
  EXPECT_EQ(text->text(), "");
  run.screenshot(run.window(), "game-typed-move");

  int clicks = 1;
  for (int s = 1; s <= 81 && variable(board, "gameover") == 0; ++s) {
    if (variable(board, "sqdone", {s}) != 0) continue;
    run.click("Label2", s);
    // The click reached the board: the circle is played.
    EXPECT_EQ(variable(board, "sqdone", {s}), 1) << "circle " << s;
    if (++clicks == 8) run.screenshot(run.window(), "game-middle");
  }
  ASSERT_EQ(variable(board, "gameover"), 1);
  // Blue and the computer took turns: at most half the circles, and one
  // more, were Blue's.
  EXPECT_GE(clicks, 10);
  EXPECT_LE(clicks, 41);

  auto* list = qobject_cast<QListWidget*>(run.control("List2"));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->count(), 4);
  std::string round = list->item(1)->text().toStdString();
  EXPECT_EQ(round.rfind("Round 1 -", 0), 0u) << round;
  EXPECT_NE(
      round.find("\t" + run.element("Label5", 0).Caption + "\t" + run.element("Label6").Caption),
      std::string::npos)
      << round;
  EXPECT_TRUE(run.element("Label15", 0).Visible);
  QTest::qWait(100);
  run.screenshot(run.window(), "game-over");
}

}  // namespace vrask::gui_test
