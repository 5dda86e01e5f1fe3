#pragma once

#include "display/Display.h"
#include "platform/Bitmap.h"

namespace core {

// A cursor as displays take it: without an alpha channel its mask says what is seen. The hot spot
// is moved into the picture.
display::CursorPicture PictureOf(HCURSOR cursor);

}  // namespace core
