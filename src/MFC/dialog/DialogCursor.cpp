#include "MFC/DialogCursor.h"

#include <algorithm>

#include "MFC/BaseImplMFC.h"
#include "platform/Window.h"

namespace Wexa {

bool DialogCursor::Load(std::span<const unsigned char> bytes, Point hotSpot) {
  const UniqueBitmap picture(DecodeBitmap(bytes));
  BITMAP size{};
  if (!GetBitmapDescription(picture.get(), &size)) return false;
  const UniqueBitmap scaled(
      StretchBitmap(picture.get(), Scale(size.bmWidth), Scale(size.bmHeight)));
  const ICONINFO info{FALSE, static_cast<DWORD>(Scale(std::max(hotSpot.x, 0))),
                      static_cast<DWORD>(Scale(std::max(hotSpot.y, 0))), nullptr, scaled.get()};
  const HCURSOR cursor = CreateIconIndirect(&info);
  if (cursor) cursor_.reset(cursor);
  return cursor != nullptr;
}

bool DialogCursor::Show() const {
  if (type_ == WexaUtils::CursorTypes{}) return false;
  if (type_ == WexaUtils::Custom && SetCursorPicture(cursor_.get())) return true;
  SetCursor(WexaUtils::GetPlattformCursorType(type_));
  return true;
}

}  // namespace Wexa
