#pragma once

// The desktop's colours and its high-contrast state, from one provider that can change at run time.

#include <optional>
#include <span>

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

inline constexpr int COLOR_SCROLLBAR = 0;
inline constexpr int COLOR_BACKGROUND = 1;
inline constexpr int COLOR_ACTIVECAPTION = 2;
inline constexpr int COLOR_INACTIVECAPTION = 3;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWFRAME = 6;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_CAPTIONTEXT = 9;
inline constexpr int COLOR_ACTIVEBORDER = 10;
inline constexpr int COLOR_INACTIVEBORDER = 11;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_BTNSHADOW = 16;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
inline constexpr int COLOR_3DLIGHT = 22;

enum class SystemScheme { Light, Dark, HighContrast };

// 0 (black) for an unknown index.
DWORD GetSysColor(int index);
// All of them by index, valid for good: those of the scheme now in force.
std::span<const COLORREF> GetSysColors();
// The scheme in force: what was chosen with SetSystemScheme; else what the desktop asks for, or in
// its place the environment's WEXA_HIGH_CONTRAST (1: high contrast, 0: light), but that a light or a
// dark one gives way to the preferred one.
SystemScheme GetSystemScheme();
// Chooses the scheme whatever the desktop asks for; none leaves it to the desktop. Open windows
// learn of a change by WM_SYSCOLORCHANGE.
void SetSystemScheme(std::optional<SystemScheme> scheme);
// Light or dark, whichever of them the desktop is; none leaves it to the desktop.
void PreferSystemScheme(std::optional<SystemScheme> scheme);
// What the desktop asks for from now on.
void SetDesktopScheme(SystemScheme scheme);

#pragma GCC visibility pop
