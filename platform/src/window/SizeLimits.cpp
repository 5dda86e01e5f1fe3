#include "window/SizeLimits.h"

#include "window/Dispatch.h"
#include "window/Frame.h"

namespace core {

SizeLimits LimitsOf(Window& window) {
  constexpr LONG kLargest = 32767;
  const RECT frame = FrameInsets(window.style, window.exStyle);
  const int caption = window.Is(WS_CAPTION) ? 2 * Theme::CaptionHeight() : 0;
  const CRect work = display::Current().WorkArea();
  MINMAXINFO info{};
  info.ptMaxSize = {work.Width(), work.Height()};
  info.ptMaxPosition = work.TopLeft();
  info.ptMinTrackSize = {frame.left + frame.right + caption, frame.top + frame.bottom};
  info.ptMaxTrackSize = {kLargest, kLargest};
  Send(window, WM_GETMINMAXINFO, 0, AsParam(&info));
  return {{info.ptMinTrackSize.x, info.ptMinTrackSize.y},
          {info.ptMaxTrackSize.x, info.ptMaxTrackSize.y}};
}

}  // namespace core
