#include "support/x11/SettingsManager.h"

namespace support {
namespace {

enum Type { kNumber, kText, kColor };

}  // namespace

SettingsBytes::SettingsBytes(bool bigEndian) : bigEndian_(bigEndian) {
  constexpr std::uint32_t kSerial = 7;
  Number(bigEndian, 1).Number(0, 3).Number(kSerial, 4);
}

SettingsBytes& SettingsBytes::Number(std::uint32_t number, int length) {
  for (int i = 0; i < length; ++i) {
    bytes_.push_back(static_cast<char>(number >> 8 * (bigEndian_ ? length - 1 - i : i)));
  }
  return *this;
}

SettingsBytes& SettingsBytes::Begin(std::uint32_t type, const std::string& name) {
  constexpr std::uint32_t kSerial = 3;
  return Number(type, 1).Number(0, 1).Text(name, 2).Number(kSerial, 4);
}

SettingsBytes& SettingsBytes::Text(const std::string& text, int lengthOfLength) {
  Number(static_cast<std::uint32_t>(text.size()), lengthOfLength);
  bytes_ += text;
  return Number(0, static_cast<int>((4 - text.size() % 4) % 4));
}

std::string DesktopSettings(const std::string& theme, std::uint32_t doubleClick, bool bigEndian) {
  SettingsBytes bytes(bigEndian);
  bytes.Number(3, 4);
  bytes.Begin(kColor, "Gtk/Color").Number(~0u, 4).Number(~0u, 4);
  bytes.Begin(kNumber, "Net/DoubleClickTime").Number(doubleClick, 4);
  bytes.Begin(kText, "Net/ThemeName").Text(theme);
  return bytes.Get();
}

SettingsManager::SettingsManager(XTestDriver& driver, const std::string& settings)
    : driver_(driver), window_(driver.CreateWindow()) {
  Set(settings);
  const xcb_atom_t selection = driver.Atom("_XSETTINGS_S0");
  xcb_set_selection_owner(driver.Connection(), window_, selection, XCB_CURRENT_TIME);
  driver.Send(driver.Root(), "MANAGER", {XCB_CURRENT_TIME, selection, window_},
              XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

SettingsManager::~SettingsManager() {
  xcb_destroy_window(driver_.Connection(), window_);
  driver_.Sync();
}

void SettingsManager::Set(const std::string& settings) {
  const xcb_atom_t property = driver_.Atom("_XSETTINGS_SETTINGS");
  xcb_change_property(driver_.Connection(), XCB_PROP_MODE_REPLACE, window_, property, property, 8,
                      static_cast<std::uint32_t>(settings.size()), settings.data());
  driver_.Sync();
}

}  // namespace support
