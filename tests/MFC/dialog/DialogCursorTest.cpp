// A cursor of the dialog's own.

#include <fstream>

#include "support/DialogTest.h"
#include "support/PictureFiles.h"
#include "window/WindowObject.h"

namespace Wexa {
namespace {

class DialogCursorTest : public DialogTest {
 protected:
  DialogCursorTest() { Open(ColumnForm(WidgetXml("QLabel", "label"))); }

  const std::optional<display::CursorPicture>& ShownPicture() {
    robot_.MoveTo({0, 0});
    const Rect client = dialog_->GetClientRect();
    const Point place = dialog_->ClientToScreen({client.Right() - 3, client.Bottom() - 3});
    robot_.MoveTo({place.x, place.y});
    return Robot::Screen().CursorPictureOf(core::Find(dialog_->GetHandle())->top->surfaceId);
  }
};

TEST_F(DialogCursorTest, IsShownOverTheDialog) {
  const auto bytes = pictures::BmpFile(8, 6, pictures::Always(0x336699));
  const auto size = static_cast<int>(bytes.size());
  dialog_->SetCursorType(WexaUtils::Custom);
  EXPECT_FALSE(ShownPicture()) << "the arrow until there is one";
  ASSERT_TRUE(dialog_->LoadCustomCursor(bytes.data(), size, 2, 100, WexaUtils::PNG));
  const auto shown = ShownPicture();
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->size.cx, 8);
  EXPECT_EQ(shown->hotSpot.x, 2);
  EXPECT_EQ(shown->hotSpot.y, 5) << "moved into the picture";
  EXPECT_EQ(shown->pixels, std::vector<std::uint32_t>(48, 0xFF336699));

  dialog_->SetCursorType(WexaUtils::Hand);
  EXPECT_FALSE(ShownPicture());
}

TEST_F(DialogCursorTest, BadPicturesLeaveTheFormerOne) {
  const auto bytes = pictures::BmpFile(4, 4, pictures::Always(0));
  const auto size = static_cast<int>(bytes.size());
  const std::string path = testing::TempDir() + "wexa-cursor.bmp";
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(size));
  dialog_->SetCursorType(WexaUtils::Custom);
  EXPECT_TRUE(dialog_->LoadCustomCursor(std::wstring(path.begin(), path.end()), 0, 0));
  std::remove(path.c_str());

  EXPECT_FALSE(dialog_->LoadCustomCursor(L"no such file", 0, 0));
  EXPECT_FALSE(dialog_->LoadCustomCursor(bytes.data(), size, 0, 0, WexaUtils::CUR));
  EXPECT_FALSE(dialog_->LoadCustomCursor(bytes.data(), 0, 0, 0, WexaUtils::PNG));
  EXPECT_FALSE(dialog_->LoadCustomCursor(nullptr, size, 0, 0, WexaUtils::PNG));
  EXPECT_FALSE(dialog_->LoadCustomCursor(bytes.data(), size / 2, 0, 0, WexaUtils::PNG));
  EXPECT_TRUE(ShownPicture());
}

}  // namespace
}  // namespace Wexa
