#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/ExifTagSet.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

class ByteSource;

// Reads the EXIF block of one picture file and answers tags by name.
// Build one per file; nothing is cached between files.
class ExifReader {
 public:
  // Loads from a file; reads only the bytes it needs.
  void Load(platform::FileSystem& fs, const QByteArray& path);
  // Whether a load learns the file's identity (OpenedIdentity) as it opens
  // it, or reads the contents alone.
  enum class Identity { Wanted, NotWanted };
  // The same for the file `name` of a folder held for many reads.
  void Load(platform::ReadableFolder& folder, const QByteArray& name, Identity identity);
  // Loads keep only `tags`: a reader that needs two of them, for every file
  // of a batch, does not copy the rest out of each file.
  void TakeOnly(std::initializer_list<ExifTag> tags) { tags_.TakeOnly(tags); }
  // Loads from whole-file bytes already in memory (tests, fuzzing).
  void LoadBytes(const char* data, qint64 size);

  // The value of one of the sixteen tag names as text; empty when absent.
  QString Tag(const QString& name) const;
  // The same for a tag the caller knows by itself rather than by name.
  QString Tag(ExifTag tag) const;
  // Empty after a good load; ends in "not found." when the file has no EXIF;
  // any other text when the file is damaged or unreadable.
  QString Status() const;
  // The file the last Load opened, as it found it; false when it opened
  // none or the system did not tell.
  bool OpenedIdentity(platform::FileInfo* info) const {
    if (opened_) *info = identity_;
    return opened_;
  }

 private:
  void Reset();
  void LoadOpened(int error, platform::ReadableFile* file);
  void LoadFrom(ByteSource& source);
  void SetSystemError(const char* text, int errorNumber);

  ExifTagSet tags_;
  QString status_;
  platform::FileInfo identity_;
  bool opened_ = false;
};

}  // namespace renvale::metadata
