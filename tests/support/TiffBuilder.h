#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <vector>

namespace renvale::test {

// Assembles a small TIFF structure (header, IFD0 and optionally an Exif
// sub-IFD) in either byte order, the way cameras lay out their EXIF block.
// Values of more than four bytes go into a data area after each IFD.
// Entries are written in ascending tag order, as the TIFF rules ask.
class TiffBuilder {
 public:
  enum class Ifd { Zero, Exif };

  explicit TiffBuilder(bool bigEndian) : bigEndian_(bigEndian) {}

  void Ascii(Ifd ifd, quint16 tag, const QByteArray& text);  // adds the NUL
  void Short(Ifd ifd, quint16 tag, quint16 value);
  void Long(Ifd ifd, quint16 tag, quint32 value);
  void Rational(Ifd ifd, quint16 tag, quint32 num, quint32 den);
  void SRational(Ifd ifd, quint16 tag, qint32 num, qint32 den);
  void Undefined(Ifd ifd, quint16 tag, const QByteArray& bytes);

  // The whole structure, offsets counted from its first byte. An Exif IFD
  // pointer (tag 0x8769) is added to IFD0 when the Exif IFD has entries.
  QByteArray Build() const;
  // A structure whose one directory holds the entries given for `ifd`
  // (CR3 keeps IFD0 and the Exif IFD in two such blocks).
  QByteArray BuildSingle(Ifd ifd) const;

 private:
  struct Entry {
    quint16 tag;
    quint16 type;
    quint32 count;
    QByteArray value;  // already in the file's byte order
  };

  void Add(Ifd ifd, quint16 tag, quint16 type, quint32 count, const QByteArray& value);
  QByteArray U16(quint16 value) const;
  QByteArray U32(quint32 value) const;
  QByteArray BuildIfd(std::vector<Entry> entries, quint32 start) const;
  static quint32 IfdSize(const std::vector<Entry>& entries);

  bool bigEndian_;
  std::vector<Entry> ifd0_;
  std::vector<Entry> exif_;
};

}  // namespace renvale::test
