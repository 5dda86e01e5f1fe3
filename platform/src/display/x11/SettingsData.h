#pragma once

// The bytes in which a desktop's settings manager publishes its settings.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace display::x11 {

struct Settings {
  std::map<std::string, std::string> texts;
  std::map<std::string, std::int32_t> numbers;
};

// None when the bytes are malformed. Colours are left out.
std::optional<Settings> ReadSettings(std::string_view bytes);

}  // namespace display::x11
