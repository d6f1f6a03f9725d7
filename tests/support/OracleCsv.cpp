#include "support/OracleCsv.h"

#include <QFile>
#include <QStringList>

namespace renvale::test {
namespace {

// One CSV line with double-quoted fields ("" inside quotes is a quote).
QStringList ParseCsvLine(const QString& line) {
  QStringList fields;
  QString field;
  bool quoted = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    const QChar c = line[i];
    if (quoted && c == u'"' && i + 1 < line.size() && line[i + 1] == u'"') {
      field += u'"';
      ++i;
    } else if (c == u'"') {
      quoted = !quoted;
    } else if (c == u',' && !quoted) {
      fields << field;
      field.clear();
    } else {
      field += c;
    }
  }
  return fields << field;
}

}  // namespace

QString TestDataFolder() { return QString::fromLocal8Bit(qgetenv("RENVALE_TESTDATA")); }

std::vector<OracleRow> ReadOracle(const QString& folder, const QString& name) {
  QFile file(folder + u'/' + name);
  std::vector<OracleRow> rows;
  if (!file.open(QIODevice::ReadOnly)) return rows;
  const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
  const QStringList header = ParseCsvLine(lines.value(0));
  for (qsizetype i = 1; i < lines.size(); ++i) {
    const QStringList fields = ParseCsvLine(lines[i]);
    OracleRow row;
    for (qsizetype c = 0; c < header.size(); ++c) row.insert(header[c], fields.value(c));
    rows.push_back(row);
  }
  return rows;
}

QByteArray OracleBytes(const QString& cell) {
  QByteArray bytes;
  for (qsizetype i = 0; i < cell.size(); ++i) {
    bool isHex = false;
    if (cell[i] == u'\\' && i + 3 < cell.size() && cell[i + 1] == u'x') {
      const int value = cell.mid(i + 2, 2).toInt(&isHex, 16);
      if (isHex) {
        bytes += char(value);
        i += 3;
        continue;
      }
    }
    bytes += char(cell[i].unicode() & 0xFF);
  }
  return bytes;
}

}  // namespace renvale::test
