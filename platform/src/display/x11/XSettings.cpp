#include "XSettings.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <vector>

#include "Connection.h"

namespace display::x11 {
namespace {

// The words of a name, in small letters.
std::vector<std::string> WordsOf(const std::string& name) {
  std::vector<std::string> words(1);
  for (const char letter : name) {
    const auto c = static_cast<unsigned char>(letter);
    if (std::isalpha(c)) {
      words.back().push_back(static_cast<char>(std::tolower(c)));
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

SystemScheme SchemeOf(const std::string& theme) {
  const auto words = WordsOf(theme);
  const std::string all = std::accumulate(words.begin(), words.end(), std::string());
  const auto has = [&all](const char* part) { return all.find(part) != std::string::npos; };
  if (has("highcontrast") || has("contrasthigh")) return SystemScheme::HighContrast;
  return std::ranges::count(words, "dark") ? SystemScheme::Dark : SystemScheme::Light;
}

}  // namespace

SystemScheme XSettings::Scheme() {
  const auto& texts = Get().texts;
  const auto theme = texts.find("Net/ThemeName");
  return theme == texts.end() ? SystemScheme::Light : SchemeOf(theme->second);
}

std::optional<std::uint32_t> XSettings::DoubleClickTime() {
  const auto& numbers = Get().numbers;
  const auto time = numbers.find("Net/DoubleClickTime");
  if (time == numbers.end() || time->second <= 0) return std::nullopt;
  return static_cast<std::uint32_t>(time->second);
}

bool XSettings::ManagerCame(const xcb_client_message_event_t& message) {
  if (!settings_ || message.type != connection_[Atom::Manager] ||
      message.data.data32[1] != connection_[Atom::XSettingsFirstScreen]) {
    return false;
  }
  FindManager();
  return ReadAnew();
}

bool XSettings::PropertyChanged(const xcb_property_notify_event_t& event) {
  return event.window == manager_ && event.atom == connection_[Atom::XSettingsSettings] &&
         ReadAnew();
}

bool XSettings::ReadAnew() {
  const SystemScheme before = Scheme();
  Read();
  return Scheme() != before;
}

const Settings& XSettings::Get() {
  if (!settings_) {
    settings_.emplace();
    FindManager();
    Read();
  }
  return *settings_;
}

// The manager owns a selection.
void XSettings::FindManager() {
  xcb_connection_t* c = connection_.Get();
  const auto cookie = xcb_get_selection_owner(c, connection_[Atom::XSettingsFirstScreen]);
  const auto reply = Own(xcb_get_selection_owner_reply(c, cookie, nullptr));
  manager_ = reply ? reply->owner : 0;
  if (!manager_) return;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(c, manager_, XCB_CW_EVENT_MASK, &events);
}

void XSettings::Read() {
  if (!manager_) return;
  const xcb_atom_t property = connection_[Atom::XSettingsSettings];
  if (auto settings = ReadSettings(connection_.ReadProperty(manager_, property))) {
    settings_ = std::move(settings);
  }
}

}  // namespace display::x11
