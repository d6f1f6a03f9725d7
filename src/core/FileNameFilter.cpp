#include "core/FileNameFilter.h"

#include <QStringList>
#include <algorithm>
#include <string_view>

namespace renvale::core {

namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + ('a' - 'A')) : c; }

QByteArray FoldAscii(QByteArray text) {
  for (char& c : text) c = FoldAscii(c);
  return text;
}

bool HasWildcard(const QByteArray& text) { return text.contains('*') || text.contains('?'); }

// Classic wildcard matching with one backtrack point for the last '*'.
bool WildcardMatch(const QByteArray& pattern, const QByteArray& name) {
  qsizetype p = 0;
  qsizetype n = 0;
  qsizetype starAt = -1;
  qsizetype resumeAt = 0;
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == FoldAscii(name[n]))) {
      ++p;
      ++n;
    } else if (p < pattern.size() && pattern[p] == '*') {
      starAt = p++;
      resumeAt = n;
    } else if (starAt >= 0) {
      p = starAt + 1;
      n = ++resumeAt;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

FileNameFilter::FileNameFilter(const QString& patterns) {
  for (const QString& piece : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    const QByteArray pattern = FoldAscii(piece.trimmed().toUtf8());
    if (pattern == "*.*" || pattern == "*") {
      matchesAll_ = true;
    } else if (pattern.startsWith("*.") && !HasWildcard(pattern.mid(2))) {
      extensions_.emplace_back(pattern.constData() + 2, static_cast<size_t>(pattern.size() - 2));
    } else if (!pattern.isEmpty()) {
      wildcards_.push_back(pattern);
    }
  }
  std::sort(extensions_.begin(), extensions_.end());
}

bool FileNameFilter::MatchesExtension(const QByteArray& name) const {
  const qsizetype dot = name.lastIndexOf('.');
  if (dot < 0) return false;
  char folded[256];
  const qsizetype length = name.size() - dot - 1;
  if (length > qsizetype(sizeof folded)) return false;
  for (qsizetype i = 0; i < length; ++i) folded[i] = FoldAscii(name[dot + 1 + i]);
  const std::string_view extension(folded, static_cast<size_t>(length));
  return std::binary_search(extensions_.begin(), extensions_.end(), extension, std::less<>());
}

bool FileNameFilter::Matches(const QByteArray& name) const {
  if (matchesAll_) return true;
  if (!extensions_.empty() && MatchesExtension(name)) return true;
  return std::any_of(wildcards_.begin(), wildcards_.end(),
                     [&name](const QByteArray& pattern) { return WildcardMatch(pattern, name); });
}

}  // namespace renvale::core
