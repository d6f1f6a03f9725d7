#include <gtest/gtest.h>

#include "core/TemplateFile.h"

namespace renvale::test {
namespace {

std::array<QString, core::kTemplateRecordCount> Captions() {
  return {"Kids && Pets", "", " lead", "Smith, John", "Ünïcödé €", "6", "7", "8", "9"};
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
