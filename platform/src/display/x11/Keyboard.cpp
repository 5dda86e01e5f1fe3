#include "Keyboard.h"

#include <xkbcommon/xkbcommon-x11.h>

#include "Connection.h"
#include "KeyCodes.h"
#include "XkbProtocol.h"

namespace display::x11 {
namespace {

// A key event's bits: eight modifiers, five buttons, then the layout in use.
constexpr std::uint16_t kModifiers = 0xFF;
constexpr int kLayoutShift = 13;
constexpr std::uint16_t kLayoutMask = 3;

// Control and a key give a control character for letters and a few signs, else nothing.
std::u32string ControlText(char32_t character, int virtualKey) {
  if (virtualKey >= 'A' && virtualKey <= 'Z') return {static_cast<char32_t>(virtualKey & 0x1F)};
  switch (character) {
    case U'[':
    case U'\\':
    case U']': return {character & 0x1F};
    case U'\r': return U"\n";
    case U'\b': return U"\x7F";
    case U' ':
    case U'\x1B': return {character};
    default: return {};
  }
}

// Keys that act and write nothing, though their symbols have a character.
bool IsSilent(xkb_keysym_t symbol) {
  return symbol == XKB_KEY_Delete || symbol == XKB_KEY_Clear || symbol == XKB_KEY_Linefeed;
}

}  // namespace

Keyboard::Keyboard(Connection& connection) : connection_(connection) {
  const auto* extension = xcb_get_extension_data(connection.Get(), &xcb_xkb_id);
  if (!extension || !extension->present) return;
  firstEvent_ = extension->first_event;
  Announce();
}

Keyboard::~Keyboard() {
  ForgetLayout();
  xkb_context_unref(context_);
}

// Nothing here waits for an answer: the layout then comes with each key's bits, held keys repeat
// without being released, and changes of the keyboard are told.
void Keyboard::Announce() {
  constexpr std::uint16_t kKeyboard = XCB_XKB_ID_USE_CORE_KBD;
  constexpr std::uint16_t kEvents =
      XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
  constexpr std::uint16_t kAllParts = 0xFF;
  constexpr std::uint32_t kRepeats = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  xcb_connection_t* c = connection_.Get();
  xcb_discard_reply(c, xcb_xkb_use_extension(c, 1, 0).sequence);
  xcb_discard_reply(c,
                    xcb_xkb_per_client_flags(c, kKeyboard, kRepeats, kRepeats, 0, 0, 0).sequence);
  xcb_xkb_select_events(c, kKeyboard, kEvents, 0, kEvents, kAllParts, kAllParts, nullptr);
}

void Keyboard::LoadLayout() {
  if (!context_) context_ = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
  xcb_connection_t* c = connection_.Get();
  if (firstEvent_) {
    layout_ = xkb_x11_keymap_new_from_device(context_, c, xkb_x11_get_core_keyboard_device_id(c),
                                             XKB_KEYMAP_COMPILE_NO_FLAGS);
  }
  if (!layout_) layout_ = xkb_keymap_new_from_names(context_, nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS);
  if (layout_) state_ = xkb_state_new(layout_);
}

void Keyboard::ForgetLayout() {
  xkb_state_unref(state_);
  xkb_keymap_unref(layout_);
  state_ = nullptr;
  layout_ = nullptr;
}

bool Keyboard::Handle(const xcb_generic_event_t& event) {
  if (!firstEvent_ || (event.response_type & 0x7F) != firstEvent_) return false;
  ForgetLayout();
  return true;
}

std::optional<Input> Keyboard::Press(const xcb_key_press_event_t& event) {
  auto input = Translate(event);
  const bool repeated = pressed_[event.detail];
  pressed_.set(event.detail);
  if (!input) return input;
  input->kind = Input::Kind::KeyDown;
  input->repeated = repeated;
  input->text = TextOf(xkb_state_key_get_one_sym(state_, event.detail), input->virtualKey);
  return input;
}

std::optional<Input> Keyboard::Release(const xcb_key_release_event_t& event) {
  auto input = Translate(event);
  pressed_.reset(event.detail);
  if (input) input->kind = Input::Kind::KeyUp;
  return input;
}

// One bit a key, from the second byte of all keys on: the first is of keys that do not exist.
void Keyboard::TakeHeld(const xcb_keymap_notify_event_t& event) {
  constexpr std::size_t kFirst = 8;
  for (std::size_t i = 0; i < std::size(event.keys) * 8; ++i) {
    pressed_.set(kFirst + i, event.keys[i / 8] >> (i % 8) & 1);
  }
}

std::optional<Input> Keyboard::Translate(const xcb_key_press_event_t& event) {
  if (!state_) LoadLayout();
  if (!state_) return std::nullopt;
  xkb_state_update_mask(state_, event.state & kModifiers, 0, 0, 0, 0,
                        (event.state >> kLayoutShift) & kLayoutMask);
  const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state_, event.detail);
  if (IsLevelShift(symbol) && symbol != XKB_KEY_ISO_Left_Tab) return std::nullopt;
  const KeyPlace place = PlaceOf(event.detail);
  Input input{};
  input.virtualKey = VirtualKeyOf(BaseSymbol(event.detail), symbol, event.detail);
  input.scanCode = place.scanCode;
  input.extendedKey = place.extended;
  return input;
}

xkb_keysym_t Keyboard::BaseSymbol(xcb_keycode_t code) const {
  const xkb_layout_index_t layout = xkb_state_key_get_layout(state_, code);
  const xkb_keysym_t* symbols = nullptr;
  const int count = xkb_keymap_key_get_syms_by_level(layout_, code, layout, 0, &symbols);
  return count == 1 ? symbols[0] : static_cast<xkb_keysym_t>(XKB_KEY_NoSymbol);
}

std::u32string Keyboard::TextOf(xkb_keysym_t symbol, int virtualKey) {
  if (auto composed = compose_.Feed(context_, symbol)) return *composed;
  if (IsSilent(symbol)) return {};
  if (symbol == XKB_KEY_ISO_Left_Tab) return U"\t";
  const char32_t character = xkb_keysym_to_utf32(symbol);
  if (xkb_state_mod_name_is_active(state_, XKB_MOD_NAME_CTRL, XKB_STATE_MODS_EFFECTIVE) == 1) {
    return ControlText(character, virtualKey);
  }
  return character ? std::u32string{character} : std::u32string();
}

}  // namespace display::x11
