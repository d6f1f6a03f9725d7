#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "platform/widgets/QtMessagePort.h"

namespace renvale::platform {
namespace {

// Presses `key` on the message box as soon as it is up, and notes what it showed.
struct BoxDriver {
  explicit BoxDriver(Qt::Key pressed) : key(pressed) {}
  Qt::Key key;
  QString shownText, shownTitle;
  QMessageBox::Icon shownIcon = QMessageBox::NoIcon;

  void Arm() {
    QTimer::singleShot(0, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      shownText = box->text();
      shownTitle = box->windowTitle();
      shownIcon = box->icon();
      QTest::keyClick(box, key);
    });
  }
};

TEST(QtMessagePort, ShowsTheMessageAndMapsTheAnswer) {
  QtMessagePort port;
  BoxDriver driver(Qt::Key_Y);
  driver.Arm();
  const MessageAnswer answer = port.Ask("Overwrite?\rLost!\r\n\r\nGone\nNow", MessageButtons::YesNoCancel,
                                        MessageIcon::Warning, "Filename already exists!");
  EXPECT_EQ(answer, MessageAnswer::Yes);
  EXPECT_EQ(driver.shownText, "Overwrite?\nLost!\n\nGone\nNow");  // every line-break style is one break
  EXPECT_EQ(driver.shownTitle, "Filename already exists!");
  EXPECT_EQ(driver.shownIcon, QMessageBox::Warning);
}

// Enter on a question whose Yes loses a file must not press Yes; Escape
// gives the safe answer of each shape.
TEST(QtMessagePort, EnterBeforeALossAndEscapeGiveTheSafeAnswer) {
  const struct { Qt::Key key; bool beforeLoss; MessageButtons buttons; MessageAnswer expected; } rows[] = {
      {Qt::Key_Return, true, MessageButtons::YesNoCancel, MessageAnswer::No},
      {Qt::Key_Escape, false, MessageButtons::YesNo, MessageAnswer::No},
      {Qt::Key_Escape, false, MessageButtons::YesNoCancel, MessageAnswer::Cancel}};
  QtMessagePort port;
  for (const auto& row : rows) {
    BoxDriver driver(row.key);
    driver.Arm();
    EXPECT_EQ(row.beforeLoss ? port.AskBeforeLoss("Overwrite?", row.buttons, MessageIcon::Warning)
                             : port.Ask("Sure?", row.buttons, MessageIcon::Question),
              row.expected);
    EXPECT_EQ(driver.shownTitle, "Renvale");
  }
}

}  // namespace
}  // namespace renvale::platform
