#pragma once

#include <QByteArray>
#include <ostream>

namespace renvale::test {

// Byte-exact file helpers for tests: names that are not UTF-8 must not pass
// through QString on their way to the disk.
bool WriteRaw(const QByteArray& path, const QByteArray& contents);
QByteArray ReadRaw(const QByteArray& path);
bool RawExists(const QByteArray& path);

// A fresh temporary folder, as raw bytes with a trailing '/'. Removed with
// everything in it, also names QDir cannot see. `parent` chooses the file
// system, e.g. a tmpfs.
class ScratchFolder {
 public:
  explicit ScratchFolder(const QByteArray& parent = "/tmp");
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const QByteArray& path() const { return path_; }
  QByteArray operator/(const QByteArray& name) const { return path_ + name; }

 private:
  QByteArray path_;
};

}  // namespace renvale::test

// Failure messages show byte names as escaped text, not as byte lists.
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << '"' << bytes.toPercentEncoding("/ .-_").constData() << '"';
}
