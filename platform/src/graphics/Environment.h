#pragma once

#include <optional>

#include "platform/SystemColors.h"

// What the program's environment asks for; none where it asks for nothing. A value that cannot be
// followed counts as none and is named on standard error, once.

// Resolutions in dots per inch that windows are laid out for.
constexpr bool IsServedDpi(int dpi) {
  return dpi >= 48 && dpi <= 960;
}

// WEXA_DPI, within those.
std::optional<int> DpiOfEnvironment();
// WEXA_HIGH_CONTRAST: 1 high contrast, 0 light.
std::optional<SystemScheme> SchemeOfEnvironment();
