// Dialogs that come and go leave nothing behind.

#include <malloc.h>

#include <algorithm>
#include <cstdint>

#include "platform/Bitmap.h"
#include "platform/Font.h"
#include "support/DialogTest.h"

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

std::uintptr_t BitmapsInUse() {
  return HandlesInUse([] { return CreateBitmap(1, 1, 32); },
                      [](HBITMAP bitmap) { DeleteBitmap(bitmap); });
}

struct InUse {
  std::uintptr_t windows = WindowsInUse();
  std::uintptr_t fonts = FontsInUse();
  std::uintptr_t bitmaps = BitmapsInUse();
  std::size_t heap = mallinfo2().uordblks;
};

std::string FormOf(std::initializer_list<const char*> classes) {
  std::string items;
  for (const char* name : classes) items += WidgetItem(name, name);
  return ColumnForm(items);
}

class GrowthTest : public DialogTest {
 protected:
  void OpenAndClose(const std::wstring& file) {
    Dialog dialog(file, nullptr, 0, 1.0);
    FontData bold;
    bold.bold = 1;
    static_cast<Button&>(*dialog.GetElementByName(L"QPushButton")).SetFont(bold);
    dialog.DoModeless(true);
    Robot::PumpAll();
  }

  void ExpectNoGrowth(const std::wstring& file, int dialogs) {
    constexpr int kWarmUp = 20;
    constexpr std::size_t kSlack = 64 * 1024;  // for what is kept once
    for (int i = 0; i < kWarmUp; ++i) OpenAndClose(file);
    const InUse before;
    for (int i = 0; i < dialogs; ++i) OpenAndClose(file);
    const InUse after;
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.fonts, before.fonts);
    EXPECT_EQ(after.bitmaps, before.bitmaps);
    EXPECT_LE(after.heap, before.heap + kSlack);
    EXPECT_TRUE(GetTopLevelWindows().empty());
  }
};

TEST_F(GrowthTest, TenThousandDialogsLeaveNothing) {
  ExpectNoGrowth(FileOf(FormOf({"QLineEdit", "QPushButton", "QLabel"})), 10000);
}

TEST_F(GrowthTest, DialogsOfAllWidgetsLeaveNothing) {
  ExpectNoGrowth(
      FileOf(FormOf({"QLineEdit", "QPushButton", "QCheckBox", "QSpinBox", "QComboBox", "QTreeView",
                     "QSlider", "QDateEdit", "QPlainTextEdit", "QLabel", "QTabWidget"})),
      200);
}

}  // namespace
}  // namespace Wexa
