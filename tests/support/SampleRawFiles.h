#pragma once

#include <QByteArray>

#include "support/SampleImages.h"

namespace renvale::test {

// Small files in the layouts of camera raw formats whose EXIF is not at the
// start of a JPEG or TIFF. The picture data is a few filler bytes; only the
// structure a reader walks to the EXIF is real.

// Fujifilm RAF: the "FUJIFILMCCD-RAW" header, whose offsets at byte 84 point
// to the embedded `jpeg`.
QByteArray MakeRafFile(const QByteArray& jpeg);

// Minolta MRW: "\0MRM" blocks, the "\0TTW" one holding `tiff`.
QByteArray MakeMrwFile(const QByteArray& tiff);

// Sigma X3F: "FOVb" header, a "SECi" JPEG preview section holding `jpeg`
// and the "SECd" directory at the end that points to it.
QByteArray MakeX3fFile(const QByteArray& jpeg);

// Canon CR3: "ftyp" brand "crx ", then "moov" with Canon's uuid box holding
// the "CMT1" (IFD0) and "CMT2" (Exif IFD) TIFF blocks, then an "mdat".
QByteArray MakeCr3File(const ExifFields& exif, bool bigEndian = false);

// HEIF: "ftyp" brand "heic", "meta" with "iinf" naming item 2 as "Exif" and
// "iloc" (of the given version, 0 to 2) placing it inside the "mdat", which
// holds the offset word, "Exif\0\0" and `tiff`.
QByteArray MakeHeifFile(const QByteArray& tiff, int ilocVersion = 0);

}  // namespace renvale::test
