#include "Translator.h"

#include <algorithm>
#include <utility>

#include "Encrypter.h"
#include "FileText.h"
#include "FormTranslation.h"
#include "StringsLoader.h"
#include "TsLoader.h"
#include "Utf8.h"
#include "WexaConfig.h"

namespace Wexa {

namespace {

constexpr std::size_t kEncryptedSuffixLength = 3;  // ".kv"

// The name of an encrypted form file without directories, which either separator ends, and suffix.
std::wstring FormName(const std::wstring& path) {
  const std::wstring name = path.substr(path.find_last_of(L"/\\") + 1);
  return name.substr(0, name.size() - std::min(name.size(), kEncryptedSuffixLength));
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
  static Translator translator;
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

void Translator::ReadStrings(const std::wstring& path, Texts& texts) const {
  LoadStringsText(ReadTranslationFile(path), {GetCurrentLanguage(), GetDefaultLanguage()}, texts,
                  *GetFontInfo());
}

void Translator::MergeFormTranslations(const std::wstring& name) {
  const std::wstring path = GetTranslationFilePath(name);
  if (!AddToTsFilesSet(path)) return;
  if (const auto unit = LoadTsText(ReadTranslationFile(path), GetCurrentLanguage())) {
    unit_.AppendTsTranslationUnit(*unit);
  }
}

bool Translator::AddToTsFilesSet(const std::wstring& path) {
  return loadedTsFiles_.insert(path).second;
}

void Translator::ResetStringsTable() {
  currentStrings_.clear();
  defaultStrings_.clear();
  unit_.Clear();
  loadedTsFiles_.clear();
}

std::wstring Translator::ReadTranslationFile(const std::wstring& path) const {
  if (ExpectsEncryptedLanguageFiles()) return Encrypter::ReadAndDecryptFile(path);
  const auto bytes = ReadFile(path);
  return bytes ? WidenUtf8(*bytes).value_or(L"") : L"";
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
  const auto& forms = unit_.GetMessageMap();
  const auto found = forms.find(FormName(path));
  const std::wstring text = Encrypter::ReadAndDecryptFile(path);
  return TranslateForm(text, found == forms.end() ? FormLines() : found->second);
}

}  // namespace Wexa
