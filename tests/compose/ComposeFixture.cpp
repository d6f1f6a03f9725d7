#include "compose/ComposeFixture.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QTest>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/FileListModel.h"

namespace renvale::test {
namespace {

template <typename Controller, typename Make>
Controller* Attached(shell::MainWindow& window, Make make) {
  if (auto* existing = window.findChild<Controller*>()) return existing;
  return make();
}

}  // namespace

void ComposeFixture::SetUp() {
  ASSERT_TRUE(dir.isValid());
  QDir(dir.path()).mkpath(QStringLiteral("files"));
  storage = std::make_unique<platform::QtSettingsStorage>(dir.path() + QStringLiteral("/Renvale.conf"));
}

QByteArray ComposeFixture::Folder() const { return QFile::encodeName(dir.path()) + "/files/"; }

shell::MainWindow& ComposeFixture::Open() {
  shell::MainWindowServices services{
      platform::RealFileSystem(), messages, *storage, tips,
      [](QWidget*, const QString&, const QString&) { return QString(); },
      [] { return std::vector<platform::Volume>{}; }, [this] { return Folder(); }};
  window = std::make_unique<shell::MainWindow>(std::move(services));
  shell::MainWindow& main = *window;
  compose = Attached<shell::ComposeController>(main, [&] {
    return new shell::ComposeController(main.Ui(), main.Session(), main.Settings(),
                                        {platform::RealFileSystem(), messages, tips, {}}, &main);
  });
  editor = Attached<shell::ButtonEditor>(
      main, [&] { return new shell::ButtonEditor(main.Ui(), main.Settings(), messages, &main); });
  tempSaver = Attached<shell::FilenameAsTemp>(
      main, [&] { return new shell::FilenameAsTemp(main.Ui(), main.Session(), messages, tips, &main); });
  main.Start();
  main.show();
  return main;
}

void ComposeFixture::MakeFile(const QString& name, const QByteArray& bytes) {
  ASSERT_EQ(platform::RealFileSystem().WriteWholeFile(Folder() + name.toUtf8(), bytes), platform::kNoError);
}

void ComposeFixture::Select(std::initializer_list<int> rows) {
  QListView* list = Ui().File1;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  for (int row : rows) {
    const QRect rect = list->visualRect(window->Files().index(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, rect.center());
    modifiers = Qt::ControlModifier;
  }
}

QString ComposeFixture::NewName() const { return window->Ui().Text1->text(); }

void ComposeFixture::SetNewName(const QString& text) {
  window->Ui().Text1->setText(text);
  window->Ui().Text1->setCursorPosition(static_cast<int>(text.size()));
}

void ComposeFixture::Trigger(QMenu* menu, const QString& caption) {
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions()) {
    if (action->text() == caption) return action->trigger();
  }
  FAIL() << "no menu entry " << caption.toStdString();
}

QStringList ComposeFixture::Captions(const QMenu* menu) {
  QStringList captions;
  for (const QAction* action : menu->actions()) captions << (action->isSeparator() ? QStringLiteral("-") : action->text());
  return captions;
}

}  // namespace renvale::test
