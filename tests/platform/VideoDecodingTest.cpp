#include <gtest/gtest.h>

#include <QList>

#include "platform/VideoDecoding.h"

namespace renvale::test {
namespace {

using platform::VideoDecoding;

TEST(VideoDecoding, TheWorkaroundRanksEveryHardwareDecoderOut) {
  const QByteArray ranks = VideoDecoding::SoftwareOnlyRanks({});
  for (const char* decoder : {"vah264dec", "vaapih264dec", "vaapidecodebin", "nvh264dec", "v4l2h264dec"}) {
    EXPECT_TRUE(ranks.split(',').contains(QByteArray(decoder) + ":NONE")) << decoder;
  }
  EXPECT_FALSE(ranks.contains("avdec_")) << "software decoders stay";
  EXPECT_FALSE(ranks.endsWith(','));
  // A rank set on purpose comes last, so that it wins.
  EXPECT_TRUE(VideoDecoding::SoftwareOnlyRanks(" vah264dec:PRIMARY ").endsWith(",vah264dec:PRIMARY"));

  qunsetenv("GST_PLUGIN_FEATURE_RANK");
  VideoDecoding::Choose(false);
  EXPECT_FALSE(qEnvironmentVariableIsSet("GST_PLUGIN_FEATURE_RANK"));
  qputenv("GST_PLUGIN_FEATURE_RANK", "mine:MAX");
  VideoDecoding::Choose(true);
  VideoDecoding::Choose(true);
  EXPECT_EQ(qgetenv("GST_PLUGIN_FEATURE_RANK"), VideoDecoding::SoftwareOnlyRanks("mine:MAX"));
  qunsetenv("GST_PLUGIN_FEATURE_RANK");
}

}  // namespace
}  // namespace renvale::test
