#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/Types.h"

// An image of an icon file, rows from top to bottom.
struct IconImage {
  int width = 0;
  int height = 0;
  bool hasAlpha = false;              // otherwise every pixel is opaque
  std::vector<std::uint32_t> pixels;  // 0xAARRGGBB
  std::vector<bool> transparent;      // by the mask
};

// From a device-independent bitmap whose height counts its mask too. Bytes after the mask do not
// matter. Nothing when the header is none or the bytes end too early.
std::optional<IconImage> ReadIconImage(std::span<const BYTE> bytes);
