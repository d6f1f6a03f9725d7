#include "support/SampleRawFiles.h"

#include "support/Bytes.h"

namespace renvale::test {

namespace {

QByteArray FullBox(const char* type, quint8 version, const QByteArray& content) {
  return Box(type, QByteArray(1, char(version)) + QByteArray(3, '\0') + content);
}

QByteArray Filler(int size) { return QByteArray(size, '\x5A'); }

QByteArray Infe(quint16 id, const char* itemType) {
  return FullBox("infe", 2, Be16(id) + Be16(0) + QByteArray(itemType, 4) + QByteArray(1, '\0'));
}

// One item with one extent; offsets and lengths 4 bytes, no base offset.
QByteArray IlocItem(int version, quint16 id, quint32 offset, quint32 length) {
  QByteArray item = version < 2 ? Be16(id) : Be32(id);
  if (version > 0) item += Be16(0);  // construction method 0: in the file
  return item + Be16(0) + Be16(1) + Be32(offset) + Be32(length);
}

QByteArray Iloc(int version, quint32 exifOffset, quint32 exifLength) {
  QByteArray content("\x44\x00", 2);  // offset and length 4 bytes; base and index 0
  content += version < 2 ? Be16(2) : Be32(2);
  content += IlocItem(version, 1, 0, 0) + IlocItem(version, 2, exifOffset, exifLength);
  return FullBox("iloc", quint8(version), content);
}

QByteArray HeifMeta(int ilocVersion, quint32 exifOffset, quint32 exifLength) {
  const QByteArray hdlr = FullBox("hdlr", 0, Be32(0) + QByteArray("pict") + QByteArray(13, '\0'));
  const QByteArray iinf = FullBox("iinf", 0, Be16(2) + Infe(1, "hvc1") + Infe(2, "Exif"));
  return FullBox("meta", 0, hdlr + iinf + Iloc(ilocVersion, exifOffset, exifLength));
}

}  // namespace

QByteArray MakeRafFile(const QByteArray& jpeg) {
  QByteArray file("FUJIFILMCCD-RAW 0201FF383501FinePix S5Pro");
  file += QByteArray(84 - file.size(), '\0');
  const quint32 jpegAt = 100;
  file += Be32(jpegAt) + Be32(quint32(jpeg.size()));
  file += QByteArray(int(jpegAt) - file.size(), '\0');
  return file + jpeg + Filler(64);
}

QByteArray MakeMrwFile(const QByteArray& tiff) {
  const QByteArray prd = QByteArray("\0PRD", 4) + Be32(24) + Filler(24);
  const QByteArray ttw = QByteArray("\0TTW", 4) + Be32(quint32(tiff.size())) + tiff;
  const QByteArray blocks = prd + ttw;
  return QByteArray("\0MRM", 4) + Be32(quint32(blocks.size())) + blocks + Filler(64);
}

QByteArray MakeX3fFile(const QByteArray& jpeg) {
  QByteArray file = QByteArray("FOVb") + Le32(0x00020003) + Filler(56);
  const quint32 sectionAt = quint32(file.size());
  file += QByteArray("SECi") + Le32(0x00020000) + Le32(2) + Le32(18) + Le32(32) + Le32(24) + Le32(0) + jpeg;
  const quint32 sectionLength = quint32(file.size()) - sectionAt;
  file += Filler(2);  // keeps the directory off the end of the section
  const quint32 directoryAt = quint32(file.size());
  file += QByteArray("SECd") + Le32(0x00020000) + Le32(1);
  file += Le32(sectionAt) + Le32(sectionLength) + QByteArray("IMA2");
  return file + Le32(directoryAt);
}

QByteArray MakeCr3File(const ExifFields& exif, bool bigEndian) {
  const TiffBuilder tiff = ExifTiffBuilder(exif, bigEndian);
  const QByteArray uuid("\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48", 16);
  const QByteArray canon = uuid + Box("CNCV", "CanonCR3_001/00.09.00/00.00.00") +
                           Box("CMT1", tiff.BuildSingle(TiffBuilder::Ifd::Zero)) +
                           Box("CMT2", tiff.BuildSingle(TiffBuilder::Ifd::Exif));
  const QByteArray ftyp = Box("ftyp", QByteArray("crx ") + Be32(1) + QByteArray("crx isom"));
  return ftyp + Box("moov", Box("uuid", canon)) + Box("mdat", Filler(64));
}

QByteArray MakeHeifFile(const QByteArray& tiff, int ilocVersion) {
  const QByteArray ftyp = Box("ftyp", QByteArray("heic") + Be32(0) + QByteArray("mif1heic"));
  const QByteArray exifItem = Be32(6) + QByteArray("Exif\0\0", 6) + tiff;
  // The meta box's size does not depend on the offsets in it, so build it
  // once to learn where the mdat content will start.
  const int metaSize = int(HeifMeta(ilocVersion, 0, 0).size());
  const quint32 itemAt = quint32(ftyp.size() + metaSize + 8 + 16);
  const QByteArray meta = HeifMeta(ilocVersion, itemAt, quint32(exifItem.size()));
  return ftyp + meta + Box("mdat", Filler(16) + exifItem + Filler(16));
}

}  // namespace renvale::test
