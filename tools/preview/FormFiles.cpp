#include "preview/FormFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "FormError.h"
#include "Utf8.h"
#include "WexaException.h"

namespace preview {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> FormsBelow(const std::string& folder) {
  std::vector<std::string> forms;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file() && entry.path().extension() == ".ui")
      forms.push_back(entry.path().string());
  if (forms.empty()) throw std::runtime_error(folder + ": no forms below this folder");
  std::ranges::sort(forms);
  return forms;
}

// The text of an exception without the place in the library's source that threw it.
std::string MessageOf(const Wexa::WexaException& exception) {
  const std::string text = exception.what();
  const auto quote = text.find('"');
  return quote == text.npos ? text : text.substr(quote + 1);
}

}  // namespace

std::vector<std::string> FindForms(const std::vector<std::string>& arguments) {
  std::vector<std::string> forms;
  for (const std::string& argument : arguments) {
    std::error_code error;
    if (!fs::is_directory(argument, error)) {
      forms.push_back(argument);
      continue;
    }
    const auto found = FormsBelow(argument);
    forms.insert(forms.end(), found.begin(), found.end());
  }
  return forms;
}

std::wstring LibraryPath(const std::string& file) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(std::fopen(file.c_str(), "rb"),
                                                               &std::fclose);
  if (!opened) throw std::runtime_error(std::strerror(errno));
  const auto path = Wexa::WidenUtf8(file);
  if (!path) throw std::runtime_error("the path is not UTF-8");
  return *path;
}

std::string DescribeError(const std::string& file) {
  try {
    throw;
  } catch (const Wexa::FormError& error) {
    return Wexa::NarrowUtf8(error.diagnostic.Describe());
  } catch (const Wexa::WexaException& error) {
    return file + ": " + MessageOf(error);
  } catch (const std::exception& error) {
    return file + ": " + error.what();
  }
}

}  // namespace preview
