// Windows from elsewhere as pages of a dialog.

#include "MFC/DialogImplMFC.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

class EmbeddedPagesTest : public DialogTest {
 protected:
  EmbeddedPagesTest() { Open(ColumnForm("", 300, 200)); }

  std::unique_ptr<Dialog> OpenAnother() {
    auto page = Make(ColumnForm(WidgetXml("QLineEdit", "edit"), 100, 50));
    page->DoModeless(true);
    return page;
  }
  // In the dialog's client area.
  Rect PlaceOfPage(const Dialog& page) {
    CRect place;
    ::GetWindowRect(page.GetHandle(), &place);
    MapWindowPoints(nullptr, dialog_->GetHandle(), reinterpret_cast<POINT*>(&place), 2);
    return Rect(place);
  }
  Rect Client() { return dialog_->GetClientRect(); }
};

TEST_F(EmbeddedPagesTest, FillTheDialogAndShowOneAtATime) {
  const auto first = OpenAnother();
  const auto second = OpenAnother();
  EXPECT_TRUE(dialog_->CreateTabWindow(first->GetWndPtr(), true));
  EXPECT_TRUE(dialog_->CreateTabWindowEx(second.get(), true));
  EXPECT_FALSE(first->IsVisible());
  EXPECT_TRUE(second->IsVisible());
  EXPECT_EQ(PlaceOfPage(*second), Client());

  dialog_->GetImpl()->ResizeClient(500, 400);
  EXPECT_EQ(PlaceOfPage(*first), Client());
  EXPECT_EQ(PlaceOfPage(*second), Client());
  EXPECT_TRUE(dialog_->CreateTabWindowEx(first.get(), true)) << "back to the front";
  EXPECT_TRUE(first->IsVisible());
  EXPECT_FALSE(second->IsVisible());

  auto edit = first->GetElementByName(L"edit");
  first->SetFocusToCtrl(edit.get());
  robot_.Type(L"page");
  EXPECT_EQ(GetWindowTextString(edit->GetPlatformHandle()), L"page");
}

TEST_F(EmbeddedPagesTest, WhatCannotBeAPageIsRefused) {
  EXPECT_FALSE(dialog_->CreateTabWindow(nullptr, true));
  EXPECT_FALSE(dialog_->CreateTabWindowEx(nullptr, true));
  EXPECT_FALSE(dialog_->CreateTabWindow(dialog_->GetWndPtr(), true)) << "itself";
  const auto page = OpenAnother();
  EXPECT_TRUE(dialog_->CreateTabWindowEx(page.get(), true));
  EXPECT_FALSE(page->CreateTabWindowEx(dialog_.get(), true)) << "what holds it";
  page->Done(Dialog::Accepted);
  EXPECT_FALSE(dialog_->CreateTabWindowEx(page.get(), true)) << "gone";
  dialog_->GetImpl()->ResizeClient(400, 300);
}

}  // namespace
}  // namespace Wexa
