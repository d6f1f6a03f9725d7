#include <gtest/gtest.h>

#include <QByteArrayList>
#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <vector>

#include "core/AsciiFoldedName.h"
#include "core/BatchBaseCheck.h"
#include "core/FileNameRules.h"
#include "core/FileSetRenamer.h"
#include "core/RandomSeriesPool.h"
#include "core/RenameFailureTexts.h"
#include "core/RenamePlanner.h"
#include "core/SeriesFormat.h"
#include "core/TemplateFile.h"
#include "core/TokenExpansion.h"
#include "platform/ErrorNumbers.h"
#include "support/FaultyFileSystem.h"
#include "support/MemoryFileSystem.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

using core::BatchBaseIssue;

TEST(BatchBaseCheck, IssuesInTheirOrder) {
  struct Case { const char* base; const char* selected; const char* timePattern; BatchBaseIssue issue; };
  const Case cases[] = {
      {"img_0001.JPG", "IMG_0001.jpg", "hh-mm-ss", BatchBaseIssue::NoBaseName},
      {"", "", "hh-mm-ss", BatchBaseIssue::NoBaseName},  // own name checked before emptiness
      {"", "a.jpg", "hh-mm-ss", BatchBaseIssue::EmptyBase},
      {"a:%SERIES%", "a.jpg", "hh-mm-ss", BatchBaseIssue::InvalidCharacters},
      {"Holiday", "a.jpg", "hh-mm-ss", BatchBaseIssue::NoTimeOrSeries},
      {"Holiday %DATE%", "a.jpg", "hh-mm-ss", BatchBaseIssue::NoTimeOrSeries},
      {"Holiday %origfn%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"Holiday %Serial%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"Holiday %series%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"%time%", "a.jpg", "hh-mm-SS", BatchBaseIssue::None},
      {"%time%", "a.jpg", "hh-mm", BatchBaseIssue::TimeWithoutSeconds},
      {"%Date Time%", "a.jpg", "hhmm", BatchBaseIssue::TimeWithoutSeconds},
      {"%DATE TIME% %SERIES%", "a.jpg", "hhmm", BatchBaseIssue::None},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::CheckBatchBase(c.base, c.selected, c.timePattern).issue, c.issue) << c.base;
  }
}

TEST(BatchBaseCheck, TextsAndTheirLineBreaks) {
  const core::BatchBaseVerdict own = core::CheckBatchBase("a.jpg", "a.jpg", "");
  EXPECT_TRUE(own.Stops());
  EXPECT_EQ(own.text,
            "Before batch-renaming files, you must enter a New 'base' Filename.\n"
            "Click the 'Help' button in the Batch Mode pane for help.");

  const core::BatchBaseVerdict dup = core::CheckBatchBase("Trip", "a.jpg", "hh-mm-ss");
  EXPECT_TRUE(dup.IsQuestion());
  EXPECT_EQ(dup.text,
            "The base filename does not contain EXIF TIME or a SERIES #.  This could cause "
            "duplicate filenames!\r\n"
            "Windows does not allow duplicate filenames in the same folder.  Do not continue "
            "unless you are certain\r\n"
            "that duplicate filenames will not occur.\r\n"
            "If you are renaming MP3s with ID3 data, be sure *ALL* selected MP3 files contain ID3 "
            "information.\r\n"
            "Continue with the batch renaming?");

  const core::BatchBaseVerdict seconds = core::CheckBatchBase("%TIME%", "a.jpg", "hh-mm");
  EXPECT_TRUE(seconds.IsQuestion());
  EXPECT_EQ(seconds.text,
            "The base filename does not contain a SERIES # and although EXIF TIME is included, the "
            "time format chosen does not include seconds (See Options).  This could cause "
            "duplicate filenames!\nContinue with the batch renaming?");

  EXPECT_EQ(core::CheckBatchBase("a|b", "a.jpg", "").text,
            "Filenames cannot contain the following characters:   \\ / : * ? \" < > |");
}

using core::SplitFileName;

