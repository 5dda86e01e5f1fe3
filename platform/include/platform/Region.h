#pragma once

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

inline constexpr int RGN_AND = 1;
inline constexpr int RGN_OR = 2;
inline constexpr int RGN_XOR = 3;
inline constexpr int RGN_DIFF = 4;
inline constexpr int RGN_COPY = 5;

// The kind of a region; RGN_ERROR when an operand is no region.
inline constexpr int RGN_ERROR = 0;
inline constexpr int NULLREGION = 1;
inline constexpr int SIMPLEREGION = 2;
inline constexpr int COMPLEXREGION = 3;

HRGN CreateRectRgn(int left, int top, int right, int bottom);
HRGN CreateEllipticRgn(int left, int top, int right, int bottom);
int CombineRgn(HRGN result, HRGN a, HRGN b, int mode);
// A null or stale handle is equal to nothing.
BOOL EqualRgn(HRGN a, HRGN b);
BOOL PtInRegion(HRGN region, int x, int y);
int GetRgnBox(HRGN region, RECT* box);
BOOL DeleteRgn(HRGN region);

// Owns one region handle; a copy owns a region of its own with the same area.
class PLATFORM_API CRgn {
 public:
  CRgn() = default;
  explicit CRgn(HRGN region) : region_(region) {}
  CRgn(const CRgn& other);
  CRgn(CRgn&& other) noexcept : region_(other.Detach()) {}
  CRgn& operator=(const CRgn& other);
  CRgn& operator=(CRgn&& other) noexcept;
  ~CRgn() { DeleteObject(); }

  HRGN GetSafeHandle() const { return region_; }
  HRGN Detach();
  void DeleteObject();

 private:
  HRGN region_ = nullptr;
};

#pragma GCC visibility pop
