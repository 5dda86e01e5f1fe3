#include "data/TestData.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace testdata {
namespace {

std::vector<std::string> FormsIn(const std::string& folders) {
  std::vector<std::string> forms;
  std::istringstream stream(folders);
  for (std::string folder; std::getline(stream, folder, ':');)
    std::ranges::move(FilesIn(folder, ".ui"), std::back_inserter(forms));
  return forms;
}

}  // namespace

const char* const kNoGivenForms =
    "no forms of other programs: cmake --preset debug -D \"WEXA_FORMS=FOLDER;FOLDER\" adds them";

std::string InProject(const std::string& path) {
  return WEXA_SOURCE_DIR "/" + path;
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> FilesIn(const std::string& folder, const std::string& extension) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    if (entry.path().extension() == extension) files.push_back(entry.path().string());
  std::ranges::sort(files);
  return files;
}

const std::vector<std::string>& Forms() {
  static const auto forms = FilesIn(InProject("tests/data/forms"), ".ui");
  return forms;
}

std::string Form(const std::string& name) {
  return InProject("tests/data/forms/" + name);
}

std::string TsFile(const std::string& language) {
  return InProject("tests/data/lang/garden_" + language + ".ts");
}

const std::vector<std::string>& GivenForms() {
  static const auto forms = FormsIn(WEXA_FORMS);
  return forms;
}

}  // namespace testdata
