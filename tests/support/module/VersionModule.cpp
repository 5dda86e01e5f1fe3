// A module that tells its version.

#include <cstdint>

namespace {

struct VersionRecord {
  std::uint32_t size;
  std::uint32_t major;
  std::uint32_t minor;
  std::uint32_t build;
  std::uint32_t platform;
};

}  // namespace

extern "C" __attribute__((visibility("default"))) std::int32_t DllGetVersion(
    VersionRecord* record) {
  if (record->size != 20) return -1;
  record->major = 6;
  record->minor = 10;
  return 0;
}
