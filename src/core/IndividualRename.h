#pragma once

#include <QString>

#include "core/OverwritingRename.h"
#include "core/RenameContext.h"

namespace renvale::core {

// "Rename / Done" for the one selected file, and the "Revert" and "Clear"
// buttons beside it.
class IndividualRename {
 public:
  explicit IndividualRename(const RenameContext& context);

  // Checks the composed name, expands its tokens, asks before replacing a
  // file, renames (with the file's set) and re-selects the renamed file.
  // Every outcome is a message or a change of the list.
  void RenameSelectedFile();

  // Puts the selected file's own name back into the new-name box.
  void RevertNewName();
  // Empties the new-name box (the window gives it the focus).
  void ClearNewName();

 private:
  bool NameCanBeUsed(const QString& text) const;
  QString ComposeName(const QString& text);
  QString TokenValue(Token token);
  bool CarryOut(const QString& newName);
  void ReportFailure(const OverwriteOutcome& outcome, const QString& newName);
  void ShowRenamedFile(const QString& newName);

  const RenameContext& context_;
  // The file being renamed, held from the start: window events that run
  // during the rename may change the selection, never the file renamed.
  QByteArray folder_;
  platform::FileName file_;
  QString extension_;
};

}  // namespace renvale::core
