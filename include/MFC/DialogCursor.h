#pragma once

#include <memory>
#include <span>

#include "Point.h"
#include "WexaUtils.h"
#include "platform/Bitmap.h"

namespace Wexa {

// The cursor that a host chose for its dialog: one of the system's, or a picture of its own.
class DialogCursor {
 public:
  // Takes over the picture, enlarged to the screen's resolution. False, and the former cursor
  // stays, when the bytes are none.
  bool Load(std::span<const unsigned char> bytes, Point hotSpot);
  void SetType(WexaUtils::CursorTypes type) { type_ = type; }
  // Shows it under the pointer; false when the host chose none.
  bool Show() const;

 private:
  struct Deleter {
    void operator()(HCURSOR cursor) const { DestroyIcon(cursor); }
  };

  WexaUtils::CursorTypes type_ = WexaUtils::CursorTypes{};
  std::unique_ptr<HICON__, Deleter> cursor_;
};

}  // namespace Wexa
