// The forms of published applications as dialogs: what a person would complain about.

#include "MFC/forms/RealForms.h"

#include <algorithm>

#include "CheckBox.h"
#include "Label.h"
#include "MFC/DialogImplMFC.h"
#include "RadioButton.h"
#include "Utf8.h"
#include "WexaConfig.h"
#include "layout/Layout.h"
#include "platform/Font.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

using GuiType = BaseGUIObject::GuiType;

class RealFormsTest : public DialogTest {
 protected:
  void TearDown() override {
    DialogTest::TearDown();
    SetLayoutRTL(false);
  }

  // Each form, opened and painted.
  template <typename Check>
  void ForEachForm(Check check) {
    for (const std::string& path : RealForms()) {
      SCOPED_TRACE(path);
      OpenFile(path);
      check();
    }
  }

  void OpenFile(const std::string& path) {
    dialog_.reset();
    dialog_ = std::make_unique<Dialog>(*WidenUtf8(path), nullptr, 0, 1.0);
    dialog_->DoModeless(true);
    Robot::PumpAll();
  }

  Dialog::impl& Impl() { return *dialog_->GetImpl(); }

  std::string NameOf(HWND window) {
    for (const auto& element : Impl().Elements())
      if (element.widget->GetPlatformHandle() == window) return NarrowUtf8(element.name);
    return "(no element)";
  }

  static std::vector<HWND> VisibleChildren(HWND parent) {
    std::vector<HWND> children;
    for (HWND w = GetWindow(parent, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT))
      if (IsWindowVisible(w)) children.push_back(w);
    return children;
  }

  static CRect ScreenRect(HWND window) {
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
  }

  template <typename Check>
  void ForEachParent(HWND parent, Check check) {
    const auto children = VisibleChildren(parent);
    check(parent, children);
    for (HWND child : children) ForEachParent(child, check);
  }

  // Whether a layout places the children; without one they are where the form puts them.
  bool IsLaidOut(HWND parent) {
    if (parent == dialog_->GetHandle()) return Impl().Links().layout != nullptr;
    for (const auto& element : Impl().Elements())
      if (element.widget->GetPlatformHandle() == parent)
        return ImplOf(element.widget.get())->Links().layout != nullptr;
    return false;
  }

  // Whether the form itself limits the parent, perhaps to less than what is in it needs.
  bool IsLimited(HWND parent) {
    if (parent == dialog_->GetHandle()) return Impl().Links().explicitMaximum.width;
    for (const auto& element : Impl().Elements()) {
      const auto& links = ImplOf(element.widget.get())->Links();
      if (element.widget->GetPlatformHandle() == parent)
        return links.explicitMaximum.width || links.explicitMaximum.height;
    }
    return false;
  }

  bool IsScrollArea(HWND window) {
    for (const auto& element : Impl().Elements())
      if (element.widget->GetPlatformHandle() == window)
        return element.widget->Type() == GuiType::ScrollArea;
    return false;
  }

  // Looks at one pixel of each little square.
  bool ShowsSomething() {
    constexpr int kStep = 5;
    const Size size = dialog_->GetClientRect().GetSize();
    const auto background = Robot::PixelAt(dialog_->GetHandle(), 0, 0);
    for (int y = 0; y < size.Height(); y += kStep)
      for (int x = 0; x < size.Width(); x += kStep)
        if (Robot::PixelAt(dialog_->GetHandle(), x, y) != background) return true;
    return false;
  }

  bool IsWholeSize() {
    Layout* layout = Impl().Links().layout;
    const Size client = dialog_->GetClientRect().GetSize();
    return layout && client.GetInflated(layout->TotalSizeHint()) == client;
  }

  std::vector<Rect> Places() {
    std::vector<Rect> places;
    for (const auto& element : Impl().Elements()) {
      const Rect place = element.widget->GetWindowRect();
      const Point corner = dialog_->ScreenToClient(Point(place.Left(), place.Top()));
      places.emplace_back(corner.x, corner.y, place.Width(), place.Height());
    }
    return places;
  }

  void ExpectPlaces(const std::vector<Rect>& expected) {
    const auto places = Places();
    ASSERT_EQ(places.size(), expected.size());
    for (std::size_t i = 0; i < places.size(); ++i)
      EXPECT_EQ(places[i], expected[i]) << NarrowUtf8(Impl().Elements()[i].name);
  }

  void ResizeClient(Size size) {
    Impl().ResizeClient(size.Width(), size.Height());
    Robot::PumpAll();
  }
};

TEST_F(RealFormsTest, OpenAndShowSomething) {
  ForEachForm([&] {
    const bool hasContent =
        std::ranges::any_of(Impl().Elements(), [](const Dialog::impl::Element& element) {
          const auto type = element.widget->Type();
          const bool isPlain = type == GuiType::ChildDialog || type == GuiType::StackedDialog;
          return !isPlain && IsWindowVisible(element.widget->GetPlatformHandle());
        });
    EXPECT_TRUE(!hasContent || ShowsSomething());
  });
}

