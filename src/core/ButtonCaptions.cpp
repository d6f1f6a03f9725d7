#include "core/ButtonCaptions.h"

#include "core/CoreTexts.h"
#include "core/FileNameRules.h"

namespace renvale::core {

namespace {

// A number as the editor prompt prints it: a blank where a minus would go.
QString WithSignPosition(int number) {
  return (number < 0 ? QString() : QStringLiteral(" ")) + QString::number(number);
}

}  // namespace

QString EscapeCaption(const QString& text) {
  return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString UnescapeCaption(const QString& caption) {
  return QString(caption).replace(QLatin1String("&&"), QLatin1String("&"));
}

QString EditorPrompt(int editIndex) {
  if (IsTempEditIndex(editIndex)) {
    return texts::kEditPromptTemp + WithSignPosition(editIndex - kFirstTempEditIndex + 1);
  }
  return texts::kEditPromptButton + WithSignPosition(editIndex);
}

QString TempTextFromFilename(const QString& newName, const QString& selectedExtension) {
  if (!EndsWithExtension(newName, selectedExtension)) return newName;
  return CutExtension(newName, selectedExtension);
}

}  // namespace renvale::core
