#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "cli/BatchArguments.h"
#include "cli/BatchCommand.h"
#include "core/CoreTexts.h"
#include "support/FaultyFileSystem.h"

namespace renvale::cli {
namespace {

std::vector<QByteArray> Args(std::initializer_list<const char*> words) {
  return std::vector<QByteArray>(words.begin(), words.end());
}

TEST(BatchArguments, EachBadCommandLineGetsItsOwnOneLineReason) {
  const struct {
    std::vector<QByteArray> args;
    const char* error;
  } cases[] = {
      {Args({"--nmae", "x", "a.jpg"}), "unknown option '--nmae' (see renvale-batch --help)"},
      {Args({"a.jpg", "--name"}), "option '--name' needs a value"},
      {Args({"--name", "a:b", "a.jpg"}),
       "'a:b' holds a character that is not allowed in a file name:  \\ / : * ? \" < > |"},
      {Args({"--replace", "a=b/c", "a.jpg"}),
       "'b/c' holds a character that is not allowed in a file name:  \\ / : * ? \" < > |"},
      {Args({"--name", "", "a.jpg"}), "the name given to '--name' is empty"},
      {Args({"--name", "x"}), "no files given"},
      {Args({"--series", "-3", "--name", "x", "a"}), "'--series' takes a whole number from 0 up, not '-3'"},
      {Args({"--random-series", "--seed", "-1", "--name", "x", "a"}),
       "'--seed' takes a whole number from 0 to 4294967295, not '-1'"},
      {Args({"--seed", "4", "--name", "x", "a"}), "'--seed' is for '--random-series' only"},
      {Args({"--random-series", "--replace", "a=b", "a"}), "'--random-series' and '--seed' are for '--name' only"},
      {Args({"--replace", "=b", "a"}), "'--replace' takes SEARCH=REPLACEMENT with SEARCH not empty, not '=b'"},
      {Args({"--on-clash=ask", "--name", "x", "a"}), "'--on-clash' takes 'skip' or 'fail', not 'ask'"},
      {Args({"--name", "x", "--replace", "a=b", "a"}), "'--name' and '--replace' cannot be used together"},
      {Args({"--history", "a.jpg"}), "'--history' takes no files ('a.jpg')"},
      {Args({"a.jpg"}), "say what to do: --name, --replace, --history or --undo (see --help)"},
      {Args({"--replace", "1=a", "--replace", "2=a", "--replace", "3=a", "--replace", "4=a", "--replace", "5=a",
             "--replace", "6=a", "--replace", "7=a", "f"}),
       "at most six '--replace' pairs can be chained"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParseBatchArguments(c.args).error, QString::fromUtf8(c.error)) << c.args.front().constData();
  }
}

TEST(BatchArguments, GoodCommandLinesKeepOrderBytesAndValues) {
  const BatchArguments name = ParseBatchArguments(
      Args({"--name=%DATE% %SERIES%", "--series", "7", "--on-clash=fail", "b.jpg", "--dry-run", "--", "--odd.jpg",
            "caf\xe9.jpg"}));
  EXPECT_EQ(name.error, QString());
  EXPECT_EQ(name.action, Action::Name);
  EXPECT_EQ(name.name, QStringLiteral("%DATE% %SERIES%"));
  EXPECT_EQ(name.series, 7);
  EXPECT_TRUE(name.failOnClash && name.dryRun && !name.json);
  EXPECT_EQ(name.files, Args({"b.jpg", "--odd.jpg", "caf\xe9.jpg"}));

  const BatchArguments replace = ParseBatchArguments(Args({"--replace", "IMG_=a=b", "--replace", "x=", "f"}));
  ASSERT_EQ(replace.replacements.size(), 2u);
  EXPECT_EQ(replace.replacements[0], std::make_pair(QStringLiteral("IMG_"), QStringLiteral("a=b")));
  EXPECT_EQ(replace.replacements[1], std::make_pair(QStringLiteral("x"), QString()));

  EXPECT_EQ(ParseBatchArguments(Args({"--undo", "0042-0001"})).undoId, QStringLiteral("0042-0001"));
  const BatchArguments newest = ParseBatchArguments(Args({"--undo", "--json"}));
  EXPECT_TRUE(newest.undoId.isEmpty() && newest.json && newest.error.isEmpty());
}

// Real files in a temporary folder, each holding its own first name, and a
// journal beside them; the command runs in-process.
class BatchRun : public ::testing::Test {
 protected:
  BatchRun() { QDir().mkpath(QFile::decodeName(state) + "damaged"); }

  void Make(const QByteArray& name) { fs.WriteWholeFile(card + name, name); }
  QByteArray Holds(const QByteArray& name) {
    QByteArray bytes;
    return fs.ReadWholeFile(card + name, 1 << 10, &bytes) == 0 ? bytes : QByteArray("(none)");
  }
  int Run(const std::vector<QByteArray>& words) {
    out.clear();
    err.clear();
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    const BatchServices services{fs, settings, &journal, card, {}};
    return BatchCommand(services, outStream, errStream).Run(ParseBatchArguments(words));
  }

