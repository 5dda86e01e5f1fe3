#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "FileText.h"
#include "Translator.h"
#include "Utf8.h"
#include "WexaConfig.h"

namespace Wexa {

// A host's folder of forms and language files, its working directory while it lives. The language
// is none before and after.
class LanguageFolder {
 public:
  LanguageFolder() {
    std::filesystem::remove_all(folder_);
    SetWorkingDirPath(*WidenUtf8(folder_));
    SetCurrentLanguage(L"", false);
  }
  ~LanguageFolder() {
    SetCurrentLanguage(L"", true);
    SetWorkingDirPath(oldFolder_);
    std::filesystem::remove_all(folder_);
  }
  LanguageFolder(const LanguageFolder&) = delete;
  LanguageFolder& operator=(const LanguageFolder&) = delete;

  std::string Path(const std::string& name) const { return folder_ + name; }
  static void Write(const std::wstring& path, const std::string& bytes) {
    const std::filesystem::path native = NativePath(path);
    std::filesystem::create_directories(native.parent_path());
    std::ofstream(native, std::ios::binary) << bytes;
  }
  // The texts of a strings file in the language; of the common one without a name.
  static void WriteStrings(const std::wstring& name, bool useDefault, const std::string& strings) {
    const std::string language = useDefault ? "en-US" : NarrowUtf8(GetCurrentLanguage());
    Write(GetStringsFilePath(name, useDefault),
          "<r language='" + language + "'><StringTable>" + strings + "</StringTable></r>");
  }

 private:
  std::string folder_ = testing::TempDir() + "/language_folder/";
  std::wstring oldFolder_ = GetWorkingDirPath();
};

}  // namespace Wexa
