// Dialogs that come and go leave nothing behind.

#include <malloc.h>

#include <algorithm>
#include <cstdint>

#include "platform/Bitmap.h"
#include "platform/Font.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

// How many handles are in use, up to a constant: a batch larger than the free slots ends where the
// used ones and the batch itself end.
template <typename Make, typename Drop>
std::uintptr_t HandlesInUse(Make make, Drop drop) {
  constexpr std::size_t kBatch = 300;
  constexpr std::uintptr_t kSlotBits = 0xFFFFFF;
  std::vector<decltype(make())> batch;
  std::uintptr_t highest = 0;
  for (std::size_t i = 0; i < kBatch; ++i) {
    batch.push_back(make());
    highest = std::max(highest, reinterpret_cast<std::uintptr_t>(batch.back()) & kSlotBits);
  }
  for (auto handle : batch) drop(handle);
  return highest;
}

struct InUse {
  std::uintptr_t windows = HandlesInUse(
      [] { return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, {}, {}, {}); },
      [](HWND window) { DestroyWindow(window); });
  std::uintptr_t fonts = HandlesInUse(
      [] {
        const LOGFONTW description{};
        return CreateFontIndirectW(&description);
      },
      [](HFONT font) { DeleteFont(font); });
  std::uintptr_t bitmaps = HandlesInUse([] { return CreateBitmap(1, 1, 32); },
                                        [](HBITMAP bitmap) { DeleteBitmap(bitmap); });
  std::size_t heap = mallinfo2().uordblks;
};

using GrowthTest = DialogTest;

TEST_F(GrowthTest, DialogsOfAllWidgetsLeaveNothing) {
  std::string items;
  for (const char* name :
       {"QLineEdit", "QPushButton", "QCheckBox", "QSpinBox", "QComboBox", "QTreeView", "QSlider",
        "QDateEdit", "QPlainTextEdit", "QLabel", "QTabWidget"})
    items += WidgetItem(name, name);
  const std::wstring file = FileOf(ColumnForm(items));
  const auto openAndClose = [&](int dialogs) {
    for (int i = 0; i < dialogs; ++i) {
      Dialog dialog(file, nullptr, 0, 1.0);
      FontData bold;
      bold.bold = 1;
      static_cast<Button&>(*dialog.GetElementByName(L"QPushButton")).SetFont(bold);
      dialog.DoModeless(true);
      Robot::PumpAll();
    }
  };
  constexpr std::size_t kSlack = 16 * 1024;  // for what is kept once
  openAndClose(20);
  const InUse before;
  openAndClose(500);
  const InUse after;
  EXPECT_EQ(after.windows, before.windows);
  EXPECT_EQ(after.fonts, before.fonts);
  EXPECT_EQ(after.bitmaps, before.bitmaps);
  EXPECT_LE(after.heap, before.heap + kSlack);
  EXPECT_TRUE(GetTopLevelWindows().empty());
}

}  // namespace
}  // namespace Wexa
