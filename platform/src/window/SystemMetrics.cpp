#include "graphics/DeviceContext.h"
#include "platform/SystemColors.h"
#include "window/WindowObject.h"

int GetSystemMetrics(int index) {
  constexpr int kDoubleClickUnits = 4;
  const CRect screen = display::Current().WorkArea();
  switch (index) {
    case SM_CXSCREEN: return screen.Width();
    case SM_CYSCREEN: return screen.Height();
    case SM_CXVSCROLL: return Theme::ScrollBarWidth();
    case SM_CYCAPTION: return Theme::CaptionHeight();
    case SM_CXSIZEFRAME:
    case SM_CYSIZEFRAME: return Theme::SizingFrameWidth();
    case SM_CXFIXEDFRAME:
    case SM_CYFIXEDFRAME: return Theme::FixedFrameWidth();
    case SM_CXDOUBLECLK: return ScaleUnits(kDoubleClickUnits);
    default: return 0;
  }
}

int GetDeviceCaps(HDC dc, int index) {
  const bool isResolution = index == LOGPIXELSX || index == LOGPIXELSY;
  return isResolution && GetDeviceContext(dc) ? GetScreenDpi() : 0;
}

BOOL SystemParametersInfoW(UINT action, UINT, void* data, UINT) {
  if (action != SPI_GETHIGHCONTRAST || !data) return FALSE;
  const bool on = GetSystemScheme() == SystemScheme::HighContrast;
  static_cast<HIGHCONTRAST*>(data)->dwFlags = on ? HCF_HIGHCONTRASTON : 0;
  return TRUE;
}

UINT GetCaretBlinkTime() {
  constexpr UINT kBlinkTime = 530;
  return kBlinkTime;
}

void SetClipboardText(const std::wstring& text) {
  display::Current().SetClipboardText(text);
}

std::wstring GetClipboardText() {
  return display::Current().ClipboardText();
}
