#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {
class FileSystem;
}

// ID3 version 1 tags: the 128 bytes at the end of a music file. Tags are
// only read, never written.
namespace renvale::metadata {

// Every field as text, empty when absent.
struct Id3Tag {
  QString artist;
  QString album;
  QString title;
  QString year;
  QString genre;
  QString comment;
  QString track;
};

// The four values that file names use. A file without a tag, or a field
// left empty, gets the placeholder word ("Title", "Artist", "Album",
// "Track") so that the name stays readable.
struct Id3Values {
  QString title;
  QString artist;
  QString album;
  QString track;
};

inline constexpr qint64 kId3TagSize = 128;

// Empties `tag`, then reads the tag of the file at `path`. False when the
// file cannot be opened, is shorter than 128 bytes or has no "TAG" there.
bool ReadId3Tag(platform::FileSystem& fs, const QByteArray& path, Id3Tag* tag);
// The same on bytes in memory: the tag is the last 128 of `size` bytes.
bool ParseId3Tag(const char* data, qint64 size, Id3Tag* tag);

// The genre's name for 0 to 147, empty for any other index.
QString Id3GenreName(int index);

// Turns `length` bytes into text. Mode 0 takes every byte; mode 1 every
// second byte from the first and mode 2 every second byte from the second
// (the low bytes of little- and big-endian 16-bit text). With `stopAtZero`
// the text ends at the first zero byte taken. CR is dropped, LF becomes
// CR LF, and bytes above 127 are read as Windows-1252, the code page these
// tags were written in.
QString Id3FixedText(const char* data, qint64 length, int mode, bool stopAtZero);

// The tag a music file's names and report come from: its ID3v1 tag when
// it has one, else the ID3v2 tag at its start. Empties `tag` first; `name`
// gets the tag's name ("ID3v1", "ID3v2.3"). False when there is neither.
bool ReadFileId3Tag(platform::FileSystem& fs, const QByteArray& path, Id3Tag* tag, QString* name);

// Reads the tag of one file (see ReadFileId3Tag) into the values for file
// names (see Id3Values). A track written "3/11" gives its own number.
Id3Values LoadId3Values(platform::FileSystem& fs, const QByteArray& path);

// Helpers shared with the report: a track number with at least two digits
// ("7" gives "07"; text that is not a number stays as it is), and a text
// without the characters of codes 0 to 31.
QString Id3TrackText(const QString& track);
QString WithoutControlCharacters(QString text);

}  // namespace renvale::metadata
