#include "fileops/SearchReplace.h"

#include "platform/ErrorNumbers.h"
#include "rename/RenameFixture.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

class FakeSearchView : public fileops::SearchReplaceView {
 public:
  void SetRunning(bool on) override { running.push_back(on); }
  void SetProgressMaximum(int maximum) override { progress.push_back(-maximum); }
  void SetProgress(int value) override { progress.push_back(value); }
  void ProcessEvents() override {}
  void ShowResults(const QString& text) override { results << text; }

  std::vector<bool> running;
  std::vector<int> progress;  // a maximum as its negative
  QStringList results;
};

const QString kComplete = "Search & Replace Renaming Complete.  Click OK for the results.";
const QString kNoMatch =
    "Search & Replace Complete.  No files matched the search term(s), therefore no filenames were changed.\n"
    "You might want to check the search terms and try again.";
const QString kClash1 = "The file 'Pic_1.jpg' already exists.\rOverwrite the existing file?  The existing file will be lost!";
const QString kRenamed0 = "\n\"IMG_0.jpg\" was renamed to \"Pic_0.jpg\"";
const QString kRenamed2 = "\n\"IMG_2.jpg\" was renamed to \"Pic_2.jpg\"";
const QString kNotRenamed1 =
    "\nThe file 'IMG_1.jpg' was not renamed to 'Pic_1.jpg' because the new proposed filename already existed.";

