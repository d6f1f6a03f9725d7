// The floor a command-line batch is measured against, run as a process of
// its own so that it pays process start as the contenders do:
//   batch_floor rename FILE...   open, read 64 KiB, find the date, close, rename
//   batch_floor read FILE...     the same without the rename (a dry run's floor)
// Plain C calls only: nothing a renamer could leave out.
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

namespace {

char buffer[64 * 1024];

// The first "yyyy:mm:dd hh:mm:ss" in the head, or null.
const char* FindDate(ssize_t got) {
  for (ssize_t i = 0; i + 19 <= got; ++i) {
    const char* p = buffer + i;
    if (p[4] == ':' && p[7] == ':' && p[10] == ' ' && p[13] == ':' && p[16] == ':') return p;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const bool rename = strcmp(argv[1], "rename") == 0;
  int failures = 0;
  for (int i = 2; i < argc; ++i) {
    const int fd = open(argv[i], O_RDONLY);
    if (fd < 0) {
      ++failures;
      continue;
    }
    const ssize_t got = read(fd, buffer, sizeof buffer);
    close(fd);
    const char* date = FindDate(got);
    if (!rename) {
      failures += date == nullptr;
      continue;
    }
    char target[64];
    snprintf(target, sizeof target, "%.10s %.8s %05d.JPG", date ? date : "none", date ? date + 11 : "", i - 1);
    failures += ::rename(argv[i], target) != 0;
  }
  return failures == 0 ? 0 : 1;
}
