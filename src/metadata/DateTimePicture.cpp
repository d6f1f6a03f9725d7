#include "metadata/DateTimePicture.h"

#include <QLocale>
#include <QStringList>
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

QString Two(int n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }

int WeekOfYear(const QDate& d) {
  const QDate first(d.year(), 1, 1);
  const int firstOffset = first.dayOfWeek() % 7;  // Sunday 0 .. Saturday 6
  return (d.dayOfYear() - 1 + firstOffset) / 7 + 1;
}

struct Moment {
  QDate date;
  QTime time;
  bool twelveHour;
};

QString Marker(const Piece& p, bool pm) {
  if (p.code == Code::AmPmLocale) return pm ? QStringLiteral("PM") : QStringLiteral("AM");
  const bool lower = p.text.at(0).isLower();
  QString m = p.code == Code::AP ? QString(pm ? u'P' : u'A')
                                 : (pm ? QStringLiteral("PM") : QStringLiteral("AM"));
  return lower ? m.toLower() : m;
}

QString RenderPicture(const QString& picture, const Moment& m) {
  return FormatDateTimePicture(picture, m.date, m.time);
}

int DisplayHour(const Moment& m) {
  if (!m.twelveHour) return m.time.hour();
  const int h = m.time.hour() % 12;
  return h == 0 ? 12 : h;
}

QString RenderDate(const Piece& p, const Moment& m) {
  const QLocale c = QLocale::c();
  const QDate& d = m.date;
  switch (p.code) {
    case Code::Day: return QString::number(d.day());
    case Code::Day2: return Two(d.day());
    case Code::WeekdayShort: return c.dayName(d.dayOfWeek(), QLocale::ShortFormat);
    case Code::WeekdayLong: return c.dayName(d.dayOfWeek(), QLocale::LongFormat);
    case Code::ShortDate: return RenderPicture(QStringLiteral("m/d/yyyy"), m);
    case Code::LongDate:
      return RenderPicture(QStringLiteral("dddd, mmmm dd, yyyy"), m);
    case Code::Weekday: return QString::number(d.dayOfWeek() % 7 + 1);
    case Code::WeekOfYear: return QString::number(WeekOfYear(d));
    case Code::Month: return QString::number(d.month());
    case Code::Month2: return Two(d.month());
    case Code::MonthShort: return c.monthName(d.month(), QLocale::ShortFormat);
    case Code::MonthLong: return c.monthName(d.month(), QLocale::LongFormat);
    case Code::Quarter: return QString::number((d.month() - 1) / 3 + 1);
    case Code::DayOfYear: return QString::number(d.dayOfYear());
    case Code::Year2: return Two(d.year() % 100);
    case Code::Year4: return QStringLiteral("%1").arg(d.year(), 4, 10, QLatin1Char('0'));
    default: return {};
  }
}

QString RenderGeneral(const Moment& m) {
  QStringList parts;
  if (m.date != kZeroDate) parts << RenderPicture(QStringLiteral("ddddd"), m);
  if (m.time != QTime(0, 0)) {
    parts << RenderPicture(m.twelveHour ? QStringLiteral("h:mm:ss AM/PM") : QStringLiteral("h:mm:ss"), m);
  }
  return parts.join(u' ');
}

QString Render(const Piece& p, const Moment& m) {
  const QTime& t = m.time;
  switch (p.code) {
    case Code::Literal: return p.text;
    case Code::Hour: return QString::number(DisplayHour(m));
    case Code::Hour2: return Two(DisplayHour(m));
    case Code::Minute: return QString::number(t.minute());
    case Code::Minute2: return Two(t.minute());
    case Code::Second: return QString::number(t.second());
    case Code::Second2: return Two(t.second());
    case Code::LongTime:
      return RenderPicture(m.twelveHour ? QStringLiteral("h:mm:ss AM/PM") : QStringLiteral("h:mm:ss"),
                           m);
    case Code::General: return RenderGeneral(m);
    case Code::AmPm:
    case Code::AP:
    case Code::AmPmLocale: return Marker(p, t.hour() >= 12);
    default: return RenderDate(p, m);
  }
}

}  // namespace

QString FormatDateTimePicture(const QString& picture, const QDate& date, const QTime& time) {
  std::vector<Piece> pieces = Parse(picture);
  ResolveMinutes(&pieces);
  const Moment moment{date, time, HasMarker(pieces)};
  QString out;
  for (const Piece& p : pieces) out += Render(p, moment);
  return out;
}

}  // namespace renvale::metadata