TEST_F(RealFormsTest, NothingOverlapsWhatStandsBesideIt) {
  ForEachForm([&] {
    ForEachParent(dialog_->GetHandle(), [&](HWND parent, const std::vector<HWND>& children) {
      if (!IsLaidOut(parent)) return;
      for (std::size_t i = 0; i < children.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
          const CRect common = ScreenRect(children[i]).Intersected(ScreenRect(children[j]));
          EXPECT_TRUE(common.IsEmpty()) << NameOf(children[i]) << " and " << NameOf(children[j]);
        }
    });
  });
}

TEST_F(RealFormsTest, EverythingLiesWithinItsParent) {
  ForEachForm([&] {
    ForEachParent(dialog_->GetHandle(), [&](HWND parent, const std::vector<HWND>& children) {
      if (IsScrollArea(parent) || IsLimited(parent) || !IsLaidOut(parent)) return;
      for (HWND child : children) {
        const CRect around = ScreenRect(parent);
        EXPECT_TRUE(around.Contains(static_cast<const RECT&>(ScreenRect(child))))
            << NameOf(child) << " " << Rect(ScreenRect(child)) << " in " << Rect(around);
      }
    });
  });
}

TEST_F(RealFormsTest, LabelsShowTheirWholeText) {
  ForEachForm([&] {
    for (const auto& element : Impl().Elements()) {
      BaseGUIObject& widget = *element.widget;
      if (widget.Type() != GuiType::Label || !IsWindowVisible(widget.GetPlatformHandle())) continue;
      const Size most = widget.MaximumSize();
      const Size ideal = widget.IdealSize().GetDeflated(most);
      const Size size = widget.GetClientRect().GetSize();
      auto& impl = *ImplOf(&widget);
      if (impl.HasHeightForWidth()) {
        EXPECT_GE(size.Height(), std::min(impl.HeightForWidth(size.Width()), most.Height()))
            << NarrowUtf8(element.name);
      } else if (!impl.Links().explicitMinimum.width) {
        EXPECT_GE(size.Width(), ideal.Width()) << NarrowUtf8(element.name);
        EXPECT_GE(size.Height(), ideal.Height()) << NarrowUtf8(element.name);
      }
    }
  });
}

TEST_F(RealFormsTest, ButtonsHaveTheirIdealSizeWhereTheDialogHas) {
  ForEachForm([&] {
    if (!IsWholeSize()) return;
    for (const auto& element : Impl().Elements()) {
      BaseGUIObject& widget = *element.widget;
      const auto type = widget.Type();
      if (type != GuiType::Button && type != GuiType::CheckBox && type != GuiType::RadioButton)
        continue;
      if (!IsWindowVisible(widget.GetPlatformHandle())) continue;
      const Size ideal = widget.IdealSize().GetDeflated(widget.MaximumSize());
      const Size size = widget.GetWindowRect().GetSize();
      EXPECT_EQ(size.GetInflated(ideal), size) << NarrowUtf8(element.name);
    }
  });
}

TEST_F(RealFormsTest, TheSameSizeGivesTheSamePlaces) {
  ForEachForm([&] {
    const Size size = dialog_->GetClientRect().GetSize();
    const auto places = Places();
    ResizeClient({size.Width() + 157, size.Height() + 91});
    const auto bigger = Places();
    ResizeClient({1, 1});
    ResizeClient({size.Width() + 157, size.Height() + 91});
    ExpectPlaces(bigger);
    ResizeClient(size);
    EXPECT_EQ(dialog_->GetClientRect().GetSize(), size);
    ExpectPlaces(places);
  });
}

TEST_F(RealFormsTest, ShownAgainTheyAreTheSame) {
  ForEachForm([&] {
    const Rect window = dialog_->GetWindowRect();
    const auto places = Places();
    dialog_->Done(Dialog::Rejected);
    dialog_->DoModeless(true);
    Robot::PumpAll();
    EXPECT_EQ(dialog_->GetWindowRect(), window);
    ExpectPlaces(places);
  });
}

// Counted from the edge on which lines begin: mirrored, the first pixel is the last on the screen.
std::vector<CRect> PlacesOnScreen(Dialog& dialog, bool fromRight) {
  POINT corner{0, 0};
  ::ClientToScreen(dialog.GetHandle(), &corner);
  std::vector<CRect> places;
  for (const auto& element : dialog.GetImpl()->Elements()) {
    CRect place;
    ::GetWindowRect(element.widget->GetPlatformHandle(), &place);
    const LONG left = fromRight ? corner.x + 1 - place.right : place.left - corner.x;
    places.emplace_back(left, place.top - corner.y, left + place.Width(), place.bottom - corner.y);
  }
  return places;
}

TEST_F(RealFormsTest, FromRightToLeftTheyAreMirrored) {
  for (const std::string& path : RealForms()) {
    SCOPED_TRACE(path);
    SetLayoutRTL(false);
    OpenFile(path);
    const auto places = PlacesOnScreen(*dialog_, false);
    SetLayoutRTL(true);
    OpenFile(path);
    const auto mirrored = PlacesOnScreen(*dialog_, true);
    ASSERT_EQ(mirrored.size(), places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
      EXPECT_EQ(Rect(mirrored[i]), Rect(places[i])) << NarrowUtf8(Impl().Elements()[i].name);
  }
}

}  // namespace
}  // namespace Wexa
