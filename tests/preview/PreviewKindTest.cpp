#include <gtest/gtest.h>

#include "shell/PreviewKind.h"

namespace renvale::test {
namespace {

using shell::PreviewKind;

TEST(PreviewKind, ByTheLastFourThenThreeCharacters) {
  constexpr PreviewKind M = PreviewKind::Media, N = PreviewKind::Notice, P = PreviewKind::Picture;
  const struct {
    const char* name;
    PreviewKind withBoth, withNeither;
  } rows[] = {
      {"clip.AVI", M, M},     {"clip.mpeg", M, M},     {"clipmpeg", M, M},  // four characters, no dot needed
      {"clip.MOV", M, N},     {"phone.3gp", M, N},     {"song.Mp3", M, M},
      {"song.wma", M, M},     {"song.ram", M, N},      {"song.rm", M, N},
      {"song.RA", M, N},      {"tune.mid", M, M},      {"x.wm", M, M},
      {"notes.txt", N, N},    {"setup.EXE", N, N},     {"slides.ppt", N, N},
      {"IMG_0001.JPG", P, P}, {"README", P, P},        {"photo.cr2", P, P},
      {"a.rmvb", P, P},       {"a.movie", P, P},       {"x.mp4", P, P},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(shell::PreviewKindFor(row.name, true, true), row.withBoth);
    EXPECT_EQ(shell::PreviewKindFor(row.name, false, false), row.withNeither);
  }
  // Each switch governs only its own kinds.
  EXPECT_EQ(shell::PreviewKindFor("clip.mov", true, false), M);
  EXPECT_EQ(shell::PreviewKindFor("song.rm", false, true), M);
}

}  // namespace
}  // namespace renvale::test
