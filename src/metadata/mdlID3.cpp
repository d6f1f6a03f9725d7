#include "metadata/mdlID3.h"

#include <QStringList>
#include <array>
#include <memory>

#include "metadata/FileByteSource.h"
#include "metadata/Id3v2Reader.h"
#include "metadata/MetadataTexts.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {
namespace {

constexpr int kTitleAt = 3;
constexpr int kArtistAt = 33;
constexpr int kAlbumAt = 63;
constexpr int kYearAt = 93;
constexpr int kCommentAt = 97;
constexpr int kTrackMarkerAt = 125;
constexpr int kTrackAt = 126;
constexpr int kGenreAt = 127;
constexpr int kTextLength = 30;
constexpr int kShortCommentLength = 28;
constexpr int kYearLength = 4;

// Windows-1252 for 0x80..0x9F; the five unassigned bytes map to the C1
// control of the same number, as Windows itself converts them.
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar Cp1252(unsigned char byte) {
  if (byte >= 0x80 && byte <= 0x9F) return QChar(kCp1252High[byte - 0x80]);
  return QChar(static_cast<char16_t>(byte));
}

QString TrimBlanks(const QString& text) {
  qsizetype start = 0;
  qsizetype end = text.size();
  while (start < end && text[start] == u' ') ++start;
  while (end > start && text[end - 1] == u' ') --end;
  return text.mid(start, end - start);
}

QString Field(const char* block, int at, int length) {
  return Id3FixedText(block + at, length, 0, true);
}

void ParseBlock(const char* block, Id3Tag* tag) {
  tag->title = TrimBlanks(Field(block, kTitleAt, kTextLength));
  tag->artist = TrimBlanks(Field(block, kArtistAt, kTextLength));
  tag->album = TrimBlanks(Field(block, kAlbumAt, kTextLength));
  const auto trackByte = static_cast<unsigned char>(block[kTrackAt]);
  if (block[kTrackMarkerAt] == 0 && trackByte != 0) {
    tag->comment = Field(block, kCommentAt, kShortCommentLength);
    tag->track = QString::number(trackByte);
  } else {
    tag->comment = Field(block, kCommentAt, kTextLength);
  }
  tag->genre = Id3GenreName(static_cast<unsigned char>(block[kGenreAt]));
  tag->year = TrimBlanks(Field(block, kYearAt, kYearLength));
}

const QStringList& GenreNames() {
  static const QStringList names = texts::kId3Genres.split(u'#');
  return names;
}

QString OrPlaceholder(const QString& value, const QString& placeholder) {
  return value.isEmpty() ? placeholder : value;
}

QString CleanValue(const QString& value) { return WithoutControlCharacters(TrimBlanks(value)); }

// "3/11" (track 3 of 11) names the track by its own number: a slash has
// no place in a file name.
QString TrackNumberPart(const QString& track) { return track.section(u'/', 0, 0); }

bool ReadV1(platform::ReadableFile& file, Id3Tag* tag) {
  const qint64 size = file.Size();
  char block[kId3TagSize];
  return size >= kId3TagSize && file.ReadAt(size - kId3TagSize, block, kId3TagSize) == kId3TagSize &&
         ParseId3Tag(block, kId3TagSize, tag);
}

}  // namespace

bool ParseId3Tag(const char* data, qint64 size, Id3Tag* tag) {
  *tag = Id3Tag{};
  if (data == nullptr || size < kId3TagSize) return false;
  const char* block = data + (size - kId3TagSize);
  if (block[0] != 'T' || block[1] != 'A' || block[2] != 'G') return false;
  ParseBlock(block, tag);
  return true;
}

bool ReadId3Tag(platform::FileSystem& fs, const QByteArray& path, Id3Tag* tag) {
  *tag = Id3Tag{};
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0 || !file) return false;
  return ReadV1(*file, tag);
}

bool ReadFileId3Tag(platform::FileSystem& fs, const QByteArray& path, Id3Tag* tag, QString* name) {
  *tag = Id3Tag{};
  name->clear();
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0 || !file) return false;
  if (ReadV1(*file, tag)) {
    *name = texts::kId3v1Name;
    return true;
  }
  FileByteSource source(*file);
  int version = 0;
  if (source.IoFailed() || !Id3v2Reader::Read(source, tag, &version)) return false;
  *name = texts::kId3v2NamePrefix + QString::number(version);
  return true;
}

QString Id3GenreName(int index) {
  const QStringList& names = GenreNames();
  if (index < 0 || index >= names.size()) return {};
  return names[index];
}

QString Id3FixedText(const char* data, qint64 length, int mode, bool stopAtZero) {
  QString text;
  if (data == nullptr) return text;
  const qint64 first = mode == 2 ? 1 : 0;
  const qint64 step = (mode == 1 || mode == 2) ? 2 : 1;
  for (qint64 i = first; i < length; i += step) {
    const auto byte = static_cast<unsigned char>(data[i]);
    if (byte == 0 && stopAtZero) break;
    if (byte == '\r') continue;
    if (byte == '\n') {
      text += QStringLiteral("\r\n");
    } else {
      text += Cp1252(byte);
    }
  }
  return text;
}

Id3Values LoadId3Values(platform::FileSystem& fs, const QByteArray& path) {
  Id3Tag tag;
  QString name;
  Id3Values values;
  if (ReadFileId3Tag(fs, path, &tag, &name)) {
    values.title = CleanValue(tag.title);
    values.artist = CleanValue(tag.artist);
    values.album = CleanValue(tag.album);
    values.track = WithoutControlCharacters(Id3TrackText(TrimBlanks(TrackNumberPart(tag.track))));
  }
  values.title = OrPlaceholder(values.title, texts::kId3Title);
  values.artist = OrPlaceholder(values.artist, texts::kId3Artist);
  values.album = OrPlaceholder(values.album, texts::kId3Album);
  values.track = OrPlaceholder(values.track, texts::kId3Track);
  return values;
}

QString Id3TrackText(const QString& track) {
  bool isNumber = false;
  const int number = track.toInt(&isNumber);
  if (!isNumber) return track;
  return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString WithoutControlCharacters(QString text) {
  text.removeIf([](QChar c) { return c.unicode() < 32; });
  return text;
}

}  // namespace renvale::metadata
