#include <gtest/gtest.h>

#include "core/TemplateFile.h"

namespace renvale::test {
namespace {

std::array<QString, core::kTemplateRecordCount> Captions() {
  return {"Kids && Pets", "", " lead", "Smith, John", "Ünïcödé €", "6", "7", "8", "9"};
}

TEST(TemplateFile, WrittenRecordsReadBackUnchanged) {
  const QByteArray bytes = core::WriteTemplate(Captions());
  EXPECT_TRUE(bytes.startsWith("\"Kids && Pets\"\r\n\"\"\r\n\" lead\"\r\n"));
  EXPECT_TRUE(bytes.endsWith("\"8\"\r\n\"9\"\r\n"));
  const core::TemplateReadResult read = core::ReadTemplate(bytes);
  ASSERT_TRUE(read.Complete());
  const auto expected = Captions();
  EXPECT_EQ(read.captions, std::vector<QString>(expected.begin(), expected.end()));
}

TEST(TemplateFile, DelimitedFieldRules) {
  const core::TemplateReadResult read = core::ReadTemplate(
      "Smith, John\r\n  \"Doe, Jane\"  junk,\"a\",b\n\"multi\nline\"\rlast,  x ,\"unclosed");
  EXPECT_TRUE(read.Complete());
  EXPECT_EQ(read.captions, (std::vector<QString>{"Smith", "John", "Doe, Jane", "a", "b",
                                                 "multi\nline", "last", "x ", "unclosed"}));
}

TEST(TemplateFile, ShortFileKeepsWhatWasRead) {
  const core::TemplateReadResult read = core::ReadTemplate("\"one\"\r\n\"two\"\r\n   ");
  EXPECT_FALSE(read.Complete());
  EXPECT_EQ(read.captions, (std::vector<QString>{"one", "two"}));
  EXPECT_TRUE(core::ReadTemplate(QByteArray()).captions.empty());
}

TEST(TemplateFile, LegacyBytesAreWindows1252) {
  // "Café €" written by the old ANSI writer: é = 0xE9, € = 0x80.
  EXPECT_EQ(core::DecodeTemplateText("Caf\xE9 \x80\x9F"), QString::fromUtf8("Café €Ÿ"));
  EXPECT_EQ(core::DecodeTemplateText("\xEF\xBB\xBFKids"), "Kids");
  EXPECT_EQ(core::ReadTemplate("\"Caf\xE9\"").captions.front(), QString::fromUtf8("Café"));
}

TEST(TemplateFile, ReaderStaysInsideTruncatedBuffers) {
  const QByteArray whole = core::WriteTemplate(Captions());
  for (qsizetype length = 0; length <= whole.size(); ++length) {
    // A copy of exactly `length` bytes, so the sanitizers see any overrun.
    const QByteArray part(whole.constData(), length);
    EXPECT_LE(core::ReadTemplate(part).captions.size(), 9u);
  }
}

}  // namespace
}  // namespace renvale::test
