#include "platform/SystemColors.h"

#include <array>
#include <optional>

#include "graphics/Environment.h"
#include "graphics/ScreenProbe.h"

namespace {

constexpr int kColorCount = 31;
using Colors = std::array<COLORREF, kColorCount>;

struct Tones {
  COLORREF window, windowText, face, text, gray, shadow, light, frame;
  COLORREF highlight, highlightText;
  COLORREF caption, captionText, inactiveCaption, inactiveCaptionText;
  COLORREF activeBorder, inactiveBorder, scrollBar, desktop;
};

constexpr Colors MakeColors(const Tones& tones) {
  Colors colors{};
  colors[COLOR_SCROLLBAR] = tones.scrollBar;
  colors[COLOR_BACKGROUND] = tones.desktop;
  colors[COLOR_ACTIVECAPTION] = tones.caption;
  colors[COLOR_INACTIVECAPTION] = tones.inactiveCaption;
  colors[COLOR_WINDOW] = tones.window;
  colors[COLOR_WINDOWFRAME] = tones.frame;
  colors[COLOR_WINDOWTEXT] = tones.windowText;
  colors[COLOR_CAPTIONTEXT] = tones.captionText;
  colors[COLOR_ACTIVEBORDER] = tones.activeBorder;
  colors[COLOR_INACTIVEBORDER] = tones.inactiveBorder;
  colors[COLOR_HIGHLIGHT] = tones.highlight;
  colors[COLOR_HIGHLIGHTTEXT] = tones.highlightText;
  colors[COLOR_BTNFACE] = tones.face;
  colors[COLOR_BTNSHADOW] = tones.shadow;
  colors[COLOR_GRAYTEXT] = tones.gray;
  colors[COLOR_BTNTEXT] = tones.text;
  colors[COLOR_INACTIVECAPTIONTEXT] = tones.inactiveCaptionText;
  colors[COLOR_3DLIGHT] = tones.light;
  return colors;
}

constexpr COLORREF Gray(int level) {
  return RGB(level, level, level);
}
constexpr COLORREF kBlack = Gray(0);
constexpr COLORREF kWhite = Gray(255);
constexpr COLORREF kBlue = RGB(0, 119, 214);  // white is readable on it
constexpr COLORREF kCyan = RGB(26, 235, 255);
constexpr COLORREF kGreen = RGB(63, 242, 63);

constexpr Tones kLight{.window = kWhite,
                       .windowText = kBlack,
                       .face = Gray(240),
                       .text = kBlack,
                       .gray = Gray(109),
                       .shadow = Gray(160),
                       .light = Gray(227),
                       .frame = Gray(100),
                       .highlight = kBlue,
                       .highlightText = kWhite,
                       .caption = kWhite,
                       .captionText = kBlack,
                       .inactiveCaption = Gray(243),
                       .inactiveCaptionText = Gray(109),
                       .activeBorder = Gray(140),
                       .inactiveBorder = Gray(190),
                       .scrollBar = Gray(200),
                       .desktop = RGB(46, 82, 122)};

constexpr Tones kDark{.window = Gray(56),
                      .windowText = Gray(245),
                      .face = Gray(43),
                      .text = Gray(245),
                      .gray = Gray(160),
                      .shadow = Gray(110),
                      .light = Gray(84),
                      .frame = Gray(130),
                      .highlight = kBlue,
                      .highlightText = kWhite,
                      .caption = Gray(32),
                      .captionText = Gray(245),
                      .inactiveCaption = Gray(43),
                      .inactiveCaptionText = Gray(160),
                      .activeBorder = Gray(110),
                      .inactiveBorder = Gray(80),
                      .scrollBar = Gray(84),
                      .desktop = RGB(20, 28, 38)};

constexpr Tones kHighContrast{.window = kBlack,
                              .windowText = kWhite,
                              .face = kBlack,
                              .text = kWhite,
                              .gray = kGreen,
                              .shadow = kWhite,
                              .light = kWhite,
                              .frame = kWhite,
                              .highlight = kCyan,
                              .highlightText = kBlack,
                              .caption = kBlack,
                              .captionText = kWhite,
                              .inactiveCaption = kBlack,
                              .inactiveCaptionText = kGreen,
                              .activeBorder = kCyan,
                              .inactiveBorder = kWhite,
                              .scrollBar = kBlack,
                              .desktop = kBlack};

constexpr std::array kSchemes{MakeColors(kLight), MakeColors(kDark), MakeColors(kHighContrast)};

struct Wishes {
  const std::optional<SystemScheme> environment = SchemeOfEnvironment();
  std::optional<SystemScheme> chosen;
  std::optional<SystemScheme> preferred;
  SystemScheme desktop = SystemScheme::Light;
};

Wishes& Wished() {
  static auto& wishes = *new Wishes;
  return wishes;
}

SystemScheme DesktopScheme() {
  if (Wished().environment) return *Wished().environment;
  ProbeScreen();
  return Wished().desktop;
}

}  // namespace

DWORD GetSysColor(int index) {
  return index < 0 || index >= kColorCount ? 0 : GetSysColors()[static_cast<std::size_t>(index)];
}

std::span<const COLORREF> GetSysColors() {
  return kSchemes[static_cast<std::size_t>(GetSystemScheme())];
}

SystemScheme GetSystemScheme() {
  if (Wished().chosen) return *Wished().chosen;
  const SystemScheme desktop = DesktopScheme();
  return desktop == SystemScheme::HighContrast ? desktop : Wished().preferred.value_or(desktop);
}

void SetSystemScheme(std::optional<SystemScheme> scheme) {
  Wished().chosen = scheme;
}

void PreferSystemScheme(std::optional<SystemScheme> scheme) {
  Wished().preferred = scheme;
}

void SetDesktopScheme(SystemScheme scheme) {
  Wished().desktop = scheme;
}
