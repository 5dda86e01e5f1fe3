#include "Compose.h"

#include <cstdlib>

#include "Text.h"

namespace display::x11 {
namespace {

constexpr char kFallbackLocale[] = "en_US.UTF-8";

const char* Locale() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return value;
  }
  return kFallbackLocale;
}

xkb_compose_table* LoadTable(xkb_context* context) {
  constexpr auto kFlags = XKB_COMPOSE_COMPILE_NO_FLAGS;
  auto* table = xkb_compose_table_new_from_locale(context, Locale(), kFlags);
  return table ? table : xkb_compose_table_new_from_locale(context, kFallbackLocale, kFlags);
}

std::u32string ComposedText(xkb_compose_state* state) {
  char bytes[64];
  const int length = xkb_compose_state_get_utf8(state, bytes, sizeof bytes);
  return length > 0 && length < static_cast<int>(sizeof bytes) ? FromUtf8(bytes) : std::u32string();
}

}  // namespace

Compose::~Compose() {
  xkb_compose_state_unref(state_);
}

void Compose::Load(xkb_context* context) {
  loaded_ = true;
  xkb_compose_table* table = LoadTable(context);
  if (!table) return;
  state_ = xkb_compose_state_new(table, XKB_COMPOSE_STATE_NO_FLAGS);
  xkb_compose_table_unref(table);
}

std::optional<std::u32string> Compose::Feed(xkb_context* context, xkb_keysym_t symbol) {
  if (!loaded_) Load(context);
  if (!state_ || xkb_compose_state_feed(state_, symbol) == XKB_COMPOSE_FEED_IGNORED) {
    return std::nullopt;
  }
  switch (xkb_compose_state_get_status(state_)) {
    case XKB_COMPOSE_NOTHING: return std::nullopt;
    case XKB_COMPOSE_COMPOSED: return ComposedText(state_);
    default: return std::u32string();
  }
}

void Compose::Reset() {
  if (state_) xkb_compose_state_reset(state_);
}

}  // namespace display::x11
