#include <QAction>
#include <QListView>
#include <QTest>
#include <QTextBrowser>

#include "mainwindow/MainWindowFixture.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/AboutDialog.h"

namespace renvale::test {
namespace {

TEST(AboutVersion, RevisionShowsOnlyWhenNotZero) {
  struct Row {
    int major, minor, revision;
    const char* text;
  };
  for (const Row& row : {Row{2, 1, 0, "v2.1"}, Row{2, 1, 3, "v2.1.3"}, Row{0, 10, 0, "v0.10"}}) {
    EXPECT_EQ(shell::AboutDialog::VersionText(row.major, row.minor, row.revision), row.text);
  }
}

class MainWindowHelp : public MainWindowFixture {};

TEST_F(MainWindowHelp, F1OpensTheHelpWindowAtTheMainWindowsPage) {
  shell::MainWindow& main = Open();
  main.show();
  main.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
  QTest::keyClick(main.Ui().File1, Qt::Key_F1);
  auto* help = main.findChild<platform::HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_EQ(help->Page(), QUrl(QStringLiteral("qrc:/help/interface.html")));
  EXPECT_FALSE(help->Browser()->toPlainText().isEmpty());

  main.Ui().HelpMen[0]->trigger();
  EXPECT_EQ(main.findChildren<platform::HelpWindow*>().size(), 1);
  EXPECT_EQ(help->Page(), QUrl(QStringLiteral("qrc:/help/index.html")));
}

}  // namespace
}  // namespace renvale::test
