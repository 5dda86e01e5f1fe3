#include <algorithm>
#include <array>
#include <cmath>

#include "platform/SystemColors.h"
#include "platform/Theme.h"

namespace {

std::array<double, 256> LinearLevels() {
  std::array<double, 256> levels{};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    const double c = static_cast<double>(i) / 255.0;
    levels[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  }
  return levels;
}

double Linear(BYTE channel) {
  static const auto levels = LinearLevels();
  return levels[channel];
}

double Luminance(COLORREF color) {
  return 0.2126 * Linear(GetRValue(color)) + 0.7152 * Linear(GetGValue(color)) +
         0.0722 * Linear(GetBValue(color));
}

BYTE MixChannel(BYTE from, BYTE to, int percent) {
  return static_cast<BYTE>((from * (100 - percent) + to * percent + 50) / 100);
}

ControlPalette BasePalette() {
  ControlPalette palette{};
  palette.background = GetSysColor(COLOR_BTNFACE);
  palette.face = GetSysColor(COLOR_WINDOW);
  palette.text = GetSysColor(COLOR_BTNTEXT);
  palette.disabledText = GetSysColor(COLOR_GRAYTEXT);
  palette.border = GetSysColor(COLOR_BTNSHADOW);
  palette.hoverBorder = GetSysColor(COLOR_HIGHLIGHT);
  palette.accent = GetSysColor(COLOR_HIGHLIGHT);
  palette.accentText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  palette.selection = GetSysColor(COLOR_HIGHLIGHT);
  palette.selectionText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  palette.placeholder = GetSysColor(COLOR_GRAYTEXT);
  return palette;
}

// Tints lie between the system's colours.
void AddTints(ControlPalette& palette) {
  palette.disabledFace = MixColors(palette.background, palette.face, 40);
  palette.disabledBorder = MixColors(palette.border, palette.background, 60);
  palette.hoverFace = MixColors(palette.face, palette.accent, 10);
  palette.pressedFace = MixColors(palette.face, palette.accent, 24);
  palette.pressedText = palette.text;
}

// High contrast knows the system's colours only.
void AddPlainColors(ControlPalette& palette) {
  palette.disabledFace = palette.face;
  palette.disabledBorder = palette.disabledText;
  palette.hoverFace = palette.face;
  palette.pressedFace = palette.accent;
  palette.pressedText = palette.accentText;
}

}  // namespace

COLORREF MixColors(COLORREF from, COLORREF to, int percent) {
  return RGB(MixChannel(GetRValue(from), GetRValue(to), percent),
             MixChannel(GetGValue(from), GetGValue(to), percent),
             MixChannel(GetBValue(from), GetBValue(to), percent));
}

double Contrast(COLORREF a, COLORREF b) {
  constexpr double kFlare = 0.05;
  const double first = Luminance(a) + kFlare;
  const double second = Luminance(b) + kFlare;
  return std::max(first, second) / std::min(first, second);
}

ControlPalette SystemPalette() {
  ControlPalette palette = BasePalette();
  bool contrast = GetSystemScheme() == SystemScheme::HighContrast;
  contrast ? AddPlainColors(palette) : AddTints(palette);
  return palette;
}
