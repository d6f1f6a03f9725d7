#include "platform/NetworkAddress.h"

#include <cstring>

namespace renvale::platform {
namespace {

struct Scheme {
  const char* name;
  bool needsFolder;  // the server alone is a list of shares, not a folder
};

constexpr Scheme kSchemes[] = {
    {"smb", true}, {"sftp", false}, {"nfs", true}, {"dav", false}, {"davs", false},
};

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

// Bytes a URI cannot carry as they are. '%' counts only where the text is
// not a URI already (the Windows form), so an escape typed in a URI stays one.
bool NeedsEscape(unsigned char c, bool escapePercent) {
  if (c <= ' ' || c >= 0x7f) return true;
  if (c == '%') return escapePercent;
  return std::strchr("\"<>\\^`{|}#?", c) != nullptr;
}

QByteArray Escaped(const char* begin, const char* end, bool escapePercent) {
  static const char kHex[] = "0123456789ABCDEF";
  QByteArray out;
  for (const char* p = begin; p < end; ++p) {
    const auto c = static_cast<unsigned char>(*p);
    if (NeedsEscape(c, escapePercent)) {
      out += '%';
      out += kHex[c >> 4];
      out += kHex[c & 15];
    } else {
      out += char(c);
    }
  }
  return out;
}

// "\\server\share\folder" -> "smb://server/share/folder".
QByteArray FromWindowsPath(const char* begin, const char* end) {
  QByteArray slashed(begin + 2, end - begin - 2);
  slashed.replace('\\', '/');
  const qsizetype serverEnd = slashed.indexOf('/');
  if (serverEnd <= 0 || serverEnd + 1 >= slashed.size() || slashed[serverEnd + 1] == '/') return {};
  return "smb://" + Escaped(slashed.constData(), slashed.constData() + slashed.size(), true);
}

QByteArray FromUri(const char* begin, const char* end) {
  const char* colon = begin;
  while (colon < end && *colon != ':') ++colon;
  if (end - colon < 3 || colon[1] != '/' || colon[2] != '/') return {};
  QByteArray name;
  for (const char* p = begin; p < colon; ++p) name += Lower(*p);
  for (const Scheme& scheme : kSchemes) {
    if (name != scheme.name) continue;
    const char* host = colon + 3;
    const char* hostEnd = host;
    while (hostEnd < end && *hostEnd != '/') ++hostEnd;
    if (hostEnd == host) return {};
    const char* folder = hostEnd;
    while (folder < end && *folder == '/') ++folder;
    if (scheme.needsFolder && folder == end) return {};
    return name + "://" + Escaped(host, end, false);
  }
  return {};
}

}  // namespace

QByteArray NetworkAddress::Parse(const char* data, size_t size) {
  if (data == nullptr) return {};
  const char* begin = data;
  const char* end = data + size;
  while (begin < end && IsBlank(*begin)) ++begin;
  while (end > begin && IsBlank(end[-1])) --end;
  if (end - begin > 2 && begin[0] == '\\' && begin[1] == '\\') return FromWindowsPath(begin, end);
  return FromUri(begin, end);
}

}  // namespace renvale::platform
