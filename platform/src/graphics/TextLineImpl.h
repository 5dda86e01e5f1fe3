#pragma once

#include <vector>

#include "graphics/TextEngine.h"
#include "platform/Font.h"

struct TextLine::Impl {
  GObjectPtr<PangoLayout> layout;
  std::vector<int> offsets;  // of the code points, in bytes
  int ascent;
  int height;
  int width;
};
