#include "support/SampleMedia.h"

#include "support/Bytes.h"

namespace renvale::test {
namespace {

QByteArray SyncSafe(quint32 value) {
  return Be32((value & 0x7F) | (value << 1 & 0x7F00) | (value << 2 & 0x7F0000) | (value << 3 & 0x7F000000));
}

QByteArray Chunk(const char* id, const QByteArray& content) {
  QByteArray chunk = id + Le32(quint32(content.size())) + content;
  if (content.size() % 2) chunk += '\0';
  return chunk;
}

QByteArray KeyMeta(const QByteArray& value, bool iso) {
  const QByteArray key = "com.apple.quicktime.creationdate";
  const QByteArray other = "com.apple.quicktime.make";
  const QByteArray keys = Box("keys", Be32(0) + Be32(2) + Be32(quint32(other.size() + 8)) + "mdta" + other +
                                          Be32(quint32(key.size() + 8)) + "mdta" + key);
  const QByteArray item1 = Be32(8 + 8 + 8 + 5) + Be32(1) + Box("data", Be32(1) + Be32(0) + "Apple");
  const QByteArray item2 = Be32(quint32(8 + 8 + 8 + value.size())) + Be32(2) + Box("data", Be32(1) + Be32(0) + value);
  const QByteArray hdlr = Box("hdlr", QByteArray(8, '\0') + "mdta" + QByteArray(13, '\0'));
  return Box("meta", (iso ? Be32(0) : QByteArray()) + hdlr + keys + Box("ilst", item1 + item2));
}

}  // namespace

QByteArray Id3v2TextContent(quint8 encoding, const QByteArray& text, bool terminated) {
  QByteArray content = char(encoding) + text;
  if (terminated) content += (encoding == 1 || encoding == 2) ? QByteArray(2, '\0') : QByteArray(1, '\0');
  return content;
}

QByteArray Id3v2Frame(int major, const QByteArray& id, const QByteArray& content, quint16 flags, bool plainSize) {
  const auto size = quint32(content.size());
  if (major == 2) return id + Be32(size).mid(1) + content;
  const QByteArray sizeBytes = major == 4 && !plainSize ? SyncSafe(size) : Be32(size);
  return id + sizeBytes + char(flags >> 8) + char(flags & 0xFF) + content;
}

QByteArray MakeId3v2Tag(int major, quint8 flags, const QByteArray& body, int padding, qint64 statedSize) {
  const QByteArray padded = body + QByteArray(padding, '\0');
  const auto size = quint32(statedSize >= 0 ? statedSize : padded.size());
  return QByteArray("ID3") + char(major) + '\0' + char(flags) + SyncSafe(size) + padded;
}

QByteArray Unsynchronised(const QByteArray& bytes) {
  QByteArray out;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    out += bytes[i];
    const bool last = i + 1 == bytes.size();
    if (quint8(bytes[i]) == 0xFF && (last || bytes[i + 1] == 0 || quint8(bytes[i + 1]) >= 0xE0)) out += '\0';
  }
  return out;
}

QByteArray MakeQuickTimeMovie(const MovieFields& fields) {
  QByteArray mvhd = fields.longTimes ? QByteArray("\x01\0\0\0", 4) + Be32(quint32(fields.created >> 32)) +
                                           Be32(quint32(fields.created)) + QByteArray(8, '\0')
                                     : Be32(0) + Be32(quint32(fields.created)) + Be32(0);
  mvhd += Be32(600) + Be32(6000) + QByteArray(80, '\0');
  QByteArray moov = Box("mvhd", mvhd);
  if (!fields.keyDate.isEmpty()) moov += KeyMeta(fields.keyDate, fields.isoMeta);
  const QByteArray mdat = Box("mdat", QByteArray(64, '\x55'));
  QByteArray file = fields.ftyp ? Box("ftyp", QByteArray("qt  ") + Be32(0) + "qt  ") : QByteArray();
  return fields.mdatFirst ? file + mdat + Box("moov", moov) : file + Box("moov", moov) + mdat;
}

QByteArray MakeAvi(const QByteArray& idit, bool topLevel) {
  const QByteArray avih = Chunk("avih", QByteArray(56, '\0'));
  const QByteArray date = idit.isEmpty() ? QByteArray() : Chunk("IDIT", idit);
  const QByteArray hdrl = Chunk("LIST", "hdrl" + avih + (topLevel ? QByteArray() : date));
  const QByteArray movi = Chunk("LIST", "movi" + Chunk("00dc", QByteArray(100, '\x11')));
  const QByteArray body = "AVI " + hdrl + (topLevel ? date : QByteArray()) + movi;
  return "RIFF" + Le32(quint32(body.size())) + body;
}

}  // namespace renvale::test
