#include "MFC/dialog/DialogSkin.h"

#include "BaseGUIObject.h"
#include "Configuration.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/dialog/DialogElements.h"
#include "WexaUtils.h"

namespace Wexa {

namespace {

// High contrast overrides the host's colours.
const SkinManager* KeyMapParent() {
  WexaConfig& config = WexaConfig::Instance();
  config.FollowSystemColors();
  return WexaUtils::IsSystemHighContrastMode() ? nullptr : &config.keyMapSkin;
}

void ReloadPalettesOf(const std::vector<BaseGUIObject*>& widgets) {
  for (BaseGUIObject* widget : widgets) {
    widget->GetSkinManager().ReloadPalette();
    ReloadPalettesOf(ImplOf(widget)->Children());
  }
}

void Reinitialise(BaseGUIObject& widget, const SkinManager& parent, SkinMode mode) {
  widget.GetSkinManager().ResetInitilization();
  widget.GetSkinManager().InitSkinManager(&parent, mode);
}

}  // namespace

void WexaConfig::RepaintDialogs() {
  for (HWND window : GetTopLevelWindows())
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void DialogSkin::BeginWithGlobal() {
  WexaConfig::Instance().FollowSystemColors();
  const SkinManager& global = WexaConfig::Instance().globalSkin;
  if (global.GetSkinMode() == SkinMode::Custom) {
    skin_.SetCustomSkin(global);
  } else {
    skin_.InitSkinManager(&global, global.GetRequestedMode());
  }
}

bool DialogSkin::SetMode(SkinMode mode) {
  const bool entered = mode == SkinMode::XML ? EnterKeyMapMode() : skin_.SetSkinMode(mode);
  if (entered) PassOn(mode);
  return entered;
}

bool DialogSkin::EnterKeyMapMode() {
  if (!WexaConfig::Instance().keyMapSkin.IsKeyMapApplied()) return false;
  skin_.ResetInitilization();
  const bool entered = skin_.InitSkinManager(KeyMapParent(), SkinMode::XML);
  if (!entered) skin_.ResetInitilization();
  return entered;
}

void DialogSkin::PassOn(SkinMode mode) {
  for (const auto& element : elements_) {
    Reinitialise(*element.widget, skin_, mode);
    if (element.widget->Type() != BaseGUIObject::GuiType::ButtonBox) continue;
    for (BaseGUIObject* button : ImplOf(element.widget.get())->Children())
      Reinitialise(*button, element.widget->GetSkinManager(), mode);
  }
}

void DialogSkin::SetCustom(const SkinManager& skin) {
  skin_.SetCustomSkin(skin);
  PassOn(SkinMode::Default);
}

// The window core has the dialog painted.
void DialogSkin::FollowSystem(const std::vector<BaseGUIObject*>& children) {
  WexaConfig::Instance().FollowSystemColors();
  if (skin_.GetRequestedMode() == SkinMode::XML) skin_.SetParentSkinManager(KeyMapParent());
  skin_.ReloadPalette();
  ReloadPalettesOf(children);
}

}  // namespace Wexa
