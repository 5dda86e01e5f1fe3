#include "MFC/tips/TipWindow.h"

#include <algorithm>

#include "FontData.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/base/DialogFont.h"
#include "MFC/base/WidgetColors.h"
#include "WexaUtils.h"
#include "platform/Bitmap.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr DWORD kExtendedStyle = WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
constexpr UINT kTextFormat = DT_WORDBREAK | DT_NOPREFIX;
constexpr int kPadding = 8;
constexpr int kGap = 8;
constexpr int kTitleGap = 4;
constexpr int kIconSide = 16;
// On light and on dark faces.
constexpr COLORREF kWarning[] = {RGB(157, 93, 0), RGB(255, 200, 61)};
constexpr COLORREF kError[] = {RGB(196, 43, 28), RGB(255, 145, 135)};

DWORD ExtendedStyleFor(HWND owner) {
  auto style = static_cast<DWORD>(GetWindowLongPtrW(owner, GWL_EXSTYLE));
  return kExtendedStyle | (style & WS_EX_LAYOUTRTL);
}

SIZE SizeOf(HBITMAP bitmap) {
  BITMAP description{};
  GetBitmapDescription(bitmap, &description);
  return {description.bmWidth, description.bmHeight};
}

SIZE IconSizeOf(const TipContent& content) {
  if (content.picture) return SizeOf(content.picture.get());
  const bool hasIcon =
      content.icon >= BalloonTipIconType::Information && content.icon <= BalloonTipIconType::Error;
  return hasIcon ? SIZE{Scale(kIconSide), Scale(kIconSide)} : SIZE{};
}

COLORREF IconColor(BalloonTipIconType icon, const ControlPalette& colors) {
  if (WexaUtils::IsSystemHighContrastMode()) return colors.text;
  if (icon == BalloonTipIconType::Information) return colors.accent;
  const auto& signs = icon == BalloonTipIconType::Warning ? kWarning : kError;
  const bool isDark = Contrast(signs[1], colors.face) > Contrast(signs[0], colors.face);
  return signs[isDark ? 1 : 0];
}

}  // namespace

ControlPalette TipPalette(const SkinManager& skin) {
  ControlPalette palette{};
  palette.face = SlotColor(skin, Slot::kTipFace);
  palette.text = SlotColor(skin, Slot::kTipText);
  palette.border = SlotColor(skin, Slot::kTipBorder);
  palette.accent = SlotColor(skin, Slot::kSelection);
  return palette;
}

TipWindow::TipWindow() {
  fillPalette = [this](ControlPalette& palette) { palette = palette_; };
}

CRect ScreenArea() {
  CRect area;
  GetWindowRect(GetDesktopWindow(), &area);
  return area;
}

bool TipWindow::IsShown() const {
  return GetSafeHwnd() && IsWindowVisible();
}

void TipWindow::Hide() {
  if (IsShown()) ShowWindow(SW_HIDE);
}

bool TipWindow::Prepare(HWND owner) {
  if (GetSafeHwnd()) return true;
  HWND root = GetAncestor(owner, GA_ROOT);
  return Create(L"", WS_POPUP, CRect(), CWnd::FromHandle(root), 0, ExtendedStyleFor(root)) != FALSE;
}

void TipWindow::SetContent(const TipContent& content, const ControlPalette& palette, HFONT font) {
  content_ = content;
  palette_ = palette;
  textFont_ = font;
  FontData bold = FontRecordOf(font);
  bold.bold = 1;
  titleFont_ = content.title.empty() ? nullptr : MakeFont(bold);
  Measure();
}

void TipWindow::ShowAt(CRect place) {
  const CRect area = ScreenArea();
  place = place.Moved(std::min<int>(area.right - place.right, 0),
                      std::min<int>(area.bottom - place.bottom, 0));
  place =
      place.Moved(std::max<int>(area.left - place.left, 0), std::max<int>(area.top - place.top, 0));
  SetWindowPos(HWND_TOP, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
  ShowWindow(SW_SHOWNA);
  Invalidate();
}

// -- Content

SIZE TipWindow::TextExtent(const std::wstring& text, HFONT font) const {
  return text.empty() ? SIZE{} : GetTextExtent(font, text, Scale(content_.width), kTextFormat);
}

void TipWindow::Measure() {
  iconSize_ = IconSizeOf(content_);
  titleSize_ = titleFont_ ? TextExtent(content_.title, titleFont_->GetSafeHandle()) : SIZE{};
  const SIZE text = TextExtent(content_.text, textFont_);
  const int gap = titleSize_.cy > 0 && text.cy > 0 ? Scale(kTitleGap) : 0;
  const int icon = iconSize_.cx > 0 ? iconSize_.cx + Scale(kGap) : 0;
  size_ = {icon + std::max(titleSize_.cx, text.cx) + 2 * Scale(kPadding),
           std::max(titleSize_.cy + gap + text.cy, iconSize_.cy) + 2 * Scale(kPadding)};
}

void TipWindow::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.face);
  painter.FrameRect(client, palette.border);
  CRect rest = client.Shrunk(Scale(kPadding), Scale(kPadding));
  if (iconSize_.cx > 0) {
    PaintIcon(painter, {rest.left, rest.top, rest.left + iconSize_.cx, rest.top + iconSize_.cy},
              palette);
    rest.left += iconSize_.cx + Scale(kGap);
  }
  if (titleFont_) {
    painter.Text(content_.title, rest, kTextFormat, titleFont_->GetSafeHandle(), palette.text);
    rest.top += titleSize_.cy + Scale(kTitleGap);
  }
  painter.Text(content_.text, rest, kTextFormat, textFont_, palette.text);
}

void TipWindow::PaintIcon(Painter& painter, const CRect& place,
                          const ControlPalette& palette) const {
  if (content_.picture) return painter.Picture(content_.picture.get(), place);
  painter.FillEllipse(place, IconColor(content_.icon, palette));
  if (content_.icon == BalloonTipIconType::Error) return painter.Cross(place, palette.face);
  const wchar_t* mark = content_.icon == BalloonTipIconType::Warning ? L"!" : L"i";
  painter.Text(mark, place, DT_CENTER | DT_VCENTER | DT_SINGLELINE, textFont_, palette.face);
}

// -- Messages

LRESULT TipWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_MOUSEACTIVATE ? MA_NOACTIVATE : DrawnWnd::Handle(message, wParam, lParam);
}

}  // namespace Wexa
