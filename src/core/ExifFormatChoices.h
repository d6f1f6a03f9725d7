#pragma once

#include <QString>
#include <QStringList>

namespace renvale::core {

// The date and time formats the options window offers, in list order.
const QStringList& DateFormatChoices();
const QStringList& TimeFormatChoices();

// The list entry to select for a stored format. A format typed into the
// settings file by hand is still used for names, but the list can only show
// one of its own entries, so it falls back to the first.
int DateFormatIndex(const QString& format);
int TimeFormatIndex(const QString& format);

}  // namespace renvale::core
