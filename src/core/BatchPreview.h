#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "core/BatchNaming.h"
#include "core/RenameContext.h"

namespace renvale::core {

// One selected file as "Preview New Names..." shows it.
struct PreviewRow {
  QString current;
  QString newName;
  QString dateSource;
  QStringList notes;  // each problem the batch would meet with this file
};

// What "Start Batch Renaming" would do with the selection, worked out by the
// batch's own code, without renaming, taking a series number or showing a
// message.
struct BatchPreview {
  QString stopText;      // the base cannot be used: what the batch would say; no rows then
  QStringList warnings;  // what the batch would ask before it starts
  std::vector<PreviewRow> rows;
  BatchNaming naming;    // handed to the batch, so it gives exactly these names
};

// `random` draws the numbers of a random series: a caller that must show the
// same names again (a script's dry run, then its run) hands one seeded alike.
BatchPreview PreviewBatch(const RenameContext& context,
                          RandomSeriesPool::RandomSource random = RandomSeriesPool::TimeSeededSource());

}  // namespace renvale::core
