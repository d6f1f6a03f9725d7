#include "core/BatchPreview.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <thread>
#include <unordered_map>

#include "core/AsciiFoldedName.h"
#include "core/BatchBaseCheck.h"
#include "core/BatchRename.h"
#include "core/CoreTexts.h"

namespace renvale::core {

namespace {

constexpr qsizetype kLongestName = 255;  // bytes, on every file system a card or disk uses
constexpr std::string_view kForbiddenChars = "\\/:*?\"<>|";  // in the order the note names them
const QString kForbidden = QString::fromLatin1(kForbiddenChars.data(), static_cast<qsizetype>(kForbiddenChars.size()));

// Asked of every character of every new name: a table made at compile
// time, with no guard of a static to pass on each call.
constexpr auto kForbiddenAscii = [] {
  std::array<bool, 0x80> set{};
  for (const char f : kForbiddenChars) set[static_cast<unsigned char>(f)] = true;
  return set;
}();

bool IsForbidden(QChar c) { return c.unicode() < 0x80 && kForbiddenAscii[c.unicode()]; }

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
  facts.leaving.reserve(static_cast<qsizetype>(naming.files.size()));
  facts.byTarget.reserve(naming.files.size());
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
  // Every spelling of the name in the folder, the very one included: one
  // look-up for both notes.
  const QByteArrayList spellings = renamer.Index().Spellings(target);
  const auto leaver = facts.leaving.constFind(target);
  if (leaver != facts.leaving.cend() && *leaver != row) {
    *notes << texts::kNoteWaitsFor.arg(Shown(target));
  } else if (target != named.file.raw && spellings.contains(target)) {
    *notes << texts::kNoteExistingFile;
  }
  for (const QByteArray& spelling : spellings) {
    if (spelling == target || spelling == named.file.raw || facts.leaving.contains(spelling)) continue;
    *notes << texts::kNoteLetterCase.arg(Shown(spelling));
    break;
  }
}

PreviewRow Row(const BatchNaming& naming, const Facts& facts, const FileRenamer& renamer, size_t row) {
  const NamedFile& named = naming.files[row];
  PreviewRow shown{named.travels ? named.file.Display() : named.shown, named.newName, named.dateSource, {}};
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

// From this many files on, the rows are worked out on two threads: by the
// time they are, every file has been read, and the processor that read
// them ahead has nothing else to do. Each row only reads what the rows
// share.
constexpr size_t kRowsOnTwoThreadsFrom = 2048;

std::vector<PreviewRow> Rows(const BatchNaming& naming, const Facts& facts, const FileRenamer& renamer) {
  const size_t count = naming.files.size();
  std::vector<PreviewRow> rows(count);
  const auto fill = [&](size_t from, size_t to) {
    for (size_t i = from; i < to; ++i) rows[i] = Row(naming, facts, renamer, i);
  };
  if (count < kRowsOnTwoThreadsFrom) {
    fill(0, count);
    return rows;
  }
  std::jthread second(fill, count / 2, count);
  fill(0, count / 2);
  second.join();
  return rows;
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
  preview.rows = Rows(preview.naming, facts, renamer);
  return preview;
}

}  // namespace renvale::core
