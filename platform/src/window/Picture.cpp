#include "platform/Picture.h"

#include <algorithm>
#include <stdexcept>

#include "graphics/PngWriter.h"
#include "graphics/Surface.h"
#include "platform/Bitmap.h"
#include "window/PaintPass.h"
#include "window/TopLevelSurface.h"
#include "window/Updates.h"

namespace {

// A hidden window was never asked to paint: it is shown to itself while the picture is made.
class ShownForPicture {
 public:
  explicit ShownForPicture(core::Window& window) : window_(window), was_(window.IsVisible()) {
    if (was_) return;
    window_.style |= WS_VISIBLE;
    core::InvalidateAll(window_);
  }
  ~ShownForPicture() {
    if (!was_) window_.style &= ~WS_VISIBLE;
  }
  ShownForPicture(const ShownForPicture&) = delete;
  ShownForPicture& operator=(const ShownForPicture&) = delete;

 private:
  core::Window& window_;
  core::Hold hold_{&window_};
  bool was_;
};

HBITMAP CopyOf(const Surface& pixels) {
  constexpr std::uint32_t kOpaque = 0xFF000000;
  const HBITMAP picture = CreateBitmap(pixels.Width(), pixels.Height(), 24);
  const std::uint32_t* row = pixels.Pixels();
  auto to = BitmapPixels(picture);
  for (; !to.empty(); to = to.subspan(static_cast<std::size_t>(pixels.Width()))) {
    std::transform(row, row + pixels.Width(), to.begin(),
                   [](std::uint32_t pixel) { return pixel | kOpaque; });
    row += pixels.Stride() / 4;
  }
  return picture;
}

}  // namespace

HBITMAP PictureOfWindow(HWND window) {
  core::Window* w = core::Find(window);
  if (!w || !w->top) return nullptr;
  core::Hold hold(w);
  ShownForPicture shown(*w);
  core::PaintTree(*w);
  const Surface* pixels = hold.Alive() ? core::EnsurePixels(*w) : nullptr;
  return pixels ? CopyOf(*pixels) : nullptr;
}

void SavePicture(HBITMAP picture, const std::string& path) {
  BITMAP size{};
  if (!GetBitmapDescription(picture, &size)) {
    throw std::runtime_error("Cannot write " + path + ": no picture.");
  }
  WritePng(Surface(BitmapPixels(picture).data(), size.bmWidth, size.bmHeight, size.bmWidth * 4),
           path);
}

void SaveWindowPicture(HWND window, const std::string& path) {
  const UniqueBitmap picture(PictureOfWindow(window));
  if (!picture) throw std::runtime_error("Cannot write " + path + ": no top-level window.");
  SavePicture(picture.get(), path);
}
