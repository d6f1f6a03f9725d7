#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/widgets/QtMessagePort.h"

namespace renvale::platform {
namespace {

TEST(QtMessagePort, EveryLineBreakStyleIsOneBreak) {
  EXPECT_EQ(QtMessagePort::NormaliseLineBreaks("a\rb\nc\r\nd"), "a\nb\nc\nd");
  EXPECT_EQ(QtMessagePort::NormaliseLineBreaks("a\r\n\r\nb"), "a\n\nb");
}

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
  const MessageAnswer answer =
      port.Ask("Overwrite?\rLost!", MessageButtons::YesNoCancel, MessageIcon::Warning, "Filename already exists!");
  EXPECT_EQ(answer, MessageAnswer::Yes);
  EXPECT_EQ(driver.shownText, "Overwrite?\nLost!");
  EXPECT_EQ(driver.shownTitle, "Filename already exists!");
  EXPECT_EQ(driver.shownIcon, QMessageBox::Warning);
}

// Enter pressed on a question whose Yes loses a file must not press Yes.
TEST(QtMessagePort, EnterOnAQuestionBeforeALossAnswersNo) {
  QtMessagePort port;
  BoxDriver enter(Qt::Key_Return);
  enter.Arm();
  EXPECT_EQ(port.AskBeforeLoss("Overwrite?", MessageButtons::YesNoCancel, MessageIcon::Warning), MessageAnswer::No);
}

TEST(QtMessagePort, EscapeGivesTheSafeAnswer) {
  QtMessagePort port;
  BoxDriver yesNo(Qt::Key_Escape);
  yesNo.Arm();
  EXPECT_EQ(port.Ask("Sure?", MessageButtons::YesNo, MessageIcon::Question), MessageAnswer::No);
  EXPECT_EQ(yesNo.shownTitle, "Renvale");
  BoxDriver yesNoCancel(Qt::Key_Escape);
  yesNoCancel.Arm();
  EXPECT_EQ(port.Ask("Sure?", MessageButtons::YesNoCancel, MessageIcon::Warning), MessageAnswer::Cancel);
}

}  // namespace
}  // namespace renvale::platform
