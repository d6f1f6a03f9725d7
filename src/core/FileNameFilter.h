#pragma once

#include <QByteArray>
#include <QString>
#include <string>
#include <vector>

namespace renvale::core {

// A list of file-name patterns ("*.JPG;*.TIF"), matched without regard to
// ASCII letter case against raw names. "*" and "?" are the wildcards; "*.*"
// (or "*") matches every name, also one without a dot, as the file list has
// always shown such files under "All Files". Patterns of the form "*.ext"
// are looked up by extension, so a long list stays cheap per name.
class FileNameFilter {
 public:
  explicit FileNameFilter(const QString& patterns);

  bool Matches(const QByteArray& name) const;

 private:
  bool MatchesExtension(const QByteArray& name) const;

  bool matchesAll_ = false;
  std::vector<std::string> extensions_;  // lower case, sorted
  std::vector<QByteArray> wildcards_;    // lower case
};

}  // namespace renvale::core
