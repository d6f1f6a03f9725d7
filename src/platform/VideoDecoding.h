#pragma once

#include <QByteArray>

namespace renvale::platform {

// The video work-around switch. On Linux a broken video driver shows as a
// player that crashes, freezes or draws garbage as soon as GStreamer hands a
// video to the graphics card's decoder (VA-API, NVDEC, V4L2). The
// work-around decodes every video on the processor instead: the hardware
// decoders are ranked out of the framework's automatic choice.
class VideoDecoding {
 public:
  // GStreamer reads its ranking once, when the first player starts, so
  // this must run before that; later calls change nothing for this run.
  // Does nothing when `softwareOnly` is off, so that the system's own
  // choice stands.
  static void Choose(bool softwareOnly);

  // The GST_PLUGIN_FEATURE_RANK value that ranks the hardware decoders out,
  // keeping `existing` after them: the framework applies the list in order,
  // so a rank the person set on purpose still wins.
  static QByteArray SoftwareOnlyRanks(const QByteArray& existing);
};

}  // namespace renvale::platform
