#pragma once

#include <QString>

// Texts the session logic hands to the window.
namespace renvale::core::texts {

inline const QString kNoFileSelected = QStringLiteral("(No File Selected)");
inline const QString kAutoPreviewDisabledTools =
    QStringLiteral("Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
inline QString FilesSelected(int count) { return QStringLiteral("%1 files selected").arg(count); }

}  // namespace renvale::core::texts
