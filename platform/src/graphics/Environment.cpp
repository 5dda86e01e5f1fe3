#include "graphics/Environment.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

namespace {

std::string_view Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

void Refuse(const char* name, std::string_view value, const char* wanted) {
  static auto& refused = *new std::set<std::string>;
  std::string complaint = std::string(name) + " is \"" + std::string(value) + "\": not " + wanted;
  const auto [line, isNew] = refused.insert(std::move(complaint));
  if (isNew) std::fprintf(stderr, "%s, so it counts for nothing\n", line->c_str());
}

}  // namespace

std::optional<int> DpiOfEnvironment() {
  const std::string_view text = Variable("WEXA_DPI");
  if (text.empty()) return std::nullopt;
  int dpi = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), dpi);
  const bool isNumber = error == std::errc() && rest == text.data() + text.size();
  if (isNumber && IsServedDpi(dpi)) return dpi;
  Refuse("WEXA_DPI", text, "a number from 48 to 960");
  return std::nullopt;
}

std::optional<SystemScheme> SchemeOfEnvironment() {
  const std::string_view wish = Variable("WEXA_HIGH_CONTRAST");
  if (wish.empty()) return std::nullopt;
  if (wish == "1") return SystemScheme::HighContrast;
  if (wish == "0") return SystemScheme::Light;
  Refuse("WEXA_HIGH_CONTRAST", wish, "1 or 0");
  return std::nullopt;
}
