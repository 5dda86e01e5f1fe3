#include <dlfcn.h>
#include <link.h>
#include <filesystem>
#include <memory>
#include <utility>

#include "FileText.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaUtils.h"
#include "XmlDocument.h"

// What modules and version description files say of themselves.

using Wexa::Utf8XmlNode;

// -- Modules

namespace {

// What a module fills in when it is asked for its version.
struct DLLVERSIONINFO {
  DWORD cbSize;
  DWORD dwMajorVersion;
  DWORD dwMinorVersion;
  DWORD dwBuildNumber;
  DWORD dwPlatformID;
};
using DllGetVersionProcedure = std::int32_t (*)(DLLVERSIONINFO*);  // negative when it failed

struct ModuleRelease {
  void operator()(void* module) const { dlclose(module); }
};

using Module = std::unique_ptr<void, ModuleRelease>;

// The path that a module of this file name was loaded by; empty when there is none.
std::string PathOfLoaded(const std::string& fileName) {
  std::pair<const std::string&, std::string> search(fileName, {});
  const auto look = [](dl_phdr_info* module, std::size_t, void* data) {
    auto& [wanted, path] = *static_cast<decltype(search)*>(data);
    if (std::filesystem::path(module->dlpi_name).filename() != wanted) return 0;
    path = module->dlpi_name;
    return 1;
  };
  dl_iterate_phdr(look, &search);
  return search.second;
}

// Null for a module that is not loaded already. The loader knows one by its path or by the name
// that it gives itself, which it may lack.
Module LoadedModule(const std::string& name) {
  const auto find = [](const std::string& path) {
    return Module(dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD));
  };
  Module module = find(name);
  if (module || name.empty() || name.find('/') != name.npos) return module;
  const std::string path = PathOfLoaded(name);
  return path.empty() ? nullptr : find(path);
}

}  // namespace

unsigned long WexaUtils::GetVersion(const std::wstring& moduleName) {
  const auto module = LoadedModule(Wexa::NativePath(moduleName));
  void* symbol = module ? dlsym(module.get(), "DllGetVersion") : nullptr;
  DLLVERSIONINFO info{sizeof(DLLVERSIONINFO), 0, 0, 0, 0};
  if (!symbol || reinterpret_cast<DllGetVersionProcedure>(symbol)(&info) < 0) return 0;
  return info.dwMajorVersion << 16 | info.dwMinorVersion;
}

// -- Version description files

namespace {

std::string ReadText(const std::wstring& path) {
  auto bytes = Wexa::ReadFile(path);
  if (!bytes || !Wexa::IsUtf8(*bytes)) throw Wexa::XmlParseError("error reading stream", 0);
  return std::move(*bytes);
}

std::wstring TextOfChild(const Utf8XmlNode& parent, const char* name) {
  const Utf8XmlNode* child = parent.first_node(name);
  return child ? *Wexa::WidenUtf8(Wexa::TextOf(*child)) : std::wstring();
}

std::map<std::wstring, std::wstring> NamedValues(const Utf8XmlNode& root, const char* part) {
  std::map<std::wstring, std::wstring> values;
  const Utf8XmlNode* parent = root.first_node(part);
  for (auto* entry = parent ? parent->first_node() : nullptr; entry;
       entry = entry->next_sibling()) {
    const auto name = Wexa::AttributeOf(*entry, "name");
    const auto value = Wexa::AttributeOf(*entry, "value");
    if (name && value) values.insert_or_assign(*Wexa::WidenUtf8(*name), *Wexa::WidenUtf8(*value));
  }
  return values;
}

}  // namespace

bool WexaUtils::GetPluginVersionInfo(std::wstring path, PluginVersionInfo& info) {
  info = {};
  const Wexa::Utf8XmlDocument document(ReadText(path));
  const Utf8XmlNode* root = document.First("Ostrel");
  if (!root) return false;
  info.language = TextOfChild(*root, "language");
  info.version = TextOfChild(*root, root->first_node("version") ? "version" : "Version");
  info.description = NamedValues(*root, "VerDes");
  info.legal = NamedValues(*root, "VerLeg");
  return true;
}