TEST(FileNameRules, SplitsAtLastDotKeepingTheDot) {
  struct Case { const char* name; bool force; const char* base; const char* ext; };
  const Case cases[] = {
      {"a.b.JPG", false, "a.b", ".JPG"}, {"a.b.JPG", true, "a.b", ".jpg"},
      {"README", true, "README", ""},    {"name.", false, "name", "."},
      {".xmp", false, "", ".xmp"},       {"", true, "", ""},
  };
  for (const Case& c : cases) {
    const core::SplitName split = SplitFileName(QString::fromUtf8(c.name), c.force);
    EXPECT_EQ(split.base, QString::fromUtf8(c.base)) << c.name;
    EXPECT_EQ(split.extension, QString::fromUtf8(c.ext)) << c.name;
  }
  // Forcing the case of a whole name lowers only from the last dot.
  EXPECT_EQ(core::ApplyForcedExtensionCase("My.Trip.JPG", true), "My.Trip.jpg");
  EXPECT_EQ(core::ApplyForcedExtensionCase("NO DOT", true), "NO DOT");
}

TEST(FileNameRules, RenameGuardAppendsTheSelectedExtension) {
  EXPECT_EQ(core::AppendMissingExtension("b", ".JPG", false), "b.JPG");
  EXPECT_EQ(core::AppendMissingExtension("b", ".JPG", true), "b.jpg");
  // Already there in another case: untouched, and no forced case either.
  EXPECT_EQ(core::AppendMissingExtension("B.jPg", ".JPG", true), "B.jPg");
  // Another extension does not count: the selected one is added after it.
  EXPECT_EQ(core::AppendMissingExtension("b.png", ".JPG", false), "b.png.JPG");
  EXPECT_EQ(core::AppendMissingExtension("PG", ".JPG", false), "PG.JPG");
  EXPECT_EQ(core::AppendMissingExtension("noext", "", true), "noext");
}

TEST(FileNameRules, InsertGuardPutsCaretBeforeAppendedExtension) {
  const core::GuardedText moved = core::GuardExtensionAfterInsert("Trip.jpg07 ", ".JPG");
  EXPECT_EQ(moved.text, "Trip.jpg07 .JPG");
  EXPECT_EQ(moved.caret, 11);
  const core::GuardedText kept = core::GuardExtensionAfterInsert("Trip 07 .jpg", ".JPG");
  EXPECT_EQ(kept.text, "Trip 07 .jpg");
  EXPECT_FALSE(kept.caret.has_value());
}

TEST(FileNameRules, EachForbiddenCharacterIsCaught) {
  for (const char* bad : {"a\\b", "a/b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b"}) {
    EXPECT_TRUE(core::HasInvalidFilenameChars(QString::fromUtf8(bad))) << bad;
  }
  EXPECT_FALSE(core::HasInvalidFilenameChars("Kids & Pets - 2004.05.01 [1] (x) 'ok' %DATE%"));
}

// When putting a set back fails too, the person must learn which files are
// left under which names, or they cannot find them again.
TEST(FileSetRenamer, NamesEveryFileThatCouldNotBePutBack) {
  MemoryFileSystem memory;
  for (const char* name : {"/p/A.CRW", "/p/A.THM", "/p/A.xmp"}) memory.Add(name, "x");
  FaultyFileSystem fs(memory);
  fs.FailRename("/p/A.xmp", platform::kPathFileAccess);
  fs.FailRenameFrom("/p/B.CRW", platform::kAccessViolation);
  ScriptedMessagePort port;
  core::FileSetRenamer renamer(fs, port);
  EXPECT_EQ(renamer.RenameSet("/p/", {"A.CRW", "B.CRW"}, {{"A.THM", "B.THM"}, {"A.xmp", "B.xmp"}}),
            platform::kPathFileAccess);
  EXPECT_TRUE(renamer.FailureShown());
  ASSERT_EQ(port.messages.size(), 1u);
  EXPECT_EQ(port.Last().text, "The file set of 'A.CRW' could not be renamed to 'B.CRW'.\r"
                              "'A.xmp' could not be renamed to 'B.xmp': Read-only file system\r"
                              "These files could not be given back their old names:\r"
                              "'B.CRW' (was 'A.CRW')\r"
                              "File renaming operation cancelled.");
  EXPECT_TRUE(memory.Exists("/p/A.THM") && memory.Exists("/p/B.CRW"));
}

