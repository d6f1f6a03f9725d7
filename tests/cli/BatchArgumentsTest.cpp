#include <gtest/gtest.h>

#include "cli/BatchArguments.h"

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

}  // namespace
}  // namespace renvale::cli
