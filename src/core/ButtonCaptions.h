#pragma once

#include <QString>

// The texts of the nine custom and three temp buttons. A button's caption
// holds the user's text with every "&" doubled, so Qt shows a literal
// ampersand instead of an access-key underline; what is inserted and edited
// is the plain form.

namespace renvale::core {

// "A&B" -> "A&&B".
QString EscapeCaption(const QString& text);
// "A&&B" -> "A&B"; pairs are taken left to right, so "&&&" -> "&&".
QString UnescapeCaption(const QString& caption);

// The editing index held while the button editor is open: custom button n
// (1..9) is n, temp button k (control index 0..2) is 20 + k.
inline constexpr int kFirstTempEditIndex = 20;
inline constexpr int CustomEditIndex(int buttonNumber) { return buttonNumber; }
inline constexpr int TempEditIndex(int controlIndex) { return kFirstTempEditIndex + controlIndex; }
inline constexpr bool IsTempEditIndex(int editIndex) { return editIndex >= kFirstTempEditIndex; }

// The editor frame's caption: "Enter new text for Button # 3" for custom
// button 3, "Enter new text for Temp # 1" for the first temp button. The
// number is printed with its sign position, hence the blank after "#".
QString EditorPrompt(int editIndex);

// The text "Filename as Temp+" stores (before escaping): `newName` without
// its last `selectedExtension.size()` characters when it ends with the
// selected extension compared without regard to case, else `newName`.
QString TempTextFromFilename(const QString& newName, const QString& selectedExtension);

}  // namespace renvale::core
