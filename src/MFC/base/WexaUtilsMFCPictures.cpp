#include <array>
#include <string_view>

#include "MFC/WidgetPictures.h"
#include "WexaUtils.h"
#include "platform/Bitmap.h"
#include "platform/Classes.h"

// The sizes of pictures, which depend on the window that shows them.

namespace {

constexpr std::wstring_view kComboBoxClass = L"ComboBoxEx32";

bool IsComboBox(const CWnd* window) {
  std::array<wchar_t, 256> name{};
  return window && GetClassNameW(window->GetSafeHwnd(), name.data(), name.size()) > 0 &&
         name.data() == kComboBoxClass;
}

// The native control of combo boxes keeps the height of its pictures.
CSize NewSize(CSize picture, WexaUtils::ScalePicture mode, const CRect& target, bool isComboBox) {
  CSize size = Wexa::ScaledPictureSize(picture, mode, target);
  if (isComboBox) size.cy = Wexa::ScaledPictureSize(picture, WexaUtils::ScaleByFactor, target).cy;
  return size;
}

}  // namespace

HBITMAP WexaUtils::ScaleBitmap(HBITMAP bitmap, ScalePicture mode, RECT target, CWnd* window) {
  BITMAP picture{};
  if (!GetBitmapDescription(bitmap, &picture)) return nullptr;
  if (mode == KeepSize) return bitmap;
  const CSize size = NewSize({picture.bmWidth, picture.bmHeight}, mode, target, IsComboBox(window));
  if (size.cx == picture.bmWidth && size.cy == picture.bmHeight) return bitmap;
  return StretchBitmap(bitmap, size.cx, size.cy);
}
