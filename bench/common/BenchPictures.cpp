#include "common/BenchPictures.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QString>
#include <cstdlib>

#include "support/SampleImages.h"

namespace renvale::bench {

namespace {

const QByteArray kPictures = "/tmp/renvale-bench-pictures-" + kRunTag + '/';

void MakePictures() {
  QDir(QString::fromUtf8(kPictures)).removeRecursively();
  QDir().mkpath(QString::fromUtf8(kPictures));
  test::ExifFields fields = test::TypicalExifFields();
  for (int i = 0; i < kPictureCount; ++i) {
    fields.dateTimeOriginal = QStringLiteral("2004:07:%1 %2:%3:%4")
                                  .arg(1 + i / 86400, 2, 10, QLatin1Char('0'))
                                  .arg(i / 3600 % 24, 2, 10, QLatin1Char('0'))
                                  .arg(i / 60 % 60, 2, 10, QLatin1Char('0'))
                                  .arg(i % 60, 2, 10, QLatin1Char('0'));
    const QByteArray bytes = test::MakeExifJpeg(&fields);
    const QByteArray path = kPictures + PictureName(i);
    const int fd = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0 || write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size()) std::abort();
    close(fd);
  }
}

}  // namespace

QByteArray PictureName(int i) { return "IMG_" + QByteArray::number(i) + ".JPG"; }

void MakeBatchFolder() {
  static const bool made = (MakePictures(), true);
  (void)made;
  QDir(QString::fromUtf8(kBatchFolder)).removeRecursively();
  QDir().mkpath(QString::fromUtf8(kBatchFolder));
  for (int i = 0; i < kPictureCount; ++i) {
    const QByteArray name = PictureName(i);
    if (link((kPictures + name).constData(), (kBatchFolder + name).constData()) != 0) std::abort();
  }
  sync();
}

void RemoveBatchFolders() {
  QDir(QString::fromUtf8(kBatchFolder)).removeRecursively();
  QDir(QString::fromUtf8(kPictures)).removeRecursively();
}

}  // namespace renvale::bench
