#include "SettingsData.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace display::x11 {
namespace {

enum Type { kNumber, kText, kColor };

// Reads from the front. Beyond the end everything is 0 and empty, and HasFailed tells.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  bool HasFailed() const { return failed_; }
  void SetOrder(std::endian order) { swapped_ = order != std::endian::native; }

  std::string_view Take(std::size_t length) {
    if (length > rest_.size()) failed_ = true;
    if (failed_) return {};
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return taken;
  }

  // Texts are followed by padding to words.
  std::string TakeText(std::size_t length) {
    std::string text(Take(length));
    Take((4 - length % 4) % 4);
    return text;
  }

  template <typename Number>
  Number TakeNumber() {
    char bytes[sizeof(Number)] = {};
    std::ranges::copy(Take(sizeof bytes), bytes);
    if (swapped_) std::ranges::reverse(bytes);
    return std::bit_cast<Number>(bytes);
  }

 private:
  std::string_view rest_;
  bool swapped_ = false;
  bool failed_ = false;
};

// False for an unknown type.
bool ReadSetting(Reader& reader, Settings& settings) {
  constexpr std::size_t kSerial = 4, kColorBytes = 8;
  const auto type = reader.TakeNumber<std::uint8_t>();
  reader.Take(1);
  const std::string name = reader.TakeText(reader.TakeNumber<std::uint16_t>());
  reader.Take(kSerial);
  switch (type) {
    case kNumber: settings.numbers[name] = reader.TakeNumber<std::int32_t>(); return true;
    case kText:
      settings.texts[name] = reader.TakeText(reader.TakeNumber<std::uint32_t>());
      return true;
    case kColor: reader.Take(kColorBytes); return true;
    default: return false;
  }
}

}  // namespace

std::optional<Settings> ReadSettings(std::string_view bytes) {
  constexpr std::size_t kUnused = 3, kSerial = 4;
  Reader reader(bytes);
  const auto order = reader.TakeNumber<std::uint8_t>();
  if (order > 1) return std::nullopt;
  reader.SetOrder(order == 0 ? std::endian::little : std::endian::big);
  reader.Take(kUnused + kSerial);
  Settings settings;
  for (auto count = reader.TakeNumber<std::uint32_t>(); count > 0; --count) {
    if (reader.HasFailed() || !ReadSetting(reader, settings)) return std::nullopt;
  }
  return reader.HasFailed() ? std::nullopt : std::optional(std::move(settings));
}

}  // namespace display::x11
