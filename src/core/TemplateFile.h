#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

// Template files (".rnt"): the nine custom button captions, one per line,
// each in its escaped form between double quotes, ending in CR LF. Renvale
// writes UTF-8; older templates were written in the Windows ANSI code page,
// so a file that is not valid UTF-8 is read as Windows-1252.

namespace renvale::core {

inline constexpr int kTemplateRecordCount = 9;

// The file name for what the user typed: ".rnt" is appended unless the last
// four characters, lower-cased, already are ".rnt" ("Kids" -> "Kids.rnt",
// "Kids.RNT" stays).
QString TemplateFileName(const QString& typedName);

// The file contents for the nine captions (escaped form, used as they are).
// Double quotes inside a caption are not escaped: captions cannot hold one.
QByteArray WriteTemplate(const std::array<QString, kTemplateRecordCount>& captions);

struct TemplateReadResult {
  // The captions read, in button order; fewer than nine when the file ended
  // early. The caller applies these even then.
  std::vector<QString> captions;
  bool Complete() const { return captions.size() == kTemplateRecordCount; }
};

// Reads up to nine fields with the delimited-field rules: leading blanks and
// tabs are skipped; a field that begins with a double quote runs to the next
// double quote (or the end of the data), and anything after the closing quote
// up to the next delimiter is dropped; an unquoted field runs to the next
// comma or line end; the comma or line end (CR LF, CR or LF) after a field is
// consumed. So an unquoted line "Smith, John" gives two fields. Looks at
// nothing beyond `bytes`; never fails, an incomplete file just yields fewer
// fields.
TemplateReadResult ReadTemplate(const QByteArray& bytes);

// UTF-8 when `bytes` is valid UTF-8 (a leading byte order mark is dropped),
// otherwise Windows-1252.
QString DecodeTemplateText(const QByteArray& bytes);

}  // namespace renvale::core
