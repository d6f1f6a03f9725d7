#pragma once

#include <QString>
#include <QStringList>
#include <chrono>
#include <memory>
#include <vector>

#include "core/FileRenamer.h"
#include "core/RandomSeriesPool.h"
#include "core/RenameContext.h"

namespace renvale::core {

// One selected file of a batch with the name the batch gives it, worked out
// before anything is renamed.
struct NamedFile {
  platform::FileName file;
  bool travels = false;  // goes along with a selected file it belongs to
  QString shown;         // the file's own name as text, for a file that does not travel
  QString unexpanded;    // what the new-name box shows at the file's turn
  QString newName;
  // The new name as bytes, and whether it is the file's own: the batch asks
  // both several times per file, and they are worked out once.
  QByteArray target;
  bool sameName = false;
  QStringList messages;  // what working out its values would have shown, in order
  bool seriesTaken = false;
  QString seriesAfter;   // the "Next Series #:" box once its number is taken
  QString dateSource;    // asked for only when wanted
  // The file as the reading of its values found it, when they were read:
  // the plan's identity without asking the system again.
  bool identityRead = false;
  FileIdentity identity;
};

// Every name of a batch, in list order: the one computation behind both the
// batch and its preview, so the preview shows exactly what the batch does.
struct BatchNaming {
  QByteArray folder;
  QString base;            // without extension
  QString seriesAtStart;   // the box before the first number
  std::vector<NamedFile> files;
  QString seriesAtEnd;     // the box after the last number
  // When the first file was named: how old the identities read with the
  // values may be.
  std::chrono::steady_clock::time_point namedFrom = std::chrono::steady_clock::now();
};

// Works the names out one file at a time, in list order, with the batch's
// own namer, series numbers and token values, but takes no number from the
// window's box, shows no message and renames nothing. `withDateSources`
// also asks each file where its date comes from (a read per file, so only
// the preview asks). A batch names each file just before its turn, so the
// reading of the files still runs ahead while earlier files are renamed.
class BatchNames {
 public:
  BatchNames(const RenameContext& context, const FileRenamer& renamer, const std::vector<platform::FileName>& files,
             const QString& base, bool randomSeries, bool withDateSources,
             RandomSeriesPool::RandomSource random = RandomSeriesPool::TimeSeededSource());
  ~BatchNames();
  BatchNames(const BatchNames&) = delete;
  BatchNames& operator=(const BatchNames&) = delete;

  NamedFile Next(const platform::FileName& file);
  // Whether Next(file) would not wait for values still being read.
  bool AtHand(const platform::FileName& file) const;
  QString SeriesText() const;

 private:
  struct Parts;
  const RenameContext& context_;
  const FileRenamer& renamer_;
  bool withDateSources_;
  std::unique_ptr<Parts> parts_;
};

// Every file's name at once.
BatchNaming NameBatch(const RenameContext& context, const FileRenamer& renamer,
                      const std::vector<platform::FileName>& files, const QString& base, bool randomSeries,
                      bool withDateSources,
                      RandomSeriesPool::RandomSource random = RandomSeriesPool::TimeSeededSource());

}  // namespace renvale::core
