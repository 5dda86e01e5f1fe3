// The pictures of push buttons.

#include "MFC/ButtonImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr COLORREF kColors = 0x00FFFFFF;

// With the padding around it that the button's own size has room for.
CRect PictureArea(const CRect& button) {
  const int padding = Theme::PushButtonPadding().cy;
  return CRect(0, 0, button.Width(), button.Height()).Shrunk(padding, padding);
}

}  // namespace

void Button::impl::LoadPicture(const PictureRequest& request, bool redraw) {
  ReplacePicture(pictures_.normal, request, redraw);
  InvalidateLayout();
  TellButtonBox();
}

void Button::impl::LoadPictureDisabled(const PictureRequest& request, bool redraw) {
  ReplacePicture(pictures_.disabled, request, redraw);
}

void Button::impl::ReplacePicture(UniqueBitmap& picture, const PictureRequest& request,
                                  bool redraw) {
  const CRect button = GetHandle() ? window_->GetClientRect() : ScaledRect();
  CWnd* window = GetHandle() ? window_.get() : nullptr;
  UniqueBitmap loaded = LoadPictureInto(PictureArea(button), window, request);
  if (!loaded) return;
  picture = std::move(loaded);
  if (redraw && window) window->Invalidate();
}

void Button::impl::Rescale(const Rescaling& rescale) {
  pictures_.Rescale(rescale);
  BaseImplMFC::Rescale(rescale);
}

void Button::impl::GeneratePictureDisabled(bool redraw) {
  if (!pictures_.normal) return;
  UniqueBitmap copy(CopyBitmap(pictures_.normal.get()));
  COLORREF color = SlotColor(GetSkinManager(), Slot::kButtonDisabledText) & kColors;
  WexaUtils::ReplaceColor(window_.get(), copy.get(), color);
  pictures_.disabled = std::move(copy);
  if (GetHandle() && (redraw || !window_->IsWindowEnabled())) window_->Invalidate();
}

std::wstring Button::impl::Caption() {
  const bool pictureAlone = style_ == ButtonStyle::IconOnly && pictures_.normal;
  return pictureAlone ? std::wstring() : Text();
}

CSize Button::impl::CaptionSize() {
  return GetTextExtent(Font(), Caption(), INT32_MAX, DT_SINGLELINE);
}

void Button::impl::PaintContent(Painter& painter, const CRect& client, const ControlState& look,
                                COLORREF color) {
  const UINT line = DT_VCENTER | DT_SINGLELINE | Theme::PrefixFormat(look);
  HBITMAP picture = pictures_.For(look.enabled);
  if (!picture) return painter.Text(Text(), client, DT_CENTER | line, Font(), color);
  ContentPlaces places =
      PlaceContent(client, pictures_.Size(), CaptionSize(), ContentAlignment::Centre);
  painter.Picture(picture, places.picture);
  painter.Text(Caption(), places.text, DT_END_ELLIPSIS | line, Font(), color);
}

}  // namespace Wexa
