#pragma once

// Fonts and text measures. All lengths are device pixels.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

inline constexpr int LF_FACESIZE = 32;
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;

struct LOGFONTW {
  LONG lfHeight;  // negative: the em size in pixels
  LONG lfWidth;
  LONG lfEscapement;
  LONG lfOrientation;
  LONG lfWeight;
  BYTE lfItalic;
  BYTE lfUnderline;
  BYTE lfStrikeOut;
  BYTE lfCharSet;
  BYTE lfOutPrecision;
  BYTE lfClipPrecision;
  BYTE lfQuality;
  BYTE lfPitchAndFamily;
  wchar_t lfFaceName[LF_FACESIZE];
};

struct FontMetrics {
  int height;  // ascent + descent
  int ascent;
  int descent;
  int averageWidth;  // of the lower-case letters
};

// Fonts are cached by description: equal descriptions share one realised font.
HFONT CreateFontIndirectW(const LOGFONTW* description);
// lfHeight in tenths of a point, converted with the screen's resolution.
HFONT CreatePointFontIndirect(const LOGFONTW* description);
BOOL DeleteFont(HFONT font);
BOOL GetFontDescription(HFONT font, LOGFONTW* description);
// The font of windows that were given none. Never deleted.
HFONT GetSystemFont();

// A null or stale font measures as the system font. Measuring, and so making a dialog's window,
// throws std::runtime_error where no font is installed.
FontMetrics GetFontMetrics(HFONT font);
// One line; "&" and control characters count as any other character.
SIZE GetTextExtent(HFONT font, std::wstring_view text);
// The text as DrawTextW would lay it out with `format` in lines of at most `width`.
SIZE GetTextExtent(HFONT font, std::wstring_view text, int width, UINT format);

// One shaped line of editable text: carets, hits and drawing. Positions are code points.
class PLATFORM_API TextLine {
 public:
  // Unless it is told to, the line runs from right to left when its first letter does.
  TextLine(HFONT font, std::wstring_view text, bool rightToLeft);
  ~TextLine();
  TextLine(TextLine&&) noexcept;
  TextLine& operator=(TextLine&&) noexcept;

  int Width() const;
  bool IsRightToLeft() const;
  // Left edge of the caret before the character at `index` (index may be the length).
  int XOfIndex(std::size_t index) const;
  // The caret index nearest to x, always between two grapheme clusters.
  std::size_t IndexOfX(int x) const;
  // The next caret place to the right (+1) or left (-1) on the screen.
  std::size_t MoveVisually(std::size_t index, int direction) const;
  // Start of the grapheme cluster after or before index in reading order.
  std::size_t NextCluster(std::size_t index) const;
  std::size_t PreviousCluster(std::size_t index) const;
  // Start of the next or previous word in reading order.
  std::size_t NextWord(std::size_t index) const;
  std::size_t PreviousWord(std::size_t index) const;
  // The x ranges (left, right pairs) that the characters [from, to) cover.
  std::vector<std::pair<int, int>> Ranges(std::size_t from, std::size_t to) const;

 private:
  friend class Painter;
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// The screen's resolution; the first question opens the display, which may throw as it does. 96 in
// a program without displays.
int GetScreenDpi();
void SetScreenDpi(int dpi);
// A metric of 96-DPI units in pixels, truncated toward zero; never below 1x.
int ScaleUnits(int units);

#pragma GCC visibility pop
