#include "fileops/SearchReplace.h"

#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "core/OperationRecorder.h"
#include "core/PlanIdentity.h"
#include "fileops/Journal.h"
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
  void ShowProgressNow() override { shownBeforeQuestions.push_back(progress.back()); }
  void ProcessEvents() override {}
  void ResultsReady(const QString& text) override { handed << text; }
  void ShowResults(const QString& text) override { results << text; }

  std::vector<bool> running;
  std::vector<int> progress;  // a maximum as its negative
  std::vector<int> shownBeforeQuestions;
  QStringList handed;
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
  void MakeClash(std::initializer_list<MessageAnswer> answers) {
    Remake({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg", "Pic_1.jpg"});
    Select({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg"});
    port.Clear();
    search.results.clear();
    search.shownBeforeQuestions.clear();
    fs.ClearFaults();
    for (MessageAnswer answer : answers) port.Script(answer);
  }

  FakeSearchView search;
};

// A term is matched and written as its UTF-8 bytes.
TEST_F(SearchReplaceRun, ChainsTermsOverTheSelectionAndReportsEachRename) {
  Make({"IMG_1.jpg", "DSC_3.jpg", "IMG_2.jpg", "IMG_4.jpg"});
  Select({"IMG_1.jpg", "DSC_3.jpg", "IMG_2.jpg"});
  Run({{"", "x"}});
  Run({{" ", "x"}, {"img", "Pic"}});  // blanks are a term; letter case counts
  session.PreviewedPath = Path("IMG_2.jpg");
  Run({{"IMG", "Pic"}, {"", ""}, {"Pic", "Ph\u00f6to"}});
  EXPECT_TRUE(session.PreviewedPath.isEmpty());
  EXPECT_EQ(Folder(), (Files{{"Ph\xc3\xb6to_1.jpg", "IMG_1.jpg"}, {"DSC_3.jpg", "DSC_3.jpg"},
                             {"Ph\xc3\xb6to_2.jpg", "IMG_2.jpg"}, {"IMG_4.jpg", "IMG_4.jpg"}}));
  EXPECT_EQ(port.Texts(), (QStringList{"Please fill in the text boxes for at least one Search Term.", kNoMatch,
                                       kComplete}));
  EXPECT_EQ(search.results, QStringList{"\n\"IMG_1.jpg\" was renamed to \"Ph\u00f6to_1.jpg\""
                                        "\n\"IMG_2.jpg\" was renamed to \"Ph\u00f6to_2.jpg\""});
  EXPECT_EQ(search.progress, (std::vector<int>{-3, 0, 1, 2, 3, -3, 0, 1, 2, 3}));
  EXPECT_EQ(search.running, (std::vector<bool>{true, false, true, false}));
  EXPECT_EQ(view.refreshes, 1);
}

TEST_F(SearchReplaceRun, AClashIsAskedWithNoAsDefaultAndEachAnswerKeepsItsWord) {
  // `left`: IMG_* and Pic_1 afterwards; Pic_0 and Pic_2 when renamed.
  struct Row { std::initializer_list<MessageAnswer> answers; QStringList messages; QString results; Files left; };
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

// A target that cannot be deleted asks whether to go on; a failed rename
// stops the run. Either way the first message is the clash question.
TEST_F(SearchReplaceRun, AFailureIsToldInTheWordsOfItsNumber) {
  const QString goOn = "\rClick OK to continue renaming files or Cancel to cancel the file renaming operation.";
  const QString stop =
      "\rThe file being renamed is 'Read Only' or the source folder is Write Protected.\r\r"
      "If you are accessing a memory card through a memory card reader/slot or\r"
      "a cable connected from the camera to computer, examine memory card\r"
      "to be sure the Write Protect (or Lock) switch is not enabled.\r\rFile renaming operation cancelled.";
  const QString stopLine = "\nFile renaming operation was cancelled because the folder cannot be written to.";
  using platform::MessageIcon;
  struct Row { bool remove; int error; MessageAnswer answer; MessageIcon icon; QString text, results; };
  const Row rows[] = {
      {true, 75, MessageAnswer::Ok, MessageIcon::Warning,
       "Could not overwrite the file.\rThe file or folder is 'Read Only' or Write Protected." + goOn,
       kRenamed0 + "\nThe file 'IMG_1.jpg' was not renamed to 'Pic_1.jpg' because the new proposed filename "
                   "already existed and could not be overwritten." + kRenamed2},
      {true, 1028, MessageAnswer::Cancel, MessageIcon::Warning, "Could not overwrite the file.\rError #1028" + goOn,
       kRenamed0 + "\nThe file renaming operation was cancelled."},
      {false, 70, MessageAnswer::No, MessageIcon::Critical,
       "Error renaming file.  ***Error Code 70 - Access Violation Error***" + stop, kRenamed0 + kNotRenamed1 + stopLine},
      {false, 75, MessageAnswer::No, MessageIcon::Critical,
       "Error renaming file.  ***Error Code 75 - File/Path Access Error***" + stop, kRenamed0 + kNotRenamed1 + stopLine},
      {false, 1028, MessageAnswer::No, MessageIcon::Critical,
       "Error renaming file.  ***Error Code1028 - Unexpected Error***" + stop, kRenamed0 + kNotRenamed1 + stopLine},
  };
  for (const Row& row : rows) {
    MakeClash({row.remove ? MessageAnswer::Yes : row.answer});
    if (row.remove) port.Script(row.answer);
    if (row.remove) fs.FailRemove(Path("Pic_1.jpg"), row.error);
    if (!row.remove) {
      Make({"IMG_3.jpg"});
      Select({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg", "IMG_3.jpg"});
      fs.FailRename(Path("IMG_2.jpg"), row.error);
    }
    Run({{"IMG", "Pic"}});
    ASSERT_EQ(port.messages.size(), 3u);
    EXPECT_EQ(port.messages[1].text, row.text);
    EXPECT_EQ(port.messages[1].icon, row.icon);
    EXPECT_EQ(search.results, QStringList{row.results});
    // The bar shows IMG_0 done at the clash, and at the failure after it.
    EXPECT_EQ(search.shownBeforeQuestions, (std::vector<int>{1, row.remove ? 1 : 2}));
    EXPECT_EQ(Folder()["Pic_1.jpg"], "Pic_1.jpg");
    EXPECT_EQ(Folder().count("IMG_3.jpg"), row.remove ? 0u : 1u);  // nothing moves once the run has stopped
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

// Names the run itself frees are taken after they are left: no question,
// no loss, whether the files form a chain or trade names, or a companion
// that is not selected needs the name. A listed file that another program
// removed meanwhile keeps its turn: the file that takes its name is not
// renamed a second time. The same with the plan kept in a journal first.
TEST_F(SearchReplaceRun, FilesTradingNamesAreNeitherAskedAboutNorLost) {
  QTemporaryDir journalDir;
  fileops::Journal journal(platform::RealFileSystem(), QFile::encodeName(journalDir.path()) + '/', port);
  const struct {
    std::initializer_list<const char*> files, selected;
    std::initializer_list<std::pair<const char*, const char*>> terms;
    Files after;
  } rows[] = {
      {{"1.jpg", "11.jpg"}, {"1.jpg", "11.jpg"}, {{"1", "11"}}, {{"11.jpg", "1.jpg"}, {"1111.jpg", "11.jpg"}}},
      {{"ab.jpg", "ba.jpg", "c.jpg"}, {"ab.jpg", "ba.jpg", "c.jpg"}, {{"ab", "X"}, {"ba", "ab"}, {"X", "ba"}},
       {{"ba.jpg", "ab.jpg"}, {"ab.jpg", "ba.jpg"}, {"c.jpg", "c.jpg"}}},
      {{"a.CRW", "a.THM", "b.THM"}, {"a.CRW", "b.THM"}, {{"b", "c"}, {"a", "b"}},
       {{"b.CRW", "a.CRW"}, {"b.THM", "a.THM"}, {"c.THM", "b.THM"}}},
      {{"a.jpg"}, {"a.jpg", "b.jpg"}, {{"b", "c"}, {"a", "b"}}, {{"b.jpg", "a.jpg"}}},
  };
  for (core::OperationRecorder* recorder : std::initializer_list<core::OperationRecorder*>{nullptr, &journal}) {
    context.recorder = recorder;
    for (const auto& row : rows) {
      Remake(row.files);
      Select(row.selected);
      port.Clear();
      Run(row.terms);
      EXPECT_EQ(Folder(), row.after);
      EXPECT_EQ(port.Texts(), QStringList{kComplete});
    }
  }
  EXPECT_EQ(journal.Entries().size(), std::size(rows));
}

// Takes each piece after checking that its files are still where its steps
// say; refuses piece `refused`. Written meanwhile unless the second is refused.
// Readied first and ended last, whether or not the plan began.
struct PieceCheckingRecorder : core::OperationRecorder {
  void Prepare(const core::OperationPlan&) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));  // still at it when the first piece comes
    prepared = pieces.empty();
  }
  int Begin(const core::OperationPlan& plan) override { return Extend(plan.steps); }
  int Extend(std::vector<core::PlanStep> steps) override {
    EXPECT_TRUE(prepared);
    for (const auto& step : steps) EXPECT_TRUE(core::HoldsFile(platform::RealFileSystem(), step.from, step.identity));
    if (pieces.size() == refused) return platform::kErrnoBase + ENOSPC;
    pieces.push_back(steps.size());
    return 0;
  }
  void End() override { ended = prepared; }
  bool WritesFromAnyThread() const override { return refused != 1; }
  bool prepared = false;
  bool ended = false;
  size_t refused = SIZE_MAX;
  std::vector<size_t> pieces;
};

// In the folder's order a name taken meanwhile keeps its line in place.
TEST_F(SearchReplaceRun, ANameTakenMeanwhileKeepsItsLineInPlace) {
  Make({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg"});
  Select({"IMG_0.jpg", "IMG_1.jpg", "IMG_2.jpg"});
  fs.FailRename(Path("Pic_1.jpg"), platform::kFileAlreadyExists);
  port.Script(MessageAnswer::No);
  Run({{"IMG", "Pic"}});
  EXPECT_EQ(search.results, QStringList{kRenamed0 + kNotRenamed1 + kRenamed2});
}

// Of two files given one name the first in the list takes it, whatever
// order the folder lists them in, and the second is asked about.
TEST_F(SearchReplaceRun, OfTwoFilesGivenOneNameTheFirstInTheListTakesIt) {
  view.selected.clear();
  for (int i = 0; i < 16; ++i) {
    const QByteArray name = QByteArray::number(i / 2) + (i % 2 == 0 ? "X" : "Y");
    platform::RealFileSystem().WriteWholeFile(Path(name), name);
    view.selected.push_back(platform::FileName{name});
    port.Script(MessageAnswer::No);
  }
  Run({{"X", ""}, {"Y", ""}});
  for (int i = 0; i < 8; ++i) EXPECT_EQ(Folder().at(QByteArray::number(i)), QByteArray::number(i) + "X");
}

// 301 files go in pieces of 128 and 173, in the order the folder lists
// them; the first in the list keeps its name. The results, first as if
// every file were renamed, keep the list's order. A refused piece stops the
// run before its first file, saying whether files were renamed before it.
TEST_F(SearchReplaceRun, ALongRunRecordsEachPieceBeforeItsFilesMove) {
  const QString why = " could not be saved for Undo (No space left on device).";
  const struct { size_t refused; std::vector<size_t> pieces; int renamed; QString first; } rows[] = {
      {SIZE_MAX, {128, 172}, 301, kComplete},
      {1, {128}, 128, "The remaining files were not renamed: the plan of the rest of this operation" + why},
      {0, {}, 0, "Nothing was changed: the plan of this operation" + why}};
  for (const auto& row : rows) {
    Remake({"Keep.jpg"});
    view.selected = {platform::FileName{"Keep.jpg"}};
    for (int i = 1000; i < 1300; ++i) {
      view.selected.push_back(platform::FileName{"IMG_" + QByteArray::number(i) + ".jpg"});
      QFile(QString::fromUtf8(Path(view.selected.back().raw))).open(QIODevice::WriteOnly);
    }
    std::vector<QByteArray> listed;
    platform::RealFileSystem().ListFiles(session.CurrentFolder, &listed);
    PieceCheckingRecorder recorder;
    recorder.refused = row.refused;
    context.recorder = &recorder;
    port.Clear();
    search.handed.clear();
    Run({{"IMG", "Pic"}});
    const size_t keptEarly = std::count(listed.begin(), listed.begin() + 128, "Keep.jpg");
    std::vector<size_t> moves = row.pieces;  // in a piece, moves are its turns but Keep's
    for (size_t k = 0; k < moves.size(); ++k) moves[k] = k == 0 ? moves[k] - keptEarly : moves[k] + keptEarly;
    EXPECT_EQ(recorder.pieces, moves);
    EXPECT_TRUE(recorder.ended);
    EXPECT_EQ(port.messages.at(0).text, row.first);
    const Files left = Folder();
    QString all, lines;
    for (const platform::FileName& file : view.selected) {
      const QByteArray renamed = file.raw.startsWith("IMG") ? "Pic" + file.raw.mid(3) : file.raw;
      const auto firstLeft = listed.begin() + row.renamed;
      const bool early = std::find(listed.begin(), firstLeft, file.raw) != firstLeft;
      EXPECT_EQ(left.count(early ? renamed : file.raw), 1U) << file.raw.toStdString();
      if (renamed == file.raw) continue;
      const QString line = "\n\"" + file.Display() + "\" was renamed to \"" + QString::fromUtf8(renamed) + '"';
      all += line;
      if (early) lines += line;
    }
    EXPECT_EQ(search.handed.front(), all);
    if (row.renamed > 0) {
      const QString end = row.renamed < 301 ? "\nThe file renaming operation was cancelled." : "";
      EXPECT_EQ(search.results.back(), lines + end);
    }
  }
}

}  // namespace
}  // namespace renvale::test
