#include "WexaConfig.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include "Configuration.h"
#include "FileText.h"
#include "Utf8.h"
#include "WexaException.h"
#include "WexaLogger.h"

namespace Wexa {

namespace {

std::wstring ExecutableDirectory() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) throw WexaException("src/WexaConfig", __LINE__, "Cannot get modul's path.");
  const std::wstring path = WidePath(program.native());
  return path.substr(0, path.rfind(L'/') + 1);
}

bool IsSeparator(wchar_t c) {
  return c == L'/' || c == L'\\';
}

// Begins at a root or a drive.
bool IsFullPath(const std::wstring& name) {
  if (!name.empty() && IsSeparator(name[0])) return true;
  return name.size() > 2 && name[1] == L':' && IsSeparator(name[2]);
}

std::wstring ResourceDirectory(const std::wstring& name, const wchar_t* kind) {
  if (IsFullPath(name)) return name;
  return GetWorkingDirPath() + L"wexaresources\\" + name + kind + L"\\";
}

// Captions and frames go with the skin.
std::optional<SystemScheme> FrameFor(SkinMode mode) {
  if (mode == SkinMode::Dark) return SystemScheme::Dark;
  return mode == SkinMode::Default ? std::optional(SystemScheme::Light) : std::nullopt;
}

}  // namespace

WexaConfig::WexaConfig() {
  RegisterWexaControls();
  workingDirPath = ExecutableDirectory();
  FollowSystemColors();
}

WexaConfig& WexaConfig::Instance() {
  static WexaConfig& config = *new WexaConfig;  // outlives the host's static objects
  return config;
}

void WexaConfig::FollowSystemColors() {
  const SystemScheme scheme = GetSystemScheme();
  if (std::exchange(scheme_, scheme) == scheme) return;
  if (isGlobalSkinChosen) {
    globalSkin.ReloadPalette();
  } else {
    globalSkin.LoadSkin(scheme == SystemScheme::Dark ? SkinMode::Dark : SkinMode::Default, false,
                        false);
  }
  keyMapSkin.ReloadPalette();
}

std::wstring GetWorkingDirPath() {
  return WexaConfig::Instance().workingDirPath;
}
void SetWorkingDirPath(const std::wstring& path) {
  WexaConfig::Instance().workingDirPath = path;
}
std::wstring GetUiDirPath(const std::wstring& name) {
  return ResourceDirectory(name, L"ui");
}
std::wstring GetImageDirPath(const std::wstring& name) {
  return ResourceDirectory(name, L"img");
}

std::shared_ptr<logFont> GetFontInfo() {
  return WexaConfig::Instance().fontInfo;
}
char GetDecimalChar() {
  return WexaConfig::Instance().decimalChar;
}
void SetForcedDecimalChar(char decimalChar) {
  WexaConfig::Instance().decimalChar = decimalChar;
}
bool GetLayoutRTL() {
  return WexaConfig::Instance().layoutRTL;
}
void SetLayoutRTL(bool rtl) {
  WexaConfig::Instance().layoutRTL = rtl;
}

int GetCheckboxRadius() {
  return WexaConfig::Instance().checkboxRadius;
}
void SetCheckboxRadius(int radius) {
  WexaConfig::Instance().checkboxRadius = radius;
}
int GetComboboxRadius() {
  return WexaConfig::Instance().comboboxRadius;
}
void SetComboboxRadius(int radius) {
  WexaConfig::Instance().comboboxRadius = radius;
}
int GetEditRadius() {
  return WexaConfig::Instance().editRadius;
}
void SetEditRadius(int radius) {
  WexaConfig::Instance().editRadius = radius;
}
int GetContextMenuRadius() {
  return WexaConfig::Instance().contextMenuRadius;
}
void SetContextMenuRadius(int radius) {
  WexaConfig::Instance().contextMenuRadius = radius;
}

SkinMode GetGlobalSkinMode() {
  return WexaConfig::Instance().globalSkin.GetSkinMode();
}

bool SetGlobalSkinMode(SkinMode mode) {
  WexaConfig& config = WexaConfig::Instance();
  if (!config.globalSkin.LoadSkin(mode, true, false)) return false;
  config.isGlobalSkinChosen = true;
  PreferSystemScheme(FrameFor(mode));
  config.FollowSystemColors();
  WexaConfig::RepaintDialogs();
  return true;
}

bool SetGlobalCustomSkin(const SkinManager& skin) {
  WexaConfig& config = WexaConfig::Instance();
  config.globalSkin.SetCustomSkin(skin);
  config.isGlobalSkinChosen = true;
  PreferSystemScheme(std::nullopt);
  WexaConfig::RepaintDialogs();
  return true;
}

void InitSkinColorByMap(SkinMap map, const std::map<std::wstring, SkinManagerColor>& colors) {
  WexaConfig::Instance().keyMapSkin.InitSkinColorByMap(map, colors);
  WexaConfig::RepaintDialogs();
}

void WriteLogToFile(const std::string& path) {
  std::wostringstream log;
  WexaLogger::GetInstance().WriteLog(log);
  std::ofstream(NativePath(path), std::ios::binary) << NarrowUtf8(log.str());
}

}  // namespace Wexa
