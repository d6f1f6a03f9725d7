#include "metadata/DateTimePicture.h"

#include <QLocale>
#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace renvale::metadata {
namespace {

enum class Code {
  Literal, Day, Day2, WeekdayShort, WeekdayLong, ShortDate, LongDate, Weekday, WeekOfYear,
  Month, Month2, MonthShort, MonthLong, Quarter, DayOfYear, Year2, Year4,
  Hour, Hour2, Minute, Minute2, Second, Second2, LongTime, General, AmPm, AP, AmPmLocale
};

struct Piece {
  Code code = Code::Literal;
  QString text;  // literal text, or the marker spelling for AM/PM codes
};

const QDate kZeroDate(1899, 12, 30);

QChar Lower(QChar c) { return c.toLower(); }

int RunLength(const QString& s, qsizetype at, QChar letter) {
  int n = 0;
  while (at + n < s.size() && Lower(s[at + n]) == letter) ++n;
  return n;
}

bool StartsWithNoCase(const QString& s, qsizetype at, QLatin1StringView word) {
  return QStringView(s).mid(at).startsWith(word, Qt::CaseInsensitive);
}

// Takes the longest code of a run of one letter; returns the letters used.
int TakeRun(QChar letter, int run, Code* code) {
  switch (letter.unicode()) {
    case 'd': {
      static const Code kCodes[] = {Code::Day, Code::Day2, Code::WeekdayShort,
                                    Code::WeekdayLong, Code::ShortDate, Code::LongDate};
      const int used = std::min(run, 6);
      *code = kCodes[used - 1];
      return used;
    }
    case 'm': {
      static const Code kCodes[] = {Code::Month, Code::Month2, Code::MonthShort, Code::MonthLong};
      const int used = std::min(run, 4);
      *code = kCodes[used - 1];
      return used;
    }
    case 'y':
      if (run >= 4) { *code = Code::Year4; return 4; }
      if (run >= 2) { *code = Code::Year2; return 2; }
      *code = Code::DayOfYear;
      return 1;
    case 'w': *code = run >= 2 ? Code::WeekOfYear : Code::Weekday; return std::min(run, 2);
    case 'h': *code = run >= 2 ? Code::Hour2 : Code::Hour; return std::min(run, 2);
    case 'n': *code = run >= 2 ? Code::Minute2 : Code::Minute; return std::min(run, 2);
    case 's': *code = run >= 2 ? Code::Second2 : Code::Second; return std::min(run, 2);
    case 'q': *code = Code::Quarter; return 1;
    case 'c': *code = Code::General; return 1;
    default: return 0;
  }
}

void AddLiteral(std::vector<Piece>* pieces, QStringView text) {
  if (!pieces->empty() && pieces->back().code == Code::Literal) {
    pieces->back().text += text;
  } else {
    pieces->push_back({Code::Literal, text.toString()});
  }
}

// Quoted text and backslash escapes; returns the characters consumed, 0 if none.
qsizetype TakeEscape(const QString& s, qsizetype i, std::vector<Piece>* pieces) {
  if (s[i] == u'\\') {
    if (i + 1 < s.size()) AddLiteral(pieces, QStringView(s).mid(i + 1, 1));
    return i + 1 < s.size() ? 2 : 1;
  }
  if (s[i] != u'"') return 0;
  const qsizetype close = s.indexOf(u'"', i + 1);
  const qsizetype end = close < 0 ? s.size() : close;
  AddLiteral(pieces, QStringView(s).mid(i + 1, end - i - 1));
  return end - i + (close < 0 ? 0 : 1);
}

qsizetype TakeMarker(const QString& s, qsizetype i, std::vector<Piece>* pieces) {
  if (StartsWithNoCase(s, i, QLatin1StringView("AM/PM"))) {
    pieces->push_back({Code::AmPm, s.mid(i, 5)});
    return 5;
  }
  if (StartsWithNoCase(s, i, QLatin1StringView("A/P"))) {
    pieces->push_back({Code::AP, s.mid(i, 3)});
    return 3;
  }
  if (StartsWithNoCase(s, i, QLatin1StringView("AMPM"))) {
    pieces->push_back({Code::AmPmLocale, {}});
    return 4;
  }
  if (StartsWithNoCase(s, i, QLatin1StringView("ttttt"))) {
    pieces->push_back({Code::LongTime, {}});
    return 5;
  }
  return 0;
}

std::vector<Piece> Parse(const QString& s) {
  std::vector<Piece> pieces;
  pieces.reserve(s.size());
  qsizetype i = 0;
  while (i < s.size()) {
    qsizetype used = TakeEscape(s, i, &pieces);
    if (used == 0) used = TakeMarker(s, i, &pieces);
    if (used == 0) {
      const QChar letter = Lower(s[i]);
      Code code = Code::Literal;
      used = TakeRun(letter, RunLength(s, i, letter), &code);
      if (used > 0) pieces.push_back({code, {}});
    }
    if (used == 0) {
      AddLiteral(&pieces, QStringView(s).mid(i, 1));
      used = 1;
    }
    i += used;
  }
  return pieces;
}

bool IsHour(Code c) { return c == Code::Hour || c == Code::Hour2; }
bool IsSecond(Code c) { return c == Code::Second || c == Code::Second2; }

const Piece* Neighbour(const std::vector<Piece>& pieces, size_t at, int step) {
  for (long j = static_cast<long>(at) + step; j >= 0 && j < static_cast<long>(pieces.size());
       j += step) {
    if (pieces[j].code != Code::Literal) return &pieces[j];
  }
  return nullptr;
}

// "m" and "mm" mean the minute next to an hour or a second.
void ResolveMinutes(std::vector<Piece>* pieces) {
  for (size_t i = 0; i < pieces->size(); ++i) {
    Piece& p = (*pieces)[i];
    if (p.code != Code::Month && p.code != Code::Month2) continue;
    const Piece* before = Neighbour(*pieces, i, -1);
    const Piece* after = Neighbour(*pieces, i, +1);
    if ((before && IsHour(before->code)) || (after && IsSecond(after->code))) {
      p.code = p.code == Code::Month ? Code::Minute : Code::Minute2;
    }
  }
}

bool HasMarker(const std::vector<Piece>& pieces) {
  for (const Piece& p : pieces) {
    if (p.code == Code::AmPm || p.code == Code::AP || p.code == Code::AmPmLocale) return true;
  }
  return false;
}

// A picture's text, put together on the stack and made a string once: a
// batch formats two short texts for every file. A text too long for the
// stack (a picture of many names) goes on in a string.
class Text {
 public:
  void Append(QChar c) { Append(QStringView(&c, 1)); }
  void Append(QStringView text) {
    if (!long_ && size_ + text.size() <= kOnStack) {
      std::copy_n(text.utf16(), text.size(), chars_ + size_);
      size_ += text.size();
      return;
    }
    if (!long_) longText_ = Stacked();
    long_ = true;
    longText_ += text;
  }
  QString ToString() const { return long_ ? longText_ : Stacked(); }

