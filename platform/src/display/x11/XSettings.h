#pragma once

// The desktop's settings, as its settings manager publishes them (XSETTINGS).

#include <xcb/xcb.h>

#include <optional>

#include "SettingsData.h"
#include "platform/SystemColors.h"

namespace display::x11 {

class Connection;

class XSettings {
 public:
  explicit XSettings(Connection& connection) : connection_(connection) {}

  // By the name of the desktop's theme ("Net/ThemeName"): high contrast when it contains "high
  // contrast" or "contrast high", whatever separates the words and in any case; dark when "dark" is
  // one of its words; else light, as where no manager runs.
  SystemScheme Scheme();
  // Milliseconds ("Net/DoubleClickTime"); none where nobody has set them.
  std::optional<std::uint32_t> DoubleClickTime();

  // Events that may be about the manager; true when the scheme is another than before. Malformed
  // settings, and a manager that ends, leave what was known.
  bool ManagerCame(const xcb_client_message_event_t& message);
  bool PropertyChanged(const xcb_property_notify_event_t& event);

 private:
  const Settings& Get();
  void FindManager();
  void Read();
  bool ReadAnew();

  Connection& connection_;
  std::optional<Settings> settings_;  // none before the first question
  xcb_window_t manager_ = 0;
};

}  // namespace display::x11
