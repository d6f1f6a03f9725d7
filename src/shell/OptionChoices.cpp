#include "shell/OptionChoices.h"

#include <algorithm>
#include <iterator>

#include "core/ExifFormatChoices.h"
#include "core/QuickTipFlags.h"
#include "core/SeriesFormat.h"
#include "core/SettingNames.h"
#include "metadata/DateTimePicture.h"
#include "shell/OptionsHost.h"
#include "shell/OptionsTexts.h"

namespace renvale::shell {
namespace {

using core::SettingsRecord;

// Option1 index -> digits; Option3 index -> separator.
constexpr int kPlaceholderDigits[] = {0, 2, 3, 4, 5};
const QLatin1StringView kSpacings[] = {core::setting::kSpacingBlank, core::setting::kSpacingDash,
                                       core::setting::kSpacingNone};

// The date a time alone carries, so that a date code in a time format
// prints what it would print in a file name.
const QDate kZeroDate(1899, 12, 30);

template <typename Range, typename Value>
int IndexIn(const Range& range, const Value& value) {
  const auto found = std::find(std::begin(range), std::end(range), value);
  return found == std::end(range) ? 0 : static_cast<int>(found - std::begin(range));
}

template <typename Range>
bool Offers(const Range& range, int index) {
  return index >= 0 && index < static_cast<int>(std::size(range));
}

struct Binding {
  OptionControl control;
  int (*current)(const SettingsRecord&);
  // False when the control does not offer `value`.
  bool (*choose)(SettingsRecord&, int value);
};

template <bool SettingsRecord::*Switch>
Binding SwitchBinding(OptionControl control) {
  return {control, [](const SettingsRecord& s) { return s.*Switch ? 1 : 0; },
          [](SettingsRecord& s, int value) {
            s.*Switch = value != 0;
            return true;
          }};
}

template <int SettingsRecord::*Choice>
Binding PairBinding(OptionControl control) {
  return {control, [](const SettingsRecord& s) { return s.*Choice == 1 ? 1 : 0; },
          [](SettingsRecord& s, int value) {
            if (value != 0 && value != 1) return false;
            s.*Choice = value;
            return true;
          }};
}

template <QString SettingsRecord::*Format>
bool ChooseFormat(SettingsRecord& s, const QStringList& choices, int index) {
  if (!Offers(choices, index)) return false;
  s.*Format = choices[index];
  return true;
}

const Binding kBindings[] = {
    SwitchBinding<&SettingsRecord::resizeFonts>(OptionControl::ResFonts),
    SwitchBinding<&SettingsRecord::forceLowerCaseExtension>(OptionControl::FLC),
    PairBinding<&SettingsRecord::fileFilter>(OptionControl::FF),
    {OptionControl::DateFormat, [](const SettingsRecord& s) { return core::DateFormatIndex(s.exifDate); },
     [](SettingsRecord& s, int index) {
       return ChooseFormat<&SettingsRecord::exifDate>(s, core::DateFormatChoices(), index);
     }},
    {OptionControl::TimeFormat, [](const SettingsRecord& s) { return core::TimeFormatIndex(s.exifTime); },
     [](SettingsRecord& s, int index) {
       return ChooseFormat<&SettingsRecord::exifTime>(s, core::TimeFormatChoices(), index);
     }},
    {OptionControl::Option1, [](const SettingsRecord& s) { return IndexIn(kPlaceholderDigits, s.placeholders); },
     [](SettingsRecord& s, int index) {
       if (!Offers(kPlaceholderDigits, index)) return false;
       s.placeholders = kPlaceholderDigits[index];
       return true;
     }},
    {OptionControl::Option3, [](const SettingsRecord& s) { return IndexIn(kSpacings, s.seriesSpacing); },
     [](SettingsRecord& s, int index) {
       if (!Offers(kSpacings, index)) return false;
       s.seriesSpacing = kSpacings[index];
       return true;
     }},
    SwitchBinding<&SettingsRecord::autoResetSeries>(OptionControl::Check3),
    SwitchBinding<&SettingsRecord::toolTips>(OptionControl::Check2),
    PairBinding<&SettingsRecord::previewStyle>(OptionControl::Option2),
    SwitchBinding<&SettingsRecord::autoPreview>(OptionControl::Check1),
};

const Binding& BindingOf(OptionControl control) {
  return *std::find_if(std::begin(kBindings), std::end(kBindings),
                       [control](const Binding& binding) { return binding.control == control; });
}

}  // namespace

int OptionChoices::Current(OptionControl control) const { return BindingOf(control).current(settings_); }

OptionEffect OptionChoices::Choose(OptionControl control, int value) {
  OptionEffect effect;
  if (!BindingOf(control).choose(settings_, value)) return effect;
  // Fonts already scaled stay scaled until the next start.
  if (control == OptionControl::ResFonts && value == 0) effect.message = texts::kRestartForFonts;
  effect.refilterFiles = control == OptionControl::FF;
  return effect;
}

QString OptionChoices::ToggleFixDirectShow() {
  settings_.fixDirectShow = !settings_.fixDirectShow;
  return settings_.fixDirectShow ? texts::kDirectShowEnabled : texts::kDirectShowDisabled;
}

QString OptionChoices::RestoreQuickTips() {
  core::QuickTipFlags(storage_).RestoreQuickTips();
  return texts::kQuickTipsRestored;
}

void OptionChoices::ApplyToWindow(OptionsHost& host) const {
  host.SetPreviewStyle(settings_.previewStyle);
  host.ShowPreview(settings_.autoPreview);
  host.ReformatSeriesBox();
  host.ApplyToolTips(settings_.toolTips);
  if (settings_.resizeFonts) host.RescaleWindow();
}

QString OptionChoices::DateSample(const QDate& today) const {
  return metadata::FormatDateTimePicture(settings_.exifDate, today, QTime(0, 0));
}

QString OptionChoices::TimeSample(const QTime& now) const {
  return metadata::FormatDateTimePicture(settings_.exifTime, kZeroDate, now);
}

QString OptionChoices::PlaceholderSample() const {
  return core::FormatSeriesNumber(1, core::SeriesPattern(settings_.placeholders));
}

QString OptionChoices::SpacingSample() const {
  return texts::kSpacingSampleBase + core::SeriesSeparator(settings_.seriesSpacing) + texts::kSpacingSampleNumber;
}

}  // namespace renvale::shell
