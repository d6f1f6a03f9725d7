#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include "core/SettingsRecord.h"
#include "platform/SettingsStorage.h"

namespace renvale::shell {

class OptionsHost;

// The controls of the options window that stand for a setting. A check box
// has the values 0 and 1; a list or a group of option buttons has the index
// of its entry.
enum class OptionControl {
  ResFonts,    // "Resize fonts too"
  FLC,         // "Force lower-case extensions"
  FF,          // "All Files" / "Typical Image Files"
  DateFormat,  // twelve date formats
  TimeFormat,  // six time formats
  Option1,     // series number placeholders
  Option3,     // spacing before the series number
  Check3,      // reset the series number after a batch
  Check2,      // tool tips
  Option2,     // preview style
  Check1,      // automatic preview
};

// What a choice asks of the window besides changing the setting.
struct OptionEffect {
  QString message;  // shown with the information icon when not empty
  bool refilterFiles = false;

  bool operator==(const OptionEffect&) const = default;
};

// Everything the options window does to the settings, without the window:
// each choice changes the in-memory record at once, and the controls are
// set back from the record each time the window is shown.
class OptionChoices {
 public:
  OptionChoices(core::SettingsRecord& settings, platform::SettingsStorage& storage)
      : settings_(settings), storage_(storage) {}

  // What `control` shows for the value in the record.
  int Current(OptionControl control) const;
  // The person chose `value` on `control`; a value the control does not
  // offer changes nothing.
  OptionEffect Choose(OptionControl control, int value);

  // A hidden switch for support cases; returns the message to show.
  QString ToggleFixDirectShow();
  // Turns the quick tips back on and returns the message to show. Tips
  // above the restored range, once turned off, stay off.
  QString RestoreQuickTips();

  // "Done": hands the choices that need the main window over to it.
  void ApplyToWindow(OptionsHost& host) const;

  // The samples beside the choices, for the formats now in the record.
  QString DateSample(const QDate& today) const;
  QString TimeSample(const QTime& now) const;
  QString PlaceholderSample() const;
  QString SpacingSample() const;

 private:
  core::SettingsRecord& settings_;
  platform::SettingsStorage& storage_;
};

}  // namespace renvale::shell