// On a memory card that folds letter case, a companion's new spelling finds
// the companion itself: that is no other file in the way.
TEST(FileSetRenamer, CaseOnlyCompanionIsNotInItsOwnWay) {
  MemoryFileSystem fs(true);
  fs.Add("/p/A.CRW", "x");
  fs.Add("/p/A.THM", "x");
  ScriptedMessagePort port;
  EXPECT_EQ(core::FileSetRenamer(fs, port).CheckCompanionTargets("/p/", {"A.CRW", "a.crw"}, {{"A.THM", "a.thm"}}),
            platform::kNoError);
  EXPECT_TRUE(port.messages.empty());
}

const char* const kReadOnlyTail =
    "The file being renamed is 'Read Only', the source folder is Write Protected, or the file is "
    "in-use by another applicaton.\r"
    "If you are accessing a memory card through a memory card reader/slot or\r"
    "a cable connected from the camera to computer, examine memory card\r"
    "to be sure the Write Protect (or Lock) switch is not enabled.\r";

TEST(RenameFailureTexts, EachKindOfFailureHasItsOwnWording) {
  const QString tail = QString(kReadOnlyTail) + "File renaming operation cancelled.";
  const QString overwriteTail =
      QString(kReadOnlyTail).replace("being renamed", "being overwritten").chopped(1);
  const std::pair<QString, QString> cases[] = {
      // Individual mode: a blank line before the end, and the system text
      // for an unexpected error.
      {core::IndividualRenameFailureText(platform::kAccessViolation, "ignored"),
       QString("Error renaming file(s).  ***Error Code 70 - Access Violation Error***\r") +
           kReadOnlyTail + "\rFile renaming operation cancelled."},
      {core::IndividualRenameFailureText(platform::kPathFileAccess, "ignored"),
       QString("Error renaming file(s).  ***Error Code 75 - File/Path Access Error***\r") +
           kReadOnlyTail + "\rFile renaming operation cancelled."},
      {core::IndividualRenameFailureText(1028, "No space left on device"),
       "Error renaming file(s).  ***Error Code 1028 - Unexpected Error***\r"
       "No space left on device\rFile renaming operation cancelled."},
      // Batch mode says "file" and has no blank line.
      {core::BatchRenameFailureText(70),
       "Error renaming file.  ***Error Code 70 - Access Violation Error***\r" + tail},
      {core::BatchRenameFailureText(58), "Error renaming file.  ***Error Code 58 - Unexpected Error***\r" + tail},
      {core::OverwriteFailureText(70),
       "Error overwriting file.  ***Error Code 70 - Access Violation Error***\r" + overwriteTail},
      {core::OverwriteFailureText(1013),
       "Error overwriting file.  ***Error Code 1013 - Unexpected Error***\r" + overwriteTail},
  };
  for (const auto& [actual, expected] : cases) EXPECT_EQ(actual, expected);
}

using core::NamePair;
using core::RenameMove;

// "a>b" is one file, "a>b+c>d" a file with a companion.
std::vector<RenameMove> Moves(const char* text) {
  std::vector<RenameMove> moves;
  for (const QByteArray& word : QByteArray(text).split(' ')) {
    const QByteArrayList members = word.split('+');
    RenameMove move;
    for (qsizetype i = 0; i < members.size(); ++i) {
      const QByteArrayList pair = members[i].split('>');
      (i == 0 ? move.head : move.companions.emplace_back()) = NamePair{pair[0], pair[1]};
    }
    moves.push_back(move);
  }
  return moves;
}

// Plays the plan over the folder's names as ext4 keeps them: no step may
// land on a name in use (the renames refuse to replace), and every file
// must end where the moves said.
void ExpectSafeAndComplete(const std::vector<RenameMove>& moves, const core::RenamePlan& plan,
                           const std::set<QByteArray>& others) {
  std::set<QByteArray> present = others;
  for (const RenameMove& move : moves) {
    present.insert(move.head.from);
    for (const NamePair& c : move.companions) present.insert(c.from);
  }
  for (const core::PlannedRename& step : plan) {
    std::vector<NamePair> members{step.head};
    members.insert(members.end(), step.companions.begin(), step.companions.end());
    for (const NamePair& pair : members) {
      ASSERT_EQ(present.erase(pair.from), 1u) << pair.from.toStdString();
      if (others.count(pair.to) == 0) {
        ASSERT_EQ(present.count(pair.to), 0u) << pair.to.toStdString();
      }
      present.insert(pair.to);
    }
  }
  for (const RenameMove& move : moves) EXPECT_EQ(present.count(move.head.to), 1u);
  const auto temporaries = [](const std::set<QByteArray>& names) {
    return std::count_if(names.begin(), names.end(), [](const QByteArray& n) { return n.startsWith(".renvale-swap-"); });
  };
  EXPECT_EQ(temporaries(present), temporaries(others)) << "a temporary name was left behind";
}

