#include "Resolution.h"

#include <xcb/xcb_xrm.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "Connection.h"
#include "graphics/Environment.h"

namespace display::x11 {
namespace {

constexpr int kDefault = 96;

struct CloseDatabase {
  void operator()(xcb_xrm_database_t* database) const { xcb_xrm_database_free(database); }
};

int FromResources(xcb_connection_t* connection) {
  const std::unique_ptr<xcb_xrm_database_t, CloseDatabase> database(
      xcb_xrm_database_from_default(connection));
  long dpi = 0;
  if (!database || xcb_xrm_resource_get_long(database.get(), "Xft.dpi", nullptr, &dpi) != 0) {
    return kDefault;
  }
  const auto whole = static_cast<int>(std::clamp(dpi, 0L, 10000L));
  return IsServedDpi(whole) ? whole : kDefault;
}

}  // namespace

int Resolution::Dpi() const {
  if (!dpi_) {
    dpi_ = DpiOfEnvironment();
    if (!dpi_) dpi_ = FromResources(connection_.Get());
  }
  return *dpi_;
}

bool Resolution::Refresh() {
  const auto old = std::exchange(dpi_, std::nullopt);
  return old && Dpi() != *old;
}

}  // namespace display::x11
