#include <algorithm>
#include <string_view>

#include "Configuration.h"
#include "Translator.h"
#include "WexaConfig.h"

namespace Wexa {

namespace {

constexpr std::wstring_view kDefaultLanguage = L"en-US";

constexpr std::wstring_view kLanguagesWithDecimalComma[] = {
    L"es-419", L"pt-BR", L"nl-NL", L"pl-PL", L"de-DE", L"fr-FR",
    L"ru-RU",  L"da-DK", L"fi-FI", L"sv-SE", L"nb-NO", L"it-IT"};

// A language code as it stands in file names.
std::wstring CodeInPaths(bool useDefault) {
  std::wstring code = useDefault ? GetDefaultLanguage() : GetCurrentLanguage();
  const auto underscore = code.find(L'_');
  if (underscore != std::wstring::npos) code[underscore] = L'-';
  return code;
}

void AppendDirectory(std::wstring& path, const std::wstring& code) {
  path.append(WexaConfig::Instance().workingDirPath).append(L"lang\\").append(code).append(L"\\");
}

// Every lookup of a text asks for a path, so they are put together in one piece of memory.
std::wstring LanguageFile(const std::wstring& name, const wchar_t* kind, const wchar_t* extension,
                          bool useDefault) {
  constexpr std::size_t kFixedParts = 40;
  const std::wstring code = CodeInPaths(useDefault);
  std::wstring path;
  path.reserve(WexaConfig::Instance().workingDirPath.size() + name.size() + kFixedParts);
  AppendDirectory(path, code);
  if (!name.empty()) path.append(name).append(L"_");
  path.append(kind).append(code).append(extension);
  if (ExpectsEncryptedLanguageFiles()) path += L".kv";
  return path;
}

}  // namespace

std::wstring GetCurrentLanguage() {
  return WexaConfig::Instance().currentLanguage;
}

std::wstring GetDefaultLanguage() {
  return std::wstring(kDefaultLanguage);
}

void SetCurrentLanguage(const std::wstring& language, bool encrypted) {
  auto& config = WexaConfig::Instance();
  if (language == config.currentLanguage) return;
  config.currentLanguage = language;
  const bool comma = std::ranges::find(kLanguagesWithDecimalComma, language) !=
                     std::end(kLanguagesWithDecimalComma);
  config.decimalChar = comma ? ',' : '.';
  config.expectsEncryptedLanguageFiles = encrypted;
  config.localeName = language + L".UTF-8";
  Translator::GetInstance().ResetStringsTable();
}

bool ExpectsEncryptedLanguageFiles() {
  return WexaConfig::Instance().expectsEncryptedLanguageFiles;
}

std::wstring GetTranslationDirPath(bool useDefault) {
  std::wstring path;
  AppendDirectory(path, CodeInPaths(useDefault));
  return path;
}

std::wstring GetTranslationFilePath(const std::wstring& name) {
  return LanguageFile(name, L"", L".ts", false);
}

std::wstring GetStringsFilePath(const std::wstring& name, bool useDefault) {
  return LanguageFile(name, L"strings_", L".xml", useDefault);
}

}  // namespace Wexa