QByteArray Shown(const core::RenamePlan& plan) {
  QByteArrayList steps;
  for (const core::PlannedRename& step : plan) {
    QByteArray text = step.head.from + '>' + step.head.to;
    for (const NamePair& c : step.companions) text += '+' + c.from + '>' + c.to;
    steps << text;
  }
  return steps.join(' ');
}

TEST(RenamePlanner, FreesEachNameBeforeItIsTakenAndStepsAsideOnlyInCycles) {
  // `others`: names in the folder outside the moves.
  const struct { const char* moves; std::set<QByteArray> others; const char* plan; } rows[] = {
      // Independent moves, and a target held outside the batch, keep list
      // order: the batch asks about that one at its turn.
      {"a.jpg>x.jpg b.jpg>c.jpg", {"x.jpg"}, "a.jpg>x.jpg b.jpg>c.jpg"},
      // A name left earlier in the list is free already.
      {"a.jpg>x.jpg b.jpg>a.jpg", {}, "a.jpg>x.jpg b.jpg>a.jpg"},
      // A series that starts at 2 over 01, 02, 03.
      {"01.jpg>02.jpg 02.jpg>03.jpg 03.jpg>04.jpg", {}, "03.jpg>04.jpg 02.jpg>03.jpg 01.jpg>02.jpg"},
      {"a.jpg>b.jpg b.jpg>a.jpg", {},
       "a.jpg>.renvale-swap-1.jpg b.jpg>a.jpg .renvale-swap-1.jpg>b.jpg"},
      {"a.jpg>b.jpg b.jpg>c.jpg c.jpg>a.jpg z.jpg>y.jpg", {},
       "a.jpg>.renvale-swap-1.jpg c.jpg>a.jpg b.jpg>c.jpg .renvale-swap-1.jpg>b.jpg z.jpg>y.jpg"},
      // Two files whose names differ only in letter case trade them (ext4).
      {"a.jpg>A.jpg A.jpg>a.jpg", {},
       "a.jpg>.renvale-swap-1.jpg A.jpg>a.jpg .renvale-swap-1.jpg>A.jpg"},
      // A change of letter case alone waits for nothing.
      {"photo.jpg>Photo.jpg", {}, "photo.jpg>Photo.jpg"},
      // A set steps aside whole, in the shape the set finder pairs, avoiding
      // a temporary left by an earlier run.
      {"A.CRW>B.CRW+A.THM>B.THM+A.CRW.xmp>B.CRW.xmp B.CRW>A.CRW+B.THM>A.THM", {".renvale-swap-1.THM"},
       "A.CRW>.renvale-swap-2.CRW+A.THM>.renvale-swap-2.THM+A.CRW.xmp>.renvale-swap-2.CRW.xmp "
       "B.CRW>A.CRW+B.THM>A.THM "
       ".renvale-swap-2.CRW>B.CRW+.renvale-swap-2.THM>B.THM+.renvale-swap-2.CRW.xmp>B.CRW.xmp"},
      // Only the companion's name is held by the other file.
      {"a.jpg>b.jpg+a.xmp>b.xmp b.xmp>c.xmp", {}, "b.xmp>c.xmp a.jpg>b.jpg+a.xmp>b.xmp"},
  };
  for (const auto& row : rows) {
    const std::vector<RenameMove> moves = Moves(row.moves);
    const core::RenamePlan plan =
        core::PlanRenames(moves, [&](const QByteArray& name) { return row.others.count(name) != 0; });
    EXPECT_EQ(Shown(plan), row.plan) << row.moves;
    ExpectSafeAndComplete(moves, plan, row.others);
  }
}