 private:
  QString Stacked() const { return QString(reinterpret_cast<const QChar*>(chars_), size_); }

  static constexpr qsizetype kOnStack = 64;
  char16_t chars_[kOnStack];
  qsizetype size_ = 0;
  bool long_ = false;
  QString longText_;
};

// Decimal digits of a non-negative `n`, zero-padded to `width`.
void AppendNumber(Text* out, int n, int width = 1) {
  constexpr int kMost = 12;
  char16_t digits[kMost];
  int at = kMost;
  unsigned value = n < 0 ? 0u : static_cast<unsigned>(n);
  do {
    digits[--at] = static_cast<char16_t>(u'0' + value % 10);
    value /= 10;
  } while (value != 0 && at > 1);
  while (kMost - at < width && at > 0) digits[--at] = u'0';
  out->Append(QStringView(digits + at, kMost - at));
}

int WeekOfYear(const QDate& d) {
  const QDate first(d.year(), 1, 1);
  const int firstOffset = first.dayOfWeek() % 7;  // Sunday 0 .. Saturday 6
  return (d.dayOfYear() - 1 + firstOffset) / 7 + 1;
}

// The year, month and day are worked out of the date once: each of QDate's
// own accessors works them all out again.
struct Moment {
  Moment(const QDate& d, const QTime& t, bool twelve) : date(d), time(t), twelveHour(twelve) {
    date.getDate(&year, &month, &day);
  }
  QDate date;
  QTime time;
  bool twelveHour;
  int year = 0;
  int month = 0;
  int day = 0;
};

void AppendMarker(Text* out, const Piece& p, bool pm) {
  if (p.code == Code::AmPmLocale) {
    out->Append(pm ? u"PM" : u"AM");
    return;
  }
  const bool lower = p.text.at(0).isLower();
  if (p.code == Code::AP) {
    out->Append(lower ? (pm ? u'p' : u'a') : (pm ? u'P' : u'A'));
  } else {
    out->Append(lower ? (pm ? u"pm" : u"am") : (pm ? u"PM" : u"AM"));
  }
}

int DisplayHour(const Moment& m) {
  if (!m.twelveHour) return m.time.hour();
  const int h = m.time.hour() % 12;
  return h == 0 ? 12 : h;
}

void AppendPieces(Text* out, const std::vector<Piece>& pieces, const Moment& m);

// The fixed pictures that some codes stand for, compiled once.
const std::vector<Piece>& Builtin(const char16_t* picture) {
  static std::mutex lock;
  static std::vector<std::pair<const char16_t*, std::vector<Piece>>> compiled;
  const std::lock_guard<std::mutex> hold(lock);
  for (const auto& [text, pieces] : compiled) {
    if (text == picture) return pieces;
  }
  std::vector<Piece> pieces = Parse(QString::fromUtf16(picture));
  ResolveMinutes(&pieces);
  compiled.emplace_back(picture, std::move(pieces));
  return compiled.back().second;
}

constexpr const char16_t* kShortDate = u"m/d/yyyy";
constexpr const char16_t* kLongDate = u"dddd, mmmm dd, yyyy";
constexpr const char16_t* kTime24 = u"h:mm:ss";
constexpr const char16_t* kTime12 = u"h:mm:ss AM/PM";

// A fixed picture chooses its own clock, as it would when formatted alone.
void AppendBuiltin(Text* out, const char16_t* picture, const Moment& m) {
  const std::vector<Piece>& pieces = Builtin(picture);
  AppendPieces(out, pieces, {m.date, m.time, HasMarker(pieces)});
}

QString EnglishName(Code code, int n) {
  const QLocale c = QLocale::c();
  switch (code) {
    case Code::WeekdayShort: return c.dayName(n, QLocale::ShortFormat);
    case Code::WeekdayLong: return c.dayName(n, QLocale::LongFormat);
    case Code::MonthShort: return c.monthName(n, QLocale::ShortFormat);
    default: return c.monthName(n, QLocale::LongFormat);
  }
}

void AppendDate(Text* out, const Piece& p, const Moment& m) {
  const QDate& d = m.date;
  switch (p.code) {
    case Code::Day: return AppendNumber(out, m.day);
    case Code::Day2: return AppendNumber(out, m.day, 2);
    case Code::WeekdayShort:
    case Code::WeekdayLong: out->Append(EnglishName(p.code, d.dayOfWeek())); return;
    case Code::ShortDate: return AppendBuiltin(out, kShortDate, m);
    case Code::LongDate: return AppendBuiltin(out, kLongDate, m);
    case Code::Weekday: return AppendNumber(out, d.dayOfWeek() % 7 + 1);
    case Code::WeekOfYear: return AppendNumber(out, WeekOfYear(d));
    case Code::Month: return AppendNumber(out, m.month);
    case Code::Month2: return AppendNumber(out, m.month, 2);
    case Code::MonthShort:
    case Code::MonthLong: out->Append(EnglishName(p.code, m.month)); return;
    case Code::Quarter: return AppendNumber(out, (m.month - 1) / 3 + 1);
    case Code::DayOfYear: return AppendNumber(out, d.dayOfYear());
    case Code::Year2: return AppendNumber(out, m.year % 100, 2);
    case Code::Year4: return AppendNumber(out, m.year, 4);
    default: return;
  }
}

void AppendGeneral(Text* out, const Moment& m) {
  const bool withDate = m.date != kZeroDate;
  if (withDate) AppendBuiltin(out, kShortDate, {m.date, m.time, false});
  if (m.time == QTime(0, 0)) return;
  if (withDate) out->Append(u' ');
  AppendBuiltin(out, m.twelveHour ? kTime12 : kTime24, m);
}

void Append(Text* out, const Piece& p, const Moment& m) {
  const QTime& t = m.time;
  switch (p.code) {
    case Code::Literal: out->Append(p.text); return;
    case Code::Hour: return AppendNumber(out, DisplayHour(m));
    case Code::Hour2: return AppendNumber(out, DisplayHour(m), 2);
    case Code::Minute: return AppendNumber(out, t.minute());
    case Code::Minute2: return AppendNumber(out, t.minute(), 2);
    case Code::Second: return AppendNumber(out, t.second());
    case Code::Second2: return AppendNumber(out, t.second(), 2);
    case Code::LongTime: return AppendBuiltin(out, m.twelveHour ? kTime12 : kTime24, m);
    case Code::General: return AppendGeneral(out, m);
    case Code::AmPm:
    case Code::AP:
    case Code::AmPmLocale: return AppendMarker(out, p, t.hour() >= 12);
    default: return AppendDate(out, p, m);
  }
}

void AppendPieces(Text* out, const std::vector<Piece>& pieces, const Moment& m) {
  for (const Piece& p : pieces) Append(out, p, m);
}

}  // namespace

