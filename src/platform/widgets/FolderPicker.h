#pragma once

#include <QString>

class QWidget;

namespace renvale::platform {

// The desktop's folder dialog. Returns the chosen folder, an empty text on
// cancel, or "::" followed by the location when the choice is not a local
// folder (a remote or virtual place), which callers reject.
QString PickFolder(QWidget* parent, const QString& title, const QString& startFolder);

}  // namespace renvale::platform
