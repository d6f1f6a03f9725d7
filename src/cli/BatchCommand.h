#pragma once

#include <QSet>
#include <QTextStream>
#include <functional>
#include <optional>
#include <vector>

#include "cli/BatchArguments.h"
#include "cli/BatchOutput.h"
#include "cli/HeadlessMessagePort.h"
#include "cli/PlainReport.h"
#include "core/BatchPreview.h"
#include "core/FolderIndex.h"
#include "core/RenameSession.h"
#include "core/SettingsRecord.h"
#include "fileops/Journal.h"
#include "fileops/MetadataTokenSource.h"
#include "cli/HeadlessRenameView.h"
#include "platform/FileSystem.h"

namespace renvale::cli {

// Exit statuses, which scripts test.
inline constexpr int kEveryFileNamed = 0;
inline constexpr int kSomeSkipped = 1;
inline constexpr int kFailed = 2;

struct BatchServices {
  platform::FileSystem& fs;
  const core::SettingsRecord& settings;
  fileops::Journal* journal;     // null: nothing is recorded, no history
  QByteArray currentDirectory;   // ends in '/'; relative FILE arguments start here
  // Makes room for the run's memory, if given. Called once the files'
  // reading ahead has begun, so that the two go on side by side.
  std::function<void()> makeRoom;
};

// renvale-batch: runs the window's batch rename or search and replace over
// the files of the command line, never asking, and reports on two streams.
class BatchCommand {
 public:
  BatchCommand(const BatchServices& services, QTextStream& out, QTextStream& err);
  // The exit status.
  int Run(const BatchArguments& args);

 private:
  // The files of one folder, in the order given: one batch each, as if they
  // were selected together in the window.
  struct Group {
    QByteArray folder;
    std::vector<platform::FileName> files;
    std::vector<QByteArray> given;
    // Each file as found just before the run, to know it again after it;
    // only where its name alone cannot tell (see Remember). A dry run has none.
    std::vector<std::optional<platform::FileInfo>> before;
    bool listed = false;  // many files: the folder is read whole instead of each file looked at
  };
  // A group's batch from names to outcome.
  struct GroupRun {
    GroupRun(Group& group, const QString& base, const QString& series, bool random)
        : group(group), view(base, group.files, series, random) {}
    Group& group;
    core::RenameSession session;
    HeadlessRenameView view;
    core::BatchPreview preview;
  };

  // Where a file argument lies: its folder (ending in '/') and its name there.
  struct Place {
    QByteArray folder;
    QByteArray name;
  };

  void MakeRoom();
  void GroupFiles(const std::vector<QByteArray>& files);
  bool AllThere(bool keepListing);
  Place PlaceOf(const QByteArray& given) const;
  bool Found(const QByteArray& given, const Place& place);
  core::RenameContext Context(core::RenameSession& session, core::RenameView& view);
  void Select(core::RenameSession& session, const Group& group);

  int RunName(const BatchArguments& args);
  bool NamesAsItGoes(const BatchArguments& args) const;
  void ReadAhead(const BatchArguments& args);
  int RenameAsNamed(const BatchArguments& args);
  bool BasesUsable(const QString& base);
  void RenameGroup(GroupRun& run, const core::RandomSeriesPool::RandomSource& random, PlainReport* report,
                   qint64* seriesTaken, QString* seriesAfter);
  QString SeriesBox(qint64 number);
  bool PreviewAll(const BatchArguments& args, std::vector<std::unique_ptr<GroupRun>>* runs);
  std::vector<OutputRow> TakeRows(GroupRun& run) const;
  int RunReplace(const BatchArguments& args);
  std::vector<OutputRow> ReplaceRows(const Group& group, const std::vector<QByteArray>& newNames);
  int RunHistory(const BatchArguments& args);
  int RunUndo(const BatchArguments& args);

  void Remember(Group& group, const std::vector<OutputRow>& rows);
  void Settle(const Group& group, std::vector<OutputRow>* rows);
  int Report(const std::vector<OutputRow>& rows, bool dryRun, bool json);
  bool ClashFound(const std::vector<OutputRow>& rows);
  void FlushMessages();
  int Fail(const QString& line);

  BatchServices services_;
  QTextStream& out_;
  QTextStream& err_;
  HeadlessMessagePort port_;
  fileops::MetadataTokenSource tokens_;
  std::vector<Group> groups_;
  // The one folder's listing from AllThere, for its batch to take.
  std::optional<core::FolderIndex> listing_;
  // Kept as long as the command: a process may end without freeing them.
  std::vector<std::unique_ptr<GroupRun>> runs_;
  QStringList shownLines_;
};

}  // namespace renvale::cli
