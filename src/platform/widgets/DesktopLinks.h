#pragma once

#include <QString>

namespace renvale::platform {

// Hands `address` (a web address) to the desktop's browser; false when the
// desktop could not open it.
bool OpenInBrowser(const QString& address);

// Opens the desktop's mail program with a new message to `mailbox`.
bool WriteEmailTo(const QString& mailbox);

}  // namespace renvale::platform