struct DateTimePicture::Compiled {
  std::vector<Piece> pieces;
  bool twelveHour = false;
};

DateTimePicture::DateTimePicture(const QString& picture) {
  auto compiled = std::make_shared<Compiled>();
  compiled->pieces = Parse(picture);
  ResolveMinutes(&compiled->pieces);
  compiled->twelveHour = HasMarker(compiled->pieces);
  compiled_ = std::move(compiled);
}

QString DateTimePicture::Format(const QDate& date, const QTime& time) const {
  Text text;
  AppendPieces(&text, compiled_->pieces, {date, time, compiled_->twelveHour});
  return text.ToString();
}

QString FormatDateTimePicture(const QString& picture, const QDate& date, const QTime& time) {
  // A batch alternates between the date and the time picture.
  constexpr size_t kKept = 4;
  thread_local std::vector<std::pair<QString, DateTimePicture>> recent;
  thread_local size_t nextSlot = 0;
  for (const auto& [text, compiled] : recent) {
    if (text == picture) return compiled.Format(date, time);
  }
  DateTimePicture compiled(picture);
  if (recent.size() < kKept) {
    recent.emplace_back(picture, compiled);
  } else {
    recent[nextSlot] = {picture, compiled};
    nextSlot = (nextSlot + 1) % kKept;
  }
  return compiled.Format(date, time);
}

}  // namespace renvale::metadata
