#include "fileops/StagedCopies.h"

#include <set>

#include "platform/ErrorNumbers.h"
#include "platform/FileCopy.h"

namespace renvale::fileops {

StagedCopies::StagedCopies(platform::FileSystem& fs) : fs_(fs) {}

void StagedCopies::Add(const QByteArray& from, const QByteArray& to, bool removeSource) {
  jobs_.push_back({from, to, {}, removeSource, false, platform::kNoError});
}

void StagedCopies::AddNamed(const QByteArray& from, const QByteArray& to) {
  jobs_.push_back({from, to, {}, true, true, platform::kNoError});
}

std::vector<int> StagedCopies::Run() {
  for (Job& job : jobs_) {
    if (!job.named) Fail(job, fs_.CopyToTemporary(job.from, FolderOf(job.to), &job.temporary));
  }
  const int copiesFlushed = Flush(false);
  for (Job& job : jobs_) {
    if (job.named || job.error != platform::kNoError) continue;
    Fail(job, copiesFlushed != platform::kNoError ? copiesFlushed : fs_.RenameNoReplace(job.temporary, job.to));
    job.named = job.error == platform::kNoError;
    if (job.named) job.temporary.clear();
  }
  // The only other copy goes only once its new name is on disk.
  const int namesFlushed = Flush(true);
  std::vector<int> errors;
  for (Job& job : jobs_) {
    if (job.error == platform::kNoError && job.removeSource) {
      job.error = namesFlushed != platform::kNoError ? namesFlushed : fs_.RemoveFile(job.from);
    }
    errors.push_back(job.error);
  }
  return errors;
}

// Once per folder: a flush is for the whole file system and may be slow.
int StagedCopies::Flush(bool named) {
  std::set<QByteArray> folders;
  for (const Job& job : jobs_) {
    if (job.error == platform::kNoError && job.named == named && (!named || job.removeSource)) {
      folders.insert(FolderOf(job.to));
    }
  }
  for (const QByteArray& folder : folders) {
    if (const int err = fs_.FlushFileSystem(folder)) return err;
  }
  return platform::kNoError;
}

// Leaves no temporary behind for a job that cannot go on.
void StagedCopies::Fail(Job& job, int error) {
  if (error == platform::kNoError) return;
  job.error = error;
  if (!job.temporary.isEmpty()) fs_.RemoveFile(job.temporary);
  job.temporary.clear();
}

QByteArray StagedCopies::FolderOf(const QByteArray& path) { return path.left(path.lastIndexOf('/') + 1); }

void StagedCopies::RemoveLeftTemporaries(platform::FileSystem& fs, const QByteArray& folder) {
  std::vector<QByteArray> names;
  if (fs.ListFiles(folder, &names) != 0) return;
  for (const QByteArray& name : names) {
    if (name.startsWith(platform::kTransferTemporaryPrefix)) fs.RemoveFile(folder + name);
  }
}

}  // namespace renvale::fileops
