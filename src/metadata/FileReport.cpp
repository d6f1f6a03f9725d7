#include "metadata/FileReport.h"

#include <QStringList>

#include "metadata/DateSource.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifStatusCheck.h"
#include "metadata/FileDates.h"
#include "metadata/MetadataTexts.h"
#include "metadata/ReportFormat.h"
#include "metadata/mdlID3.h"
#include "platform/AttributeLetters.h"
#include "platform/FileName.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {
namespace {

using namespace texts;

QString Lines(const QStringList& lines, const QString& end) {
  QString text;
  for (const QString& line : lines) text += line + end;
  return text;
}

QStringList Id3Lines(platform::FileSystem& fs, const QByteArray& path) {
  QStringList lines{kId3Heading};
  Id3Tag tag;
  QString name;
  if (!ReadFileId3Tag(fs, path, &tag, &name)) return lines << kId3Missing;
  const auto clean = [](const QString& value) { return WithoutControlCharacters(value); };
  return lines << kId3TagLabel + name << kId3TitleLabel + clean(tag.title) << kId3ArtistLabel + clean(tag.artist)
               << kId3AlbumLabel + clean(tag.album)
               << kId3TrackLabel + clean(Id3TrackText(tag.track))
               << kId3YearLabel + clean(tag.year) << kId3CommentLabel + clean(tag.comment);
}

QStringList ExifFieldLines(const ExifReader& reader) {
  const auto tag = [&reader](const QString& name) { return reader.Tag(name); };
  return {kLabelExifVersion + ShortExifVersion(tag(kTagExifVersion)),
          kLabelMake + tag(kTagMake),
          kLabelModel + tag(kTagModel),
          kLabelOrientation + tag(kTagOrientation),
          kLabelDimensions + DimensionsText(tag(kTagWidth), tag(kTagLength)),
          kLabelExposureDate + tag(kTagDateTimeOriginal),
          kLabelImageNumber + tag(kTagImageNumber),
          kLabelAperture + tag(kTagAperture),
          kLabelShutter + tag(kTagShutter),
          kLabelFocalLength + tag(kTagFocalLength),
          kLabelIso + tag(kTagIso),
          kLabelExposureBias + tag(kTagExposureBias),
          kLabelExposureProgram + tag(kTagExposureProgram),
          kLabelFNumber + tag(kTagFNumber),
          kLabelFlash + tag(kTagFlash)};
}

QStringList FileSetNotes() { return {kNoteFileSet, kNoteRandomSeries}; }

QStringList ScanFoundLines(const MissingExifFacts& f, const QString& ext) {
  const QStringList dateLines{kDateOnly, kExposureDateTime + f.scan};
  if (ext == kCrwEnding) {
    return QStringList{f.name + kCrwIntro, kCrwSource, kThmFound, kExposureDateTime + f.scan} +
           FileSetNotes();
  }
  if (ext == kThmEnding) {
    return QStringList{f.name + kThmIntro, kThmSource, kExposureDateTime + f.scan} +
           FileSetNotes();
  }
  if (ext == kCr2Ending) return QStringList{f.name + kCr2Intro} + dateLines;
  if (ext == kJpgEnding || ext == kTifEnding) return QStringList{f.name + kPartialExif} + dateLines;
  return QStringList{f.name + kProprietaryRaw} + dateLines;
}

QStringList ScanEmptyLines(const MissingExifFacts& f, const QString& ext) {
  if (ext == kCrwEnding) {
    return QStringList{f.name + kCrwIntro, kCrwSource, kThmNotFound} + FileSetNotes();
  }
  return {f.name + kNoExif, kNoExifFallback, kCreatedDateTime + f.created,
          kModifiedDateTime + f.modified};
}

}  // namespace

QString BuildGeneralInfo(platform::FileSystem& fs, const QByteArray& path) {
  platform::FileInfo info;
  const bool known = fs.Stat(path, &info) == 0;
  const qint64 size = known ? info.size : 0;
  QStringList lines{
      kFileSize + KilobytesText(size) + kKilobytes + MegabytesText(size) + kMegabytes,
      kCreatedOn + FileCreatedText(fs, path), kModifiedOn + FileModifiedText(fs, path),
      known && platform::AttributeLettersOf(info).contains(u'R') ? kReadOnlyYes : kReadOnlyNo};
  if (path.toLower().endsWith(kMp3Extension)) lines += Id3Lines(fs, path);
  return Lines(lines, kGeneralLineEnd);
}

QString ExplainMissingExif(const MissingExifFacts& facts) {
  const QString ext = facts.name.right(3).toLower();
  return Lines(facts.scan.isEmpty() ? ScanEmptyLines(facts, ext) : ScanFoundLines(facts, ext),
               QStringLiteral("\n"));
}

QString BuildExifReport(platform::FileSystem& fs, platform::MessagePort& messages,
                        const QByteArray& folder, const QByteArray& rawName) {
  const QByteArray path = platform::JoinPath(folder, rawName);
  ExifReader reader;
  if (!LoadExifChecked(reader, fs, messages, path)) return {};
  const QString name = platform::FileName::NameToText(rawName);
  // A blank line sets the heading apart from the fields.
  const QString heading = kExifHeadingStart + name + kExifHeadingEnd + QStringLiteral("\n\n");
  // Set apart from the fields, so that a file that fell back to its file
  // times stands out when going through a card's pictures one by one.
  const QString dateSource =
      QStringLiteral("\n") + kDateSourceLabel +
      DateOriginText(DatedExposureTime(fs, folder, rawName, reader.Tag(kTagDateTimeOriginal)).origin) +
      QStringLiteral("\n");
  if (!reader.Tag(kTagDateTimeOriginal).isEmpty()) {
    return heading + Lines(ExifFieldLines(reader), QStringLiteral("\n")) + dateSource;
  }
  const MissingExifFacts facts{name, ScanExifDateInHead(fs, folder, rawName),
                               FileCreatedText(fs, path), FileModifiedText(fs, path)};
  return heading + ExplainMissingExif(facts) + dateSource;
}

FileReportTexts BuildFileReport(platform::FileSystem& fs, platform::MessagePort& messages,
                                const QByteArray& folder, const QByteArray& rawName) {
  FileReportTexts report;
  report.exif = BuildExifReport(fs, messages, folder, rawName);
  report.general = BuildGeneralInfo(fs, platform::JoinPath(folder, rawName));
  return report;
}

}  // namespace renvale::metadata
