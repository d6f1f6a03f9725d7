#pragma once

#include <QIODevice>
#include <memory>

#include "platform/FileSystem.h"

namespace renvale::platform {

// A read-only QIODevice over a file opened through the FileSystem, so that
// Qt's readers see a file by its raw name and through the same door (and
// the same fault seam) as everything else. Closes the file when destroyed.
class ReadableFileDevice : public QIODevice {
 public:
  explicit ReadableFileDevice(std::unique_ptr<ReadableFile> file);

  bool isSequential() const override { return false; }
  qint64 size() const override;

 protected:
  qint64 readData(char* data, qint64 maxSize) override;
  qint64 writeData(const char* data, qint64 maxSize) override;

 private:
  std::unique_ptr<ReadableFile> file_;
};

}  // namespace renvale::platform
