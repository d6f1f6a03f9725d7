#pragma once

#include <QString>

namespace renvale::platform::texts {

inline const QString kHelpWindowTitle = QStringLiteral("Renvale Help");
inline const QString kHelpBack = QStringLiteral("< &Back");
inline const QString kHelpForward = QStringLiteral("&Forward >");
inline const QString kHelpFind = QStringLiteral("F&ind:");
inline const QString kHelpFindNext = QStringLiteral("Find &Next");
inline const QString kHelpContents = QStringLiteral("Contents");
inline const QString kHelpNotFound = QStringLiteral("Not found on this page");

}  // namespace renvale::platform::texts
