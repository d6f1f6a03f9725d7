#include "platform/AttributeLetters.h"

#include "platform/ErrorNumbers.h"

namespace renvale::platform {

namespace {

struct AttributeLetter {
  QChar letter;
  bool (*isSet)(const FileInfo&);
};

// Kept in the order the letters are shown.
const AttributeLetter kAttributeLetters[] = {
    {QLatin1Char('D'), [](const FileInfo& info) { return info.isDir; }},
    {QLatin1Char('H'), [](const FileInfo& info) { return info.isHidden; }},
    {QLatin1Char('R'), [](const FileInfo& info) { return !info.isWritable; }},
};

}  // namespace

QString AttributeLettersOf(const FileInfo& info) {
  QString letters;
  for (const AttributeLetter& entry : kAttributeLetters) {
    if (entry.isSet(info)) letters += entry.letter;
  }
  return letters;
}

QString AttributeLetters(FileSystem& fileSystem, const QByteArray& path) {
  FileInfo info;
  if (fileSystem.Stat(path, &info) != kNoError) return QString();
  return AttributeLettersOf(info);
}

}  // namespace renvale::platform
