#include "UriList.h"

#include <glib.h>
#include <utf8.h>

#include <memory>
#include <string_view>

#include "Text.h"

namespace display::x11 {
namespace {

struct Free {
  void operator()(char* text) const { g_free(text); }
  void operator()(char** texts) const { g_strfreev(texts); }
};
using OwnedText = std::unique_ptr<char, Free>;

bool IsThisMachine(const char* host) {
  return !host || std::string_view(host) == "localhost" ||
         std::string_view(host) == g_get_host_name();
}

// Empty when the address names none of this machine's files.
std::string PathOf(const char* uri) {
  char* hostName = nullptr;
  const OwnedText path(g_filename_from_uri(uri, &hostName, nullptr));
  const OwnedText host(hostName);
  return path && IsThisMachine(host.get()) ? path.get() : "";
}

}  // namespace

std::vector<std::wstring> FilesOf(const std::string& uriList) {
  std::vector<std::wstring> files;
  const std::unique_ptr<char*, Free> uris(g_uri_list_extract_uris(uriList.c_str()));
  for (char** uri = uris.get(); *uri; ++uri) {
    const std::string path = PathOf(*uri);
    if (!path.empty() && utf8::is_valid(path)) files.push_back(Widen(FromUtf8(path)));
  }
  return files;
}

}  // namespace display::x11
