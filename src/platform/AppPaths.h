#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {

// The process's current directory as raw bytes, with a trailing '/'.
QByteArray CurrentDirectory();

// The per-user data folder that holds templates:
// $XDG_DATA_HOME/MorventSoftware/Renvale/ (created on first use).
QString DataFolder();

// The per-user folder for the operations' journals:
// $XDG_STATE_HOME/MorventSoftware/Renvale/ (created on first use). Always on
// this computer, never on the card being renamed.
QString StateFolder();

// Where the help pages live; the help window resolves topics against it.
QString HelpFilePath();

}  // namespace renvale::platform
