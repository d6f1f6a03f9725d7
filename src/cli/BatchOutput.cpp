#include "cli/BatchOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/CliTexts.h"
#include "platform/FileName.h"

namespace renvale::cli {

namespace {

QString StatusWord(OutputRow::Status status) {
  switch (status) {
    case OutputRow::Status::Planned:
      return QStringLiteral("planned");
    case OutputRow::Status::Renamed:
      return QStringLiteral("renamed");
    case OutputRow::Status::Skipped:
      return QStringLiteral("skipped");
    case OutputRow::Status::Unchanged:
      return QStringLiteral("unchanged");
  }
  return {};
}

}  // namespace

void AppendPlainLine(const OutputRow& row, QString* text) {
  platform::FileName::AppendNameText(row.given, text);
  *text += texts::kArrow;
  *text += row.newName;
  for (const QString& note : row.notes) {
    *text += QLatin1Char('\n');
    *text += texts::kNoteIndent;
    *text += note;
  }
  *text += QLatin1Char('\n');
}

QString JsonLine(const OutputRow& row) {
  QJsonObject object{{QStringLiteral("file"), platform::FileName::NameToText(row.given)},
                     {QStringLiteral("old"), row.oldName},
                     {QStringLiteral("new"), row.newName},
                     {QStringLiteral("status"), StatusWord(row.status)},
                     {QStringLiteral("notes"), QJsonArray::fromStringList(row.notes)}};
  if (!row.dateSource.isEmpty()) object.insert(QStringLiteral("dateSource"), row.dateSource);
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

}  // namespace renvale::cli
