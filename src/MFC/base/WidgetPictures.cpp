#include "MFC/WidgetPictures.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "MFC/BaseImplMFC.h"
#include "layout/Rescaling.h"

namespace Wexa {

namespace {

constexpr int kGap = 6;  // between picture and text

int GapBetween(CSize picture, CSize text) {
  return picture.cx > 0 && text.cx > 0 ? Scale(kGap) : 0;
}

WexaUtils::ImageTypes TypeOf(const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  return dot == std::wstring::npos ? WexaUtils::Unknown
                                   : WexaUtils::WstrToImageType(path.substr(dot));
}

CSize SizeOf(HBITMAP picture) {
  BITMAP description{};
  GetBitmapDescription(picture, &description);
  return {description.bmWidth, description.bmHeight};
}

int Clamped(std::int64_t value) {
  return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
}

// value * numerator / denominator, for positive numbers rounded down; 0 where nothing is to share.
int Portion(int value, int numerator, int denominator) {
  return denominator > 0 ? Clamped(std::int64_t{value} * numerator / denominator) : 0;
}

}  // namespace

CSize ScaledPictureSize(CSize picture, WexaUtils::ScalePicture mode, const CRect& area) {
  const int width = Clamped(std::int64_t{area.right} - area.left);
  const int height = Clamped(std::int64_t{area.bottom} - area.top);
  switch (mode) {
    case WexaUtils::KeepSize: return picture;
    case WexaUtils::FitHeight: return {Portion(height, picture.cx, picture.cy), height};
    case WexaUtils::FitWidth: return {width, Portion(width, picture.cy, picture.cx)};
    case WexaUtils::FillTarget: return {width, height};
    default: return {Scale(picture.cx), Scale(picture.cy)};
  }
}

PictureFile::PictureFile(const std::wstring& path)
    : bytes(WexaUtils::LoadImageBuffer(path, &size)), type(TypeOf(path)) {}

CSize WidgetPictures::Size() const {
  return SizeOf(normal.get());
}

void WidgetPictures::Rescale(const Rescaling& rescale) {
  for (UniqueBitmap* picture : {&normal, &disabled}) {
    const CSize size = SizeOf(picture->get());
    const HBITMAP scaled =
        StretchBitmap(picture->get(), rescale.Length(size.cx), rescale.Length(size.cy));
    if (scaled) picture->reset(scaled);
  }
}

UniqueBitmap LoadPictureInto(const CRect& area, CWnd* window, const PictureRequest& request) {
  UniqueBitmap picture(
      WexaUtils::GetBitmap(request.data, request.size, request.type, request.iconSize));
  const HBITMAP scaled = WexaUtils::ScaleBitmap(picture.get(), request.scale, area, window);
  if (scaled != picture.get()) picture.reset(scaled);
  return picture;
}

CSize ContentSize(CSize picture, CSize text) {
  return {picture.cx + GapBetween(picture, text) + text.cx, std::max(picture.cy, text.cy)};
}

ContentPlaces PlaceContent(const CRect& area, CSize picture, CSize text,
                           ContentAlignment alignment) {
  const int free = area.Width() - ContentSize(picture, text).cx;
  const int left = area.left + (alignment == ContentAlignment::Centre ? free / 2 : 0);
  const int top = area.top + (area.Height() - picture.cy) / 2;
  const CRect place(left, top, left + picture.cx, top + picture.cy);
  const int textLeft = place.right + GapBetween(picture, text);
  const int textRight = std::min<int>(textLeft + text.cx, area.right);
  return {place, {textLeft, area.top, textRight, area.bottom}};
}

}  // namespace Wexa
