#include "Translator.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "Encrypter.h"
#include "FileText.h"
#include "FormTranslation.h"
#include "StringsLoader.h"
#include "TsLoader.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaConfig.h"
#include "XmlDocument.h"

namespace Wexa {

namespace {

constexpr std::size_t kEncryptedSuffixLength = 3;  // ".kv"

// The name of a file without directories, which either separator ends.
std::wstring FileName(const std::wstring& path) {
  return path.substr(path.find_last_of(L"/\\") + 1);
}

// The name of a form by that of its encrypted file.
std::wstring FormName(const std::wstring& path) {
  const std::wstring name = FileName(path);
  return name.substr(0, name.size() - std::min(name.size(), kEncryptedSuffixLength));
}

// What the parser and the standard library say is plain ASCII.
std::wstring Widen(const char* text) {
  return std::wstring(text, text + std::strlen(text));
}

template <typename Table>
std::wstring Find(const Table& table, const std::wstring& path, const std::wstring& id) {
  const auto texts = table.find(path);
  if (texts == table.end()) return {};
  const auto text = texts->second.find(id);
  return text == texts->second.end() ? std::wstring() : text->second;
}

}  // namespace

Translator::Translator() = default;
Translator::~Translator() = default;

Translator& Translator::GetInstance() {
  static Translator& translator = *new Translator;  // outlives the host's static objects
  return translator;
}

// -- Loading
// -----------------------------------------------------------------------------------------

void Translator::LoadStrings(const std::wstring& name) {
  LoadStringsOnce(currentStrings_, GetStringsFilePath(name, false));
  LoadStringsOnce(defaultStrings_, GetStringsFilePath(name, true));
  LoadStringsOnce(currentStrings_, GetStringsFilePath(L"", false));
  LoadStringsOnce(defaultStrings_, GetStringsFilePath(L"", true));
  if (GetCurrentLanguage() != GetDefaultLanguage()) MergeFormTranslations(name);
}

void Translator::AppendStrings(const std::wstring& name, const std::wstring& other) {
  ReadStrings(GetStringsFilePath(other, false), currentStrings_[GetStringsFilePath(name, false)]);
  ReadStrings(GetStringsFilePath(other, true), defaultStrings_[GetStringsFilePath(name, true)]);
  MergeFormTranslations(other);
}

void Translator::LoadStringsOnce(StringsTable& table, const std::wstring& path) {
  if (table.contains(path)) return;
  Texts texts;
  ReadStrings(path, texts);
  if (!texts.empty()) table.emplace(path, std::move(texts));
}

void Translator::ReadStrings(const std::wstring& path, Texts& texts) try {
  const Languages languages{GetCurrentLanguage(), GetDefaultLanguage()};
  for (const auto& [offset, reason] :
       LoadStringsText(ReadOrDiagnose(path), languages, texts, *GetFontInfo()))
    DiagnoseAt(path, offset, reason);
} catch (const XmlParseError& error) {
  DiagnoseAt(path, error.Offset(), Widen(error.what()));
}

void Translator::MergeFormTranslations(const std::wstring& name) {
  const std::wstring path = GetTranslationFilePath(name);
  if (AddToTsFilesSet(path)) ReadFormTranslations(path);
}

void Translator::ReadFormTranslations(const std::wstring& path) {
  std::string text = ReadOrDiagnose(path);
  if (text.empty()) return;
  TsReport report;
  try {
    auto unit = LoadTsText(std::move(text), GetCurrentLanguage(), report);
    DiagnoseTsFile(path, report, unit && !unit->GetMessageMap().empty());
    if (unit && unit_.GetMessageMap().empty()) {
      unit_ = std::move(*unit);
    } else if (unit) {
      unit_.AppendTsTranslationUnit(*unit);
    }
  } catch (const XmlParseError& error) {
    DiagnoseAt(path, error.Offset(), Widen(error.what()));
  } catch (const std::logic_error&) {
    DiagnoseAt(path, *report.bad, L"the line of this location is no number");
  }
  if (report.relative) {
    DiagnoseAt(path, *report.relative,
               L"the lines of locations are relative from here on; they must be absolute");
  }
}

void Translator::DiagnoseTsFile(const std::wstring& path, const TsReport& report,
                                bool hasMessages) {
  const std::wstring wanted = GetCurrentLanguage();
  if (!report.isTs) return Diagnose(path, 0, L"no TS file");
  reasonForNoMatch_ = L"no message is for this form";
  if (report.language != wanted) {
    reasonForNoMatch_ = L"the language file is for another language";
    return Diagnose(path, 0,
                    report.language ? L"for \"" + *report.language + L"\", not for " + wanted
                                    : L"names no language; it must be " + wanted);
  }
  if (report.messages == 0 || hasMessages) return;
  reasonForNoMatch_ = L"the messages have no locations";
  Diagnose(path, 0, L"none of its messages has a location");
}

// The bytes of a language file, decrypted; empty on failure.
std::string Translator::ReadLanguageFile(const std::wstring& path) {
  if (ExpectsEncryptedLanguageFiles()) return Encrypter::ReadAndDecryptBytes(path);
  return ReadFile(path).value_or("");
}

// -- Diagnostics
// -------------------------------------------------------------------------------------

std::string Translator::ReadOrDiagnose(const std::wstring& path) {
  std::string text = ReadLanguageFile(path);
  const bool sound = !text.empty() && IsUtf8(text);
  if (!sound && std::filesystem::exists(NativePath(path))) {
    DiagnoseUnread(path, text);
  }
  return sound ? text : std::string();
}

void Translator::DiagnoseUnread(const std::wstring& path, const std::string& text) {
  if (IsFileTooLarge(path)) return Diagnose(path, 0, L"the file is too large");
  if (!text.empty()) return DiagnoseAt(path, *FindBadUtf8(text), L"not UTF-8");
  Diagnose(path, 0, ExpectsEncryptedLanguageFiles() ? L"no encrypted file, or damaged" : L"empty");
}

// Reading a text changes it, so that its lines are counted in the file.
void Translator::DiagnoseAt(const std::wstring& path, std::size_t offset, std::wstring reason) {
  Diagnose(path, LineAt(ReadLanguageFile(path), offset), std::move(reason));
}

// A file that is read again is not reported again.
void Translator::Diagnose(const std::wstring& path, int line, std::wstring reason) {
  const bool known = std::ranges::any_of(diagnostics_, [&](const LanguageDiagnostic& other) {
    return other.file == path && other.line == line && other.reason == reason;
  });
  if (!known) diagnostics_.push_back({path, line, std::move(reason)});
}

bool Translator::AddToTsFilesSet(const std::wstring& path) {
  return loadedTsFiles_.insert(path).second;
}

void Translator::ResetStringsTable() {
  currentStrings_.clear();
  defaultStrings_.clear();
  unit_.Clear();
  reasonForNoMatch_.clear();
  loadedTsFiles_.clear();
  diagnostics_.clear();
}

std::wstring Translator::ReadTranslationFile(const std::wstring& path) const {
  return WidenUtf8(ReadLanguageFile(path)).value_or(L"");
}

// -- Lookup
// ------------------------------------------------------------------------------------------

std::wstring Translator::GetText(const std::wstring& name, const std::wstring& id,
                                 const std::wstring& /*localeName*/) {
  return Find(currentStrings_, GetStringsFilePath(name, false), id);
}

std::wstring Translator::GetDefaultText(const std::wstring& name, const std::wstring& id) {
  return Find(defaultStrings_, GetStringsFilePath(name, true), id);
}

// -- Forms
// -------------------------------------------------------------------------------------------

std::wstring Translator::TranslateUIFile(const std::wstring& path) {
  return TranslateUIBytes(path, ReadFile(path).value_or(""));
}

std::wstring Translator::TranslateUIBytes(const std::wstring& path, std::string bytes) {
  const std::string form = Encrypter::DecryptBytes(std::move(bytes));
  if (!IsUtf8(form)) return {};
  const auto empty =
      emptyTranslationsApplied_ ? EmptyTranslations::EmptyString : EmptyTranslations::KeepString;
  const std::wstring name = FormName(path);
  const FormLines& lines = TranslationsOf(name);
  if (!reasonForNoMatch_.empty()) DiagnoseUnmatched(path, name, CountUnmatched(form, lines));
  return TranslateForm(form, lines, empty);
}

std::wstring Translator::TranslateUIText(const std::wstring& path, const std::wstring& text) {
  const std::wstring name = FileName(path);
  const FormLines& lines = TranslationsOf(name);
  if (!reasonForNoMatch_.empty()) DiagnoseUnmatched(path, name, CountUnmatched(text, lines));
  return TranslateFormInPlace(text, lines);
}

const std::map<unsigned int, std::wstring>& Translator::TranslationsOf(
    const std::wstring& form) const {
  static const FormLines& kNone = *new FormLines;
  const auto found = unit_.GetMessageMap().find(form);
  return found == unit_.GetMessageMap().end() ? kNone : found->second;
}

void Translator::DiagnoseUnmatched(const std::wstring& path, const std::wstring& form,
                                   std::size_t texts) {
  if (texts == 0) return;
  const std::wstring& reason =
      TranslationsOf(form).empty() ? reasonForNoMatch_ : L"the messages are for other lines";
  Diagnose(path, 0,
           L"0 of " + std::to_wstring(texts) + L" texts of " + form + L" matched: " + reason);
}

}  // namespace Wexa