TEST(SeriesFormat, ReadsTheBoxLikeANumberPrefix) {
  struct Case { const char* text; qint64 value; };
  const Case cases[] = {
      {"", 0},       {"abc", 0},     {"  42", 42}, {"\t7x", 7},   {"12abc3", 12},
      {"0007", 7},   {"-3", -3},     {"+5", 5},    {"- 3", 0},    {"3 4", 3},
      {"1.9", 1},    {"999999999999999990", 999'999'999'999'999'990},
      {"99999999999999999999999", core::kMaxSeriesNumber},
      {"-99999999999999999999999", -core::kMaxSeriesNumber},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::ReadSeriesNumber(QString::fromUtf8(c.text)), c.value) << c.text;
  }
}

// Only ASCII capitals fold, wherever in a name they stand: the neighbours
// of "A" and "Z" and the Latin-1 capitals stay as they are.
TEST(AsciiFoldedName, OnlyAsciiLettersFold) {
  const core::AsciiFoldedName folded;
  const std::pair<const char*, const char*> same[] = {
      {"IMG_0001.JPG", "img_0001.jpg"}, {"AZ", "az"}, {"0123456789abcdefG", "0123456789ABCDEFg"}, {"", ""}};
  for (const auto& [a, b] : same) {
    EXPECT_TRUE(folded(QByteArrayView(a), QByteArrayView(b))) << a;
    EXPECT_EQ(folded(QByteArrayView(a)), folded(QByteArrayView(b))) << a;
  }
  // Eight bytes and more are compared a word at a time, fewer one by one.
  const std::pair<const char*, const char*> different[] = {
      {"@", "`"}, {"@IMG_001", "`IMG_001"}, {"[[[[[[[[", "{{{{{{{{"}, {"\xc9t\xc9.jpeg", "\xe9t\xe9.jpeg"},
      {"abc", "abcd"}, {"12345678a", "12345678b"}};
  for (const auto& [a, b] : different) EXPECT_FALSE(folded(QByteArrayView(a), QByteArrayView(b))) << a;
}

TEST(SeriesFormat, PatternsPrintAsTheOptionsShow) {
  struct Case { int placeholders; qint64 value; const char* text; };
  const Case cases[] = {
      {0, 7, "7"},      {0, 123, "123"},   {0, 0, ""},         {2, 7, "07"},   {2, 123, "123"},
      {2, 0, "00"},     {3, 7, "007"},     {4, 7, "0007"},     {4, 123, "0123"},
      {5, 7, "00007"},  {5, 123456, "123456"}, {2, -3, "-03"}, {1, 7, ""},     {6, 7, ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::FormatSeriesNumber(c.value, core::SeriesPattern(c.placeholders)), c.text)
        << c.placeholders << " " << c.value;
  }
}

