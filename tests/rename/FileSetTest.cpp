#include "core/FileSetFinder.h"

#include "RenameFixture.h"
#include "core/BatchRename.h"
#include "core/CoreTexts.h"
#include "core/IndividualRename.h"
#include "core/RenameFailureTexts.h"

namespace renvale::test {
namespace {

using Files = std::map<QByteArray, QByteArray>;
using Pairs = std::vector<core::NamePair>;

std::vector<platform::FileName> Names(std::initializer_list<const char*> names) {
  std::vector<platform::FileName> files;
  for (const char* name : names) files.push_back(platform::FileName{name});
  return files;
}

TEST(FileSetFinder, FindsCompanionsByTheirRules) {
  const core::FolderIndex index(std::vector<QByteArray>{
      "A.CRW", "A.THM", "A.xmp", "B.CR2", "B.CR2.XMP", "B.XMP", "C.jpg", "C.THM", "N", "N.xmp", "D.xmp",
      "L.crw", "L.thm", "V.MOV", "V.THM"});
  const core::FileSetFinder finder(index, Names({"A.CRW", "A.THM", "B.CR2", "C.jpg", "C.THM", "N", "D.xmp", "L.crw", "V.MOV"}));
  struct Case { const char* head; const char* newHead; Pairs companions; };
  const Case cases[] = {
      {"A.CRW", "x.crw", {{"A.THM", "x.THM"}, {"A.xmp", "x.xmp"}}},
      {"B.CR2", "y.CR2", {{"B.CR2.XMP", "y.CR2.XMP"}, {"B.XMP", "y.XMP"}}},
      {"C.jpg", "z.jpg", {}}, {"C.THM", "z.THM", {}},  // a THM goes with a CRW or clip only, and alone
      {"L.crw", "k.crw", {{"L.thm", "k.thm"}}}, {"V.MOV", "w.mov", {{"V.THM", "w.THM"}}},  // selected or not
      {"N", "M", {{"N.xmp", "M.xmp"}}}, {"D.xmp", "E.xmp", {}},  // a sidecar renamed on its own goes alone
      {"A.CRW", "a.CRW", {{"A.THM", "a.THM"}, {"A.xmp", "a.xmp"}}},
  };
  for (const Case& c : cases) EXPECT_EQ(finder.Companions(c.head, c.newHead), c.companions) << c.head;

  for (const char* travels : {"A.THM", "a.thm", "B.CR2.XMP", "B.xmp", "N.xmp", "C.xmp", "V.thm"}) {
    EXPECT_TRUE(finder.TravelsWithSelectedHead(travels)) << travels;
  }
  for (const char* alone : {"A.CRW", "C.THM", "D.xmp", "C.jpg", "Q.xmp", "C.THM.xmp"}) {
    EXPECT_FALSE(finder.TravelsWithSelectedHead(alone)) << alone;
  }
}

TEST(FolderIndex, KeepsEverySpellingApartAndFoldsOnlyAsciiLetters) {
  core::FolderIndex index(std::vector<QByteArray>{"a.jpg", "A.JPG", "b.jpg", "\xc3\x89.jpg"}, {".jpg"});
  EXPECT_EQ(index.Spellings("A.jpg"), QByteArrayList({"A.JPG", "a.jpg"}));
  EXPECT_TRUE(index.Spellings("\xc3\xa9.jpg").isEmpty()) << "e acute and E acute are different names";
  index.Move("A.JPG", "c.jpg");
  EXPECT_TRUE(index.Contains("a.jpg"));
  EXPECT_FALSE(index.Contains("A.JPG"));
  EXPECT_EQ(index.Spellings("C.JPG"), QByteArrayList({"c.jpg"}));
  index.Add("c.jpg");
  EXPECT_EQ(index.Spellings("c.jpg").size(), 1);
  index.Remove("B.JPG");
  EXPECT_TRUE(index.Contains("b.jpg")) << "only the exact spelling is removed";
  index.Move("b.jpg", "b.png");
  EXPECT_EQ(index.CountedNames(), 3) << "a.jpg, c.jpg and the e acute one, each once";
}

TEST(FolderIndex, StaysExactThroughManyRenames) {
  core::FolderIndex index;  // as after a folder that could not be listed
  index.Add("keep.jpg");
  QByteArray current = "0.jpg";
  index.Add(current);
  for (int i = 1; i <= 3000; ++i) {
    const QByteArray next = QByteArray::number(i) + ".JPG";
    index.Move(current, next);
    current = next;
  }
  EXPECT_TRUE(index.Contains("keep.jpg"));
  EXPECT_EQ(index.Spellings("3000.jpg"), QByteArrayList({"3000.JPG"}));
  for (const char* gone : {"0.jpg", "1.JPG", "2999.JPG"}) EXPECT_FALSE(index.Contains(gone)) << gone;
}

using FileSetTest = RenameFixture;

// A picture takes its sidecars, a CRW or a Canon clip its thumbnail; a
// picture's THM is no sidecar of it. A batch passes over a companion it
// lists, even before its file.
TEST_F(FileSetTest, CompanionsFollowTheirFileSelectedAlone) {
  Make({"IMG_1.CR2", "IMG_1.XMP", "IMG_1.CR2.xmp", "IMG_1.THM", "set1.crw", "set1.thm", "MVI_0001.AVI",
        "MVI_0001.THM", "B.jpg", "B.xmp"});
  for (const auto& [file, name] : {std::pair{"IMG_1.CR2", "Trip"}, std::pair{"set1.crw", "one"}}) {
    Select({file});
    view.newName = name;
    core::IndividualRename(context).RenameSelectedFile();
  }
  Select({"B.xmp", "MVI_0001.AVI", "MVI_0001.THM", "B.jpg"});
  Batch("Clip %SERIES%");
  EXPECT_TRUE(port.messages.empty());
  EXPECT_EQ(view.series, "03");
  EXPECT_EQ(Folder(), (Files{{"Trip.CR2", "IMG_1.CR2"}, {"Trip.XMP", "IMG_1.XMP"}, {"Trip.CR2.xmp", "IMG_1.CR2.xmp"},
                             {"IMG_1.THM", "IMG_1.THM"}, {"one.crw", "set1.crw"}, {"one.thm", "set1.thm"},
                             {"Clip 01.AVI", "MVI_0001.AVI"}, {"Clip 01.THM", "MVI_0001.THM"},
                             {"Clip 02.jpg", "B.jpg"}, {"Clip 02.xmp", "B.xmp"}}));
}

TEST_F(FileSetTest, FailingCompanionPutsTheSetBack) {
  Make({"A.CRW", "A.THM", "A.xmp", "B.jpg"});
  Select({"A.CRW", "B.jpg"});
  fs.FailRename(Path("A.xmp"), 75);
  Batch("Set %SERIES%");
  ASSERT_EQ(port.messages.size(), 1u);  // the set's own report, no second one from the batch
  EXPECT_EQ(port.Last().title, "File Set - Renaming Error");
  EXPECT_EQ(port.Last().icon, platform::MessageIcon::Critical);
  EXPECT_EQ(port.Last().text, "The file set of 'A.CRW' could not be renamed to 'Set 01.CRW'.\r"
                              "'A.xmp' could not be renamed to 'Set 01.xmp': Read-only file system\r"
                              "All files of the set have kept their old names.\r"
                              "File renaming operation cancelled.");
  EXPECT_EQ(Folder(), (Files{{"A.CRW", "A.CRW"}, {"A.THM", "A.THM"}, {"A.xmp", "A.xmp"}, {"B.jpg", "B.jpg"}}));
  EXPECT_EQ(view.reselected, "");
}

// The head's own taken name is asked about first: No passes over the set
// and the batch goes on.
TEST_F(FileSetTest, TakenHeadNameIsAskedAboutBeforeItsCompanions) {
  Make({"A.CRW", "A.THM", "1.CRW", "1.THM", "B.jpg"});
  Select({"A.CRW", "B.jpg"});
  settings.placeholders = 0;
  view.series = "1";
  port.Script(platform::MessageAnswer::No);
  Batch("%SERIES%");
  EXPECT_EQ(port.Texts(), QStringList{core::OverwriteQuestionText("1.CRW")});
  EXPECT_EQ(Folder(), (Files{{"1.CRW", "1.CRW"}, {"1.THM", "1.THM"}, {"A.CRW", "A.CRW"}, {"A.THM", "A.THM"},
                             {"2.jpg", "B.jpg"}}));
}

TEST_F(FileSetTest, TakenCompanionNameStopsTheSetBeforeAnythingIsDeleted) {
  Make({"A.jpg", "A.xmp", "T.jpg", "T.xmp"});
  Select({"A.jpg"});
  view.newName = "T";
  core::IndividualRename(context).RenameSelectedFile();  // Yes to overwriting T.jpg
  ASSERT_EQ(port.messages.size(), 2u);
  EXPECT_EQ(port.messages[0].title, core::texts::kOverwriteTitle);
  EXPECT_EQ(port.Last().title, "File Set - Renaming Error");
  EXPECT_TRUE(port.Last().text.contains("'A.xmp' cannot be renamed to 'T.xmp', because a file of that name already exists."));
  EXPECT_EQ(Folder().size(), 4u);
}

}  // namespace
}  // namespace renvale::test
