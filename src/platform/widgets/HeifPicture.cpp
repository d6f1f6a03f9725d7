#include "platform/widgets/HeifPicture.h"

#include <libheif/heif.h>

namespace renvale::platform {

namespace {

// The decoded pixels stay in libheif's buffer; the picture frees it when the
// last copy of it goes, so a 12-megapixel picture is never held twice.
QImage DecodeHandle(const heif_image_handle* handle) {
  heif_image* image = nullptr;
  if (heif_decode_image(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr).code !=
      heif_error_Ok) {
    return {};
  }
  int stride = 0;
  const uint8_t* pixels = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
  const int width = heif_image_get_width(image, heif_channel_interleaved);
  const int height = heif_image_get_height(image, heif_channel_interleaved);
  if (pixels == nullptr || width <= 0 || height <= 0) {
    heif_image_release(image);
    return {};
  }
  return QImage(
      pixels, width, height, stride, QImage::Format_RGBA8888,
      [](void* decoded) { heif_image_release(static_cast<heif_image*>(decoded)); }, image);
}

}  // namespace

QImage HeifPicture::Decode(const QByteArray& bytes, QSize* storedSize) {
  heif_context* context = heif_context_alloc();
  heif_image_handle* handle = nullptr;
  QImage result;
  if (heif_context_read_from_memory_without_copy(context, bytes.constData(), size_t(bytes.size()), nullptr).code ==
          heif_error_Ok &&
      heif_context_get_primary_image_handle(context, &handle).code == heif_error_Ok) {
    *storedSize = QSize(heif_image_handle_get_ispe_width(handle), heif_image_handle_get_ispe_height(handle));
    result = DecodeHandle(handle);
    heif_image_handle_release(handle);
  }
  heif_context_free(context);
  return result;
}

}  // namespace renvale::platform
