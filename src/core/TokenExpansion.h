#pragma once

#include <QString>
#include <functional>

// Replacing the tokens of a composed name by a file's values. Three callers
// with three slightly different rules, each kept as users know it:
//  - ExpandIndividualTokens: "Rename / Done" on one file.
//  - ExpandBatchTokens: every file of "Start Batch Renaming".
//  - ExpandButtonTokens: a custom or temp button pressed in individual mode.
// Values come from the caller, which computes them for the file at hand;
// each value is asked for at most once per call and only when its token is
// there, because some are costly (EXIF reads) or consume something (the
// series number). Tokens are replaced in a fixed order, and a value that
// itself holds a token spelling is subject to the steps after it.

namespace renvale::core {

enum class Token { OrigFn, Date, Time, DateTime, Series, Serial, Title, Artist, Album, Track };

// "%ORIGFN%", "%DATE%", ... and their lower-case spellings ("%serial%" is
// given for completeness; the batch never replaces it).
const QString& TokenUpper(Token token);
const QString& TokenLower(Token token);

using TokenValueFunction = std::function<QString(Token)>;

// Order: "%ORIGFN%", "%DATE%", "%TIME%", "%DATE TIME%", "%SERIES%". A token
// counts as found when its upper-case spelling occurs in the upper-cased
// name; then its value is asked for and the exact upper-case and lower-case
// spellings are replaced, every occurrence. A mixed-case spelling such as
// "%Series%" is found (its value is asked for, so a series number is
// consumed) but stays in the name.
QString ExpandIndividualTokens(const QString& name, const TokenValueFunction& valueOf);

// Order: "%TITLE%", "%ARTIST%", "%ALBUM%", "%TRACK%", "%ORIGFN%", "%DATE%",
// "%TIME%", "%DATE TIME%", "%SERIAL%", "%SERIES%", found and replaced as
// above, except that "%SERIAL%" is only ever replaced in its upper-case
// spelling: a typed "%serial%" is found but stays.
QString ExpandBatchTokens(const QString& name, const TokenValueFunction& valueOf);

// True when batch expansion would find "%DATE%", "%TIME%", "%DATE TIME%" or
// "%SERIAL%" in `name`, that is, ask for a value read from the file.
bool MentionsExifToken(const QString& name);

// Order: "%DATE%", "%TIME%", "%DATE TIME%", "%SERIES%", "%ORIGFN%"; a value
// is asked for only when the exact upper-case or lower-case spelling occurs,
// and both spellings are replaced. Mixed case stays and costs nothing.
QString ExpandButtonTokens(const QString& text, const TokenValueFunction& valueOf);

}  // namespace renvale::core
