#pragma once

#include <QString>
#include <optional>

#include "core/RandomSeriesPool.h"
#include "core/RenameContext.h"
#include "core/SeriesCounter.h"
#include "core/SeriesBox.h"

namespace renvale::core {

// Turns the batch's base name into each file's new name: the base with the
// file's own extension, its tokens replaced by that file's values in the
// batch's fixed order, one series number per file that uses one.
class BatchFileNamer {
 public:
  // Names the files of `folder`; `base` has no extension. Series numbers
  // come from `box` (the window's box, or a copy of it when the names are
  // only worked out). With `randomCount` set, the numbers v .. v +
  // randomCount - 1 (v read from the box) are handed out once each in a
  // random order instead of counting up.
  BatchFileNamer(const RenameContext& context, SeriesBox& box, const QByteArray& folder, const QString& base,
                 std::optional<int> randomCount,
                 RandomSeriesPool::RandomSource random = RandomSeriesPool::TimeSeededSource());

  // The base followed by the file's extension, tokens still in it;
  // `shown` is file.Display(), which the caller has at hand.
  QString Unexpanded(const QString& shown);
  // The new name of `file` made from Unexpanded(shown).
  QString Expand(const platform::FileName& file, const QString& shown, const QString& unexpanded);
  // Whether the last Expand took a series number.
  bool SeriesTaken() const { return seriesTaken_; }

 private:
  QString TokenValue(const platform::FileName& file, const QString& shown, Token token);
  QString NextSeriesText();

  const RenameContext& context_;
  QByteArray folder_;
  QString base_;
  SeriesBox& box_;
  SeriesCounter counter_;
  std::optional<RandomSeriesPool> pool_;
  Id3Values id3_;  // of the last ".mp3"; other files keep them, as the menu's values do
  bool seriesTaken_ = false;
  QString lastExtension_;   // of the last file with one
  QString lastUnexpanded_;  // what Unexpanded gave for it
};

}  // namespace renvale::core
