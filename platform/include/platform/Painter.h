#pragma once

#include <cstddef>
#include <string_view>

#include "Font.h"
#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

inline constexpr UINT DT_LEFT = 0x0;
inline constexpr UINT DT_CENTER = 0x1;
inline constexpr UINT DT_RIGHT = 0x2;
inline constexpr UINT DT_VCENTER = 0x4;  // also for several lines
inline constexpr UINT DT_BOTTOM = 0x8;
inline constexpr UINT DT_WORDBREAK = 0x10;
inline constexpr UINT DT_SINGLELINE = 0x20;
inline constexpr UINT DT_NOPREFIX = 0x800;       // "&" is drawn, not a mnemonic mark
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;  // a line too long ends in an ellipsis
inline constexpr UINT DT_RTLREADING = 0x20000;
inline constexpr UINT DT_HIDEPREFIX = 0x100000;  // mnemonics are not underlined

enum class ArrowDirection { Up, Down, Left, Right };

// Draws into a device context, in the window's pixels, anti-aliased where shapes are not
// axis-aligned, clipped to what the context may paint. In a mirrored (right-to-left) context
// places mirror and DT_LEFT and DT_RIGHT change meaning, while text stays readable.
// Rectangles are crisp: edges fall on whole pixels. Colours carry transparency in the top byte.
class PLATFORM_API Painter {
 public:
  explicit Painter(HDC dc);
  ~Painter();
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  void FillRect(const RECT& rect, COLORREF color);
  // Border lines of `thickness` pixels inside the rectangle.
  void FrameRect(const RECT& rect, COLORREF color, int thickness = 1);
  void FillRoundRect(const RECT& rect, int radius, COLORREF color);
  void FrameRoundRect(const RECT& rect, int radius, COLORREF color, int thickness = 1);
  void FillEllipse(const RECT& rect, COLORREF color);
  void FrameEllipse(const RECT& rect, COLORREF color, int thickness = 1);
  // A dotted one-unit frame inside the rectangle, as keyboard focus shows.
  void FocusRect(const RECT& rect, COLORREF color);
  // Glyph shapes fill the rectangle's centre with proportions that suit its size.
  void CheckMark(const RECT& rect, COLORREF color);
  void Arrow(const RECT& rect, ArrowDirection direction, COLORREF color);
  void Cross(const RECT& rect, COLORREF color);  // of close buttons

  void Text(std::wstring_view text, const RECT& rect, UINT format, HFONT font, COLORREF color);
  // The line's left edge and the top of its font box at (x, y).
  void Text(const TextLine& line, int x, int y, COLORREF color);

  // The bitmap in the size of the rectangle, never mirrored itself, blended with what is there by
  // its alpha channel and by `opacity`, which makes all of it fainter. Nothing for a stale handle.
  void Picture(HBITMAP bitmap, const RECT& rect, BYTE opacity = 255);

  // Clips everything drawn until the matching PopClip.
  void PushClip(const RECT& rect);
  void PopClip();
  // Whether nothing inside the rectangle can be painted.
  bool IsClippedOut(const RECT& rect) const;

 private:
  struct DeviceContext* Context() const;

  HDC dc_;                  // looked up by every operation: the painter may outlive it
  std::size_t outerClips_;  // clips that were pushed before this painter came
};

#pragma GCC visibility pop
