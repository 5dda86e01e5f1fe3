#include "platform/Picture.h"

#include <stdexcept>

#include "graphics/PngWriter.h"
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

}  // namespace

void SaveWindowPicture(HWND window, const std::string& path) {
  core::Window* w = core::Find(window);
  if (!w || !w->top) throw std::runtime_error("Cannot write " + path + ": no top-level window.");
  core::Hold hold(w);
  ShownForPicture shown(*w);
  core::PaintTree(*w);
  const Surface* pixels = hold.Alive() ? core::EnsurePixels(*w) : nullptr;
  if (!pixels) throw std::runtime_error("Cannot write " + path + ": the window has no pixels.");
  WritePng(*pixels, path);
}
