#include "metadata/Id3v2Reader.h"

#include <vector>

#include "metadata/MemoryByteSource.h"
#include "metadata/MetadataTexts.h"

namespace renvale::metadata {
namespace {

constexpr quint8 kUnsynchronised = 0x80;
constexpr quint8 kExtendedHeader = 0x40;
constexpr quint8 kCompressedTag = 0x40;  // version 2.2: no known way to read it

// Frame flags, second byte: 2.3 and 2.4 give them different places.
constexpr quint16 kV3Compressed = 0x0080;
constexpr quint16 kV3Encrypted = 0x0040;
constexpr quint16 kV3Grouped = 0x0020;
constexpr quint16 kV4Grouped = 0x0040;
constexpr quint16 kV4Compressed = 0x0008;
constexpr quint16 kV4Encrypted = 0x0004;
constexpr quint16 kV4Unsynchronised = 0x0002;
constexpr quint16 kV4DataLength = 0x0001;

constexpr quint8 kLatin1 = 0;
constexpr quint8 kUtf16Bom = 1;
constexpr quint8 kUtf16Be = 2;
constexpr quint8 kUtf8 = 3;

constexpr int kCommentHead = 4;  // encoding and language
constexpr qsizetype kYearLength = 4;

quint32 SyncSafe(quint32 value) {
  return (value & 0x7F) | (value >> 1 & 0x3F80) | (value >> 2 & 0x1FC000) | (value >> 3 & 0xFE00000);
}

bool IsSyncSafe(quint32 value) { return (value & 0x80808080u) == 0; }

QString TrimBlanks(const QString& text) {
  qsizetype start = 0;
  qsizetype end = text.size();
  while (start < end && text[start] == u' ') ++start;
  while (end > start && text[end - 1] == u' ') --end;
  return text.mid(start, end - start);
}

// Which field a frame fills, by its identifier in 2.2 (three letters) and
// in 2.3/2.4.
enum class Field { None, Title, Artist, Album, Track, Year, Genre, Comment };

Field FieldOf(const QByteArray& id) {
  struct Row {
    const char* v2;
    const char* v3;
    Field field;
  };
  static constexpr Row kRows[] = {
      {"TT2", "TIT2", Field::Title}, {"TP1", "TPE1", Field::Artist}, {"TAL", "TALB", Field::Album},
      {"TRK", "TRCK", Field::Track}, {"TYE", "TYER", Field::Year},   {"TCO", "TCON", Field::Genre},
      {"COM", "COMM", Field::Comment}, {"", "TDRC", Field::Year},
  };
  for (const Row& row : kRows) {
    if (id == row.v2 || id == row.v3) return row.field;
  }
  return Field::None;
}

QString Utf16Text(const char* data, qint64 size, bool bigEndian, qint64* used) {
  std::vector<char16_t> units;
  qint64 at = 0;
  for (; at + 1 < size; at += 2) {
    const auto hi = quint8(data[at + (bigEndian ? 0 : 1)]);
    const auto lo = quint8(data[at + (bigEndian ? 1 : 0)]);
    const char16_t unit = char16_t(hi << 8 | lo);
    if (unit == 0) {
      at += 2;
      break;
    }
    units.push_back(unit);
  }
  *used = qMin(at, size);
  return QString::fromUtf16(units.data(), qsizetype(units.size()));
}

qint64 ZeroAt(const char* data, qint64 size) {
  qint64 at = 0;
  while (at < size && data[at] != 0) ++at;
  return at;
}

}  // namespace

bool Id3v2Reader::Read(ByteSource& source, Id3Tag* tag, int* version) {
  *tag = Id3Tag{};
  *version = 0;
  ByteReader file(source, 0, source.Size());
  Header header;
  if (!ReadHeader(file, &header)) return false;
  *version = header.major;
  if (header.major == 2 && (header.flags & kCompressedTag)) return true;
  const bool wholeTagUnsynchronised = header.major < 4 && (header.flags & kUnsynchronised);
  if (!wholeTagUnsynchronised) {
    ReadFrames(file.Sub(kHeaderSize, header.length), header, tag);
    return true;
  }
  QByteArray bytes(qMin(header.length, kMaxUnsynchronisedTag), Qt::Uninitialized);
  if (!file.Bytes(kHeaderSize, bytes.data(), bytes.size())) return true;
  bytes = Resynchronised(bytes);
  MemoryByteSource decoded(bytes.constData(), bytes.size());
  ReadFrames(ByteReader(decoded, 0, bytes.size()), header, tag);
  return true;
}

bool Id3v2Reader::ReadHeader(ByteReader& file, Header* header) {
  if (!file.Matches(0, "ID3", 3)) return false;
  header->major = file.U8(3);
  const quint8 revision = file.U8(4);
  header->flags = file.U8(5);
  const quint32 size = file.U32(6);
  if (!file.Ok() || header->major < 2 || header->major > 4 || revision == 0xFF || !IsSyncSafe(size)) {
    return false;
  }
  header->length = qMin<qint64>(SyncSafe(size), file.Length() - kHeaderSize);
  return true;
}

void Id3v2Reader::ReadFrames(ByteReader body, const Header& header, Id3Tag* tag) {
  qint64 pos = FramesStart(body, header);
  bool commentFinal = false;
  Frame frame;
  for (int i = 0; i < kMaxFrames && pos >= 0 && ReadFrameHeader(body, header.major, pos, &frame); ++i) {
    QByteArray content;
    if (FieldOf(frame.id) != Field::None && FrameContent(body, header, frame, &content)) {
      KeepFrame(frame.id, content, tag, &commentFinal);
    }
    pos = frame.content + frame.size;
  }
}

// Where the first frame starts: after the extended header, whose size
// counts itself in 2.4 (a sync-safe number) and not in 2.3.
qint64 Id3v2Reader::FramesStart(ByteReader& body, const Header& header) {
  if (header.major < 3 || !(header.flags & kExtendedHeader)) return 0;
  const quint32 size = body.U32(0);
  if (!body.Ok()) return -1;
  if (header.major == 3) return qint64(size) + 4;
  return IsSyncSafe(size) ? qint64(SyncSafe(size)) : -1;
}

bool Id3v2Reader::ReadFrameHeader(ByteReader& body, int major, qint64 pos, Frame* frame) {
  const qint64 idLength = major == 2 ? 3 : 4;
  const qint64 headerLength = major == 2 ? 6 : 10;
  if (!body.Has(pos, headerLength)) return false;
  frame->id = QByteArray(int(idLength), Qt::Uninitialized);
  body.Bytes(pos, frame->id.data(), idLength);
  if (!ValidFrameId(frame->id)) return false;  // padding, or the frames are damaged
  frame->size = FrameSize(body, major, pos);
  frame->flags = major == 2 ? 0 : body.U16(pos + 8);
  frame->content = pos + headerLength;
  return body.Ok();
}

// iTunes wrote plain sizes into 2.4 tags, whose sizes are sync-safe: when
// both readings are possible, the one that lands on the next frame wins.
qint64 Id3v2Reader::FrameSize(ByteReader& body, int major, qint64 pos) {
  if (major == 2) return qint64(body.U16(pos + 3)) << 8 | body.U8(pos + 5);
  const quint32 raw = body.U32(pos + 4);
  if (major == 3 || !IsSyncSafe(raw)) return raw;
  const qint64 syncSafe = SyncSafe(raw);
  if (syncSafe == raw || LandsOnFrame(body, pos + 10 + syncSafe)) return syncSafe;
  return LandsOnFrame(body, pos + 10 + qint64(raw)) ? qint64(raw) : syncSafe;
}

bool Id3v2Reader::LandsOnFrame(ByteReader& body, qint64 pos) {
  if (pos == body.Length()) return true;
  char id[4];
  if (!body.Has(pos, 4) || !body.Bytes(pos, id, 4)) return false;
  return id[0] == 0 || ValidFrameId(QByteArray(id, 4));
}

bool Id3v2Reader::ValidFrameId(const QByteArray& id) {
  for (const char c : id) {
    if (!((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))) return false;
  }
  return true;
}

// The frame's data with its group byte and data length skipped and its
// unsynchronisation undone; false for compressed or encrypted frames.
bool Id3v2Reader::FrameContent(ByteReader& body, const Header& header, const Frame& frame, QByteArray* out) {
  qint64 skip = 0;
  bool unsynchronised = false;
  if (header.major == 3) {
    if (frame.flags & (kV3Compressed | kV3Encrypted)) return false;
    skip = (frame.flags & kV3Grouped) ? 1 : 0;
  } else if (header.major == 4) {
    if (frame.flags & (kV4Compressed | kV4Encrypted)) return false;
    skip = ((frame.flags & kV4Grouped) ? 1 : 0) + ((frame.flags & kV4DataLength) ? 4 : 0);
    unsynchronised = (header.flags & kUnsynchronised) || (frame.flags & kV4Unsynchronised);
  }
  const qint64 available = qMax<qint64>(0, body.Length() - frame.content);
  const qint64 length = qMin(qMin(frame.size, available), kMaxFrameRead) - skip;
  if (length <= 0) return false;
  *out = QByteArray(length, Qt::Uninitialized);
  if (!body.Bytes(frame.content + skip, out->data(), length)) return false;
  if (unsynchronised) *out = Resynchronised(*out);
  return true;
}

// A tag should hold one frame of each kind; when it holds more, the last
// one with a text counts, as other readers take it. Of the comments, the
// first without a description (players keep their own data in described
// ones), else the first.
void Id3v2Reader::KeepFrame(const QByteArray& id, const QByteArray& content, Id3Tag* tag, bool* commentFinal) {
  const Field field = FieldOf(id);
  if (field == Field::Comment) {
    if (*commentFinal) return;
    bool described = false;
    const QString text = CommentText(content, &described);
    if (!described) *commentFinal = true;
    if (!described || tag->comment.isEmpty()) tag->comment = text;
    return;
  }
  QString* targets[] = {nullptr, &tag->title, &tag->artist, &tag->album, &tag->track, &tag->year, &tag->genre};
  QString text = FrameText(content);
  if (field == Field::Genre) text = GenreText(text);
  if (field == Field::Year && id == "TDRC") text = text.left(kYearLength);  // "2004-05-06T10:00"
  if (!text.isEmpty()) *targets[int(field)] = text;
}

QString Id3v2Reader::FrameText(const QByteArray& content) {
  qint64 used = 0;
  return TrimBlanks(DecodeText(quint8(content[0]), content.constData() + 1, content.size() - 1, &used));
}

QString Id3v2Reader::CommentText(const QByteArray& content, bool* described) {
  if (content.size() < kCommentHead) return {};
  const auto encoding = quint8(content[0]);
  const char* rest = content.constData() + kCommentHead;
  const qint64 restSize = content.size() - kCommentHead;
  qint64 used = 0;
  *described = !DecodeText(encoding, rest, restSize, &used).isEmpty();
  return DecodeText(encoding, rest + used, restSize - used, &used);
}

QString Id3v2Reader::DecodeText(quint8 encoding, const char* data, qint64 size, qint64* used) {
  *used = 0;
  if (size <= 0) return {};
  switch (encoding) {
    case kLatin1:
    case kUtf8: {
      const qint64 end = ZeroAt(data, size);
      *used = qMin(end + 1, size);
      return encoding == kLatin1 ? QString::fromLatin1(data, end) : QString::fromUtf8(data, end);
    }
    case kUtf16Bom: {
      const bool bom = size >= 2 && ((quint8(data[0]) == 0xFF && quint8(data[1]) == 0xFE) ||
                                     (quint8(data[0]) == 0xFE && quint8(data[1]) == 0xFF));
      const bool bigEndian = !bom || quint8(data[0]) == 0xFE;
      const qint64 skip = bom ? 2 : 0;
      const QString text = Utf16Text(data + skip, size - skip, bigEndian, used);
      *used += skip;
      return text;
    }
    case kUtf16Be:
      return Utf16Text(data, size, true, used);
    default:
      return {};
  }
}

QString Id3v2Reader::GenreText(const QString& text) {
  QString rest = text;
  QString number;
  if (rest.startsWith(u'(')) {
    const qsizetype close = rest.indexOf(u')');
    if (close > 0) {
      number = rest.mid(1, close - 1);
      rest = rest.mid(close + 1);
    }
  } else {
    number = rest;
    rest.clear();
  }
  if (!rest.isEmpty()) return rest;
  if (number == QLatin1String("RX")) return texts::kId3Remix;
  if (number == QLatin1String("CR")) return texts::kId3Cover;
  bool isNumber = false;
  const int index = number.toInt(&isNumber);
  if (!isNumber) return text;
  const QString name = Id3GenreName(index);
  return name.isEmpty() ? text : name;
}

QByteArray Id3v2Reader::Resynchronised(const QByteArray& bytes) {
  QByteArray out;
  out.reserve(bytes.size());
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    out += bytes[i];
    if (quint8(bytes[i]) == 0xFF && i + 1 < bytes.size() && bytes[i + 1] == 0) ++i;
  }
  return out;
}

}  // namespace renvale::metadata
