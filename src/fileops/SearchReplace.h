#pragma once

#include <QByteArray>
#include <QString>

#include "core/FileRenamer.h"
#include "core/RenameContext.h"
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

  void RunOver(const SearchTerms& terms);
  core::OperationPlan Plan(const std::vector<platform::FileName>& files, const SearchTerms& terms,
                           core::FileRenamer& renamer) const;
  Step ProcessFile(const platform::FileName& file, const SearchTerms& terms, core::FileRenamer& renamer);
  Step Rename(const platform::FileName& file, const QByteArray& newName, core::FileRenamer& renamer,
              bool mayAsk);
  Step AskAboutClash(const platform::FileName& file, const QByteArray& newName, core::FileRenamer& renamer);
  Step ReplaceTarget(const platform::FileName& file, const QByteArray& newName, core::FileRenamer& renamer);
  Step NotOverwritten(const platform::FileName& file, const QByteArray& newName, int error);
  Step Failed(int error, bool failureShown);
  Step Cancel();
  void AddLine(const QString& line);
  void Finish();

  const core::RenameContext& context_;
  SearchReplaceView& view_;
  QString results_;
  bool anyRenamed_ = false;
  bool folderChanged_ = false;
};

}  // namespace renvale::fileops
