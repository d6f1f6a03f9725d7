#include "metadata/ReportFormat.h"

#include "metadata/MetadataTexts.h"

namespace renvale::metadata {
namespace {

constexpr qint64 kKilobyte = 1024;
constexpr qint64 kMegabyte = kKilobyte * kKilobyte;

}  // namespace

QString KilobytesText(qint64 bytes) {
  qint64 whole = bytes / kKilobyte;
  const qint64 twiceRest = (bytes % kKilobyte) * 2;
  if (twiceRest > kKilobyte || (twiceRest == kKilobyte && whole % 2 != 0)) ++whole;
  return QString::number(whole);
}

QString MegabytesText(qint64 bytes) {
  const qint64 rest = bytes % kMegabyte;
  const qint64 hundredths = (bytes / kMegabyte) * 100 + (rest * 100 + kMegabyte / 2) / kMegabyte;
  const qint64 whole = hundredths / 100;
  QString text = whole == 0 ? QString() : QString::number(whole);
  text += u'.';
  const qint64 cents = hundredths % 100;
  if (cents != 0) {
    QString decimals = QStringLiteral("%1").arg(cents, 2, 10, QLatin1Char('0'));
    if (decimals.endsWith(u'0')) decimals.chop(1);
    text += decimals;
  }
  return text;
}

QString ShortExifVersion(const QString& version) {
  if (version.size() != 4) return version;
  QString text = version.left(2) + u'.' + version.mid(2);
  if (text.startsWith(u'0')) text.remove(0, 1);
  if (text.endsWith(u'0')) text.chop(1);
  return text;
}

QString DimensionsText(const QString& width, const QString& height) {
  if (width.isEmpty() && height.isEmpty()) return {};
  return width + texts::kDimensionsWidth + height + texts::kDimensionsHeight;
}

}  // namespace renvale::metadata
