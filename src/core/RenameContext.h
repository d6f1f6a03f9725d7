#pragma once

#include "core/OperationRecorder.h"
#include "core/RenameSession.h"
#include "core/RenameView.h"
#include "core/SettingsRecord.h"
#include "core/TokenSource.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::core {

// Everything a rename operation works with, owned by the main window for the
// whole run and lent to each operation it starts.
struct RenameContext {
  RenameSession& session;
  const SettingsRecord& settings;
  RenameView& view;
  platform::MessagePort& messages;
  platform::FileSystem& fs;
  TokenSource& tokens;
  // Null where nothing is journaled (tests and benchmarks of the renames
  // themselves).
  OperationRecorder* recorder = nullptr;
};

}  // namespace renvale::core
