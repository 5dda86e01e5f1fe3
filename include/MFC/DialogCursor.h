#pragma once

#include <memory>
#include <span>

#include "Point.h"
#include "platform/Bitmap.h"

namespace Wexa {

// The cursor that a host gave its dialog.
class DialogCursor {
 public:
  // Takes over the picture, enlarged to the screen's resolution. False, and the former cursor
  // stays, when the bytes are none.
  bool Load(std::span<const unsigned char> bytes, Point hotSpot);
  // Shows it under the pointer; false without one.
  bool Show() const;

 private:
  struct Deleter {
    void operator()(HCURSOR cursor) const { DestroyIcon(cursor); }
  };

  std::unique_ptr<HICON__, Deleter> cursor_;
};

}  // namespace Wexa
