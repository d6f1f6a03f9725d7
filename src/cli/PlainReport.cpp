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
  everyFileNamed_ = TellOne(&out_, errors_, given_[file], status, newName) && everyFileNamed_;
}

bool PlainReport::TellOne(QTextStream* out, QStringList& errors, const QByteArray& given, OutputRow::Status status,
                          const QString& newName) {
  switch (status) {
    case OutputRow::Status::Renamed:
      if (out != nullptr) *out << platform::FileName::NameToText(given) << texts::kArrow << newName << '\n';
      return true;
    case OutputRow::Status::Skipped:
      errors << texts::kErrorPrefix + texts::kSkipped.arg(platform::FileName::NameToText(given), newName);
      return false;
    case OutputRow::Status::Planned:
      errors << texts::kErrorPrefix + texts::kNotReached.arg(platform::FileName::NameToText(given));
      return false;
    case OutputRow::Status::Unchanged:
      return true;
  }
  return true;
}

}  // namespace renvale::cli
