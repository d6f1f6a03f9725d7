#include <gtest/gtest.h>

#include <QDir>
#include <algorithm>
#include <unistd.h>

#include "RawFiles.h"
#include "core/SettingsRecord.h"
#include "fileops/FileTransfer.h"
#include "fileops/FolderHistory.h"
#include "fileops/OperationHistory.h"
#include "fileops/SmartName.h"
#include "fileops/WriteProtection.h"
#include "platform/ErrorNumbers.h"
#include "support/FaultyFileSystem.h"
#include "support/ScriptedMessagePort.h"
#include "transfer/FakeTransferView.h"

namespace renvale::test {
namespace {

using fileops::FileTransfer;
using fileops::FolderHistory;
using fileops::SmartName;
using platform::MessageAnswer;

// A source on the disk; the destination on tmpfs when there is one, so that
// a move copies across file systems as from a memory card.
QByteArray DestinationParent() { return ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp"; }

class TransferTest : public ::testing::Test {
 protected:
  TransferTest() : target_(DestinationParent()), destination_(target_.path()), fs_(platform::RealFileSystem()) {}
  void Source(const QByteArray& name, const QByteArray& contents) {
    ASSERT_TRUE(WriteRaw(source_ / name, contents));
    view_.selected.push_back({name});
  }
  void Run(int mode, fileops::OverwritePolicy policy) {
    settings_.transferMode = mode;
    settings_.moveOption = static_cast<int>(policy);
    FileTransfer({source_.path(), settings_, port_, fs_, view_}).Run(destination_);
  }
  // Between the rows of a table: no messages, faults or selection left over.
  void Fresh() {
    port_.Clear();
    fs_.ClearFaults();
    view_.selected.clear();
  }
  QByteArray At(const QByteArray& name) const { return ReadRaw(destination_ + name); }
  std::vector<QByteArray> DestinationNames() {
    std::vector<QByteArray> names;
    EXPECT_EQ(fs_.ListFiles(destination_, &names), 0);
    std::sort(names.begin(), names.end());
    return names;
  }

  ScratchFolder source_;
  ScratchFolder target_;
  QByteArray destination_;
  FaultyFileSystem fs_;
  ScriptedMessagePort port_;
  FakeTransferView view_;
  core::SettingsRecord settings_;
};

TEST_F(TransferTest, MoveAcrossFileSystemsKeepsBytesAndNamesAndLeavesNoSource) {
  Source("caf\xe9.JPG", "one");
  Source("IMG_0002.CRW", "raw");
  Source("IMG_0002.THM", "thumb");
  ASSERT_TRUE(WriteRaw(source_ / "IMG_0002.CRW.xmp", "edits"));  // a sidecar always follows
  Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(port_.Texts(), QStringList{"File(s) moved successfully."});
  EXPECT_EQ(DestinationNames(), (std::vector<QByteArray>{"IMG_0002.CRW", "IMG_0002.CRW.xmp", "IMG_0002.THM", "caf\xe9.JPG"}));
  EXPECT_EQ(At("caf\xe9.JPG"), "one");
  EXPECT_EQ(At("IMG_0002.CRW.xmp"), "edits");
  EXPECT_FALSE(RawExists(source_ / "caf\xe9.JPG"));
  EXPECT_FALSE(RawExists(source_ / "IMG_0002.THM"));
  EXPECT_EQ(view_.progress, 3);
  EXPECT_EQ(view_.refreshes, 1);
  EXPECT_FALSE(view_.transferring);
}

// Each policy and answer against a file already in the destination.
TEST_F(TransferTest, PoliciesAndAnswers) {
  using P = fileops::OverwritePolicy;
  // `kept`: what the destination's a.jpg holds afterwards; `texts`: every message, in order.
  struct Row { P policy; std::vector<MessageAnswer> answers; QByteArray kept; QStringList texts; };
  const QString ask = "The file 'a.jpg' already exists in the destination folder.\rOverwrite the existing file?  "
                      "The existing file will be lost!";
  const QString skipped = "File(s) copied successfully.\r\rSome files were not copied because they already existed "
                          "in destination folder.";
  const Row rows[] = {
      {P::Ask, {MessageAnswer::Yes}, "new", {ask, "File(s) copied successfully."}},
      {P::Ask, {MessageAnswer::No}, "old", {ask, skipped}},
      {P::Ask, {MessageAnswer::Cancel, MessageAnswer::No, MessageAnswer::Cancel, MessageAnswer::Yes}, "old",
       {ask, "Cancel the file copy operation?", ask, "Cancel the file copy operation?",
        "The file copy operation was cancelled.\rSome files may not have been copied."}},
      {P::Never, {}, "old", {skipped}},
      {P::Always, {}, "new",
       {"File(s) copied successfully.\r\rSome files in destination folder were overwritten because they already "
        "existed, and 'Always Overwrite' was enabled."}},
  };
  for (const Row& row : rows) {
    Fresh();
    Source("a.jpg", "new");
    ASSERT_TRUE(WriteRaw(destination_ + "a.jpg", "old"));
    for (MessageAnswer answer : row.answers) port_.Script(answer);
    Run(fileops::kCopyMode, row.policy);
    EXPECT_EQ(At("a.jpg"), row.kept);
    EXPECT_EQ(port_.Texts(), row.texts);
    EXPECT_EQ(DestinationNames(), std::vector<QByteArray>{"a.jpg"});
    if (row.policy == P::Ask) {
      EXPECT_EQ(port_.messages.front().defaultButton, MessageAnswer::No);
    }
  }
}

// "Beach.jpg" gets the name "Beach 01.jpg", free when found but claimed by
// the selection's own "Beach 01.jpg" before either is named: one more clash
// for the later one, never a loss.
TEST_F(TransferTest, SmartNameFindsTheNextFreeNameAndReportsIt) {
  Source("IMG_0012.jpg", "new");
  Source("Beach.jpg", "new beach");
  Source("Beach 01.jpg", "first");
  for (const char* taken : {"IMG_0012.jpg", "IMG_010012.jpg", "Beach.jpg"}) {
    ASSERT_TRUE(WriteRaw(destination_ + taken, "old"));
  }
  Run(fileops::kMoveMode, fileops::OverwritePolicy::SmartName);
  EXPECT_EQ(At("IMG_020012.jpg"), "new");
  EXPECT_EQ(At("Beach.jpg"), "old");
  EXPECT_EQ(At("Beach 01.jpg"), "new beach");
  EXPECT_EQ(At("Beach 0101.jpg"), "first");
  EXPECT_EQ(DestinationNames().size(), 6u);
  EXPECT_EQ(port_.Texts(),
            (QStringList{"SmartName changed the names of some of the files because the destination\rfolder contained "
                         "identical filename(s).  Click OK for results.",
                         "File(s) moved successfully.\r\rSome source file(s) had sub-series #s added because "
                         "destination folder contained identical filename(s) (SmartName)."}));
  EXPECT_EQ(view_.report, "SmartName made the following changes to filenames while moving them to the destination "
                          "folder:\n\nDestination Folder: '" + QString::fromUtf8(destination_) +
                              "'\n\n'IMG_0012.jpg' was changed to 'IMG_020012.jpg'.\n'Beach.jpg' was changed to "
                              "'Beach 01.jpg'.\n'Beach 01.jpg' was changed to 'Beach 0101.jpg'.");
}

TEST_F(TransferTest, CancelLetsTheFileInHandFinish) {
  Source("a.jpg", "a");
  Source("b.jpg", "b");
  view_.cancelAfter = 1;
  Run(fileops::kCopyMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(port_.Texts(), QStringList{"The file copy operation was cancelled.\rSome files may not have been copied."});
  EXPECT_EQ(DestinationNames(), std::vector<QByteArray>{"a.jpg"});
}

// A copy that fails stops the run, its source untouched; what was copied
// before the failure still completes its move.
TEST_F(TransferTest, FailedCopyStopsTheRunAndKeepsItsSource) {
  const std::pair<int, QString> rows[] = {
      {platform::kErrnoBase + 28, "Could not move file(s).\rError #1028"},
      {platform::kPathFileAccess, "Could not move file(s).\rThe destination folder is 'Read Only' or Write Protected."}};
  for (const auto& [error, text] : rows) {
    Fresh();
    Source("a.jpg", "first");
    Source("b.jpg", "second");
    fs_.FailCopy(source_ / "b.jpg", error);
    Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
    EXPECT_EQ(port_.Texts(), QStringList{text});
    EXPECT_EQ(ReadRaw(source_ / "b.jpg"), "second");
    EXPECT_EQ(DestinationNames(), std::vector<QByteArray>{"a.jpg"});
    EXPECT_FALSE(RawExists(source_ / "a.jpg"));
    fs_.RemoveFile(destination_ + "a.jpg");
  }
}

TEST_F(TransferTest, VanishedDestinationIs76AndLeavesTheHistory) {
  Source("a.jpg", "a");
  settings_.folderHistory[0] = QString::fromUtf8(destination_);
  fs_.beforeCopy = [this](const QByteArray&) { QDir(QString::fromUtf8(destination_)).removeRecursively(); };
  Run(fileops::kCopyMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(port_.Texts(), QStringList{"Could not copy file(s).\rThe destination folder no longer exists, and has been "
                                       "removed from folder history.\rPlease choose another folder or recreate the "
                                       "missing one."});
  EXPECT_TRUE(settings_.folderHistory[0].isEmpty());
  EXPECT_EQ(ReadRaw(source_ / "a.jpg"), "a");
}

TEST_F(TransferTest, SourceThatCannotBeDeletedAsks) {
  Source("a.jpg", "a");
  fs_.FailRemove(source_ / "a.jpg", platform::kPathFileAccess);
  port_.Script(MessageAnswer::Ok);
  Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(port_.Texts(), (QStringList{"Could not delete source file after copying to destination.\rThe source file "
                                        "or folder is 'Read Only' or Write Protected.\rClick OK to continue moving "
                                        "files or Cancel to cancel the file move operation.",
                                        "File(s) moved successfully.\r\rSome source files could not be deleted."}));
}

TEST_F(TransferTest, ProtectedSourceOffersCopyAndSameFolderIsRefused) {
  Source("a.jpg", "a");
  fs_.FailWrite(source_ / "RV_TestFile", platform::kPathFileAccess);
  port_.Script(MessageAnswer::No);
  Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
  ASSERT_EQ(port_.Texts().size(), 2);
  EXPECT_EQ(port_.Texts()[1], "The file move operation was cancelled.");
  EXPECT_FALSE(RawExists(destination_ + "a.jpg"));

  port_.Clear();
  port_.Script(MessageAnswer::Yes);
  Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(settings_.transferMode, fileops::kCopyMode);
  EXPECT_EQ(port_.Texts().back(), "File(s) copied successfully.");
  EXPECT_EQ(ReadRaw(source_ / "a.jpg"), "a");

  port_.Clear();
  ASSERT_EQ(::symlink(source_.path().constData(), (target_ / "link").constData()), 0);
  FileTransfer({source_.path(), settings_, port_, fs_, view_}).Run(target_ / "link");
  EXPECT_EQ(port_.Texts(), QStringList{"File(s) could not be copied.  The destination folder is the same as source!\r"
                                       "Please choose a different destination folder."});
}

TEST_F(TransferTest, CompanionThatCannotFollowTakesItsHeadBack) {
  Source("IMG_0002.CRW", "raw");
  Source("IMG_0002.THM", "thumb");
  fs_.FailRename(destination_ + "IMG_0002.THM", platform::kErrnoBase + 5);
  ASSERT_TRUE(WriteRaw(destination_ + ".renvale-transfer-left", "crash"));
  Run(fileops::kMoveMode, fileops::OverwritePolicy::Ask);
  EXPECT_EQ(port_.Texts(), QStringList{"Could not move file(s).\rError #1005"});
  EXPECT_TRUE(DestinationNames().empty());
  EXPECT_EQ(ReadRaw(source_ / "IMG_0002.CRW"), "raw");
  EXPECT_EQ(ReadRaw(source_ / "IMG_0002.THM"), "thumb");
}

// A move within one file system, one across, and a copy, each undone after
// the person changed one of the files at the destination: that one stays
// and is listed, the rest go back (the copies to the trash, after a question
// whose default is No).
TEST_F(TransferTest, UndoPutsBackAllButAChangedFile) {
  ScratchFolder state;
  const std::pair<int, bool> rows[] = {{fileops::kMoveMode, true}, {fileops::kMoveMode, false}, {fileops::kCopyMode, true}};
  for (const auto& [mode, oneFileSystem] : rows) {
    Fresh();
    Source("a.jpg", "a");
    Source("b.jpg", "b");
    destination_ = oneFileSystem ? source_ / "to/" : target_.path();
    ASSERT_TRUE(QDir().mkpath(QString::fromUtf8(destination_)));
    fileops::Journal journal(fs_, state.path(), port_);
    settings_.transferMode = mode;
    FileTransfer({source_.path(), settings_, port_, fs_, view_, &journal}).Run(destination_);
    ASSERT_TRUE(WriteRaw(destination_ + "b.jpg", "b, edited"));
    port_.Clear();
    port_.Script(MessageAnswer::Yes);
    ASSERT_TRUE(fileops::OperationHistory(journal, fs_, port_).UndoNewest());
    const bool copy = mode == fileops::kCopyMode;
    EXPECT_EQ(port_.Texts().back(), QString("Undo of ") + (copy ? "Copy" : "Move") + " of 2 files: 1 file(s) were put "
              "back.\r\rThese files were left as they are:\r'" + QString::fromUtf8(destination_) + "b.jpg' was passed "
              "over: it has been renamed, moved, replaced or deleted since.");
    EXPECT_EQ(port_.messages.front().defaultButton == MessageAnswer::No, copy);
    EXPECT_EQ(DestinationNames(), std::vector<QByteArray>{"b.jpg"});
    EXPECT_EQ(ReadRaw(source_ / "a.jpg"), "a");
    EXPECT_EQ(RawExists(source_ / "b.jpg"), copy);
    for (const QByteArray& path : {source_ / "a.jpg", source_ / "b.jpg", destination_ + "b.jpg"}) fs_.RemoveFile(path);
  }
}

TEST(WriteProbe, WritesAndDeletesTheVeryNameAndRefusesPlantedNames) {
  ScratchFolder folder;
  auto& fs = platform::RealFileSystem();
  EXPECT_FALSE(fileops::IsWriteProtected(fs, folder.path()));
  EXPECT_FALSE(RawExists(folder / "RV_TestFile"));

  ASSERT_TRUE(WriteRaw(folder / "elsewhere", "precious"));
  ASSERT_EQ(::symlink((folder / "elsewhere").constData(), (folder / "RV_TestFile").constData()), 0);
  EXPECT_TRUE(fileops::IsWriteProtected(fs, folder.path()));
  ASSERT_EQ(::unlink((folder / "RV_TestFile").constData()), 0);
  ASSERT_EQ(::link((folder / "elsewhere").constData(), (folder / "RV_TestFile").constData()), 0);
  EXPECT_TRUE(fileops::IsWriteProtected(fs, folder.path()));
  EXPECT_EQ(ReadRaw(folder / "elsewhere"), "precious");

  FaultyFileSystem readOnly(fs);
  readOnly.FailWrite(folder / "RV_TestFile", platform::kPathFileAccess);
  EXPECT_TRUE(fileops::IsWriteProtected(readOnly, folder.path()));
  EXPECT_TRUE(fileops::IsWriteProtected(fs, folder / "missing/"));
}

TEST(SmartName, Candidates) {
  struct Row { QByteArray name; int k; QByteArray expected; };
  const Row rows[] = {
      {"Beach.jpg", 1, "Beach 01.jpg"},         {"Beach.jpg", 2, "Beach 02.jpg"},
      {"Beach.jpg", 100, "Beach 100.jpg"},      {"IMG_0012.jpg", 1, "IMG_010012.jpg"},
      {"IMG_0012.jpg", 2, "IMG_020012.jpg"},    {"1234.jpg", 1, "101234.jpg"},
      {"a.b.jpg", 1, "a.b 01.jpg"},             {"a.5.jpg", 3, "a.035.jpg"},
      {"IMG", 1, "IMG 01"},                     {"0012", 1, "001012"},
      {"5.jpg", 1, "501.jpg"},                  {"5.jpg", 12, "512.jpg"},
      {".jpg", 1, ". 01.jpg"},                  {"caf\xe9\xff.JPG", 1, "caf\xe9\xff 01.JPG"},
      {"x\xb2.jpg", 1, "x\xb2 01.jpg"},  // a superscript two in Latin-1 is no digit
  };
  for (const Row& row : rows) EXPECT_EQ(SmartName::Candidate(row.name, row.k), row.expected) << row.name.constData();
}

TEST(FolderHistory, NewestFirstWithoutDuplicatesAtMostFifteen) {
  FolderHistory history = FolderHistory::FromStored({"/a/", "", "/b/", "/a/"});
  EXPECT_EQ(history.Entries(), (QStringList{"/a/", "/b/"}));
  history.Add("/b/");
  EXPECT_EQ(history.Entries(), (QStringList{"/b/", "/a/"}));
  for (int n = 0; n < 20; ++n) history.Add(QStringLiteral("/f%1/").arg(n));
  EXPECT_EQ(history.Entries().size(), 15);
  EXPECT_EQ(history.Entries().front(), "/f19/");
  EXPECT_EQ(history.Entries().back(), "/f5/");
  history.Remove("/f19/");
  EXPECT_EQ(history.ToStored()[0], "/f18/");
  EXPECT_TRUE(history.ToStored()[14].isEmpty());
  history.Clear();
  EXPECT_EQ(history.ToStored(), FolderHistory::Stored{});
}

}  // namespace
}  // namespace renvale::test
