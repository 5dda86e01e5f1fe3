#include "RealForms.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "Utf8.h"

namespace Wexa {
namespace {

RealForm LoadForm(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  auto text = WidenUtf8(bytes).value();
  return {path, std::move(bytes), std::move(text)};
}

std::vector<RealForm> LoadForms() {
  std::vector<RealForm> forms;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(WEXA_SHARED_DIR "/forms"))
    if (entry.path().extension() == ".ui") forms.push_back(LoadForm(entry.path().string()));
  std::ranges::sort(forms, {}, &RealForm::path);
  return forms;
}

}  // namespace

const std::vector<RealForm>& RealForms() {
  static const auto forms = LoadForms();
  return forms;
}

}  // namespace Wexa
