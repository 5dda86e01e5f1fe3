#include "WexaUtils.h"

#include <dlfcn.h>
#include <sys/utsname.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string_view>
#include <utility>

#include "Event.h"
#include "platform/Font.h"
#include "platform/SystemColors.h"

using Wexa::Event;
using Wexa::PicaPoint;
using Wexa::SizePolicy;

// -- Scale factor
// ----------------------------------------------------------------------------------

namespace {

constexpr double kUnscaledDpi = 96.0;

}  // namespace

double WexaUtils::GetScaleFactor() {
  return std::max(1.0, GetScreenDpi() / kUnscaledDpi);
}

// -- Conversions
// -----------------------------------------------------------------------------------

namespace {

struct KeyStateFlag {
  unsigned int native;
  unsigned int flag;
};

constexpr KeyStateFlag kButtonFlags[] = {{0x0001, Event::LeftButton},
                                         {0x0002, Event::RightButton},
                                         {0x0010, Event::MiddleButton},
                                         {0x0020, Event::ExtraButton1},
                                         {0x0040, Event::ExtraButton2}};
constexpr KeyStateFlag kModifierFlags[] = {{0x0008, Event::ControlModifier},
                                           {0x0004, Event::ShiftModifier}};

// The order matters: names that contain others come first.
constexpr std::pair<std::wstring_view, SizePolicy::Policy> kPolicyNames[] = {
    {L"Fixed", SizePolicy::Fixed},         {L"MinimumExpanding", SizePolicy::MinimumExpanding},
    {L"Minimum", SizePolicy::Minimum},     {L"Maximum", SizePolicy::Maximum},
    {L"Preferred", SizePolicy::Preferred}, {L"Expanding", SizePolicy::Expanding},
    {L"Ignored", SizePolicy::Ignored}};

constexpr std::pair<std::wstring_view, WexaUtils::ImageTypes> kExtensions[] = {
    {L"bmp", WexaUtils::BMP},  {L"gif", WexaUtils::GIF}, {L"jpg", WexaUtils::JPG},
    {L"jpeg", WexaUtils::JPG}, {L"png", WexaUtils::PNG}, {L"ico", WexaUtils::ICO},
    {L"cur", WexaUtils::CUR}};

constexpr wchar_t LowerCase(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c;
}

}  // namespace

void WexaUtils::MapMouseKeys(unsigned int keyState, unsigned int& buttons,
                             unsigned int& modifiers) {
  for (const auto& [native, flag] : kButtonFlags) {
    if (keyState & native) buttons |= flag;
  }
  for (const auto& [native, flag] : kModifierFlags) {
    if (keyState & native) modifiers |= flag;
  }
}

int WexaUtils::ChBStateToMFCChBState(CheckBoxStates state) {
  return MFCChBStateToChBState(static_cast<int>(state));
}

WexaUtils::CheckBoxStates WexaUtils::MFCChBStateToChBState(int state) {
  const bool known = state >= Unchecked && state <= PartiallyChecked;
  return known ? static_cast<CheckBoxStates>(state) : Unchecked;
}

SizePolicy::Policy WexaUtils::PropertyToSizePolicy(const std::wstring& text) {
  for (const auto& [name, policy] : kPolicyNames) {
    if (text.find(name) != std::wstring::npos) return policy;
  }
  return SizePolicy::Fixed;
}

WexaUtils::ImageTypes WexaUtils::WstrToImageType(std::wstring extension) {
  if (extension.starts_with(L'.')) extension.erase(0, 1);
  std::ranges::transform(extension, extension.begin(), LowerCase);
  for (const auto& [name, type] : kExtensions) {
    if (extension == name) return type;
  }
  return Unknown;
}

std::string WexaUtils::ImageTypeToStr(ImageTypes type) {
  switch (type) {
    case GIF: return "GIF";
    case JPG: return "JPG";
    case PNG: return "PNG";
    case ICO: return "ICO";
    default: return "BMP";
  }
}

// -- Picas
// -----------------------------------------------------------------------------------------

namespace {

constexpr int kPointsPerPica = 12;

// A double as an integer, cut toward zero; the nearest one for values outside its range.
template <typename Integer>
Integer To(double value) {
  constexpr double kBeyond = -static_cast<double>(std::numeric_limits<Integer>::min());
  if (std::isnan(value)) return 0;
  if (value >= kBeyond) return std::numeric_limits<Integer>::max();
  return static_cast<Integer>(std::max(value, -kBeyond));
}

// Wraps around, so that no length overflows.
std::int64_t Sum(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

}  // namespace

PicaPoint WexaUtils::ConvertToPicaPoint(PicaPoint value) {
  const std::int64_t carry = To<std::int64_t>(value.point) / kPointsPerPica;
  if (carry < 1) return value;
  const double rest = std::fmod(value.point, kPointsPerPica);
  const bool positive = value.pica >= 0 && value.point >= 0;
  return {Sum(value.pica, positive ? carry : -carry), rest};
}

PicaPoint WexaUtils::DoubleToPica(double picas) {
  double whole = 0;
  const double fraction = std::modf(picas, &whole);
  return {To<std::int32_t>(whole), fraction * kPointsPerPica};
}

double WexaUtils::PicaToDouble(PicaPoint value) {
  const PicaPoint normal = ConvertToPicaPoint(value);
  const double length =
      std::abs(static_cast<double>(normal.pica)) + std::abs(normal.point) / kPointsPerPica;
  return normal.pica < 0 || normal.point < 0 ? -length : length;
}

// -- System
// ----------------------------------------------------------------------------------------

WexaUtils::OsInfo WexaUtils::GetOsInfo() {
  OsInfo info{1, 0, 0};
  utsname system{};
  if (uname(&system) == 0) std::sscanf(system.release, "%u.%u", &info.major, &info.minor);
  return info;
}

bool WexaUtils::IsSystemHighContrastMode() {
  return GetSystemScheme() == SystemScheme::HighContrast;
}

bool WexaUtils::IsRunInPlugin() {
  Dl_info module{};
  if (dladdr(reinterpret_cast<const void*>(&WexaUtils::IsRunInPlugin), &module) == 0) return false;
  std::error_code error;
  return !std::filesystem::equivalent(module.dli_fname, "/proc/self/exe", error) && !error;
}
