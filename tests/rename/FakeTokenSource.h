#pragma once

#include <QHash>

#include "core/TokenSource.h"

namespace renvale::test {

// Fixed EXIF values for every file and ID3 values by file name; counts the
// reads so tests can see that a token costs a read only when it is there.
class FakeTokenSource : public core::TokenSource {
 public:
  QString ExifValue(const QByteArray&, const platform::FileName& file, core::Token token) override {
    ++exifReads;
    switch (token) {
      case core::Token::Date: return QStringLiteral("2004-05-01");
      case core::Token::Time: return QStringLiteral("10-20-30");
      case core::Token::DateTime: return QStringLiteral("2004-05-01 10-20-30");
      case core::Token::Serial: return serials.value(file.raw);
      default: return QString();
    }
  }
  core::Id3Values Id3(const QByteArray&, const platform::FileName& file) override {
    ++id3Reads;
    return id3.value(file.raw);
  }

  QHash<QByteArray, QString> serials;
  QHash<QByteArray, core::Id3Values> id3;
  int exifReads = 0, id3Reads = 0;
};

}  // namespace renvale::test
