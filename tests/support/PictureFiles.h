#pragma once

// Picture files written by hand, so that tests know every byte.

#include <cstdint>
#include <functional>
#include <vector>

namespace pictures {

using Bytes = std::vector<unsigned char>;
// 0xAARRGGBB, or an index into a palette.
using ValueAt = std::function<std::uint32_t(int x, int y)>;

inline ValueAt Always(std::uint32_t value) {
  return [value](int, int) { return value; };
}

inline void Put(Bytes& bytes, std::uint32_t value, int count = 4) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<unsigned char>(value >> 8 * i));
}

inline void Append(Bytes& bytes, const Bytes& more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

inline void PutHeader(Bytes& bytes, int width, int height, int depth, std::size_t colors) {
  Put(bytes, 40);
  Put(bytes, static_cast<std::uint32_t>(width));
  Put(bytes, static_cast<std::uint32_t>(height));
  Put(bytes, 1, 2);
  Put(bytes, static_cast<std::uint32_t>(depth), 2);
  for (int i = 0; i < 4; ++i) Put(bytes, 0);
  Put(bytes, static_cast<std::uint32_t>(colors));
  Put(bytes, 0);
}

// Rows from bottom to top, each padded to 32 bits; the first pixel in the highest bits of its byte.
inline void PutRows(Bytes& bytes, int width, int height, int depth, const ValueAt& valueAt) {
  for (int y = height - 1; y >= 0; --y) {
    Bytes row(static_cast<std::size_t>((width * depth + 31) / 32 * 4));
    for (int x = 0; x < width; ++x) {
      const std::uint32_t value = valueAt(x, y);
      for (int i = 0; depth > 8 && i < depth / 8; ++i) {
        row[static_cast<std::size_t>(x * depth / 8 + i)] =
            static_cast<unsigned char>(value >> 8 * i);
      }
      if (depth > 8) continue;
      const int shift = 8 - depth - x * depth % 8;
      row[static_cast<std::size_t>(x * depth / 8)] |= static_cast<unsigned char>(value << shift);
    }
    Append(bytes, row);
  }
}

// A whole BMP file of 24 bits.
inline Bytes BmpFile(int width, int height, const ValueAt& colorAt) {
  Bytes file = {'B', 'M'};
  Bytes image;
  PutHeader(image, width, height, 24, 0);
  PutRows(image, width, height, 24, colorAt);
  Put(file, static_cast<std::uint32_t>(image.size() + 14));
  Put(file, 0);
  Put(file, 54);
  Append(file, image);
  return file;
}

// One image of an icon file; a mask value of 1 is transparent.
inline Bytes IconImageBytes(int width, int height, int depth, const ValueAt& valueAt,
                            const ValueAt& mask = Always(0),
                            const std::vector<std::uint32_t>& palette = {}) {
  Bytes image;
  PutHeader(image, width, 2 * height, depth, palette.size());
  for (const std::uint32_t color : palette) Put(image, color);
  PutRows(image, width, height, depth, valueAt);
  PutRows(image, width, height, 1, mask);
  return image;
}

inline Bytes IconFile(const std::vector<Bytes>& images) {
  Bytes file;
  Put(file, 0x10000);
  Put(file, static_cast<std::uint32_t>(images.size()), 2);
  std::size_t at = 6 + 16 * images.size();
  for (const Bytes& image : images) {
    Append(file, {image[4], static_cast<unsigned char>(image[8] / 2), 0, 0});
    Put(file, 1, 2);
    Put(file, image[14], 2);
    Put(file, static_cast<std::uint32_t>(image.size()));
    Put(file, static_cast<std::uint32_t>(at));
    at += image.size();
  }
  for (const Bytes& image : images) Append(file, image);
  return file;
}

}  // namespace pictures
