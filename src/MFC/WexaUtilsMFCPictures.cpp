#include <array>
#include <cstdint>
#include <string_view>

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

CSize ByFactor(const BITMAP& picture) {
  const double factor = WexaUtils::GetScaleFactor();
  return {static_cast<int>(picture.bmWidth * factor), static_cast<int>(picture.bmHeight * factor)};
}

// value * numerator / denominator, for positive numbers rounded down.
int Portion(int value, int numerator, int denominator) {
  return static_cast<int>(std::int64_t{value} * numerator / denominator);
}

CSize NewSize(const BITMAP& picture, WexaUtils::ScalePicture mode, const CRect& target,
              bool isComboBox) {
  CSize size = ByFactor(picture);
  const auto fitHeight = [&](int height) { size.cy = isComboBox ? size.cy : height; };
  switch (mode) {
    case WexaUtils::FitHeight:
      fitHeight(target.Height());
      size.cx = Portion(target.Height(), picture.bmWidth, picture.bmHeight);
      break;
    case WexaUtils::FitWidth:
      size.cx = target.Width();
      fitHeight(Portion(target.Width(), picture.bmHeight, picture.bmWidth));
      break;
    case WexaUtils::FillTarget:
      size.cx = target.Width();
      fitHeight(target.Height());
      break;
    default: break;
  }
  return size;
}

}  // namespace

HBITMAP WexaUtils::ScaleBitmap(HBITMAP bitmap, ScalePicture mode, RECT target, CWnd* window) {
  BITMAP picture{};
  if (!GetBitmapDescription(bitmap, &picture)) return nullptr;
  if (mode == KeepSize) return bitmap;
  const CSize size = NewSize(picture, mode, target, IsComboBox(window));
  if (size.cx == picture.bmWidth && size.cy == picture.bmHeight) return bitmap;
  return StretchBitmap(bitmap, size.cx, size.cy);
}
