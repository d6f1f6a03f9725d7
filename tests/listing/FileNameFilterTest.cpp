#include <gtest/gtest.h>

#include "core/FileFilterPatterns.h"
#include "core/FileNameFilter.h"

namespace renvale::test {
namespace {

using core::FileNameFilter;

struct FilterCase {
  QString patterns;
  QByteArray name;
  bool listed;
};

TEST(FileNameFilter, MatchesWithoutRegardToCase) {
  const FilterCase cases[] = {
      {"*.JPG", "IMG_1.JPG", true},
      {"*.JPG", "img_2.jpg", true},
      {"*.jpg", "IMG_3.Jpg", true},
      {"*.JPG", "a.jpeg", false},
      {"*.JPG", "jpg", false},
      {"*.JPG", "x.jpg.bak", false},
      {"*.JPG", "x.bak.jpg", true},
      {"*.JPG", "caf\xe9.JPG", true},
      {"*.*", "README", true},
      {"*.*", "a.b", true},
      {"*", "noext", true},
      {" *.PNG ; *.JPG ", "shot.png", true},
      {"*.PNG;;*.JPG", "shot.jpg", true},
      {"IMG_????.*", "img_0001.jpg", true},
      {"IMG_????.*", "IMG_01.jpg", false},
      {"*_edit*", "beach_EDIT_2.tif", true},
      {"*_edit*", "beach.tif", false},
      {"IMG*", "IMG", true},
      {"*.jp*", "a.jp", true},
      {"", "anything", false},
  };
  for (const FilterCase& c : cases) {
    EXPECT_EQ(FileNameFilter(c.patterns).Matches(c.name), c.listed)
        << c.patterns.toStdString() << " / " << c.name.constData();
  }
}

}  // namespace
}  // namespace renvale::test
