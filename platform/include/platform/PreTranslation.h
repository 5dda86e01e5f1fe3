#pragma once

#include "Types.h"

// Sent to every window from a message's own up to its top-level one, each time before that window's
// object pre-translates the message. lParam: the MSG. The answer is one of those below; windows
// that know nothing of it go on.
inline constexpr UINT WM_PRETRANSLATE = 0x03F8;

inline constexpr LRESULT PRETRANSLATE_GOON = 0;
inline constexpr LRESULT PRETRANSLATE_USED = 1;      // the message goes no further
inline constexpr LRESULT PRETRANSLATE_DISPATCH = 2;  // to its window, without more pre-translation
