// Any bytes as a version description.

#include <cstddef>
#include <cstdint>
#include <rapidxml/rapidxml.hpp>

#include "MemoryFile.h"
#include "WexaUtils.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const MemoryFile file(data, size);
  PluginVersionInfo info;
  try {
    WexaUtils::GetPluginVersionInfo(file.Path(), info);
  } catch (const rapidxml::parse_error&) {
  }
  return 0;
}
