#pragma once

#include <QString>

namespace renvale::core {

// The two file-list filters of the "FileFilter" setting: "0" all files, "1"
// typical image files.
enum class FileFilter { AllFiles, TypicalImages };

// Patterns are separated by ";" and match without regard to letter case.
inline const QString kAllFilesPattern = QStringLiteral("*.*");

// The classic picture types, then camera RAW files (a Canon THM is the JPEG
// thumbnail of a CRW and belongs with it; XMP sidecars are not pictures and
// stay out), then the media types the preview plays.
inline const QString kImagePatterns = QStringLiteral(
    "*.ART;*.BMP;*.CUR;*.CUT;*.DIB;*.EMF;*.GEM;*.GIF;*.HRZ;*.ICO;*.IFF;*.IMG;*.JPE;*.JPG;*.JPEG;"
    "*.LBM;*.MAC;*.MSP;*.PBM;*.PCD;*.PCX;*.PGM;*.PIC;*.PNG;*.PNM;*.PPM;*.PSD;*.RAS;*.RLE;*.TGA;"
    "*.TIF;*.TIFF;*.WMF;*.WPG"
    ";*.CRW;*.THM;*.CR2;*.CR3;*.NEF;*.NRW;*.ARW;*.SR2;*.SRF;*.DNG;*.ORF;*.RW2;*.RWL;*.PEF;*.RAF;"
    "*.SRW;*.X3F;*.MRW;*.DCR;*.KDC;*.3FR;*.IIQ;*.HEIC;*.HEIF;*.WEBP"
    ";*.AVI;*.MPG;*.MPE;*.MPEG;*.MOV;*.3GP;*.MP4;*.M4V;*.WMV;*.ASF;*.WAV;*.WMA;*.MP3;*.MID;*.RAM;"
    "*.RA;*.RM");

inline const QString& FilterPatterns(FileFilter filter) {
  return filter == FileFilter::TypicalImages ? kImagePatterns : kAllFilesPattern;
}

}  // namespace renvale::core
