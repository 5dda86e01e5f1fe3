#pragma once

#include <memory>
#include <string>

#include "WexaUtils.h"
#include "platform/Bitmap.h"
#include "platform/Geometry.h"

class CWnd;

namespace Wexa {

class Rescaling;

// A picture file's bytes and what the file's name says they are.
struct PictureFile {
  explicit PictureFile(const std::wstring& path);

  int size = 0;
  std::unique_ptr<unsigned char[]> bytes;  // null when the file cannot be read
  WexaUtils::ImageTypes type;
};

// What is asked of a picture that is loaded; the bytes are the caller's.
struct PictureRequest {
  const unsigned char* data;
  int size;
  WexaUtils::ImageTypes type;
  WexaUtils::ScalePicture scale;
  int iconSize;
};

// The pictures of a widget.
struct WidgetPictures {
  UniqueBitmap normal;
  UniqueBitmap disabled;

  // The normal one stands in for one that is missing.
  HBITMAP For(bool enabled) const { return !enabled && disabled ? disabled.get() : normal.get(); }
  CSize Size() const;  // of the normal one
  void Rescale(const Rescaling& rescale);
};

// Null when the bytes are no picture or its size is refused.
UniqueBitmap LoadPictureInto(const CRect& area, CWnd* window, const PictureRequest& request);

// The size in which a picture shows by the mode; what fits or fills takes its measure from the
// area.
CSize ScaledPictureSize(CSize picture, WexaUtils::ScalePicture mode, const CRect& area);

// A picture with a text to its right. Either may be empty.
CSize ContentSize(CSize picture, CSize text);
struct ContentPlaces {
  CRect picture;
  CRect text;  // as high as the area
};
enum class ContentAlignment { Left, Centre };
ContentPlaces PlaceContent(const CRect& area, CSize picture, CSize text,
                           ContentAlignment alignment);

}  // namespace Wexa
