#include "preview/Language.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "FileText.h"
#include "Translator.h"
#include "Utf8.h"
#include "WexaConfig.h"

namespace preview {
namespace {

namespace fs = std::filesystem;

std::wstring Wide(const std::string& text) {
  const auto wide = Wexa::WidenUtf8(text);
  if (!wide) throw std::runtime_error(text + " is not UTF-8");
  return *wide;
}

// A component's TS file is named as the component, "_" and what the nameless one's is named.
std::vector<std::wstring> FindComponents(const fs::path& nameless) {
  std::vector<std::wstring> names;
  const std::string suffix = std::string("_").append(nameless.filename().string());
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(nameless.parent_path(), error)) {
    const std::string file = entry.path().filename().string();
    if (file.ends_with(suffix)) names.push_back(Wide(file.substr(0, file.size() - suffix.size())));
  }
  std::ranges::sort(names);
  if (fs::exists(nameless)) names.emplace_back();
  return names;
}

std::string Describe(const Wexa::LanguageDiagnostic& diagnostic) {
  std::string place = Wexa::NativePath(diagnostic.file);
  if (diagnostic.line > 0) place.append(":").append(std::to_string(diagnostic.line));
  return place + ": " + Wexa::NarrowUtf8(diagnostic.reason);
}

}  // namespace

std::string LoadLanguage(const Options& options) {
  if (options.language.empty()) return {};
  const fs::path folder = fs::absolute(options.workingDir.empty() ? "." : options.workingDir);
  Wexa::SetWorkingDirPath(Wide((folder / "").string()));
  Wexa::SetCurrentLanguage(Wide(options.language), !options.plain);
  const fs::path nameless = Wexa::NativePath(Wexa::GetTranslationFilePath(L""));
  const auto components = FindComponents(nameless);
  if (components.empty())
    return "no " + nameless.filename().string() + " in " + nameless.parent_path().string();
  auto& translator = Wexa::Translator::GetInstance();
  for (const std::wstring& name : components) translator.LoadStrings(name);
  return {};
}

std::vector<std::string> LanguageWarnings() {
  std::vector<std::string> warnings;
  for (const auto& diagnostic : Wexa::Translator::GetInstance().GetDiagnostics())
    warnings.push_back(Describe(diagnostic));
  return warnings;
}

}  // namespace preview
