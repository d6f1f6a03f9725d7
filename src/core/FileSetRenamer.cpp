#include "core/FileSetRenamer.h"

#include <QStringList>

#include "core/CoreTexts.h"
#include "platform/ErrorNumbers.h"

namespace renvale::core {

namespace {

QString Shown(const QByteArray& name) { return platform::FileName::NameToText(name); }

QString SetLine(const NamePair& head) {
  return texts::kFileSetNotRenamed.arg(Shown(head.from), Shown(head.to));
}

// A change of letter case alone is carried out by the no-replace rename
// itself; on a case-folding file system the "target" is the file itself.
bool OnlyLetterCaseDiffers(const NamePair& pair) {
  return pair.from.compare(pair.to, Qt::CaseInsensitive) == 0;
}

}  // namespace

FileSetRenamer::FileSetRenamer(platform::FileSystem& fs, platform::MessagePort& messages)
    : fs_(fs), messages_(messages) {}

int FileSetRenamer::CheckCompanionTargets(const QByteArray& folder, const NamePair& head,
                                          const std::vector<NamePair>& companions) {
  for (const NamePair& companion : companions) {
    if (OnlyLetterCaseDiffers(companion) || !fs_.Exists(folder + companion.to)) continue;
    Report(QStringList{SetLine(head),
                       texts::kFileSetTargetTaken.arg(Shown(companion.from), Shown(companion.to)),
                       texts::kFileSetKeptOldNames, texts::kRenameCancelled}
               .join(texts::kCr));
    return platform::kFileAlreadyExists;
  }
  return platform::kNoError;
}

int FileSetRenamer::RenameSet(const QByteArray& folder, const NamePair& head,
                              const std::vector<NamePair>& companions) {
  failureShown_ = false;
  if (const int error = CheckCompanionTargets(folder, head, companions)) return error;
  if (const int error = fs_.RenameNoReplace(folder + head.from, folder + head.to)) return error;
  std::vector<NamePair> moved;
  for (const NamePair& companion : companions) {
    if (const int error = fs_.RenameNoReplace(folder + companion.from, folder + companion.to)) {
      return RollBackAndReport(folder, head, moved, companion, error);
    }
    moved.push_back(companion);
  }
  return platform::kNoError;
}

int FileSetRenamer::RollBackAndReport(const QByteArray& folder, const NamePair& head,
                                      const std::vector<NamePair>& moved, const NamePair& failed,
                                      int error) {
  std::vector<NamePair> toRestore(moved.rbegin(), moved.rend());
  toRestore.push_back(head);
  QStringList stranded;
  for (const NamePair& pair : toRestore) {
    if (fs_.RenameNoReplace(folder + pair.to, folder + pair.from) != 0) {
      stranded << texts::kFileSetNotRestoredFile.arg(Shown(pair.to), Shown(pair.from));
    }
  }
  QStringList lines{SetLine(head), texts::kFileSetMemberFailed.arg(Shown(failed.from), Shown(failed.to),
                                                                   platform::ErrorDescription(error))};
  if (stranded.isEmpty()) {
    lines << texts::kFileSetKeptOldNames;
  } else {
    lines << texts::kFileSetNotRestored << stranded;
  }
  lines << texts::kRenameCancelled;
  Report(lines.join(texts::kCr));
  return error;
}

void FileSetRenamer::Report(const QString& text) {
  messages_.Notify(text, platform::MessageIcon::Critical, texts::kFileSetErrorTitle);
  failureShown_ = true;
}

}  // namespace renvale::core
