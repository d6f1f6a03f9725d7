#include "metadata/DateSource.h"

#include <memory>

#include "metadata/ExifDateTime.h"
#include "metadata/FileDates.h"
#include "metadata/HeadScan.h"
#include "metadata/MetadataTexts.h"
#include "metadata/VideoDateReader.h"
#include "platform/FileName.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {
namespace {

constexpr qsizetype kExtensionLength = 4;

// `text` from `origin` as the exposure date, read once; false, with `out`
// left alone, unless it is a real date and time.
bool TakeIfReal(const QString& text, DateOrigin origin, DatedExposure* out) {
  QDate date;
  QTime time;
  if (!ReadExifDateTime(text, &date, &time)) return false;
  *out = {text, origin, date, time};
  return true;
}

}  // namespace

QByteArray ThmCompanionName(platform::FileSystem& fs, const QByteArray& folder,
                            const QByteArray& rawName) {
  if (rawName.size() < kExtensionLength) return rawName;
  if (rawName.right(kExtensionLength).toLower() != texts::kCrwExtension) return rawName;
  const QByteArray partner = rawName.left(rawName.size() - kExtensionLength) + texts::kThmExtension;
  return fs.Exists(platform::JoinPath(folder, partner)) ? partner : rawName;
}

QByteArray ReadFileHead(platform::FileSystem& fs, const QByteArray& path, qint64 length) {
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0 || !file) return {};
  const qint64 size = file->Size();
  const qint64 wanted = length < 0 ? size : std::min(length, size);
  if (wanted <= 0) return {};
  QByteArray head(wanted, Qt::Uninitialized);
  const qint64 got = file->ReadAt(0, head.data(), wanted);
  if (got <= 0) return {};
  head.truncate(got);
  return head;
}

QString ScanExifDateInHead(platform::FileSystem& fs, const QByteArray& folder,
                           const QByteArray& rawName) {
  const QByteArray name = ThmCompanionName(fs, folder, rawName);
  const QByteArray head = ReadFileHead(fs, platform::JoinPath(folder, name), kFileHeadLength);
  return ScanDateInHead(head.constData(), head.size());
}

QString ExposureDateTime(platform::FileSystem& fs, const QByteArray& folder,
                         const QByteArray& rawName, const QString& dateTimeOriginal) {
  return DatedExposureTime(fs, folder, rawName, dateTimeOriginal).when;
}

DatedExposure DatedExposureTime(platform::FileSystem& fs, const QByteArray& folder,
                                const QByteArray& rawName, const QString& dateTimeOriginal) {
  DatedExposure dated;
  // A picture dated by its EXIF needs no path: most of a batch returns here.
  const bool video = VideoDateReader::IsVideoName(rawName);
  if (!video && TakeIfReal(dateTimeOriginal, DateOrigin::ExifOriginal, &dated)) return dated;
  const QByteArray path = platform::JoinPath(folder, rawName);
  if (video && TakeIfReal(VideoDateReader::ReadFile(fs, path), DateOrigin::VideoContainer, &dated)) return dated;
  if (video && TakeIfReal(dateTimeOriginal, DateOrigin::ExifOriginal, &dated)) return dated;
  const QByteArray scannedName = ThmCompanionName(fs, folder, rawName);
  const QByteArray head = ReadFileHead(fs, platform::JoinPath(folder, scannedName), kFileHeadLength);
  const QString scanned = ScanDateInHead(head.constData(), head.size());
  if (TakeIfReal(scanned, scannedName == rawName ? DateOrigin::FileHead : DateOrigin::ThmPartner, &dated)) {
    return dated;
  }
  const QString created = FileCreatedText(fs, path);
  const QString modified = FileModifiedText(fs, path);
  const QString oldest = OlderDateTimeText(created, modified);
  if (oldest.isEmpty()) return {};
  const DateOrigin origin = oldest == created ? DateOrigin::Created : DateOrigin::Modified;
  if (!TakeIfReal(oldest, origin, &dated)) dated = {oldest, origin, {}, {}};
  return dated;
}

QString DateOriginText(DateOrigin origin) {
  switch (origin) {
    case DateOrigin::None: break;
    case DateOrigin::VideoContainer: return texts::kDateFromVideo;
    case DateOrigin::ExifOriginal: return texts::kDateFromExif;
    case DateOrigin::FileHead: return texts::kDateFromHead;
    case DateOrigin::ThmPartner: return texts::kDateFromThm;
    case DateOrigin::Modified: return texts::kDateFromModified;
    case DateOrigin::Created: return texts::kDateFromCreated;
  }
  return {};
}

}  // namespace renvale::metadata
