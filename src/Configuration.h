#pragma once

#include <memory>
#include <string>

#include "LogFont.h"
#include "SkinManager.h"
#include "platform/SystemColors.h"

namespace Wexa {

// The one configuration object. Making it starts the library up.
class WexaConfig {
 public:
  // Made on first use; throws WexaException when the host's executable cannot be found.
  static WexaConfig& Instance();

  // Loads the palettes of the two skins again when the scheme in force is another than before. A
  // global skin that no host has chosen is dark in a dark scheme.
  void FollowSystemColors();
  // Dialogs below one of the two skins show its colours: all that are open are painted again.
  // Defined beside the dialogs.
  static void RepaintDialogs();

  std::wstring workingDirPath;
  std::wstring currentLanguage;
  std::shared_ptr<logFont> fontInfo = std::make_shared<logFont>();
  char decimalChar = '.';
  bool layoutRTL = false;
  SkinManager globalSkin{SkinMode::Default};
  bool isGlobalSkinChosen = false;
  SkinManager keyMapSkin{SkinMode::Default};
  bool expectsEncryptedLanguageFiles = true;
  std::wstring localeName;
  int comboboxRadius = 0;
  int checkboxRadius = 0;
  int editRadius = 0;
  int contextMenuRadius = 10;

 private:
  WexaConfig();
  // Fills the factory with the library's widgets; defined beside them.
  void RegisterWexaControls();

  SystemScheme scheme_ = SystemScheme::Light;
};

}  // namespace Wexa
