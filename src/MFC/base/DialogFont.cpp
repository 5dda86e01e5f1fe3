#include "MFC/base/DialogFont.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <string>

#include "FontData.h"
#include "LogFont.h"
#include "WexaConfig.h"

namespace Wexa {

namespace {

void SetFace(LOGFONTW& description, const std::wstring& face) {
  std::size_t length = std::min<std::size_t>(face.size(), LF_FACESIZE - 1);
  std::wmemcpy(description.lfFaceName, face.c_str(), length);
  description.lfFaceName[length] = 0;
}

LOGFONTW DefaultDescription() {
  const auto info = GetFontInfo();
  LOGFONTW description{};
  description.lfHeight = info->height;
  description.lfWeight = FW_NORMAL;
  description.lfCharSet = info->charSet;
  SetFace(description, info->faceName);
  return description;
}

bool Equal(const LOGFONTW& a, const LOGFONTW& b) {
  return a.lfHeight == b.lfHeight && a.lfCharSet == b.lfCharSet &&
         std::wcscmp(a.lfFaceName, b.lfFaceName) == 0;
}

int Flag(bool set) {
  return set ? 1 : 0;
}

}  // namespace

HFONT DialogFont() {
  static CFont& font = *new CFont;  // outlives the host's static objects
  static LOGFONTW made{};
  static int madeFor = 0;
  LOGFONTW wanted = DefaultDescription();
  if (!font.GetSafeHandle() || !Equal(made, wanted) || madeFor != GetScreenDpi()) {
    font.DeleteObject();
    font.CreatePointFontIndirect(&wanted);
    made = wanted;
    madeFor = GetScreenDpi();
  }
  return font.GetSafeHandle();
}

int FieldHeight() {
  return GetFontMetrics(DialogFont()).height * 14 / 8;
}

bool IsFontSet(const FontData& font) {
  return !font.faceName.empty() || font.pointSize > 0 || font.bold >= 0 || font.italic >= 0 ||
         font.underline >= 0;
}

FontData MergedFont(const FontData& font, const FontData& base) {
  FontData merged = font;
  if (font.faceName.empty()) merged.faceName = base.faceName;
  if (font.pointSize <= 0) merged.pointSize = base.pointSize;
  if (font.bold < 0) merged.bold = base.bold;
  if (font.italic < 0) merged.italic = base.italic;
  if (font.underline < 0) merged.underline = base.underline;
  return merged;
}

std::unique_ptr<CFont> MakeFont(const FontData& font) {
  LOGFONTW description = DefaultDescription();
  if (!font.faceName.empty()) SetFace(description, font.faceName);
  if (font.pointSize > 0)
    description.lfHeight = static_cast<LONG>(std::lround(std::min(font.pointSize, 1000.0) * 10));
  if (font.bold >= 0) description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  if (font.italic >= 0) description.lfItalic = font.italic != 0;
  if (font.underline >= 0) description.lfUnderline = font.underline != 0;
  auto made = std::make_unique<CFont>();
  made->CreatePointFontIndirect(&description);
  return made;
}

FontData FontRecordOf(HFONT font) {
  LOGFONTW description{};
  GetFontDescription(font, &description);
  FontData record;
  record.faceName = description.lfFaceName;
  record.pointSize = std::round(-description.lfHeight * 72.0 / GetScreenDpi());
  record.bold = Flag(description.lfWeight == FW_BOLD);
  record.italic = Flag(description.lfItalic != 0);
  record.underline = Flag(description.lfUnderline != 0);
  return record;
}

}  // namespace Wexa
