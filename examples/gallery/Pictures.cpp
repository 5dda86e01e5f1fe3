// The gallery's own pictures: what a user would bring about is brought about by messages.

#include <wexa/platform/Classes.h>
#include <wexa/platform/ControlConstants.h>
#include <wexa/platform/Picture.h>

#include <initializer_list>

#include "Gallery.h"

namespace {

struct Page {
  const char* name;
  std::initializer_list<const wchar_t*> hovered;
  const wchar_t* focused;
};

constexpr std::initializer_list<const wchar_t*> kHoveredButtons = {L"hoveredPush", L"hoveredCheck",
                                                                   L"hoveredRadio"};
constexpr std::initializer_list<const wchar_t*> kHoveredFields = {L"hoveredEdit"};
constexpr std::initializer_list<const wchar_t*> kHoveredValues = {L"hoveredSlider",
                                                                  L"hoveredScroll"};
constexpr std::initializer_list<const wchar_t*> kHoveredTexts = {L"hoveredLink"};

constexpr Page kPages[] = {{"buttons", kHoveredButtons, L"focusedPush"},
                           {"fields", kHoveredFields, L"focusedEdit"},
                           {"values", kHoveredValues, L"focusedSlider"},
                           {"texts", kHoveredTexts, L"focusedLink"},
                           {"containers", {}, L"innerTabs"}};

// At the left edge, where links have their text and scroll bars an arrow.
void PointAt(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(client.bottom / 2, client.bottom / 2));
}

}  // namespace

void Gallery::SavePictures(const std::string& prefix) {
  dialog_.DoModeless(true);
  // What forms cannot say.
  Find<Wexa::CheckBox>(L"partly").SetCheck(WexaUtils::PartiallyChecked);
  Find<Wexa::TabView>(L"innerTabs").EnablePage(2, false, true);
  // As after a key: focus and mnemonics show.
  SendMessageW(dialog_.GetHandle(), WM_CHANGEUISTATE,
               MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
  SendMessageW(Find<Wexa::Button>(L"pressedPush").GetPlatformHandle(), BM_SETSTATE, TRUE, 0);
  for (int i = 0; const Page& page : kPages) {
    Find<Wexa::TabView>(L"pages").SetCurrentIndex(i++);
    dialog_.SetFocusToCtrl(&Find<Wexa::BaseGUIObject>(page.focused));
    AfxPumpPending();
    for (const wchar_t* name : page.hovered)
      PointAt(Find<Wexa::BaseGUIObject>(name).GetPlatformHandle());
    SaveWindowPicture(dialog_.GetHandle(), prefix + "-" + page.name + ".png");
  }
}
