#pragma once

#include <QString>

#include "core/RenameSession.h"
#include "core/SeriesCounter.h"
#include "core/SettingsRecord.h"
#include "core/TokenExpansion.h"
#include "metadata/ExifValues.h"
#include "metadata/mdlID3.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

// What each insert button and menu entry puts into the new name. With one
// file selected that is a value of that file; with several it is a token,
// which the batch fills in per file. Knows nothing of widgets, so every rule
// here is tested without a window.
class ComposeValues {
 public:
  ComposeValues(core::RenameSession& session, const core::SettingsRecord& settings,
                platform::FileSystem& fs, platform::MessagePort& messages, core::SeriesBox& seriesBox);

  bool FileSelected() const { return session_.SelectedCount > 0; }

  QString OrigFilename() const;
  // `form` 1 date, 2 time, 3 date and time, 4 serial; warns about a missing
  // serial number.
  QString Exif(int form);
  // The ID3 values are read from the selected file when it is an ".mp3";
  // any other file has no tag to offer, so its entries insert nothing.
  void LoadId3ForSelected();
  QString Id3(core::Token token) const;
  // "(Series #)": a number (consumed) or "%SERIES%", then the separator.
  QString Series();
  // A custom or temp button's caption in its plain form; in individual mode
  // its tokens replaced by the selected file's values.
  QString Button(const QString& caption);
  void ResetSeries() { series_.ResetSeries(); }

 private:
  metadata::ExifFile SelectedFile() const;
  metadata::ExifDateFormats Formats() const;
  QString ButtonTokenValue(core::Token token);
  QString TakeSeriesNumber();

  core::RenameSession& session_;
  const core::SettingsRecord& settings_;
  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  core::SeriesCounter series_;
  metadata::Id3Values id3_;
};

}  // namespace renvale::shell
