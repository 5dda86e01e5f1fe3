// Dialog windows from template records.

#include <cstring>
#include <string>
#include <utility>

#include "controls/DialogFocus.h"
#include "controls/DialogState.h"
#include "controls/StandardControls.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"
#include "platform/Font.h"
#include "platform/Geometry.h"
#include "platform/Postponed.h"

namespace {

// Reads the 16-bit units that follow a template's header.
class UnitReader {
 public:
  explicit UnitReader(const void* memory) : next_(static_cast<const std::byte*>(memory)) {}

  WORD Unit() {
    WORD unit;
    std::memcpy(&unit, next_, sizeof unit);
    next_ += sizeof unit;
    return unit;
  }

  std::wstring Text() {
    std::wstring text;
    while (const WORD unit = Unit()) Append(text, unit);
    return text;
  }

 private:
  static void Append(std::wstring& text, WORD unit) {
    const bool low = (unit & 0xFC00) == 0xDC00;
    const wchar_t high = text.empty() ? L'\0' : text.back();
    if (low && (high & ~0x3FF) == 0xD800) {
      text.back() = static_cast<wchar_t>(0x10000 + ((high & 0x3FF) << 10) + (unit & 0x3FF));
    } else {
      text += static_cast<wchar_t>(unit);
    }
  }

  const std::byte* next_;
};

struct Template {
  DLGTEMPLATE header;
  std::wstring title;
  int pointSize = 0;  // 0: the system font
  std::wstring face;
};

// False for what templates of this layer do not have: menus, classes, controls.
bool Parse(const DLGTEMPLATE* memory, Template& result) {
  std::memcpy(&result.header, memory, sizeof(DLGTEMPLATE));
  if (result.header.cdit != 0) return false;
  UnitReader reader(reinterpret_cast<const std::byte*>(memory) + sizeof(DLGTEMPLATE));
  const bool plain = reader.Unit() == 0 && reader.Unit() == 0;
  if (!plain) return false;
  result.title = reader.Text();
  if (result.header.style & DS_SETFONT) {
    result.pointSize = reader.Unit();
    result.face = reader.Text();
  }
  return true;
}

// The font a template names, deleted unless it was handed out.
class TemplateFont {
 public:
  explicit TemplateFont(const Template& source) {
    if (source.pointSize == 0) return;
    LOGFONTW description{};
    description.lfHeight = source.pointSize * 10;
    description.lfWeight = FW_NORMAL;
    source.face.copy(description.lfFaceName, LF_FACESIZE - 1);
    font_ = CreatePointFontIndirect(&description);
  }
  ~TemplateFont() {
    if (font_) DeleteFont(font_);
  }
  TemplateFont(const TemplateFont&) = delete;
  TemplateFont& operator=(const TemplateFont&) = delete;
  HFONT Get() const { return font_; }
  HFONT HandOut() { return std::exchange(font_, nullptr); }

 private:
  HFONT font_ = nullptr;
};

// From dialog units, which are parts of the font's average character, to the window's place.
CRect WindowRect(const DLGTEMPLATE& header, HFONT font, HWND owner) {
  const FontMetrics metrics = GetFontMetrics(font);
  const auto x = [&](int units) { return units * metrics.averageWidth / 4; };
  const auto y = [&](int units) { return units * metrics.height / 8; };
  CRect rect(0, 0, x(header.cx), y(header.cy));
  AdjustWindowRectEx(&rect, header.style, FALSE, header.dwExtendedStyle);
  POINT corner{x(header.x), y(header.y)};
  if (!(header.style & WS_CHILD)) ClientToScreen(owner, &corner);
  return {corner, {corner.x + rect.Width(), corner.y + rect.Height()}};
}

// Destroys the window unless it was handed out.
class UnfinishedDialog {
 public:
  explicit UnfinishedDialog(HWND window) : window_(window) {}
  ~UnfinishedDialog() {
    RunPostponing([this] { DestroyWindow(window_); });
  }
  UnfinishedDialog(const UnfinishedDialog&) = delete;
  UnfinishedDialog& operator=(const UnfinishedDialog&) = delete;
  HWND Get() const { return window_; }
  HWND HandOut() { return std::exchange(window_, nullptr); }

 private:
  HWND window_;
};

HWND CreateHidden(const Template& source, HWND owner, HFONT font) {
  const DLGTEMPLATE& header = source.header;
  const CRect place = WindowRect(header, font, owner);
  return CreateWindowExW(header.dwExtendedStyle | WS_EX_CONTROLPARENT, WC_DIALOG,
                         source.title.c_str(), header.style & ~WS_VISIBLE, place.left, place.top,
                         place.Width(), place.Height(), owner, nullptr, nullptr);
}

// The dialog's own choice of focus stands when it answers FALSE.
void Initialize(HWND dialog, LPARAM param, bool isChild) {
  const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
  const bool chooseFocus =
      SendMessageW(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), param) != FALSE;
  if (!IsWindow(dialog) || isChild || !chooseFocus) return;
  if (const HWND control = GetNextDlgTabItem(dialog, nullptr, FALSE)) FocusControl(control);
}

}  // namespace

HWND CreateDialogIndirectParamW(const DLGTEMPLATE* dialogTemplate, HWND owner, WNDPROC procedure,
                                LPARAM param) {
  Template source;
  if (!dialogTemplate || !Parse(dialogTemplate, source)) return nullptr;
  RegisterStandardControls();
  TemplateFont font(source);
  UnfinishedDialog dialog(CreateHidden(source, owner, font.Get()));
  DialogState* state = StateOfDialog(dialog.Get());
  if (!state) return nullptr;
  state->procedure = procedure;
  state->font = font.Get();
  state->ownFont = font.HandOut();
  Initialize(dialog.Get(), param, (source.header.style & WS_CHILD) != 0);
  state = StateOfDialog(dialog.Get());
  if (state && !state->ended && (source.header.style & WS_VISIBLE)) {
    ShowWindow(dialog.Get(), SW_SHOW);
  }
  return IsWindow(dialog.Get()) ? dialog.HandOut() : nullptr;
}
