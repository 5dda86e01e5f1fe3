#pragma once

// The native platform's scalar types, records and handles, with their documented sizes.

#include <cstddef>
#include <cstdint>

// Marks a class that hosts may use. The headers' visibility pragmas do not reach a class that
// another header has declared before.
#define PLATFORM_API __attribute__((visibility("default")))

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using COLORREF = std::uint32_t;  // 0x00BBGGRR; a non-zero top byte is transparency, 255 = invisible
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using LONG_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using ATOM = std::uint16_t;

// Headers of C libraries that a program includes first may have made macros of these.
#ifndef TRUE
inline constexpr BOOL TRUE = 1;
#endif
#ifndef FALSE
inline constexpr BOOL FALSE = 0;
#endif

// Handles hold an index and a generation, never an address: a stale one is recognised.
using HWND = struct HWND__*;
using HDC = struct HDC__*;
using HFONT = struct HFONT__*;
using HRGN = struct HRGN__*;
using HBITMAP = struct HBITMAP__*;
using HICON = struct HICON__*;
using HCURSOR = HICON;
using HMENU = struct HMENU__*;
using HDROP = struct HDROP__*;

struct POINT {
  LONG x;
  LONG y;
};

struct SIZE {
  LONG cx;
  LONG cy;
};

struct RECT {
  LONG left;
  LONG top;
  LONG right;
  LONG bottom;
};

constexpr COLORREF RGB(int r, int g, int b) {
  return static_cast<COLORREF>((r & 0xFF) | (g & 0xFF) << 8 | (b & 0xFF) << 16);
}
constexpr BYTE GetRValue(COLORREF c) { return static_cast<BYTE>(c); }
constexpr BYTE GetGValue(COLORREF c) { return static_cast<BYTE>(c >> 8); }
constexpr BYTE GetBValue(COLORREF c) { return static_cast<BYTE>(c >> 16); }

constexpr WORD LOWORD(std::uintptr_t v) { return static_cast<WORD>(v & 0xFFFF); }
constexpr WORD HIWORD(std::uintptr_t v) { return static_cast<WORD>((v >> 16) & 0xFFFF); }
constexpr WORD LOWORD(std::intptr_t v) { return LOWORD(static_cast<std::uintptr_t>(v)); }
constexpr WORD HIWORD(std::intptr_t v) { return HIWORD(static_cast<std::uintptr_t>(v)); }
constexpr int GET_X_LPARAM(LPARAM v) { return static_cast<std::int16_t>(LOWORD(v)); }
constexpr int GET_Y_LPARAM(LPARAM v) { return static_cast<std::int16_t>(HIWORD(v)); }
constexpr LPARAM MAKELPARAM(int low, int high) {
  return static_cast<LPARAM>(static_cast<std::uint32_t>((low & 0xFFFF) | (high & 0xFFFF) << 16));
}
constexpr WPARAM MAKEWPARAM(int low, int high) {
  return static_cast<WPARAM>(static_cast<std::uint32_t>((low & 0xFFFF) | (high & 0xFFFF) << 16));
}
