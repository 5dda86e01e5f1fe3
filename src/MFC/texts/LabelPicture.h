#pragma once

#include "MFC/WidgetPictures.h"

class Painter;

namespace Wexa {

// The picture that a label shows instead of its text.
class LabelPicture {
 public:
  // False when the bytes are no picture; nothing changes then.
  bool Load(const PictureRequest& request);
  explicit operator bool() const { return pictures_.normal != nullptr; }

  // The size it has by itself.
  CSize IdealSize() const;
  // Whether its size follows the label's.
  bool IsFitted() const { return scale_ >= WexaUtils::FitWidth; }
  // Inside the area, `across` and `down` of the free room before it: 0, 1 or 2 halves.
  void Paint(Painter& painter, const CRect& area, int across, int down, bool enabled);

 private:
  WidgetPictures pictures_;
  WexaUtils::ScalePicture scale_ = WexaUtils::ScaleByFactor;
};

}  // namespace Wexa
