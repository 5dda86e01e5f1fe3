#pragma once

// The keyboard extension's requests. Their C header names a member with a word of C++.

#pragma GCC diagnostic push
#if defined(__clang__)
#pragma GCC diagnostic ignored "-Wkeyword-macro"
#endif
#pragma push_macro("explicit")
#define explicit explicit_
#include <xcb/xkb.h>
#pragma pop_macro("explicit")
#pragma GCC diagnostic pop
