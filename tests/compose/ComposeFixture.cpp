#include "compose/ComposeFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QTest>

#include "shell/FileListModel.h"

namespace renvale::test {

shell::MainWindow& ComposeFixture::Open() {
  shell::MainWindow& main = MainWindowFixture::Open();
  compose = main.findChild<shell::ComposeController*>();
  editor = main.findChild<shell::ButtonEditor*>();
  tempSaver = main.findChild<shell::FilenameAsTemp*>();
  main.show();
  return main;
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
