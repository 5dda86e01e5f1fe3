#pragma once

#include <map>
#include <memory>
#include <string>

#include "LogFont.h"
#include "SkinManager.h"
#include "WexaExport.h"

// The library's configuration. It comes into being with the first call of any of these functions,
// which must be made on the user-interface thread; that also starts the library up, and throws
// WexaException "Cannot get modul's path." when the host's executable cannot be found.
namespace Wexa {

// -- Directories, each ending in its separator
// -----------------------------------------------------

// The directory of the host's executable, unless the host sets another.
WEXA_API std::wstring GetWorkingDirPath();
WEXA_API void SetWorkingDirPath(const std::wstring& path);
// Form files and pictures of a component, whose name ends in "\" or is empty. A name that is a full
// path is answered as it is.
WEXA_API std::wstring GetUiDirPath(const std::wstring& name);
WEXA_API std::wstring GetImageDirPath(const std::wstring& name);

// -- Language
// --------------------------------------------------------------------------------------

// Empty until set.
WEXA_API std::wstring GetCurrentLanguage();
// "en-US".
WEXA_API std::wstring GetDefaultLanguage();
// Codes are written "de-DE". A new language sets the decimal character and empties the translator:
// strings must be loaded again. Nothing happens when it is the current one.
WEXA_API void SetCurrentLanguage(const std::wstring& language, bool encrypted);
WEXA_API bool ExpectsEncryptedLanguageFiles();
// The directory of the current, or of the default language.
WEXA_API std::wstring GetTranslationDirPath(bool useDefault);
// The file of form translations of a component.
WEXA_API std::wstring GetTranslationFilePath(const std::wstring& name);
// The strings file of a component; an empty name stands for the common strings.
WEXA_API std::wstring GetStringsFilePath(const std::wstring& name, bool useDefault);

// -- Appearance
// ------------------------------------------------------------------------------------

// The font of dialogs: one shared record.
WEXA_API std::shared_ptr<logFont> GetFontInfo();
WEXA_API char GetDecimalChar();
WEXA_API void SetForcedDecimalChar(char decimalChar);
// Whether dialogs are laid out from right to left; counts for those initialised later.
WEXA_API bool GetLayoutRTL();
WEXA_API void SetLayoutRTL(bool rtl);
// Corner radii in 96-DPI units, taken by controls when they are made.
WEXA_API int GetCheckboxRadius();
WEXA_API void SetCheckboxRadius(int radius);
WEXA_API int GetComboboxRadius();
WEXA_API void SetComboboxRadius(int radius);
WEXA_API int GetEditRadius();
WEXA_API void SetEditRadius(int radius);
WEXA_API int GetContextMenuRadius();
WEXA_API void SetContextMenuRadius(int radius);

// -- Skins of the process
// --------------------------------------------------------------------------

WEXA_API SkinMode GetGlobalSkinMode();
// Loads the global skin, its slots locked; open dialogs that follow it show it, captions and frames
// of all windows as well. Until it is called, the skin is dark on a dark desktop and light on
// others. False for modes other than Default to HCMDark.
WEXA_API bool SetGlobalSkinMode(SkinMode mode);
WEXA_API bool SetGlobalCustomSkin(const SkinManager& skin);
// Colours by key for the skin that dialogs in the mode XML take over, those that are open too.
WEXA_API void InitSkinColorByMap(SkinMap map,
                                 const std::map<std::wstring, SkinManagerColor>& colors);

// -- Log
// -------------------------------------------------------------------------------------------

// Writes the log to a new file. Nothing happens when it cannot be opened.
WEXA_API void WriteLogToFile(const std::string& path);

}  // namespace Wexa
