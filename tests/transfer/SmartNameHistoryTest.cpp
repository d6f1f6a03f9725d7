#include <gtest/gtest.h>

#include "fileops/FolderHistory.h"
#include "fileops/SmartName.h"

namespace renvale::fileops {
namespace {

TEST(SmartName, Candidates) {
  struct Row {
    QByteArray name;
    int k;
    QByteArray expected;
  };
  const Row rows[] = {
      {"Beach.jpg", 1, "Beach 01.jpg"},         {"Beach.jpg", 2, "Beach 02.jpg"},
      {"Beach.jpg", 100, "Beach 100.jpg"},      {"IMG_0012.jpg", 1, "IMG_010012.jpg"},
      {"IMG_0012.jpg", 2, "IMG_020012.jpg"},    {"1234.jpg", 1, "101234.jpg"},
      {"a.b.jpg", 1, "a.b 01.jpg"},             {"a.5.jpg", 3, "a.035.jpg"},
      {"IMG", 1, "IMG 01"},                     {"0012", 1, "001012"},
      {"5.jpg", 1, "501.jpg"},                  {"5.jpg", 12, "512.jpg"},
      {".jpg", 1, ". 01.jpg"},                  {"caf\xe9\xff.JPG", 1, "caf\xe9\xff 01.JPG"},
      {"x\xb2.jpg", 1, "x\xb2 01.jpg"},  // a superscript two in Latin-1 is no digit
  };
  for (const Row& row : rows) EXPECT_EQ(SmartName::Candidate(row.name, row.k), row.expected) << row.name.constData();
}

TEST(FolderHistory, NewestFirstWithoutDuplicatesAtMostFifteen) {
  FolderHistory::Stored stored;
  stored[0] = "/a/";
  stored[2] = "/b/";
  stored[3] = "/a/";
  FolderHistory history = FolderHistory::FromStored(stored);
  EXPECT_EQ(history.Entries(), (QStringList{"/a/", "/b/"}));
  history.Add("/b/");
  EXPECT_EQ(history.Entries(), (QStringList{"/b/", "/a/"}));
  for (int n = 0; n < 20; ++n) history.Add(QStringLiteral("/f%1/").arg(n));
  EXPECT_EQ(history.Entries().size(), 15);
  EXPECT_EQ(history.Entries().front(), "/f19/");
  EXPECT_EQ(history.Entries().back(), "/f5/");
  history.Remove("/f19/");
  EXPECT_EQ(history.ToStored()[0], "/f18/");
  EXPECT_TRUE(history.ToStored()[14].isEmpty());
  history.Clear();
  EXPECT_EQ(history.ToStored(), FolderHistory::Stored{});
}

}  // namespace
}  // namespace renvale::fileops
