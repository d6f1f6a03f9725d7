#pragma once

#include <QByteArray>
#include <vector>

#include "platform/FileSystem.h"

namespace renvale::fileops {

// Copies files to new names so that a kill at any moment leaves each name
// either free or holding the complete copy. Every copy is written under a
// hidden temporary name in its target's folder; all are flushed at once and
// only then named, never over an existing file; a source that is to go is
// removed only after those names are on disk as well.
class StagedCopies {
 public:
  explicit StagedCopies(platform::FileSystem& fs);

  void Add(const QByteArray& from, const QByteArray& to, bool removeSource);
  // `to` already holds the complete copy (a run cut short after naming it):
  // only the source is left to remove.
  void AddNamed(const QByteArray& from, const QByteArray& to);
  // One error number per job in the order added, 0 for a job done.
  std::vector<int> Run();

  static QByteArray FolderOf(const QByteArray& path);
  // Copies a run cut short before naming them; their sources are whole.
  static void RemoveLeftTemporaries(platform::FileSystem& fs, const QByteArray& folder);

 private:
  struct Job {
    QByteArray from, to, temporary;
    bool removeSource = false;
    bool named = false;
    int error = 0;
  };
  int Flush(bool named);
  void Fail(Job& job, int error);

  platform::FileSystem& fs_;
  std::vector<Job> jobs_;
};

}  // namespace renvale::fileops