class SearchReplaceRun : public RenameFixture {
 protected:
  void Run(std::initializer_list<std::pair<const char*, const char*>> pairs) {
    fileops::SearchTerms terms;
    int k = 0;
    for (const auto& pair : pairs) terms.Set(k++, pair.first, pair.second);
    fileops::SearchReplace(context, search).Execute(terms);
    EXPECT_FALSE(session.Busy);
  }
  // A fresh folder where IMG_0 and IMG_2 rename freely and IMG_1 meets Pic_1.
  void MakeClash(std::initializer_list<MessageAnswer> answers = {}) {
    Remake({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg", "Pic_1.jpg"});
    Select({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg"});
    port.Clear();
    search.results.clear();
    fs.ClearFaults();
    for (MessageAnswer answer : answers) port.Script(answer);
  }

  FakeSearchView search;
};

TEST_F(SearchReplaceRun, ChainsTermsOverTheSelectionAndReportsEachRename) {
  Make({"IMG_1.jpg", "DSC_3.jpg", "IMG_2.jpg", "IMG_4.jpg"});
  Select({"IMG_1.jpg", "DSC_3.jpg", "IMG_2.jpg"});
  Run({{"IMG", "Pic"}, {"", ""}, {"Pic", "Photo"}});
  EXPECT_EQ(Folder(), (Files{{"Photo_1.jpg", "IMG_1.jpg"}, {"DSC_3.jpg", "DSC_3.jpg"},
                             {"Photo_2.jpg", "IMG_2.jpg"}, {"IMG_4.jpg", "IMG_4.jpg"}}));
  EXPECT_EQ(port.Texts(), QStringList{kComplete});
  EXPECT_EQ(search.results, QStringList{"\n\"IMG_1.jpg\" was renamed to \"Photo_1.jpg\""
                                        "\n\"IMG_2.jpg\" was renamed to \"Photo_2.jpg\""});
  EXPECT_EQ(search.progress, (std::vector<int>{-3, 0, 1, 2, 3}));
  EXPECT_EQ(search.running, (std::vector<bool>{true, false}));
  EXPECT_EQ(view.refreshes, 1);
  EXPECT_EQ(view.labels.last(), "( No File Selected )");
}

TEST_F(SearchReplaceRun, EmptyTermsOrNoMatchChangeNothing) {
  Make({"IMG_1.jpg"});
  Select({"IMG_1.jpg"});
  Run({{"", "x"}});
  Run({{" ", "x"}, {"img", "Pic"}});
  EXPECT_EQ(port.Texts(), (QStringList{"Please fill in the text boxes for at least one Search Term.", kNoMatch}));
  EXPECT_EQ(Folder(), (Files{{"IMG_1.jpg", "IMG_1.jpg"}}));
  EXPECT_TRUE(search.results.isEmpty());
  EXPECT_EQ(view.refreshes, 0);
}

TEST_F(SearchReplaceRun, AClashIsAskedWithNoAsDefaultAndEachAnswerKeepsItsWord) {
  struct Row {
    std::initializer_list<MessageAnswer> answers;
    QStringList messages;
    QString results;
    Files left;  // IMG_* and Pic_1 afterwards, Pic_0 and Pic_2 when renamed
  };
  const Row rows[] = {
      {{MessageAnswer::No}, {kClash1, kComplete}, kRenamed0 + kNotRenamed1 + kRenamed2,
       {{"IMG_1.jpg", "IMG_1.jpg"}, {"Pic_1.jpg", "Pic_1.jpg"}}},
      {{MessageAnswer::Yes}, {kClash1, kComplete},
       kRenamed0 + "\n\"IMG_1.jpg\" was renamed to \"Pic_1.jpg\"" + kRenamed2, {{"Pic_1.jpg", "IMG_1.jpg"}}},
      {{MessageAnswer::Cancel, MessageAnswer::No}, {kClash1, "Cancel the file moving operation?", kComplete},
       kRenamed0 + kRenamed2, {{"IMG_1.jpg", "IMG_1.jpg"}, {"Pic_1.jpg", "Pic_1.jpg"}}},
      {{MessageAnswer::Cancel, MessageAnswer::Yes}, {kClash1, "Cancel the file moving operation?", kComplete},
       kRenamed0 + "\nThe file renaming operation was cancelled.",
       {{"IMG_1.jpg", "IMG_1.jpg"}, {"IMG_2.jpg", "IMG_2.jpg"}, {"Pic_1.jpg", "Pic_1.jpg"}}},
  };
  for (const Row& row : rows) {
    MakeClash(row.answers);
    Run({{"IMG", "Pic"}});
    EXPECT_EQ(port.Texts(), row.messages);
    EXPECT_EQ(port.messages[0].defaultButton, MessageAnswer::No);
    EXPECT_EQ(search.results, QStringList{row.results});
    Files expected = row.left;
    expected["Pic_0.jpg"] = "IMG_0.jpg";
    if (!expected.count("IMG_2.jpg")) expected["Pic_2.jpg"] = "IMG_2.jpg";
    EXPECT_EQ(Folder(), expected) << row.results.toStdString();
  }
}

// On ext4 "bAnAnA.jpg" beside "banana.jpg" is a distinct file: the case
// change is asked about like any clash, never made over it.
TEST_F(SearchReplaceRun, ACaseOnlyChangeRenamesWithoutAskingUnlessADistinctFileHasTheName) {
  Make({"banana.jpg", "cat.jpg", "cAt.jpg"});
  Select({"banana.jpg", "cat.jpg"});
  port.Script(MessageAnswer::No);
  Run({{"a", "A"}});
  EXPECT_EQ(port.Texts(), (QStringList{"The file 'cAt.jpg' already exists.\rOverwrite the existing file?  "
                                       "The existing file will be lost!", kComplete}));
  EXPECT_EQ(Folder(), (Files{{"bAnAnA.jpg", "banana.jpg"}, {"cat.jpg", "cat.jpg"}, {"cAt.jpg", "cAt.jpg"}}));
}

TEST_F(SearchReplaceRun, ATargetThatCannotBeDeletedAsksWhetherToGoOn) {
  const QString rest = "\rClick OK to continue renaming files or Cancel to cancel the file renaming operation.";
  struct Row {
    int error;
    MessageAnswer answer;
    QString text;
    QString lastLine;
  };
  const Row rows[] = {
      {platform::kPathFileAccess, MessageAnswer::Ok,
       "Could not overwrite the file.\rThe file or folder is 'Read Only' or Write Protected." + rest,
       "\nThe file 'IMG_1.jpg' was not renamed to 'Pic_1.jpg' because the new proposed filename already "
       "existed and could not be overwritten." + kRenamed2},
      {1028, MessageAnswer::Cancel, "Could not overwrite the file.\rError #1028" + rest,
       "\nThe file renaming operation was cancelled."},
  };
  for (const Row& row : rows) {
    MakeClash({MessageAnswer::Yes, row.answer});
    fs.FailRemove(Path("Pic_1.jpg"), row.error);
    Run({{"IMG", "Pic"}});
    ASSERT_EQ(port.messages.size(), 3u);
    EXPECT_EQ(port.messages[1].text, row.text);
    EXPECT_EQ(port.messages[1].buttons, platform::MessageButtons::OkCancel);
    EXPECT_EQ(search.results, QStringList{kRenamed0 + row.lastLine});
    EXPECT_EQ(Folder()["Pic_1.jpg"], "Pic_1.jpg");
  }
}

TEST_F(SearchReplaceRun, ARenameErrorStopsTheRunWithItsNumbersWords) {
  const QString rest =
      "\rThe file being renamed is 'Read Only' or the source folder is Write Protected.\r\r"
      "If you are accessing a memory card through a memory card reader/slot or\r"
      "a cable connected from the camera to computer, examine memory card\r"
      "to be sure the Write Protect (or Lock) switch is not enabled.\r\rFile renaming operation cancelled.";
  const std::pair<int, QString> rows[] = {
      {70, "Error renaming file.  ***Error Code 70 - Access Violation Error***"},
      {75, "Error renaming file.  ***Error Code 75 - File/Path Access Error***"},
      {1028, "Error renaming file.  ***Error Code1028 - Unexpected Error***"},
  };
  for (const auto& [error, first] : rows) {
    MakeClash({MessageAnswer::No});
    fs.FailRename(Path("IMG_2.jpg"), error);
    Run({{"IMG", "Pic"}});
    EXPECT_EQ(port.Texts(), (QStringList{kClash1, first + rest, kComplete}));
    EXPECT_EQ(port.messages[1].icon, platform::MessageIcon::Critical);
    EXPECT_EQ(search.results, QStringList{kRenamed0 + kNotRenamed1 +
                                          "\nFile renaming operation was cancelled because the folder cannot be written to."});
    EXPECT_TRUE(Folder().count("IMG_2.jpg"));
  }
}

TEST_F(SearchReplaceRun, NamesThatAreNotUtf8KeepTheirBytesAndASetMovesTogether) {
  Make({"IMG_\xff" "1.CRW", "IMG_\xff" "1.THM"});
  Select({"IMG_\xff" "1.CRW", "IMG_\xff" "1.THM"});
  Run({{"IMG", "Pic"}});
  EXPECT_EQ(Folder(), (Files{{"Pic_\xff" "1.CRW", "IMG_\xff" "1.CRW"}, {"Pic_\xff" "1.THM", "IMG_\xff" "1.THM"}}));
  EXPECT_EQ(search.results.join("").count('\n'), 1);
  Remake({});  // QTemporaryDir cannot remove names that are not UTF-8
}

}  // namespace
}  // namespace renvale::test
