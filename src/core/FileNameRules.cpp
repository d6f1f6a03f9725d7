#include "core/FileNameRules.h"

namespace renvale::core {

SplitName SplitFileName(const QString& name, bool forceLowerCaseExtension) {
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  if (dot < 0) return {name, QString()};
  QString extension = name.mid(dot);
  if (forceLowerCaseExtension) extension = extension.toLower();
  return {name.left(dot), extension};
}

QString ApplyForcedExtensionCase(const QString& name, bool forceLowerCaseExtension) {
  if (!forceLowerCaseExtension) return name;
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  if (dot < 0) return name;
  return name.left(dot) + name.mid(dot).toLower();
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
