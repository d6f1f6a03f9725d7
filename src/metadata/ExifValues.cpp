#include "metadata/ExifValues.h"

#include "metadata/DateSource.h"
#include "metadata/ExifDateTime.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifStatusCheck.h"
#include "metadata/MetadataTexts.h"
#include "platform/FileName.h"
#include "platform/MessagePort.h"

namespace renvale::metadata {
namespace {

struct FileTags {
  QString dateTimeOriginal;
  QString serial;
};

// The tags the values are made of.
void TakeTokenTags(ExifReader& reader) { reader.TakeOnly({ExifTag::DateTimeOriginal, ExifTag::ImageNumber}); }

// The tags of a reader whose load gave `loaded`.
bool TagsOf(const ExifReader& reader, bool loaded, FileTags* tags, platform::FileInfo* identity,
            bool* identityKnown) {
  if (identityKnown != nullptr) *identityKnown = identity != nullptr && reader.OpenedIdentity(identity);
  if (!loaded) return false;
  tags->dateTimeOriginal = reader.Tag(ExifTag::DateTimeOriginal);
  tags->serial = reader.Tag(ExifTag::ImageNumber);
  return true;
}

bool ReadTagsQuietly(platform::FileSystem& fs, const QByteArray& path, FileTags* tags, QString* errorMessage,
                     platform::FileInfo* identity = nullptr, bool* identityKnown = nullptr) {
  ExifReader reader;
  TakeTokenTags(reader);
  const bool loaded = LoadExifQuietly(reader, fs, path, errorMessage);
  return TagsOf(reader, loaded, tags, identity, identityKnown);
}

bool ReadTags(const ExifFile& file, FileTags* tags) {
  QString errorMessage;
  if (ReadTagsQuietly(file.fs, platform::JoinPath(file.folder, file.rawName), tags, &errorMessage)) return true;
  file.messages.Notify(errorMessage);
  return false;
}

int FormOfToken(const QString& token) {
  if (token == texts::kTokenDate) return kFormDate;
  if (token == texts::kTokenTime) return kFormTime;
  if (token == texts::kTokenDateTime) return kFormDateAndTime;
  if (token == texts::kTokenSerial) return kFormSerial;
  return 0;
}

const QString& TokenOfForm(int form) {
  static const QString kTokens[] = {texts::kTokenDate, texts::kTokenTime,
                                    texts::kTokenDateTime, texts::kTokenSerial};
  return kTokens[form - 1];
}

QString ValueOf(const ExifFile& file, const FileTags& tags, int form,
                const ExifDateFormats& formats) {
  if (form == kFormSerial) return tags.serial;
  const QString when = ExposureDateTime(file.fs, file.folder, file.rawName, tags.dateTimeOriginal);
  return ExifDateTimeText(when, form, formats.date, formats.time);
}

// The values of a file whose tags were read.
ExifTokenValues ValuesOfTags(platform::FileSystem& fs, const QByteArray& folder, const QByteArray& rawName,
                             const ExifDateFormats& formats, const FileTags& tags) {
  ExifTokenValues values;
  values.ok = true;
  values.serial = tags.serial;
  const DatedExposure dated = DatedExposureTime(fs, folder, rawName, tags.dateTimeOriginal);
  values.dateOrigin = dated.origin;
  values.dated = dated.date.isValid() && dated.time.isValid();
  if (values.dated) ExifDateAndTimeTexts(dated.date, dated.time, formats.date, formats.time, &values.date, &values.time);
  return values;
}

}  // namespace

QString ExifTokenValue(const ExifFile& file, const QString& token, const ExifDateFormats& formats) {
  const int form = FormOfToken(token);
  FileTags tags;
  if (form == 0 || !ReadTags(file, &tags)) return {};
  return ValueOf(file, tags, form, formats);
}

ExifTokenValues ReadExifTokenValues(const ExifFile& file, const ExifDateFormats& formats) {
  QString errorMessage;
  ExifTokenValues values = ReadExifTokenValuesQuietly(file.fs, file.folder, file.rawName, formats, &errorMessage);
  if (!errorMessage.isEmpty()) file.messages.Notify(errorMessage);
  return values;
}

ExifTokenValues ReadExifTokenValuesQuietly(platform::FileSystem& fs, const QByteArray& folder,
                                           const QByteArray& rawName, const ExifDateFormats& formats,
                                           QString* errorMessage, platform::FileInfo* identity,
                                           bool* identityKnown) {
  FileTags tags;
  if (!ReadTagsQuietly(fs, platform::JoinPath(folder, rawName), &tags, errorMessage, identity, identityKnown)) {
    return {};
  }
  return ValuesOfTags(fs, folder, rawName, formats, tags);
}

ExifTokenValues ReadExifTokenValuesQuietly(platform::FileSystem& fs, platform::ReadableFolder& held,
                                           const QByteArray& folder, const QByteArray& rawName,
                                           const ExifDateFormats& formats, QString* errorMessage,
                                           platform::FileInfo* identity, bool* identityKnown) {
  ExifReader reader;
  TakeTokenTags(reader);
  const auto wanted = identity != nullptr ? ExifReader::Identity::Wanted : ExifReader::Identity::NotWanted;
  const bool loaded = LoadExifQuietly(reader, held, rawName, wanted, errorMessage);
  FileTags tags;
  if (!TagsOf(reader, loaded, &tags, identity, identityKnown)) return {};
  return ValuesOfTags(fs, folder, rawName, formats, tags);
}

QString ExifInsertValue(const ExifFile& file, int form, bool batchMode,
                        const ExifDateFormats& formats) {
  FileTags tags;
  if (form < kFormDate || form > kFormSerial || !ReadTags(file, &tags)) return {};
  if (form == kFormSerial && tags.serial.isEmpty()) {
    file.messages.Notify(batchMode ? texts::kSerialMissingBatch : texts::kSerialMissingSingle);
  }
  if (batchMode) return TokenOfForm(form);
  return ValueOf(file, tags, form, formats);
}

}  // namespace renvale::metadata
