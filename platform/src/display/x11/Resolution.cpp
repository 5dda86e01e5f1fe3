#include "Resolution.h"

#include <xcb/xcb_xrm.h>

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "Connection.h"

namespace display::x11 {
namespace {

constexpr int kDefault = 96;

struct CloseDatabase {
  void operator()(xcb_xrm_database_t* database) const { xcb_xrm_database_free(database); }
};

std::optional<int> FromEnvironment() {
  const char* text = std::getenv("WEXA_DPI");
  if (!text || !*text) return std::nullopt;
  int dpi = 0;
  const char* end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, dpi);
  if (error != std::errc() || rest != end || dpi <= 0) {
    throw std::runtime_error("WEXA_DPI is no resolution: \"" + std::string(text) + "\"");
  }
  return dpi;
}

int FromResources(xcb_connection_t* connection) {
  const std::unique_ptr<xcb_xrm_database_t, CloseDatabase> database(
      xcb_xrm_database_from_default(connection));
  long dpi = 0;
  if (!database || xcb_xrm_resource_get_long(database.get(), "Xft.dpi", nullptr, &dpi) != 0) {
    return kDefault;
  }
  return dpi > 0 && dpi < 10000 ? static_cast<int>(dpi) : kDefault;
}

}  // namespace

int Resolution::Dpi() const {
  if (!dpi_) {
    dpi_ = FromEnvironment();
    if (!dpi_) dpi_ = FromResources(connection_.Get());
  }
  return *dpi_;
}

bool Resolution::Refresh() {
  const auto old = std::exchange(dpi_, std::nullopt);
  return old && Dpi() != *old;
}

}  // namespace display::x11
