#include <gdk-pixbuf/gdk-pixbuf.h>

// These macros of glib would stand in the way of the constants in platform/Types.h.
#undef TRUE
#undef FALSE

#include <algorithm>
#include <string>
#include <string_view>

#include "graphics/BitmapObject.h"
#include "platform/Geometry.h"

namespace {

// Small enough that a picture refused for its size is left soon.
constexpr std::size_t kChunk = 16384;

struct GObjectRelease {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using LoaderPtr = std::unique_ptr<GdkPixbufLoader, GObjectRelease>;

// Called before the loader takes memory for the pixels; a size of zero ends the loading.
void OnSizeKnown(GdkPixbufLoader* loader, int width, int height, gpointer) {
  if (!IsPictureSize(width, height)) gdk_pixbuf_loader_set_size(loader, 0, 0);
}

void OnAreaRead(GdkPixbufLoader*, int x, int y, int width, int height, gpointer total) {
  auto& read = *static_cast<CRect*>(total);
  const CRect area(x, y, x + width, y + height);
  UnionRect(&read, &read, &area);
}

// Whether the file's last end marker comes after the start of its last scan.
bool HasJpegEnd(std::span<const BYTE> bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::size_t end = text.rfind("\xFF\xD9");
  const std::size_t scan = text.rfind("\xFF\xDA");
  return end != text.npos && scan != text.npos && end > scan;
}

// These loaders are content with the beginning of a picture; the others are not.
bool IsWhole(GdkPixbufLoader* loader, std::span<const BYTE> bytes, int height, const CRect& read) {
  gchar* format = gdk_pixbuf_format_get_name(gdk_pixbuf_loader_get_format(loader));
  const std::string name(format);
  g_free(format);
  if (name == "jpeg") return HasJpegEnd(bytes);
  return (name != "png" && name != "bmp") || read.Height() == height;
}

bool WriteAll(GdkPixbufLoader* loader, std::span<const BYTE> bytes) {
  while (!bytes.empty()) {
    const auto part = bytes.first(std::min(bytes.size(), kChunk));
    if (!gdk_pixbuf_loader_write(loader, part.data(), part.size(), nullptr)) return false;
    bytes = bytes.subspan(part.size());
  }
  return true;
}

std::uint32_t PixelOf(const guchar* channels, bool hasAlpha) {
  const std::uint32_t alpha = hasAlpha ? channels[3] : 255u;
  return alpha << 24 | static_cast<std::uint32_t>(channels[0]) << 16 |
         static_cast<std::uint32_t>(channels[1]) << 8 | channels[2];
}

HBITMAP ToBitmap(const GdkPixbuf* picture) {
  const int width = gdk_pixbuf_get_width(picture);
  const int height = gdk_pixbuf_get_height(picture);
  if (!IsPictureSize(width, height)) return nullptr;
  const bool hasAlpha = gdk_pixbuf_get_has_alpha(picture);
  const int channels = gdk_pixbuf_get_n_channels(picture);
  const std::ptrdiff_t stride = gdk_pixbuf_get_rowstride(picture);
  const guchar* source = gdk_pixbuf_read_pixels(picture);
  auto bitmap = std::make_unique<BitmapObject>(width, height, hasAlpha ? 32 : 24);
  auto pixel = bitmap->Pixels().begin();
  for (int y = 0; y < height; ++y, source += stride) {
    for (int x = 0; x < width; ++x) *pixel++ = PixelOf(source + x * channels, hasAlpha);
  }
  return AddBitmap(std::move(bitmap));
}

}  // namespace

HBITMAP DecodeBitmap(std::span<const BYTE> bytes) {
  const LoaderPtr loader(gdk_pixbuf_loader_new());
  CRect read;
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(OnSizeKnown), nullptr);
  g_signal_connect(loader.get(), "area-updated", G_CALLBACK(OnAreaRead), &read);
  const bool written = WriteAll(loader.get(), bytes);
  if (!gdk_pixbuf_loader_close(loader.get(), nullptr) || !written) return nullptr;
  const GdkPixbuf* picture = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!picture) return nullptr;
  const int height = gdk_pixbuf_get_height(picture);
  return IsWhole(loader.get(), bytes, height, read) ? ToBitmap(picture) : nullptr;
}
