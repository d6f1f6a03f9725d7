#include "metadata/AviDateReader.h"

#include <QStringList>

#include "metadata/ExifDateTime.h"

namespace renvale::metadata {
namespace {

constexpr qint64 kChunkHeader = 8;
constexpr qint64 kListType = 4;
constexpr qint64 kRiffHeader = 12;  // "RIFF", size, "AVI "
constexpr int kClockParts = 5;      // weekday, month, day, time, year

int MonthNumber(const QString& name) {
  static const QStringList kMonths = {QStringLiteral("Jan"), QStringLiteral("Feb"), QStringLiteral("Mar"),
                                      QStringLiteral("Apr"), QStringLiteral("May"), QStringLiteral("Jun"),
                                      QStringLiteral("Jul"), QStringLiteral("Aug"), QStringLiteral("Sep"),
                                      QStringLiteral("Oct"), QStringLiteral("Nov"), QStringLiteral("Dec")};
  return int(kMonths.indexOf(name.left(3))) + 1;
}

}  // namespace

QString AviDateReader::Read(ByteReader file) {
  file.SetBigEndian(false);
  if (!file.Matches(0, "RIFF", 4) || !file.Matches(8, "AVI ", 4)) return {};
  // The RIFF size is not trusted: a recording cut short leaves it wrong.
  ByteReader riff = file.Sub(0, file.Length());
  return FindIn(riff, kRiffHeader, 0);
}

// Walks the chunks from `pos` to the end of `list`, and one level into the
// "hdrl" list.
QString AviDateReader::FindIn(ByteReader& list, qint64 pos, int depth) {
  for (int i = 0; i < kMaxChunks && list.Has(pos, kChunkHeader); ++i) {
    const quint32 size = list.U32(pos + 4);
    const qint64 content = pos + kChunkHeader;
    if (list.Matches(pos, "IDIT", 4)) {
      QByteArray chunk(qMin<qint64>(qMin<qint64>(size, kMaxDateText), list.Length() - content), Qt::Uninitialized);
      if (!list.Bytes(content, chunk.data(), chunk.size())) return {};
      const QString date = DateText(chunk);
      if (!date.isEmpty()) return date;
    } else if (depth == 0 && list.Matches(pos, "LIST", 4) && list.Matches(content, "hdrl", 4)) {
      ByteReader hdrl = list.Sub(content, size);
      const QString date = FindIn(hdrl, kListType, depth + 1);
      if (!date.isEmpty()) return date;
    }
    pos = content + size + (size & 1);  // chunks are padded to an even length
  }
  return {};
}

QString AviDateReader::DateText(const QByteArray& chunk) {
  const qsizetype end = chunk.indexOf('\0');
  const QString text = QString::fromLatin1(end < 0 ? chunk : chunk.left(end)).simplified();
  const QString layout = ExifLayoutDateTime(text);
  return layout.isEmpty() ? ClockText(text) : layout;
}

QString AviDateReader::ClockText(const QString& text) {
  const QStringList parts = text.split(u' ');
  if (parts.size() != kClockParts) return {};
  const int month = MonthNumber(parts[1]);
  bool dayOk = false;
  const int day = parts[2].toInt(&dayOk);
  if (month == 0 || !dayOk || parts[4].size() != 4) return {};
  // One pass over the pattern: a "%2" in the file's text stays text.
  const auto twoDigits = [](int n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
  const QString layout = QStringLiteral("%1:%2:%3 %4").arg(parts[4], twoDigits(month), twoDigits(day), parts[3]);
  return ExifLayoutDateTime(layout);
}

}  // namespace renvale::metadata
