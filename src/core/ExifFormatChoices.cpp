#include "core/ExifFormatChoices.h"

namespace renvale::core {

namespace {

int IndexOrFirst(const QStringList& choices, const QString& format) {
  const qsizetype index = choices.indexOf(format);
  return index < 0 ? 0 : static_cast<int>(index);
}

}  // namespace

const QStringList& DateFormatChoices() {
  static const QStringList choices{
      QStringLiteral("yyyy-mm-dd"), QStringLiteral("yyyy.mm.dd"), QStringLiteral("yyyymmdd"),
      QStringLiteral("yy-mm-dd"),   QStringLiteral("yy.mm.dd"),   QStringLiteral("yymmdd"),
      QStringLiteral("mm-dd-yyyy"), QStringLiteral("mm.dd.yyyy"), QStringLiteral("mmddyyyy"),
      QStringLiteral("mm-dd-yy"),   QStringLiteral("mm.dd.yy"),   QStringLiteral("mmddyy")};
  return choices;
}

const QStringList& TimeFormatChoices() {
  static const QStringList choices{QStringLiteral("hh-mm-ss"), QStringLiteral("hh.mm.ss"),
                                   QStringLiteral("hhmmss"),   QStringLiteral("hh-mm"),
                                   QStringLiteral("hh.mm"),    QStringLiteral("hhmm")};
  return choices;
}

int DateFormatIndex(const QString& format) { return IndexOrFirst(DateFormatChoices(), format); }

int TimeFormatIndex(const QString& format) { return IndexOrFirst(TimeFormatChoices(), format); }

}  // namespace renvale::core
