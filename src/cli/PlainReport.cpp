#include "cli/PlainReport.h"

#include "cli/CliTexts.h"
#include "platform/FileName.h"

namespace renvale::cli {

PlainReport::PlainReport(QTextStream& out, QStringList& errors, const std::vector<QByteArray>& given)
    : out_(out), errors_(errors), given_(given), status_(given.size(), OutputRow::Status::Planned) {}

void PlainReport::Ended(size_t file, OutputRow::Status status, const QString& newName) {
  status_[file] = status;
  if (file != next_) {
    held_.insert(file, newName);
    return;
  }
  Tell(next_++, status, newName);
  while (next_ < status_.size() && status_[next_] != OutputRow::Status::Planned) {
    Tell(next_, status_[next_], held_.take(next_));
    ++next_;
  }
}

bool PlainReport::Finish() {
  for (; next_ < status_.size(); ++next_) Tell(next_, status_[next_], held_.take(next_));
  return everyFileNamed_;
}

void PlainReport::Tell(size_t file, OutputRow::Status status, const QString& newName) {
  const auto given = [&] { return platform::FileName::NameToText(given_[file]); };
  switch (status) {
    case OutputRow::Status::Renamed:
      out_ << given() << texts::kArrow << newName << '\n';
      break;
    case OutputRow::Status::Skipped:
      errors_ << texts::kErrorPrefix + texts::kSkipped.arg(given(), newName);
      everyFileNamed_ = false;
      break;
    case OutputRow::Status::Planned:
      errors_ << texts::kErrorPrefix + texts::kNotReached.arg(given());
      everyFileNamed_ = false;
      break;
    case OutputRow::Status::Unchanged:
      break;
  }
}

}  // namespace renvale::cli
