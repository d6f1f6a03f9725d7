#pragma once

#include <QByteArray>
#include <QString>

#include "core/FileRenamer.h"
#include "core/PieceRecorder.h"
#include "core/RenameContext.h"
#include "core/RenamePlanner.h"
#include "fileops/SearchReplaceView.h"
#include "fileops/SearchTerms.h"

namespace renvale::fileops {

// Filename search and replace over the files selected in the main window:
// each name goes through the six pairs and, when it changed, is renamed by
// the shared RenameFile (so a picture's set follows it). A file of the new
// name is never replaced without the user's Yes: the rename itself refuses
// to replace, and a refusal is asked about like a clash found beforehand.
class SearchReplace {
 public:
  SearchReplace(const core::RenameContext& context, SearchReplaceView& view);

  // The menu command's test: false, after saying so, when no file is
  // selected.
  static bool SelectionAllowsSearch(const core::RenameContext& context);

  // "Execute Search & Replace". Files renamed before a Cancel or a failure
  // stay renamed.
  void Execute(const SearchTerms& terms);

 private:
  enum class Step { Next, Stop };

  // The files whose names change, with the companions that go along, as
  // the folder holds them before the first rename.
  struct Moves {
    std::vector<core::RenameMove> moves;
    std::vector<size_t> file;  // each move's place in the list, ascending
  };

  // The files and their new names, in the order the run takes them.
  struct Run {
    const std::vector<platform::FileName>& files;
    const std::vector<QByteArray>& newNames;
    const std::vector<core::PlannedTurn>& turns;
    core::FileRenamer& renamer;
  };

  void RunOver(const SearchTerms& terms);
  void RunInPieces(const Run& run, const Moves& moves, platform::ReadableFolder& held, core::PieceRecorder& pieces);
  Step TakeTurns(const Run& run, size_t begin, size_t end);
  bool PlanKept(int error);
  Moves FindMoves(const std::vector<platform::FileName>& files, const std::vector<QByteArray>& newNames,
                  const core::FileRenamer& renamer) const;
  std::vector<core::PlannedTurn> PlannedTurns(size_t fileCount, const Moves& moves,
                                              const core::FileRenamer& renamer) const;
  Step TakeTurn(const core::PlannedTurn& turn, const platform::FileName& file, const QByteArray& newName,
                core::FileRenamer& renamer);
  core::OperationPlan Plan(const std::vector<core::PlannedTurn>& turns, const std::vector<platform::FileName>& files,
                           const std::vector<QByteArray>& newNames, core::FileRenamer& renamer) const;
  void PutBackAside(core::FileRenamer& renamer);
  void PutBack(const core::NamePair& aside, core::FileRenamer& renamer);
  Step ProcessFile(const platform::FileName& file, const QByteArray& from, const QByteArray& newName,
                   core::FileRenamer& renamer);
  Step Rename(const platform::FileName& file, const QByteArray& from, const QByteArray& newName,
              core::FileRenamer& renamer, bool mayAsk);
  Step AskAboutClash(const platform::FileName& file, const QByteArray& from, const QByteArray& newName,
                     core::FileRenamer& renamer);
  Step ReplaceTarget(const platform::FileName& file, const QByteArray& from, const QByteArray& newName,
                     core::FileRenamer& renamer);
  Step NotOverwritten(const platform::FileName& file, const QByteArray& newName, int error);
  Step Failed(int error, bool failureShown);
  Step Cancel();
  // A line that ends the run, and one about the file whose turn it is.
  void AddLine(const QString& line);
  void AddFileLine(const QString& line);
  void MarkLine(size_t file);
  void PutLinesInListOrder();
  void PredictResults(const Moves& moves, const core::FileRenamer& renamer);
  void Finish();

  const core::RenameContext& context_;
  SearchReplaceView& view_;
  // Where each line of results_ begins and ends, and the file it is about,
  // in a run that takes the folder's order.
  struct Line {
    size_t file;
    qsizetype begin, end;
  };

  QString results_;
  bool reordered_ = false;  // the turns are the folder's order
  std::vector<Line> lines_;
  size_t turnFile_ = 0;  // the file whose turn it is
  int progress_ = 0;
  int maximum_ = 1;
  bool anyRenamed_ = false;
  bool folderChanged_ = false;
  std::vector<core::NamePair> aside_;  // files under a hidden name until their turn: old -> hidden
};

}  // namespace renvale::fileops