TEST(RandomSeriesPool, SourceOutsideRangeStillDrawsEveryNumberOnce) {
  const double answers[] = {1.0, -2.0, std::numeric_limits<double>::quiet_NaN(), 7.5};
  int call = 0;
  core::RandomSeriesPool pool(1, 6, [&] { return answers[call++ % 4]; });
  std::vector<qint64> drawn;
  while (auto value = pool.Draw()) drawn.push_back(*value);
  std::sort(drawn.begin(), drawn.end());
  EXPECT_EQ(drawn, (std::vector<qint64>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(pool.Size(), 0);
  EXPECT_FALSE(core::RandomSeriesPool(1, -4, [] { return 0.0; }).Draw().has_value());
}

TEST(TemplateFile, LegacyBytesAreWindows1252) {
  // "Café €" written by the old ANSI writer: é = 0xE9, € = 0x80.
  EXPECT_EQ(core::DecodeTemplateText("Caf\xE9 \x80\x9F"), QString::fromUtf8("Café €Ÿ"));
  EXPECT_EQ(core::DecodeTemplateText("\xEF\xBB\xBFKids"), "Kids");
  EXPECT_EQ(core::ReadTemplate("\"Caf\xE9\"").captions.front(), QString::fromUtf8("Café"));
}

TEST(TemplateFile, ReaderStaysInsideTruncatedBuffers) {
  const QByteArray whole =
      core::WriteTemplate({"Kids && Pets", "", " lead", "Smith, John", "Ünïcödé €", "6", "7", "8", "9"});
  for (qsizetype length = 0; length <= whole.size(); ++length) {
    // A copy of exactly `length` bytes, so the sanitizers see any overrun.
    const QByteArray part(whole.constData(), length);
    EXPECT_LE(core::ReadTemplate(part).captions.size(), 9u);
  }
}

using core::Token;

// Hands out fixed values and records which tokens were asked for, in order.
struct ValueLog {
  std::map<Token, QString> values{
      {Token::OrigFn, "IMG_1"},  {Token::Date, "2004-05-01"}, {Token::Time, "10-11-12"},
      {Token::DateTime, "2004-05-01 10-11-12"}, {Token::Series, "07"}, {Token::Serial, "1234"},
      {Token::Title, "Song"},    {Token::Artist, "Band"},      {Token::Album, "LP"},
      {Token::Track, "3"}};
  std::vector<Token> asked;

  core::TokenValueFunction Function() {
    return [this](Token token) {
      asked.push_back(token);
      return values[token];
    };
  }
};

using Expand = QString (*)(const QString&, const core::TokenValueFunction&);

TEST(TokenExpansion, SpellingsOrderAndValuesAskedFor) {
  const Expand individual = core::ExpandIndividualTokens;
  const Expand batch = core::ExpandBatchTokens;
  const Expand button = core::ExpandButtonTokens;
  struct Case { Expand expand; const char* text; const char* expected; std::vector<Token> asked; };
  const Case cases[] = {
      // Individual: both exact spellings replaced, a mixed case kept.
      {individual, "%ORIGFN% %origfn% %OrigFN%.jpg", "IMG_1 IMG_1 %OrigFN%.jpg", {Token::OrigFn}},
      // A mixed-case series token is found, so a number is consumed, yet it stays.
      {individual, "a %Series%", "a %Series%", {Token::Series}},
      // The same text on a button right after: there nothing is found.
      {button, "a %Series%", "a %Series%", {}},
      // So is one whose letters only fold to the token's: the long s and the Kelvin sign.
      {individual, "%\u017FERIES%", "%\u017FERIES%", {Token::Series}},
      {batch, "%TRAC\u212A%", "%TRAC\u212A%", {Token::Track}},
      {individual, "%ORIG", "%ORIG", {}},
      {individual, "%date time% %DATE TIME%", "2004-05-01 10-11-12 2004-05-01 10-11-12", {Token::DateTime}},
      // Two tokens sharing a percent sign: the date goes first and takes it, on either side.
      {individual, "%DATE%TIME%", "2004-05-01TIME%", {Token::Date}},
      {individual, "%TIME%DATE%", "%TIME2004-05-01", {Token::Date}},
      {individual, "%SERIES% %TIME% %DATE% %TITLE%", "07 10-11-12 2004-05-01 %TITLE%",
       {Token::Date, Token::Time, Token::Series}},
      {batch, "%series%%SERIAL%%date time%%TIME%%DATE%%ORIGFN%%track%%ALBUM%%artist%%TITLE%",
       "0712342004-05-01 10-11-1210-11-122004-05-01IMG_13LPBandSong",
       {Token::Title, Token::Artist, Token::Album, Token::Track, Token::OrigFn, Token::Date, Token::Time,
        Token::DateTime, Token::Serial, Token::Series}},
      // Lower-case serial is asked for but never replaced.
      {batch, "%serial% %SERIAL% %SERIAL%", "%serial% 1234 1234", {Token::Serial}},
      // Buttons: exact spellings only, nothing asked for a mixed case.
      {button, "Trip %DATE% %Date% %serial% %title%", "Trip 2004-05-01 %Date% %serial% %title%", {Token::Date}},
      {button, "%origfn%-%series%", "IMG_1-07", {Token::Series, Token::OrigFn}},
  };
  for (const Case& c : cases) {
    ValueLog log;
    EXPECT_EQ(c.expand(c.text, log.Function()), c.expected) << c.text;
    EXPECT_EQ(log.asked, c.asked) << c.text;
  }
  // A value is not searched again for the token it replaced, even where it holds it.
  ValueLog own;
  own.values[Token::Title] = "A%TITLE%";
  EXPECT_EQ(core::ExpandBatchTokens("%TITLE% %title%", own.Function()), "A%TITLE% A%TITLE%");
  // A value of letters alone may make a later token with the percent signs around it.
  own.values[Token::OrigFn] = "TIME";
  EXPECT_EQ(core::ExpandIndividualTokens("%%ORIGFN%%", own.Function()), "10-11-12");
}

}  // namespace
}  // namespace renvale::test
