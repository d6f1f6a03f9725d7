#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>

#include "compose/ComposeFixture.h"
#include "platform/AppPaths.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/ManTempDialog.h"
#include "shell/TemplateManager.h"
#include "support/FaultyFileSystem.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;

QByteArray Nine(const QByteArray& first) {
  QByteArray bytes = first;
  for (int n = 2; n <= 9; ++n) bytes += "\"B" + QByteArray::number(n) + "\"\r\n";
  return bytes;
}

class Templates : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(dir.isValid()); }
  QByteArray Read(const QString& name) {
    QFile file(dir.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
  }
  void Write(const QString& name, const QByteArray& bytes) {
    ASSERT_EQ(platform::RealFileSystem().WriteWholeFile(QFile::encodeName(dir.filePath(name)), bytes), 0);
  }
  std::vector<QString> OpenAndCollect(const QString& name) {
    std::vector<QString> applied;
    manager.Open(platform::FileName::FromDisplay(name),
                 [&](int, const QString& caption) { applied.push_back(caption); });
    return applied;
  }
  std::vector<QString> Listed() {
    std::vector<QString> names;
    for (const platform::FileName& name : manager.List()) names.push_back(name.Display());
    return names;
  }

  QTemporaryDir dir;
  ScriptedMessagePort messages;
  FaultyFileSystem fs{platform::RealFileSystem()};
  shell::TemplateManager manager{fs, messages, dir.path() + "/"};
  shell::TemplateManager::Captions captions{"Kids && Pets", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9"};
};

TEST_F(Templates, SaveNamesTheFileAndAsksOnlyForAListedName) {
  EXPECT_TRUE(manager.Save("Kids", {}, captions));
  EXPECT_EQ(Read("Kids.rnt"), Nine("\"Kids && Pets\"\r\n"));
  EXPECT_TRUE(manager.Save("Kids.RNT", {}, captions));
  EXPECT_TRUE(QFile::exists(dir.filePath("Kids.RNT")));
  EXPECT_EQ(messages.Texts(), QStringList(2, "The template has been saved."));
  EXPECT_EQ(Listed(), std::vector<QString>({"Kids.RNT", "Kids.rnt"}));

  messages.Clear();
  captions[0] = "Other";
  EXPECT_TRUE(manager.Save("Kids", manager.List(), captions)) << "typed without extension: no question";
  messages.Script(MessageAnswer::No);
  EXPECT_FALSE(manager.Save("Kids.rnt", manager.List(), {}));
  EXPECT_EQ(Read("Kids.rnt"), Nine("\"Other\"\r\n"));
  ASSERT_EQ(messages.messages.size(), 2u);
  const platform::Message& question = messages.messages[1];
  EXPECT_EQ(question.text, "Overwrite the existing file?");
  EXPECT_EQ(question.title, "File Exists");
  EXPECT_EQ(question.buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(question.icon, platform::MessageIcon::Question);
}

TEST_F(Templates, SaveFailuresEndSilently) {
  EXPECT_FALSE(manager.Save("", {}, captions));
  EXPECT_EQ(messages.Texts(), QStringList({"Please enter a filename."}));
  messages.Clear();
  fs.FailWrite(QFile::encodeName(dir.filePath("Locked.rnt")), platform::kAccessViolation);
  EXPECT_FALSE(manager.Save("Locked", {}, captions));
  EXPECT_FALSE(manager.Save("a/b", {}, captions));
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Templates, OpenReadsQuotedAndUnquotedFields) {
  Write("Smith.rnt", Nine("Smith, John\r\n"));
  Write("Short.rnt", "\"One\"\r\n\"Two\"\r\n");
  EXPECT_EQ(OpenAndCollect("Smith.rnt"),
            std::vector<QString>({"Smith", "John", "B2", "B3", "B4", "B5", "B6", "B7", "B8"}));
  EXPECT_EQ(OpenAndCollect("Short.rnt"), std::vector<QString>({"One", "Two"}));
  EXPECT_TRUE(OpenAndCollect("Missing.rnt").empty());
  EXPECT_EQ(messages.Texts(), QStringList{"The selected template has been applied to the buttons."});
  messages.Clear();
  EXPECT_FALSE(manager.Open(std::nullopt, {}));
  EXPECT_EQ(messages.Texts(), QStringList({"Please choose a file to open."}));
}

TEST_F(Templates, DeleteAsksThenMovesToTheTrash) {
  Write("Kids.rnt", Nine("\"A\"\r\n"));
  Write("notes.txt", "x");
  const auto kids = platform::FileName::FromDisplay("Kids.rnt");
  EXPECT_FALSE(manager.Delete(std::nullopt));
  messages.Script(MessageAnswer::No);
  EXPECT_FALSE(manager.Delete(kids));
  EXPECT_EQ(Listed(), std::vector<QString>({"Kids.rnt"}));
  fs.FailTrash(QFile::encodeName(dir.filePath("Kids.rnt")), platform::kAccessViolation);
  EXPECT_TRUE(manager.Delete(kids));
  fs.ClearFaults();
  EXPECT_TRUE(manager.Delete(kids));
  EXPECT_TRUE(Listed().empty());
  const QString question = "Are you sure you want to move 'Kids.rnt' to the Recycle Bin?";
  EXPECT_EQ(messages.Texts(), QStringList({"Please choose a template to delete.", question, question,
                                           "Could not move template to Recycle Bin!", question,
                                           "The template has been moved to the Recycle Bin."}));
  EXPECT_EQ(messages.messages[1].title, "Confirm Delete");
}

class TemplateDialog : public ComposeFixture {};

TEST_F(TemplateDialog, SavesOpensAndDeletesThroughTheWindow) {
  Open();
  const QString folder = platform::DataFolder();
  shell::ManTempDialog dialog(Ui(), window->Settings(), platform::RealFileSystem(), messages, folder, window.get());
  dialog.show();
  auto* list = dialog.findChild<QListWidget*>("File1");
  auto* save = dialog.findChild<QLineEdit*>("Text1");
  EXPECT_EQ(save->text(), "New Template");
  for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
    if (widget->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
  }

  Ui().Command1[0]->setText("A&&B");
  save->setText("Holiday");
  dialog.findChild<QPushButton*>("cmdSave")->click();
  ASSERT_EQ(list->count(), 1);
  Ui().Command1[0]->setText("changed");
  list->setCurrentRow(0);
  for (const char* box : {"Text1", "Text2", "Text3"}) EXPECT_EQ(dialog.findChild<QLineEdit*>(box)->text(), "Holiday.rnt");
  dialog.findChild<QPushButton*>("cmdOpen")->click();
  EXPECT_EQ(Ui().Command1[0]->text(), "A&&B");
  EXPECT_EQ(window->Settings().customCaptions[0], "A&&B");

  dialog.findChild<QPushButton*>("cmdDelete")->click();
  EXPECT_EQ(list->count(), 0);
  EXPECT_EQ(save->text(), "");
  const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash/files/";
  EXPECT_TRUE(QFile::exists(trash + "Holiday.rnt"));
  EXPECT_EQ(messages.Texts().last(), "The template has been moved to the Recycle Bin.");
}

}  // namespace
}  // namespace renvale::test
