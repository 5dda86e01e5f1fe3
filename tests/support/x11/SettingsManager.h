#pragma once

// A program that manages a desktop's settings.

#include <string>

#include "support/x11/XTestDriver.h"

namespace support {

// The bytes in which settings are published, in either order.
class SettingsBytes {
 public:
  explicit SettingsBytes(bool bigEndian = false);

  SettingsBytes& Number(std::uint32_t number, int length);
  SettingsBytes& Begin(std::uint32_t type, const std::string& name);
  // A text with its length before and the padding after it.
  SettingsBytes& Text(const std::string& text, int lengthOfLength = 4);
  const std::string& Get() const { return bytes_; }

 private:
  bool bigEndian_;
  std::string bytes_;
};

// A theme, a time for double clicks, and a colour.
std::string DesktopSettings(const std::string& theme, std::uint32_t doubleClick = 400,
                            bool bigEndian = false);

class SettingsManager {
 public:
  // Publishes the settings and tells all programs that it is there.
  SettingsManager(XTestDriver& driver, const std::string& settings);
  ~SettingsManager();
  SettingsManager(const SettingsManager&) = delete;
  SettingsManager& operator=(const SettingsManager&) = delete;

  void Set(const std::string& settings);

 private:
  XTestDriver& driver_;
  xcb_window_t window_;
};

}  // namespace support
