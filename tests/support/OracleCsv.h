#pragma once

#include <QHash>
#include <QString>
#include <vector>

namespace renvale::test {

// The folder of real camera and audio files ($RENVALE_TESTDATA); empty when
// unset. A user's clone does not have it, so tests that use it skip.
QString TestDataFolder();

// One row of oracle.csv, by column name.
using OracleRow = QHash<QString, QString>;

// Reads `folder`/`name`; empty when it cannot be read.
std::vector<OracleRow> ReadOracle(const QString& folder, const QString& name = QStringLiteral("oracle.csv"));

// The bytes an oracle cell stands for: "\xNN" escapes turned back into the
// bytes they replace, every other character as Latin-1.
QByteArray OracleBytes(const QString& cell);

}  // namespace renvale::test
