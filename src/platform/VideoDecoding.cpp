#include "platform/VideoDecoding.h"

#include <QtGlobal>

namespace renvale::platform {
namespace {

// GStreamer 1.22's hardware video decoders, by plugin: va and vaapi (Intel,
// AMD), nvcodec (NVIDIA), v4l2 and v4l2codecs (ARM boards). Its ranking
// takes exact names only.
constexpr const char* kHardwareDecoders[] = {
    "vah264dec",      "vah265dec",      "vavp8dec",       "vavp9dec",      "vaav1dec",        "vampeg2dec",
    "vajpegdec",      "vaapidecodebin", "vaapih264dec",   "vaapih265dec",  "vaapimpeg2dec",   "vaapivc1dec",
    "vaapivp8dec",    "vaapivp9dec",    "vaapiav1dec",    "vaapijpegdec",  "nvh264dec",       "nvh265dec",
    "nvvp8dec",       "nvvp9dec",       "nvav1dec",       "nvjpegdec",     "nvmpegvideodec",  "nvmpeg2videodec",
    "nvmpeg4videodec", "nvh264sldec",   "nvh265sldec",    "v4l2h264dec",   "v4l2h265dec",     "v4l2vp8dec",
    "v4l2vp9dec",     "v4l2mpeg2dec",   "v4l2mpeg4dec",   "v4l2slh264dec", "v4l2slh265dec",   "v4l2slvp8dec",
    "v4l2slvp9dec",   "v4l2slmpeg2dec",
};

constexpr char kRankVariable[] = "GST_PLUGIN_FEATURE_RANK";

}  // namespace

QByteArray VideoDecoding::SoftwareOnlyRanks(const QByteArray& existing) {
  QByteArray ranks;
  for (const char* decoder : kHardwareDecoders) {
    if (!ranks.isEmpty()) ranks += ',';
    ranks += decoder;
    ranks += ":NONE";
  }
  if (!existing.trimmed().isEmpty()) ranks += ',' + existing.trimmed();
  return ranks;
}

void VideoDecoding::Choose(bool softwareOnly) {
  static bool chosen = false;
  if (!softwareOnly || chosen) return;
  chosen = true;
  qputenv(kRankVariable, SoftwareOnlyRanks(qgetenv(kRankVariable)));
}

}  // namespace renvale::platform
