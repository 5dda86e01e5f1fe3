#pragma once

#include "SkinManagerColor.h"
#include "WexaExport.h"

namespace Wexa {

// A plain colour, 0xTTBBGGRR: the top byte is 255 - alpha, so a native colour word is opaque.
class WEXA_API RGBColor : public SkinManagerColor {
 public:
  // Opaque black.
  RGBColor() : SkinManagerColor(0UL) {}
  RGBColor(int value) : SkinManagerColor(static_cast<std::uint32_t>(value)) {}
  // Of each component the low 8 bits count.
  RGBColor(int r, int g, int b) : RGBColor(r, g, b, 255) {}
  RGBColor(int r, int g, int b, int a) : SkinManagerColor(Compose(r, g, b, 255 - a)) {}
  // The resolved colour.
  RGBColor(const SkinManagerColor& color) : SkinManagerColor(static_cast<unsigned long>(color)) {}

  int GetR() const { return Byte(0); }
  int GetG() const { return Byte(8); }
  int GetB() const { return Byte(16); }
  int GetA() const { return 255 - Byte(24); }
  // The result is opaque, whatever it was before.
  void SetR(unsigned char r) { *this = RGBColor(r, GetG(), GetB()); }
  void SetG(unsigned char g) { *this = RGBColor(GetR(), g, GetB()); }
  void SetB(unsigned char b) { *this = RGBColor(GetR(), GetG(), b); }
  // Keeps the three components.
  void SetA(unsigned char a) { *this = RGBColor(GetR(), GetG(), GetB(), a); }

  SkinManagerColor GetPlatformColor() const { return *this; }

 private:
  static constexpr unsigned long Compose(int r, int g, int b, int transparency) {
    return Shifted(r, 0) | Shifted(g, 8) | Shifted(b, 16) | Shifted(transparency, 24);
  }
  static constexpr unsigned long Shifted(int component, int shift) {
    return static_cast<unsigned long>(component & 0xFF) << shift;
  }
  int Byte(int shift) const {
    return static_cast<int>((static_cast<unsigned long>(*this) >> shift) & 0xFF);
  }
};

}  // namespace Wexa
