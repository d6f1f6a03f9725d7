#include "core/BatchPreview.h"

#include <QHash>
#include <algorithm>
#include <bitset>
#include <cstdint>
#include <unordered_map>

#include "core/AsciiFoldedName.h"
#include "core/BatchBaseCheck.h"
#include "core/BatchRename.h"
#include "core/CoreTexts.h"

namespace renvale::core {

namespace {

constexpr qsizetype kLongestName = 255;  // bytes, on every file system a card or disk uses
const QString kForbidden = QStringLiteral("\\/:*?\"<>|");

bool IsForbidden(QChar c) {
  static const std::bitset<0x80> forbidden = [] {
    std::bitset<0x80> set;
    for (const QChar f : kForbidden) set.set(f.unicode());
    return set;
  }();
  return c.unicode() < 0x80 && forbidden.test(c.unicode());
}

using FoldedRows = std::unordered_multimap<QByteArray, size_t, AsciiFoldedName, AsciiFoldedName>;

// The facts the notes are drawn from, gathered once for the whole list.
struct Facts {
  std::vector<QByteArray> targets;  // empty for a file that keeps its name
  QHash<QByteArray, size_t> leaving;  // name -> row of the file that leaves it
  FoldedRows byTarget;
  QHash<QByteArray, std::pair<QByteArray, QString>> companions;  // member -> new name, head shown
};

Facts Gather(const BatchNaming& naming, const FileRenamer& renamer) {
  Facts facts;
  facts.targets.resize(naming.files.size());
  for (size_t i = 0; i < naming.files.size(); ++i) {
    const NamedFile& named = naming.files[i];
    if (named.travels || named.sameName) continue;
    const QByteArray& target = named.target;
    facts.targets[i] = target;
    facts.leaving.insert(named.file.raw, i);
    facts.byTarget.emplace(target, i);
    for (const NamePair& pair : renamer.Sets().Companions(named.file.raw, target)) {
      facts.companions.insert(pair.from, {pair.to, named.file.Display()});
    }
  }
  return facts;
}

QString Shown(const QByteArray& name) { return platform::FileName::NameToText(name); }

// The first other row of the same new name, and of one that differs only
// in letter case, so the notes read the same each time.
void NoteOtherRows(const BatchNaming& naming, const Facts& facts, size_t row, QStringList* notes) {
  const QByteArray& target = facts.targets[row];
  const auto [begin, end] = facts.byTarget.equal_range(target);
  size_t same = SIZE_MAX;
  size_t letterCase = SIZE_MAX;
  for (auto it = begin; it != end; ++it) {
    if (it->second == row) continue;
    size_t& first = facts.targets[it->second] == target ? same : letterCase;
    first = std::min(first, it->second);
  }
  if (same != SIZE_MAX) {
    *notes << texts::kNoteSameNewName.arg(same + 1).arg(naming.files[same].file.Display());
  }
  if (letterCase != SIZE_MAX) *notes << texts::kNoteLetterCase.arg(Shown(facts.targets[letterCase]));
}

void NoteFolder(const NamedFile& named, const Facts& facts, const FileRenamer& renamer, size_t row,
                QStringList* notes) {
  const QByteArray& target = facts.targets[row];
  const auto leaver = facts.leaving.constFind(target);
  if (leaver != facts.leaving.cend() && *leaver != row) {
    *notes << texts::kNoteWaitsFor.arg(Shown(target));
  } else if (renamer.Index().Contains(target) && target != named.file.raw) {
    *notes << texts::kNoteExistingFile;
  }
  for (const QByteArray& spelling : renamer.Index().Spellings(target)) {
    if (spelling == target || spelling == named.file.raw || facts.leaving.contains(spelling)) continue;
    *notes << texts::kNoteLetterCase.arg(Shown(spelling));
    break;
  }
}

PreviewRow Row(const BatchNaming& naming, const Facts& facts, const FileRenamer& renamer, size_t row) {
  const NamedFile& named = naming.files[row];
  PreviewRow shown{named.file.Display(), named.newName, named.dateSource, {}};
  if (named.travels) {
    const auto companion = facts.companions.constFind(named.file.raw);
    if (companion != facts.companions.cend()) {
      shown.newName = Shown(companion->first);
      shown.notes << texts::kNoteTravelsWith.arg(companion->second);
    }
    return shown;
  }
  if (facts.targets[row].isEmpty()) {
    shown.notes << texts::kNoteUnchanged;
    return shown;
  }
  // Most names hold none: one look at each character tells, before the
  // first forbidden one in the note's order is looked for.
  if (std::any_of(named.newName.cbegin(), named.newName.cend(), IsForbidden)) {
    for (const QChar c : kForbidden) {
      if (named.newName.contains(c)) {
        shown.notes << texts::kNoteForbiddenCharacter.arg(c);
        break;
      }
    }
  }
  if (facts.targets[row].size() > kLongestName) {
    shown.notes << texts::kNoteTooLong.arg(facts.targets[row].size());
  }
  NoteOtherRows(naming, facts, row, &shown.notes);
  NoteFolder(named, facts, renamer, row, &shown.notes);
  return shown;
}

}  // namespace

BatchPreview PreviewBatch(const RenameContext& context, RandomSeriesPool::RandomSource random) {
  BatchPreview preview;
  const QString base = context.view.NewNameText();
  const BatchBaseVerdict verdict =
      CheckBatchBase(base, context.session.SelectedFileName.Display(), context.settings.exifTime);
  if (verdict.Stops()) {
    preview.stopText = verdict.text;
    return preview;
  }
  if (verdict.IsQuestion()) preview.warnings << verdict.text;
  const std::vector<platform::FileName> files = context.view.SelectedFiles();
  const FileRenamer renamer(context, context.session.CurrentFolder, files);
  preview.naming = NameBatch(context, renamer, files, BatchRename(context).FileBase(base),
                             context.view.RandomSeries(), true, std::move(random));
  const Facts facts = Gather(preview.naming, renamer);
  preview.rows.reserve(files.size());
  for (size_t i = 0; i < files.size(); ++i) preview.rows.push_back(Row(preview.naming, facts, renamer, i));
  return preview;
}

}  // namespace renvale::core
