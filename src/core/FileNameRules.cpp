#include "core/FileNameRules.h"

namespace renvale::core {

QStringView ExtensionOf(QStringView name) {
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  return dot < 0 ? QStringView() : name.sliced(dot);
}

SplitName SplitFileName(const QString& name, bool forceLowerCaseExtension) {
  const QStringView extension = ExtensionOf(name);
  const QString base = name.left(name.size() - extension.size());
  return {base, forceLowerCaseExtension ? extension.toString().toLower() : extension.toString()};
}

QString ApplyForcedExtensionCase(const QString& name, bool forceLowerCaseExtension) {
  const QStringView extension = ExtensionOf(name);
  if (!forceLowerCaseExtension || extension.isEmpty()) return name;
  return name.left(name.size() - extension.size()) + extension.toString().toLower();
}

QString CutExtension(const QString& fileName, const QString& extension) {
  return fileName.left(qMax<qsizetype>(0, fileName.size() - extension.size()));
}

bool EndsWithExtension(const QString& text, const QString& extension) {
  return text.endsWith(extension, Qt::CaseInsensitive);
}

QString AppendMissingExtension(const QString& text, const QString& extension,
                               bool forceLowerCaseExtension) {
  if (EndsWithExtension(text, extension)) return text;
  return ApplyForcedExtensionCase(text + extension, forceLowerCaseExtension);
}

GuardedText GuardExtensionAfterInsert(const QString& text, const QString& extension) {
  if (EndsWithExtension(text, extension)) return {text, std::nullopt};
  return {text + extension, text.size()};
}

bool HasInvalidFilenameChars(const QString& name) {
  static const QString kForbidden = QStringLiteral("\\/:*?\"<>|");
  for (const QChar c : kForbidden) {
    if (name.contains(c)) return true;
  }
  return false;
}

}  // namespace renvale::core
