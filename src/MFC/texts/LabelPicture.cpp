#include "MFC/texts/LabelPicture.h"

#include "platform/Painter.h"

namespace Wexa {

bool LabelPicture::Load(const PictureRequest& request) {
  UniqueBitmap loaded(
      WexaUtils::GetBitmap(request.data, request.size, request.type, request.iconSize));
  if (!loaded) return false;
  pictures_ = {std::move(loaded), nullptr};
  scale_ = request.scale;
  return true;
}

CSize LabelPicture::IdealSize() const {
  return ScaledPictureSize(pictures_.Size(), IsFitted() ? WexaUtils::ScaleByFactor : scale_, {});
}

void LabelPicture::Paint(Painter& painter, const CRect& area, int across, int down, bool enabled) {
  if (!enabled && !pictures_.disabled) {
    pictures_.disabled.reset(CopyBitmap(pictures_.normal.get()));
    WexaUtils::ReplaceColorToGray(nullptr, pictures_.disabled.get());
  }
  const CSize size = ScaledPictureSize(pictures_.Size(), scale_, area);
  const int left = area.left + (area.Width() - size.cx) * across / 2;
  const int top = area.top + (area.Height() - size.cy) * down / 2;
  painter.Picture(pictures_.For(enabled), CRect(left, top, left + size.cx, top + size.cy));
}

}  // namespace Wexa
