#include "FileText.h"
#include "Utf8.h"
#include "WexaUtils.h"
#include "XmlDocument.h"

// Version description files.

using Wexa::XmlNode;

namespace {

std::wstring ReadWide(const std::wstring& path) {
  const auto bytes = Wexa::ReadFile(path);
  auto text = bytes ? Wexa::WidenUtf8(*bytes) : std::nullopt;
  if (!text) throw Wexa::XmlParseError("error reading stream", 0);
  return std::move(*text);
}

std::wstring TextOfChild(const XmlNode& parent, const wchar_t* name) {
  const XmlNode* child = parent.first_node(name);
  return child ? Wexa::TextOf(*child) : std::wstring();
}

std::map<std::wstring, std::wstring> NamedValues(const XmlNode& root, const wchar_t* part) {
  std::map<std::wstring, std::wstring> values;
  const XmlNode* parent = root.first_node(part);
  for (auto* entry = parent ? parent->first_node() : nullptr; entry;
       entry = entry->next_sibling()) {
    const auto name = Wexa::AttributeOf(*entry, L"name");
    const auto value = Wexa::AttributeOf(*entry, L"value");
    if (name && value) values.insert_or_assign(std::wstring(*name), std::wstring(*value));
  }
  return values;
}

}  // namespace

bool WexaUtils::GetPluginVersionInfo(std::wstring path, PluginVersionInfo& info) {
  info = {};
  const Wexa::XmlDocument document(ReadWide(path));
  const XmlNode* root = document.First(L"Ostrel");
  if (!root) return false;
  info.language = TextOfChild(*root, L"language");
  info.version = TextOfChild(*root, root->first_node(L"version") ? L"version" : L"Version");
  info.description = NamedValues(*root, L"VerDes");
  info.legal = NamedValues(*root, L"VerLeg");
  return true;
}
