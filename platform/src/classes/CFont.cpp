#include "platform/Classes.h"

BOOL CFont::CreateFontIndirect(const LOGFONTW* description) {
  DeleteObject();
  font_ = CreateFontIndirectW(description);
  return font_ != nullptr;
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTW* description) {
  DeleteObject();
  font_ = ::CreatePointFontIndirect(description);
  return font_ != nullptr;
}

void CFont::DeleteObject() {
  if (font_) DeleteFont(font_);
  font_ = nullptr;
}
