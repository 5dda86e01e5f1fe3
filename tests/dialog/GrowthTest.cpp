// Dialogs that come and go leave nothing behind.

#include <algorithm>
#include <cstdint>

#include "dialog/DialogTest.h"
#include "platform/Font.h"

namespace Wexa {
namespace {

constexpr std::size_t kBatch = 300;

std::uintptr_t SlotOf(const void* handle) {
  constexpr std::uintptr_t kSlotBits = 0xFFFFFF;
  return reinterpret_cast<std::uintptr_t>(handle) & kSlotBits;
}

// How many handles are in use, up to a constant: a batch larger than the free slots ends where the
// used ones and the batch itself end.
template <typename Make, typename Drop>
std::uintptr_t HandlesInUse(Make make, Drop drop) {
  std::vector<decltype(make())> batch;
  std::uintptr_t highest = 0;
  for (std::size_t i = 0; i < kBatch; ++i) {
    batch.push_back(make());
    highest = std::max(highest, SlotOf(batch.back()));
  }
  for (auto handle : batch) drop(handle);
  return highest;
}

std::uintptr_t WindowsInUse() {
  return HandlesInUse(
      [] {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr);
      },
      [](HWND window) { DestroyWindow(window); });
}

std::uintptr_t FontsInUse() {
  return HandlesInUse(
      [] {
        const LOGFONTW description{};
        return CreateFontIndirectW(&description);
      },
      [](HFONT font) { DeleteFont(font); });
}

std::string MixedForm() {
  constexpr const char* kClasses[] = {"QLineEdit",      "QPushButton", "QCheckBox", "QSpinBox",
                                      "QComboBox",      "QTreeView",   "QSlider",   "QDateEdit",
                                      "QPlainTextEdit", "QLabel",      "QTabWidget"};
  std::string items;
  for (const char* name : kClasses) items += ItemXml(WidgetXml(name, name));
  return ColumnForm(items);
}

using GrowthTest = DialogTest;

TEST_F(GrowthTest, FiveHundredDialogsLeaveNoWindowsAndNoFonts) {
  const std::wstring file = FileOf(MixedForm());
  const auto openAndClose = [&] {
    Dialog dialog(file, nullptr, 0, 1.0);
    FontData bold;
    bold.bold = 1;
    static_cast<Button&>(*dialog.GetElementByName(L"QPushButton")).SetFont(bold);
    dialog.DoModeless(true);
    Robot::PumpAll();
  };
  openAndClose();
  const auto windows = WindowsInUse();
  const auto fonts = FontsInUse();
  for (int i = 0; i < 500; ++i) openAndClose();
  EXPECT_EQ(WindowsInUse(), windows);
  EXPECT_EQ(FontsInUse(), fonts);
  EXPECT_TRUE(GetTopLevelWindows().empty());
}

}  // namespace
}  // namespace Wexa
