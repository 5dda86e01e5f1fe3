#pragma once

#include <memory>
#include <set>
#include <string>
#include <unordered_map>

#include "TSTranslationUnit.h"
#include "WexaExport.h"

namespace Wexa {

// The texts of the current and of the default language, by component and id, and the translations
// of form files. SetCurrentLanguage empties it. User-interface thread only, but for GetInstance.
class WEXA_API Translator {
 public:
  static Translator& GetInstance();
  Translator(const Translator&) = delete;
  Translator& operator=(const Translator&) = delete;

  // Loads the strings files of a component and the common ones, and the component's form
  // translations. Files that are missing, or of another language, give nothing. A file that is not
  // well-formed throws rapidxml::parse_error, a line number that is none throws as std::stoi does.
  void LoadStrings(const std::wstring& name);
  // Adds the texts of another component to those of `name`. Throws as LoadStrings does.
  void AppendStrings(const std::wstring& name, const std::wstring& other);

  // Empty when there is none. The locale plays no part.
  std::wstring GetText(const std::wstring& name, const std::wstring& id,
                       const std::wstring& localeName);
  std::wstring GetDefaultText(const std::wstring& name, const std::wstring& id);
  void ResetStringsTable();

  // The text of a language file, decrypted where encrypted files are expected; empty on failure.
  std::wstring ReadTranslationFile(const std::wstring& path) const;
  // The text of an encrypted form file with its strings in the current language and without its
  // line ends; empty on failure.
  std::wstring TranslateUIFile(const std::wstring& path);

 private:
  using Texts = std::unordered_map<std::wstring, std::wstring>;
  using StringsTable = std::unordered_map<std::wstring, Texts>;

  Translator();
  ~Translator();
  bool AddToTsFilesSet(const std::wstring& path);
  void LoadStringsOnce(StringsTable& table, const std::wstring& path);
  void ReadStrings(const std::wstring& path, Texts& texts) const;
  void MergeFormTranslations(const std::wstring& name);

  StringsTable currentStrings_;
  StringsTable defaultStrings_;
  TSTranslationUnit unit_;
  std::set<std::wstring> loadedTsFiles_;
};

}  // namespace Wexa
