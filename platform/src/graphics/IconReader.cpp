#include "graphics/IconReader.h"

#include <algorithm>

#include "graphics/BitmapObject.h"

namespace {

using Bytes = std::span<const BYTE>;

constexpr std::uint32_t kHeaderSize = 40;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kOpaque = 0xFF000000;

std::uint32_t Number(Bytes bytes, std::size_t at, std::size_t count = 4) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i > 0; --i) value = value << 8 | bytes[at + i - 1];
  return value;
}

// Where the parts of the image lie in its bytes.
struct Layout {
  int width = 0;
  int height = 0;
  int depth = 0;
  std::size_t colorCount = 0;
  std::size_t rowBytes = 0;
  std::size_t maskRowBytes = 0;

  std::size_t RowsAt() const { return kHeaderSize + colorCount * 4; }
  std::size_t MaskAt() const { return RowsAt() + rowBytes * static_cast<std::size_t>(height); }
  std::size_t End() const { return MaskAt() + maskRowBytes * static_cast<std::size_t>(height); }
};

// Rows are padded to whole 32-bit words.
std::size_t RowBytes(int width, int depth) {
  return (static_cast<std::size_t>(width) * static_cast<std::size_t>(depth) + 31) / 32 * 4;
}

bool IsDepth(std::uint32_t depth) {
  return depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
}

std::optional<Layout> ReadHeader(Bytes bytes) {
  if (bytes.size() < kHeaderSize || Number(bytes, 0) != kHeaderSize) return std::nullopt;
  const auto width = static_cast<std::int32_t>(Number(bytes, 4));
  const auto height = static_cast<std::int32_t>(Number(bytes, 8)) / 2;
  const std::uint32_t planes = Number(bytes, 12, 2);
  const std::uint32_t depth = Number(bytes, 14, 2);
  const std::uint32_t used = Number(bytes, 32);
  if (!IsPictureSize(width, height) || planes != 1 || !IsDepth(depth) ||
      Number(bytes, 16) != kUncompressed) {
    return std::nullopt;
  }
  const std::uint32_t colors = depth <= 8 ? 1u << depth : 0;
  if (used > colors) return std::nullopt;
  const int bits = static_cast<int>(depth);
  return Layout{
      width, height, bits, used ? used : colors, RowBytes(width, bits), RowBytes(width, 1)};
}

std::uint32_t Indexed(Bytes bytes, const Layout& layout, Bytes row, int x) {
  const int bit = x * layout.depth;
  const int shift = 8 - layout.depth - bit % 8;
  const std::size_t index =
      (row[static_cast<std::size_t>(bit / 8)] >> shift) & ((1u << layout.depth) - 1);
  return index < layout.colorCount ? kOpaque | Number(bytes, kHeaderSize + index * 4, 3) : kOpaque;
}

// Five bits a colour, below a bit without meaning.
std::uint32_t FromFiveBits(std::uint32_t pixel) {
  const auto channel = [pixel](int shift) {
    const std::uint32_t five = pixel >> shift & 0x1F;
    return five << 3 | five >> 2;
  };
  return kOpaque | channel(10) << 16 | channel(5) << 8 | channel(0);
}

std::uint32_t PixelAt(Bytes bytes, const Layout& layout, Bytes row, int x) {
  const auto column = static_cast<std::size_t>(x);
  if (layout.depth == 32) return Number(row, column * 4);
  if (layout.depth == 24) return kOpaque | Number(row, column * 3, 3);
  if (layout.depth == 16) return FromFiveBits(Number(row, column * 2, 2));
  return Indexed(bytes, layout, row, x);
}

bool IsBitSet(Bytes row, int x) {
  return (row[static_cast<std::size_t>(x / 8)] >> (7 - x % 8)) & 1;
}

void AppendRow(IconImage& image, Bytes bytes, const Layout& layout, int rowFromBottom) {
  const auto row = static_cast<std::size_t>(rowFromBottom);
  const Bytes colors = bytes.subspan(layout.RowsAt() + row * layout.rowBytes, layout.rowBytes);
  const Bytes mask =
      bytes.subspan(layout.MaskAt() + row * layout.maskRowBytes, layout.maskRowBytes);
  for (int x = 0; x < layout.width; ++x) {
    image.pixels.push_back(PixelAt(bytes, layout, colors, x));
    image.transparent.push_back(IsBitSet(mask, x));
  }
}

}  // namespace

std::optional<IconImage> ReadIconImage(Bytes bytes) {
  const auto layout = ReadHeader(bytes);
  if (!layout || layout->End() > bytes.size()) return std::nullopt;
  IconImage image{layout->width, layout->height, false, {}, {}};
  const auto count = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
  image.pixels.reserve(count);
  image.transparent.reserve(count);
  for (int row = image.height; row > 0; --row) AppendRow(image, bytes, *layout, row - 1);
  image.hasAlpha = std::ranges::any_of(image.pixels, [&](std::uint32_t pixel) {
    return layout->depth == 32 && (pixel & kOpaque) != 0;
  });
  if (!image.hasAlpha) {
    for (std::uint32_t& pixel : image.pixels) pixel |= kOpaque;
  }
  return image;
}
