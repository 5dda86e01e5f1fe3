#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "TSTranslationUnit.h"
#include "WexaExport.h"

namespace Wexa {

struct TsReport;

// Why a language file gave nothing, what is wrong with it, or why a form was not translated.
struct LanguageDiagnostic {
  std::wstring file;    // its path
  int line;             // counted from 1; 0 for the whole file
  std::wstring reason;  // one English sentence
};

// The texts of the current and of the default language, by component and id, and the translations
// of form files. SetCurrentLanguage empties it. User-interface thread only, but for GetInstance.
class WEXA_API Translator {
 public:
  static Translator& GetInstance();
  Translator(const Translator&) = delete;
  Translator& operator=(const Translator&) = delete;

  // Loads the strings files of a component and the common ones, and the component's form
  // translations. Files that are missing, or of another language, give nothing; neither do files
  // that cannot be understood, of which GetDiagnostics tells.
  void LoadStrings(const std::wstring& name);
  // Adds the texts of another component to those of `name`, as LoadStrings reads them.
  void AppendStrings(const std::wstring& name, const std::wstring& other);

  // Empty when there is none. The locale plays no part.
  std::wstring GetText(const std::wstring& name, const std::wstring& id,
                       const std::wstring& localeName);
  std::wstring GetDefaultText(const std::wstring& name, const std::wstring& id);
  // Forgets all texts, form translations and diagnostics.
  void ResetStringsTable();
  // What was wrong with the files read since the last reset, in the order it was found: files that
  // gave nothing or not all, and forms in which no translation found its text.
  const std::vector<LanguageDiagnostic>& GetDiagnostics() const { return diagnostics_; }

  // The text of a language file, decrypted where encrypted files are expected; empty on failure.
  std::wstring ReadTranslationFile(const std::wstring& path) const;
  // The text of an encrypted form file with its strings in the current language and without its
  // line ends; empty on failure.
  std::wstring TranslateUIFile(const std::wstring& path);
  // The same for the bytes of such a file, already read from `path`.
  std::wstring TranslateUIBytes(const std::wstring& path, std::string bytes);
  // Whether an empty translation, which unfinished ones have, makes a string of an encrypted form
  // empty. Off at first: the string stays as the form has it, as it always does in plain forms.
  void SetEmptyTranslationsApplied(bool applied) { emptyTranslationsApplied_ = applied; }
  bool AreEmptyTranslationsApplied() const { return emptyTranslationsApplied_; }
  // The same for the text of a plain form file read from `path`, which keeps its lines.
  std::wstring TranslateUIText(const std::wstring& path, const std::wstring& text);

 private:
  using Texts = std::unordered_map<std::wstring, std::wstring>;
  using StringsTable = std::unordered_map<std::wstring, Texts>;

  Translator();
  ~Translator();
  bool AddToTsFilesSet(const std::wstring& path);
  void LoadStringsOnce(StringsTable& table, const std::wstring& path);
  void ReadStrings(const std::wstring& path, Texts& texts);
  void MergeFormTranslations(const std::wstring& name);
  void ReadFormTranslations(const std::wstring& path);
  void DiagnoseTsFile(const std::wstring& path, const TsReport& report, bool hasMessages);
  void DiagnoseUnmatched(const std::wstring& path, const std::wstring& form, std::size_t texts);
  const std::map<unsigned int, std::wstring>& TranslationsOf(const std::wstring& form) const;
  static std::string ReadLanguageFile(const std::wstring& path);
  std::string ReadOrDiagnose(const std::wstring& path);
  void DiagnoseUnread(const std::wstring& path, const std::string& text);
  void DiagnoseAt(const std::wstring& path, std::size_t offset, std::wstring reason);
  void Diagnose(const std::wstring& path, int line, std::wstring reason);

  StringsTable currentStrings_;
  StringsTable defaultStrings_;
  TSTranslationUnit unit_;
  std::set<std::wstring> loadedTsFiles_;
  // Why the TS files that are there may match no form; empty when none is there.
  std::wstring reasonForNoMatch_;
  std::vector<LanguageDiagnostic> diagnostics_;
  bool emptyTranslationsApplied_ = false;
};

}  // namespace Wexa
