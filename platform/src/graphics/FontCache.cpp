#include "graphics/FontCache.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>
#include <vector>

#include "graphics/HandleTable.h"

namespace {

constexpr std::size_t kMaxUnusedFonts = 16;
constexpr int kPointTenthsPerInch = 720;
constexpr std::wstring_view kSystemFace = L"Tahoma";
constexpr LONG kSystemPointTenths = 90;

// A font that is realised when it is first used; handles of equal descriptions share it.
struct SharedFont {
  explicit SharedFont(FontKey fontKey) : key(std::move(fontKey)) {}

  FontKey key;
  std::unique_ptr<RealizedFont> realized;
};

struct FontObject {
  LOGFONTW description;
  std::shared_ptr<SharedFont> font;
};

HandleTable<HFONT, FontObject>& Fonts() {
  static auto& table = *new HandleTable<HFONT, FontObject>;
  return table;
}

using SharedFonts = std::vector<std::shared_ptr<SharedFont>>;

void DropUnused(SharedFonts& fonts) {
  std::erase_if(fonts, [](const auto& font) { return font.use_count() == 1; });
}

std::shared_ptr<SharedFont> Share(const LOGFONTW& description) {
  static SharedFonts& fonts = *new SharedFonts;
  FontKey key(description);
  auto found =
      std::find_if(fonts.begin(), fonts.end(), [&](const auto& font) { return font->key == key; });
  if (found != fonts.end()) return *found;
  if (fonts.size() >= kMaxUnusedFonts) DropUnused(fonts);
  fonts.push_back(std::make_shared<SharedFont>(std::move(key)));
  return fonts.back();
}

HFONT CreateSystemFont() {
  LOGFONTW description{};
  description.lfHeight = kSystemPointTenths;
  kSystemFace.copy(description.lfFaceName, LF_FACESIZE - 1);
  return CreatePointFontIndirect(&description);
}

}  // namespace

HFONT CreateFontIndirectW(const LOGFONTW* description) {
  if (!description) return nullptr;
  return Fonts().Add(std::make_unique<FontObject>(FontObject{*description, Share(*description)}));
}

HFONT CreatePointFontIndirect(const LOGFONTW* description) {
  if (!description) return nullptr;
  LOGFONTW inPixels = *description;
  double pixels = static_cast<double>(description->lfHeight) * GetScreenDpi() / kPointTenthsPerInch;
  inPixels.lfHeight = -static_cast<LONG>(std::lround(pixels));
  return CreateFontIndirectW(&inPixels);
}

BOOL DeleteFont(HFONT font) {
  if (font == GetSystemFont()) return FALSE;
  return Fonts().Remove(font) != nullptr;
}

BOOL GetFontDescription(HFONT font, LOGFONTW* description) {
  const FontObject* object = Fonts().Find(font);
  if (!object || !description) return FALSE;
  *description = object->description;
  return TRUE;
}

HFONT GetSystemFont() {
  static int dpi = 0;
  static HFONT font = nullptr;
  if (dpi == GetScreenDpi()) return font;
  dpi = GetScreenDpi();
  return font = CreateSystemFont();
}

RealizedFont& FontOf(HFONT font) {
  FontObject* object = Fonts().Find(font);
  if (!object) object = Fonts().Find(GetSystemFont());
  std::unique_ptr<RealizedFont>& realized = object->font->realized;
  if (!realized) realized = std::make_unique<RealizedFont>(object->font->key);
  return *realized;
}