  QTemporaryDir dir;
  QByteArray card = QFile::encodeName(dir.path()) + '/';
  QByteArray state = QFile::encodeName(dir.path()) + "/.state/";
  test::FaultyFileSystem faulty{platform::RealFileSystem()};
  platform::FileSystem& fs = faulty;
  core::SettingsRecord settings;
  HeadlessMessagePort journalPort;
  fileops::Journal journal{fs, (QDir().mkpath(QFile::decodeName(state)), state), journalPort};
  QString out, err;
};

// A card's worth of lines goes out in pieces: none may be lost or repeated where one piece ends.
TEST_F(BatchRun, ALongDryRunTellsEveryFileOnceInItsOrder) {
  std::vector<QByteArray> args{"--name", "Trip %SERIES%", "--dry-run"};
  QString expected;
  for (int i = 1; i <= 800; ++i) {
    args.push_back("f" + QByteArray::number(i) + ".jpg");
    Make(args.back());
    expected += QStringLiteral("f%1.jpg \u2192 Trip %2.jpg\n").arg(i).arg(i, 2, 10, QLatin1Char('0'));
  }
  EXPECT_EQ(Run(args), kEveryFileNamed);
  EXPECT_EQ(out, expected);
}

TEST_F(BatchRun, ADryRunNotesTheClashARunSkipsItUnlessToldToFailAndUndoPutsEverythingBack) {
  Make("a.jpg");
  Make("b.jpg");
  Make("Trip 02.jpg");  // outside the batch, in the way of b's name
  EXPECT_EQ(Run({"--name", "Trip %SERIES%", "--dry-run", "a.jpg", "b.jpg"}), kSomeSkipped);
  EXPECT_EQ(out, QStringLiteral("a.jpg \u2192 Trip 01.jpg\nb.jpg \u2192 Trip 02.jpg\n    ") +
                     core::texts::kNoteExistingFile + '\n');
  EXPECT_EQ(Run({"--name", "Trip %SERIES%", "--on-clash=fail", "a.jpg", "b.jpg"}), kSomeSkipped);
  EXPECT_EQ(err, QStringLiteral("renvale-batch: nothing renamed: 'b.jpg' would take 'Trip 02.jpg', which is "
                                "already taken (--on-clash=fail)\n"));
  EXPECT_EQ(Holds("Trip 01.jpg"), "(none)");

  EXPECT_EQ(Run({"--name", "Trip %SERIES%", "--json", "a.jpg", "b.jpg"}), kSomeSkipped);
  EXPECT_EQ(Holds("Trip 01.jpg"), "a.jpg");
  EXPECT_EQ(Holds("Trip 02.jpg"), "Trip 02.jpg");
  EXPECT_EQ(Holds("b.jpg"), "b.jpg");
  const QStringList json = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_EQ(json.size(), 2);
  EXPECT_TRUE(json[0].endsWith(
      QStringLiteral("\"file\":\"a.jpg\",\"new\":\"Trip 01.jpg\",\"notes\":[],\"old\":\"a.jpg\",\"status\":\"renamed\"}")));
  EXPECT_TRUE(json[1].endsWith(QStringLiteral("\"status\":\"skipped\"}")));
  EXPECT_EQ(err, QStringLiteral("renvale-batch: skipped 'b.jpg': 'Trip 02.jpg' is already taken\n"));

  EXPECT_EQ(Run({"--history"}), kEveryFileNamed);
  EXPECT_TRUE(out.contains(QStringLiteral("Batch Rename of 2 files"))) << out.toStdString();
  EXPECT_EQ(Run({"--undo"}), kEveryFileNamed);
  EXPECT_EQ(Holds("a.jpg"), "a.jpg");
  EXPECT_EQ(Run({"--undo"}), kFailed);
  EXPECT_EQ(err, QStringLiteral("renvale-batch: nothing to undo\n"));
}

// A script checks the dry run, then runs it: the same seed gives the same
// names, each folder shuffling its own share of the numbers.
TEST_F(BatchRun, ASeededRandomSeriesRunsAsItsDryRunShowedOverTwoFolders) {
  QDir().mkpath(QFile::decodeName(card) + "sub");
  const char* files[] = {"a.jpg", "b.jpg", "c.jpg", "d.jpg", "sub/e.jpg", "sub/f.jpg"};
  for (const char* name : files) Make(name);
  std::vector<QByteArray> args{"--name", "S %SERIES%", "--series", "5", "--random-series", "--seed", "11", "--dry-run"};
  args.insert(args.end(), std::begin(files), std::end(files));
  EXPECT_EQ(Run(args), kEveryFileNamed);
  const QString shown = out;
  args.erase(args.begin() + 7);
  EXPECT_EQ(Run(args), kEveryFileNamed);
  EXPECT_EQ(out, shown);
  QStringList numbers;
  for (const QString& line : shown.split('\n', Qt::SkipEmptyParts)) numbers << line.right(6).left(2);
  QStringList first = numbers.mid(0, 4), second = numbers.mid(4);
  EXPECT_NE(first, QStringList({"05", "06", "07", "08"})) << shown.toStdString();
  first.sort();
  second.sort();
  EXPECT_EQ(first + second, QStringList({"05", "06", "07", "08", "09", "10"})) << shown.toStdString();
}

// A card's worth of files is checked and settled against readings of the
// folder: a long chain of swaps, a clash and a plain rename among them must
// each still be reported as what happened. The swaps step aside through
// hidden names; the history must hold those steps too, or Undo would leave
// files hidden.
TEST_F(BatchRun, ManyFilesOfOneFolderAreReportedAsTheyEnded) {
  std::vector<QByteArray> args{"--name", "Trip %SERIES%"};
  for (int i = 33; i >= 1; --i) {
    args.push_back("Trip " + QByteArray::number(i).rightJustified(2, '0') + ".jpg");
    Make(args.back());
  }
  Make("x.jpg");
  Make("y.jpg");
  Make("Trip 34.jpg");  // outside the batch, in x's way
  args.insert(args.end(), {"x.jpg", "y.jpg"});
  std::vector<QByteArray> missing = args;
  missing.emplace_back("gone.jpg");
  EXPECT_EQ(Run(missing), kFailed);
  EXPECT_EQ(out + err, QStringLiteral("renvale-batch: no such file: 'gone.jpg'\n"));
  EXPECT_EQ(Run(args), kSomeSkipped);
  EXPECT_EQ(err, QStringLiteral("renvale-batch: skipped 'x.jpg': 'Trip 34.jpg' is already taken\n"));
  EXPECT_EQ(out.count(QLatin1Char('\n')), 33);  // Trip 17 keeps its name
  EXPECT_TRUE(out.startsWith(QStringLiteral("Trip 33.jpg \u2192 Trip 01.jpg\n")));
  EXPECT_TRUE(out.endsWith(QStringLiteral("Trip 01.jpg \u2192 Trip 33.jpg\ny.jpg \u2192 Trip 35.jpg\n")));
  EXPECT_EQ(Holds("Trip 01.jpg"), "Trip 33.jpg");
  EXPECT_EQ(Holds("x.jpg"), "x.jpg");
  EXPECT_EQ(Run({"--undo"}), kEveryFileNamed) << err.toStdString();
  EXPECT_EQ(Holds("Trip 01.jpg"), "Trip 01.jpg");
  EXPECT_EQ(Holds("Trip 33.jpg"), "Trip 33.jpg");
  std::vector<QByteArray> names;
  fs.ListFiles(card, &names);
  EXPECT_EQ(names.size(), 36u);
}

// Each folder is a batch of its own; the series runs on from one to the next.
TEST_F(BatchRun, APlainRunCarriesTheSeriesOnAndReplaceChainsPairs) {
  QDir().mkpath(QFile::decodeName(card) + "sub");
  Make("IMG_1.JPG");
  Make("sub/b.jpg");
  EXPECT_EQ(Run({"--name", "Day %SERIES%", "--series", "8", "IMG_1.JPG", "sub/b.jpg"}), kEveryFileNamed);
  EXPECT_EQ(out, QStringLiteral("IMG_1.JPG \u2192 Day 08.JPG\nsub/b.jpg \u2192 Day 09.jpg\n"));
  EXPECT_EQ(Run({"--replace", "Day 0=x", "--replace", "x8=Day 1", "Day 08.JPG"}), kEveryFileNamed);
  EXPECT_EQ(out, QStringLiteral("Day 08.JPG \u2192 Day 1.JPG\n"));
  EXPECT_EQ(Holds("Day 1.JPG"), "IMG_1.JPG");

  // A rename the disk refuses ends the run: every file after it, in this
  // folder and the next, is told it was not reached.
  for (const char* name : {"c.jpg", "d.jpg", "e.jpg", "sub/f.jpg"}) Make(name);
  faulty.FailRename(card + "d.jpg", EIO);
  EXPECT_EQ(Run({"--name", "End %SERIES%", "c.jpg", "d.jpg", "e.jpg", "sub/f.jpg"}), kFailed);
  EXPECT_EQ(out, QStringLiteral("c.jpg \u2192 End 01.jpg\n"));
  EXPECT_TRUE(err.endsWith(QStringLiteral("renvale-batch: 'd.jpg' was not renamed: the run stopped before its turn\n"
                                          "renvale-batch: 'e.jpg' was not renamed: the run stopped before its turn\n"
                                          "renvale-batch: 'sub/f.jpg' was not renamed: the run stopped before its "
                                          "turn\n")))
      << err.toStdString();
  EXPECT_EQ(Holds("sub/f.jpg"), "sub/f.jpg");
}

}  // namespace
}  // namespace renvale::cli
