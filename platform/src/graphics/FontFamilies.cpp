#include "platform/FontFamilies.h"

#include <fontconfig/fontconfig.h>
#include <utf8.h>
#include <cmath>
#include <map>
#include <memory>

#include "platform/Font.h"

namespace {

struct PatternRelease {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct ObjectSetRelease {
  void operator()(FcObjectSet* set) const { FcObjectSetDestroy(set); }
};
struct FontSetRelease {
  void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
using FontSetPtr = std::unique_ptr<FcFontSet, FontSetRelease>;

FontSetPtr AllFaces() {
  const std::unique_ptr<FcPattern, PatternRelease> any(FcPatternCreate());
  const std::unique_ptr<FcObjectSet, ObjectSetRelease> wanted(
      FcObjectSetBuild(FC_FAMILY, FC_WEIGHT, FC_SLANT, FC_SYMBOL, nullptr));
  return FontSetPtr(FcFontList(nullptr, any.get(), wanted.get()));
}

int IntegerOf(const FcPattern* face, const char* object, int otherwise) {
  int value = otherwise;
  FcPatternGetInteger(face, object, 0, &value);
  return value;
}

// Weights may be a range in variable fonts; those count as regular.
FontFamily Describe(const FcPattern* face, const std::string& name) {
  FcBool symbol = FcFalse;
  FcPatternGetBool(face, FC_SYMBOL, 0, &symbol);
  const auto wide = utf8::utf8to32(utf8::replace_invalid(name));
  return {std::wstring(wide.begin(), wide.end()),
          FcWeightToOpenType(IntegerOf(face, FC_WEIGHT, FC_WEIGHT_REGULAR)),
          IntegerOf(face, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN, symbol != FcFalse};
}

bool IsPlainer(const FontFamily& face, const FontFamily& other) {
  const auto distance = [](const FontFamily& of) {
    return std::pair(of.isItalic, std::abs(of.weight - FW_NORMAL));
  };
  return distance(face) < distance(other);
}

}  // namespace

std::vector<FontFamily> ListFontFamilies() {
  std::map<std::string, FontFamily> families;
  const FontSetPtr faces = AllFaces();
  for (int i = 0; faces && i < faces->nfont; ++i) {
    const FcPattern* face = faces->fonts[i];
    FcChar8* bytes = nullptr;
    if (FcPatternGetString(face, FC_FAMILY, 0, &bytes) != FcResultMatch) continue;
    const std::string name(reinterpret_cast<const char*>(bytes));
    FontFamily found = Describe(face, name);
    const auto [place, added] = families.try_emplace(name, found);
    if (!added && IsPlainer(found, place->second)) place->second = std::move(found);
  }
  std::vector<FontFamily> list;
  for (auto& [name, family] : families) list.push_back(std::move(family));
  return list;
}
