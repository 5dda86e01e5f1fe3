#include "support/x11/XTestDriver.h"

#pragma push_macro("explicit")
#define explicit explicit_
#include <xcb/xkb.h>
#pragma pop_macro("explicit")

#include <cstdlib>

namespace support {

void XTestDriver::UseLayout(int index) {
  const auto use = xcb_xkb_use_extension(connection_, 1, 0);
  std::free(xcb_xkb_use_extension_reply(connection_, use, nullptr));
  xcb_xkb_latch_lock_state(connection_, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1,
                           static_cast<std::uint8_t>(index), 0, 0, 0);
  Sync();
}

}  // namespace support
