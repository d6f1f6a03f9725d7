#pragma once

#include <QString>
#include <optional>

// The rules every part of the renamer uses for the pieces of a file name:
// where the extension starts, how "force lower-case extension" applies, how
// a composed name gets its extension back, and which characters a name may
// not hold. All functions are pure; the caller shows any message.

namespace renvale::core {

// A file name split at its last dot. The extension keeps its dot.
struct SplitName {
  QString base;
  QString extension;
};

// The part of `name` from its last dot on, dot included; empty without one.
QStringView ExtensionOf(QStringView name);

// Splits `name` at its last dot: "a.b.jpg" -> "a.b" + ".jpg",
// "README" -> "README" + "", "name." -> "name" + ".", ".xmp" -> "" + ".xmp".
// With `forceLowerCaseExtension` the extension comes back lower-cased.
SplitName SplitFileName(const QString& name, bool forceLowerCaseExtension);

// `name` with the part from its last dot lower-cased when
// `forceLowerCaseExtension` is set; unchanged otherwise or without a dot.
QString ApplyForcedExtensionCase(const QString& name, bool forceLowerCaseExtension);

// `fileName` with as many characters cut from its end as `extension` holds:
// the value of "%ORIGFN%" and of "Orig. Filename".
QString CutExtension(const QString& fileName, const QString& extension);

// True when `text` ends with `extension` compared without regard to case over
// the extension's own length. An empty extension always matches.
bool EndsWithExtension(const QString& text, const QString& extension);

// The rename-time guard: when `text` does not end with `extension`, returns
// text + extension passed through ApplyForcedExtensionCase; otherwise `text`
// unchanged (the forced case is then not applied).
QString AppendMissingExtension(const QString& text, const QString& extension,
                               bool forceLowerCaseExtension);

// The guard after an insert into the new-name box (series numbers): when the
// box text no longer ends with `extension`, the extension is appended and the
// caret belongs just before it.
struct GuardedText {
  QString text;
  std::optional<qsizetype> caret;  // set only when the extension was appended
};
GuardedText GuardExtensionAfterInsert(const QString& text, const QString& extension);

// True when `name` holds any of  \ / : * ? " < > |  (the caller then shows
// texts::kInvalidFilenameChars).
bool HasInvalidFilenameChars(const QString& name);

}  // namespace renvale::core
