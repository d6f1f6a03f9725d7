#pragma once

#include <QString>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "core/OperationRecorder.h"
#include "core/TemplateFile.h"
#include "platform/FileName.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

// Saving, opening and deleting template files in one folder, with every
// question and notice on the way. The dialog only gathers the names and
// shows the list; everything that decides is here.
class TemplateManager {
 public:
  using Captions = std::array<QString, core::kTemplateRecordCount>;
  // Called for each caption read, with its button's position (0..8).
  using ApplyCaption = std::function<void(int position, const QString& caption)>;

  TemplateManager(platform::FileSystem& fs, platform::MessagePort& messages, QString folder);

  // The ".rnt" files of the folder, extension in any letter case, in the
  // order of the main file list.
  std::vector<platform::FileName> List() const;

  // "Save": `listed` are the names the list shows. True when written.
  bool Save(const QString& typedName, const std::vector<platform::FileName>& listed, const Captions& captions);
  // "Open": applies each caption the file holds, in order. A file that
  // cannot be read, or ends before nine captions, ends without a word.
  bool Open(const std::optional<platform::FileName>& selected, const ApplyCaption& apply);
  // "Delete": to the trash, after asking. True when it was tried, so the
  // dialog starts afresh.
  bool Delete(const std::optional<platform::FileName>& selected);

  // Where a deletion keeps its plan, so that Undo can bring the file back.
  void SetRecorder(core::OperationRecorder* recorder) { recorder_ = recorder; }

 private:
  QByteArray PathOf(const QByteArray& name) const;

  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  QByteArray folder_;
  core::OperationRecorder* recorder_ = nullptr;
};

}  // namespace renvale::shell
