#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include "graphics/BitmapObject.h"
#include "graphics/GObjectPtr.h"
#include "platform/Geometry.h"

namespace {

// Small enough that a picture refused for its size is left soon.
constexpr std::size_t kChunk = 16384;

using LoaderPtr = GObjectPtr<GdkPixbufLoader>;

// A loader's name, and how the files begin that it is for. What begins otherwise is no picture: the
// loaders of other formats are not for bytes from anywhere.
struct Format {
  std::string_view start;
  const char* loader;
};
constexpr Format kFormats[] = {
    {"\x89PNG\r\n\x1A\n", "png"},
    {"\xFF\xD8\xFF", "jpeg"},
    {"GIF8", "gif"},
    {"BM", "bmp"},
    {{"\0\0\1\0", 4}, "ico"},
    {{"\0\0\2\0", 4}, "ico"},
    {{"II*\0", 4}, "tiff"},
    {{"MM\0*", 4}, "tiff"},
};

const Format* FormatOf(std::string_view file) {
  const auto found = std::ranges::find_if(
      kFormats, [file](const Format& format) { return file.starts_with(format.start); });
  return found == std::end(kFormats) ? nullptr : found;
}

// A size that a header claims is believed only as far as the file could hold such a picture: no
// packing puts more pixels into a byte, but for blank pages, which are small.
bool IsCredible(std::int64_t width, std::int64_t height, std::size_t bytes) {
  constexpr std::int64_t kPixelsPerByte = 8 * 1032;
  constexpr std::int64_t kSmall = 4 * 1024 * 1024;
  return width * height <= std::max(kSmall, kPixelsPerByte * static_cast<std::int64_t>(bytes));
}

// A picture while it is read.
struct Reading {
  std::span<const BYTE> bytes;
  CRect area{};  // whose pixels have come
};

// Called before the loader takes memory for the pixels; a size of zero ends the loading.
void OnSizeKnown(GdkPixbufLoader* loader, int width, int height, gpointer data) {
  const auto& reading = *static_cast<const Reading*>(data);
  if (!IsPictureSize(width, height) || !IsCredible(width, height, reading.bytes.size()))
    gdk_pixbuf_loader_set_size(loader, 0, 0);
}

void OnAreaRead(GdkPixbufLoader*, int x, int y, int width, int height, gpointer data) {
  auto& read = static_cast<Reading*>(data)->area;
  const CRect area(x, y, x + width, y + height);
  UnionRect(&read, &read, &area);
}

// Whether the file's last end marker comes after the start of its last scan.
bool HasJpegEnd(std::string_view file) {
  const std::size_t end = file.rfind("\xFF\xD9");
  const std::size_t scan = file.rfind("\xFF\xDA");
  return end != file.npos && scan != file.npos && end > scan;
}

// These loaders are content with the beginning of a picture; the others are not.
bool IsWhole(std::string_view loader, std::string_view file, int height, const CRect& read) {
  if (loader == "jpeg") return HasJpegEnd(file);
  return (loader != "png" && loader != "bmp") || read.Height() == height;
}

bool WriteAll(GdkPixbufLoader* loader, std::span<const BYTE> bytes) {
  while (!bytes.empty()) {
    const auto part = bytes.first(std::min(bytes.size(), kChunk));
    if (!gdk_pixbuf_loader_write(loader, part.data(), part.size(), nullptr)) return false;
    bytes = bytes.subspan(part.size());
  }
  return true;
}

std::uint32_t FourBytes(const guchar* bytes) {
  std::uint32_t value = 0;
  std::memcpy(&value, bytes, sizeof value);
  return value;
}

// Whole words at once: the loops are run for each of a million pixels.
void CopyWithAlpha(const guchar* source, std::span<std::uint32_t> row) {
  for (std::size_t x = 0; x < row.size(); ++x) {
    const std::uint32_t channels = FourBytes(source + x * 4);  // red in the lowest byte
    row[x] = (channels & 0xFF00FF00) | (channels >> 16 & 0xFF) | (channels & 0xFF) << 16;
  }
}

// The word of a pixel starts with a byte of the one before it.
void CopyOpaque(const guchar* source, std::span<std::uint32_t> row) {
  constexpr std::uint32_t kOpaque = 0xFF000000;
  row[0] = kOpaque | static_cast<std::uint32_t>(source[0] << 16 | source[1] << 8 | source[2]);
  for (std::size_t x = 1; x < row.size(); ++x)
    row[x] = kOpaque | __builtin_bswap32(FourBytes(source + x * 3 - 1));
}

HBITMAP ToBitmap(const GdkPixbuf* picture) {
  const int width = gdk_pixbuf_get_width(picture);
  const int height = gdk_pixbuf_get_height(picture);
  if (!IsPictureSize(width, height)) return nullptr;
  const bool hasAlpha = gdk_pixbuf_get_has_alpha(picture);
  const std::ptrdiff_t stride = gdk_pixbuf_get_rowstride(picture);
  const guchar* source = gdk_pixbuf_read_pixels(picture);
  auto bitmap = std::make_unique<BitmapObject>(width, height, hasAlpha ? 32 : 24);
  const auto row = static_cast<std::size_t>(width);
  const auto copy = hasAlpha ? CopyWithAlpha : CopyOpaque;
  auto rest = bitmap->Pixels();
  for (; !rest.empty(); rest = rest.subspan(row), source += stride) copy(source, rest.first(row));
  return AddBitmap(std::move(bitmap));
}

}  // namespace

HBITMAP DecodeBitmap(std::span<const BYTE> bytes) {
  const std::string_view file(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const Format* format = FormatOf(file);
  const LoaderPtr loader(format ? gdk_pixbuf_loader_new_with_type(format->loader, nullptr)
                                : nullptr);
  if (!loader) return nullptr;
  Reading reading{bytes};
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(OnSizeKnown), &reading);
  g_signal_connect(loader.get(), "area-updated", G_CALLBACK(OnAreaRead), &reading);
  const bool written = WriteAll(loader.get(), bytes);
  if (!gdk_pixbuf_loader_close(loader.get(), nullptr) || !written) return nullptr;
  const GdkPixbuf* picture = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!picture) return nullptr;
  const int height = gdk_pixbuf_get_height(picture);
  return IsWhole(format->loader, file, height, reading.area) ? ToBitmap(picture) : nullptr;
}
