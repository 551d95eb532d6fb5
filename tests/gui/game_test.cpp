// A whole game against the computer in the real window, the waits cut to
// nothing: moves by keypad and by click, and the result in the round list.
#include <variant>

#include <QLineEdit>
#include <QListWidget>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Game, OnePlayerSuperVraskPlusPlayedToTheEnd) {
  WindowRun run;
  run.program.open("Form1large");
  run.window().resize(1100, 820);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  QTest::qWait(100);
  run.screenshot(run.window(), "game-start");
  Form& board = run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };

  // The keypad opens with the focus in its text box; Enter plays the number.
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  auto* text = qobject_cast<QLineEdit*>(run.control("Text1"));
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(run.window().focusWidget(), text);
  QTest::keyClicks(text, "41");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(variable("sqdone", {41}), 1);
  EXPECT_EQ(text->text(), "");
  run.screenshot(run.window(), "game-typed-move");
  // Closing the keypad takes the focus out of its box and hands it to no
  // other control, as if a person had pressed Tab.
  QTest::mouseClick(run.control("Command2"), Qt::LeftButton);
  EXPECT_EQ(board.focused(), "");
  EXPECT_EQ(board.focus, "Text1");

  int moves = 1;
  for (int s = 1; s <= 81 && variable("gameover") == 0; ++s) {
    if (variable("sqdone", {s}) != 0) continue;
    run.click("Label2", s);
    EXPECT_EQ(variable("sqdone", {s}), 1) << "circle " << s;
    if (++moves == 8) run.screenshot(run.window(), "game-middle");
  }
  ASSERT_EQ(variable("gameover"), 1);
  // Blue and the computer took turns: at most one more than half the circles.
  EXPECT_GE(moves, 10);
  EXPECT_LE(moves, 41);

  auto* list = qobject_cast<QListWidget*>(run.control("List2"));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->count(), 4);
  std::string round = list->item(1)->text().toStdString();
  EXPECT_EQ(round.rfind("Round 1 -", 0), 0u) << round;
  std::string score = run.element("Label5", 0).Caption + "\t" + run.element("Label6").Caption;
  EXPECT_NE(round.find("\t" + score), std::string::npos) << round;
  EXPECT_TRUE(run.element("Label15", 0).Visible);
  EXPECT_EQ(run.window().focusWidget(), run.control("Command1"));
  QTest::qWait(100);
  run.screenshot(run.window(), "game-over");
}

}  // namespace vrask::gui_test
