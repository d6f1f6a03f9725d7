#include "metadata/ExifBlockLocator.h"

#include "metadata/BmffExifLocator.h"
#include "metadata/ByteReader.h"
#include "metadata/JpegExifLocator.h"
#include "metadata/RawContainerLocator.h"
#include "metadata/TiffHeader.h"

namespace renvale::metadata {

bool ExifBlockLocator::IsTiff(ByteSource& source) {
  char head[TiffHeader::kSize];
  return source.Read(0, head, TiffHeader::kSize) && TiffHeader::Valid(head);
}

bool ExifBlockLocator::Locate(ByteSource& source, ExifLocation* location) {
  ByteReader file(source, 0, source.Size());
  ExifBlock block;
  bool found = false;
  if (IsTiff(source)) {
    block = ExifBlock{0, source.Size(), ExifBlock::First::Ifd0};
    found = true;
  } else if (file.Matches(0, "\xFF\xD8", 2)) {
    found = JpegExifLocator::Find(file, &block);
  } else if (BmffExifLocator::IsBmff(file)) {
    return BmffExifLocator::Find(file, location);
  } else if (RawContainerLocator::IsRaf(file)) {
    found = RawContainerLocator::FindInRaf(file, &block);
  } else if (RawContainerLocator::IsMrw(file)) {
    found = RawContainerLocator::FindInMrw(file, &block);
  } else if (RawContainerLocator::IsX3f(file)) {
    found = RawContainerLocator::FindInX3f(file, &block);
  }
  if (found) location->Add(block);
  return found;
}

}  // namespace renvale::metadata
