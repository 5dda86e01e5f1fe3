// Every form, read, opened, resized, shown again, mirrored, in two resolutions: what who wrote the
// file and a person before the dialog would complain about.

#include <algorithm>
#include <array>

#include "Encrypter.h"
#include "MFC/DialogImplMFC.h"
#include "Utf8.h"
#include "WexaConfig.h"
#include "XmlDocument.h"
#include "data/TestData.h"
#include "form/FormParser.h"
#include "form/FormText.h"
#include "layout/Layout.h"
#include "support/FormTest.h"
#include "support/Printers.h"
#include "translation/EncrypterAccess.h"
#include "translation/FormTranslation.h"

namespace Wexa {
namespace {

using GuiType = BaseGUIObject::GuiType;

// -- The file -----------------------------------------------------------------------------------

int CountOf(std::wstring_view text, std::wstring_view part) {
  int count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// Widgets, layouts and spacers.
using KindCounts = std::array<int, 3>;

void CountKinds(const FormNode& node, KindCounts& counts) {
  ++counts[static_cast<std::size_t>(node.kind)];
  for (const auto& child : node.children) {
    EXPECT_EQ(child->parent, &node);
    CountKinds(*child, counts);
  }
}

// Whether there is something below a widget of one of the classes.
bool HasContainerOf(const std::vector<std::wstring>& classes, const FormNode& node) {
  const bool isOne = node.kind == FormNode::Kind::Widget && !node.children.empty() &&
                     std::ranges::find(classes, node.className) != classes.end();
  return isOne || std::ranges::any_of(node.children, [&](const auto& child) {
           return HasContainerOf(classes, *child);
         });
}

void ExpectWholeModel(const std::wstring& text) {
  FormModel model;
  ASSERT_TRUE(FormParser().Parse(text, model));
  KindCounts counts{};
  CountKinds(*model.root, counts);
  EXPECT_EQ(counts, (KindCounts{CountOf(text, L"<widget "), CountOf(text, L"<layout "),
                                CountOf(text, L"<spacer")}));
  EXPECT_EQ(std::ssize(model.tabOrder), CountOf(text, L"<tabstop>"));
  EXPECT_EQ(std::ssize(model.customClasses), CountOf(text, L"<customwidget>"));
}

std::wstring WithLineEnds(const std::wstring& text, const std::wstring& end) {
  std::wstring result;
  for (const wchar_t c : text)
    if (c != L'\r') result += c == L'\n' ? end : std::wstring(1, c);
  return result;
}

// Each string is replaced, and both ways of translating agree on the lines they are on.
void ExpectTranslatable(const std::string& bytes) {
  const std::wstring text = *WidenUtf8(bytes);
  FormLines lines;
  unsigned line = 1;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.compare(at, 8, L"<string>") == 0) lines[line] = L"[mark]";
    if (text[at] == L'\n') ++line;
  }
  const auto joined = TranslateForm(bytes, lines);
  const auto inPlace = TranslateFormInPlace(text, lines);
  EXPECT_NO_THROW(XmlDocument{joined});
  EXPECT_NO_THROW(XmlDocument{inPlace});
  EXPECT_EQ(CountOf(joined, L"[mark]"), std::ssize(lines));
  EXPECT_EQ(CountOf(inPlace, L"[mark]"), std::ssize(lines));
  EXPECT_EQ(CountOf(inPlace, L"\n"), CountOf(text, L"\n"));
}

// -- The dialog ---------------------------------------------------------------------------------

std::vector<HWND> VisibleChildren(HWND parent) {
  std::vector<HWND> children;
  for (HWND w = GetWindow(parent, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT))
    if (IsWindowVisible(w)) children.push_back(w);
  return children;
}

CRect ScreenRect(HWND window) {
  CRect rect;
  ::GetWindowRect(window, &rect);
  return rect;
}

bool IsSeen(HWND window) {
  const CRect around = ScreenRect(GetParent(window));
  return IsWindowVisible(window) && !ScreenRect(window).Intersected(around).IsEmpty();
}

class EveryFormTest : public FormTest {
 protected:
  ~EveryFormTest() override { UseResolution(96); }

  void TryAll(const std::vector<std::string>& forms) {
    for (const int dpi : {96, 144}) {
      UseResolution(dpi);
      for (const std::string& form : forms) {
        SCOPED_TRACE(form + " at " + std::to_string(dpi));
        TryDialog(*WidenUtf8(form));
      }
    }
    for (const std::string& form : forms) {
      SCOPED_TRACE(form);
      TryFile(testdata::BytesOf(form));
    }
  }

 private:
  void TryFile(const std::string& bytes) {
    const auto text = PlainFormText(bytes);
    ASSERT_TRUE(text);
    ExpectWholeModel(WithLineEnds(*text, L"\n"));
    ExpectWholeModel(WithLineEnds(*text, L"\r\n"));
    ExpectTranslatable(bytes);
    const auto packed = EncrypterAccess::Pack(bytes);
    const auto file = FileOf({packed.begin(), packed.end()});
    EXPECT_EQ(NarrowUtf8(Encrypter::ReadAndDecryptFile(file)), bytes);
  }

  void TryDialog(const std::wstring& file) {
    OpenFile(file);
    ExpectSomethingIsSeen();
    if (!HasUnknownContainer(file)) ExpectGoodPlaces(dialog_->GetHandle());
    if (IsWholeSize()) ExpectWholeTexts();
    const auto places = PlacesFrom(false);
    ExpectSamePlacesAtTheSameSize();
    ExpectTheSameShownAgain();
    const Rect window = dialog_->GetWindowRect();
    SetLayoutRTL(true);
    OpenFile(file);
    SetLayoutRTL(false);
    EXPECT_EQ(dialog_->GetWindowRect(), window);
    ExpectPlaces(places, PlacesFrom(true));
  }

  Dialog::impl& Impl() { return *dialog_->GetImpl(); }

  // The library's widget of a window; null for a part of one.
  BaseGUIObject* WidgetOf(HWND window) {
    if (window == dialog_->GetHandle()) return dialog_.get();
    const auto found = std::ranges::find_if(Impl().Elements(), [&](const auto& element) {
      return element.widget->GetPlatformHandle() == window;
    });
    return found != Impl().Elements().end() ? found->widget.get() : nullptr;
  }

  std::string NameOf(HWND window) {
    BaseGUIObject* widget = WidgetOf(window);
    return widget ? NarrowUtf8(widget->GetName()) : "(no element)";
  }

  void ExpectSomethingIsSeen() {
    const bool hasContent = std::ranges::any_of(Impl().Elements(), [](const auto& element) {
      const auto type = element.widget->Type();
      const bool isPlain = type == GuiType::ChildDialog || type == GuiType::StackedDialog;
      return !isPlain && IsSeen(element.widget->GetPlatformHandle());
    });
    EXPECT_TRUE(!hasContent || ShowsSomething());
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

  // What lies in a container that the library does not know is built in its place, a layout too.
  bool HasUnknownContainer(const std::wstring& file) {
    FormModel model;
    FormParser().Parse(*PlainFormText(testdata::BytesOf(NarrowUtf8(file))), model);
    return HasContainerOf(Impl().Statistics().unknownClasses, *model.root);
  }

  // What a layout places lies beside its like and, unless it is scrolled or the form itself limits
  // the parent to less, within it. Without a layout widgets are where the form puts them.
  void ExpectGoodPlaces(HWND parent) {
    const auto children = VisibleChildren(parent);
    if (BaseGUIObject* widget = WidgetOf(parent); widget && ImplOf(widget)->Links().layout) {
      const auto& most = ImplOf(widget)->Links().explicitMaximum;
      ExpectApart(children);
      const bool isScrolled = widget->Type() == GuiType::ScrollArea;
      if (!isScrolled && !most.width && !most.height) ExpectWithin(parent, children);
    }
    for (HWND child : children) ExpectGoodPlaces(child);
  }

  void ExpectApart(const std::vector<HWND>& children) {
    for (std::size_t i = 0; i < children.size(); ++i)
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_TRUE(ScreenRect(children[i]).Intersected(ScreenRect(children[j])).IsEmpty())
            << NameOf(children[i]) << " and " << NameOf(children[j]);
  }

  void ExpectWithin(HWND parent, const std::vector<HWND>& children) {
    const CRect around = ScreenRect(parent);
    for (HWND child : children)
      EXPECT_TRUE(around.Contains(static_cast<const RECT&>(ScreenRect(child))))
          << NameOf(child) << " " << Rect(ScreenRect(child)) << " in " << Rect(around);
  }

  bool IsWholeSize() {
    Layout* layout = Impl().Links().layout;
    const Size client = dialog_->GetClientRect().GetSize();
    return layout && client.GetInflated(layout->TotalSizeHint()) == client;
  }

  void ExpectWholeTexts() {
    for (const auto& element : Impl().Elements()) {
      BaseGUIObject& widget = *element.widget;
      const auto type = widget.Type();
      if (!IsWindowVisible(widget.GetPlatformHandle())) continue;
      SCOPED_TRACE(NarrowUtf8(element.name));
      if (type == GuiType::Label) ExpectWholeLabel(widget);
      if (type == GuiType::Button || type == GuiType::CheckBox || type == GuiType::RadioButton)
        ExpectWholeButton(widget);
    }
  }

  void ExpectWholeLabel(BaseGUIObject& label) {
    const Size most = label.MaximumSize();
    const Size ideal = label.IdealSize().GetDeflated(most);
    const Size size = label.GetWindowRect().GetSize();
    auto& impl = *ImplOf(&label);
    if (impl.HasHeightForWidth()) {
      EXPECT_GE(size.Height(), std::min(impl.HeightForWidth(size.Width()), most.Height()));
    } else if (!impl.Links().explicitMinimum.width) {
      EXPECT_EQ(size.GetInflated(ideal), size);
    }
  }

  void ExpectWholeButton(BaseGUIObject& button) {
    const Size ideal = button.IdealSize().GetDeflated(button.MaximumSize());
    const Size size = button.GetWindowRect().GetSize();
    EXPECT_EQ(size.GetInflated(ideal), size);
  }

  // Counted from the edge on which lines begin: mirrored, the first pixel is the last on the
  // screen.
  std::vector<CRect> PlacesFrom(bool right) {
    POINT corner{0, 0};
    ::ClientToScreen(dialog_->GetHandle(), &corner);
    std::vector<CRect> places;
    for (const auto& element : Impl().Elements()) {
      const CRect place = ScreenRect(element.widget->GetPlatformHandle());
      const LONG left = right ? corner.x + 1 - place.right : place.left - corner.x;
      places.emplace_back(left, place.top - corner.y, left + place.Width(),
                          place.bottom - corner.y);
    }
    return places;
  }

  void ExpectPlaces(const std::vector<CRect>& expected, const std::vector<CRect>& places) {
    ASSERT_EQ(places.size(), expected.size());
    for (std::size_t i = 0; i < places.size(); ++i)
      EXPECT_EQ(Rect(places[i]), Rect(expected[i]))
          << NarrowUtf8((Impl().Elements().begin() + static_cast<std::ptrdiff_t>(i))->name);
  }

  void ExpectSamePlacesAtTheSameSize() {
    const Size size = dialog_->GetClientRect().GetSize();
    const Size bigger{size.Width() + 157, size.Height() + 91};
    const auto places = PlacesFrom(false);
    ResizeClient(bigger);
    const auto biggerPlaces = PlacesFrom(false);
    ResizeClient({1, 1});
    ResizeClient(bigger);
    ExpectPlaces(biggerPlaces, PlacesFrom(false));
    ResizeClient(size);
    EXPECT_EQ(dialog_->GetClientRect().GetSize(), size);
    ExpectPlaces(places, PlacesFrom(false));
  }

  void ResizeClient(Size size) {
    Impl().ResizeClient(size.Width(), size.Height());
    Robot::PumpAll();
  }

  void ExpectTheSameShownAgain() {
    const Rect window = dialog_->GetWindowRect();
    const auto places = PlacesFrom(false);
    dialog_->Done(Dialog::Rejected);
    dialog_->DoModeless(true);
    Robot::PumpAll();
    EXPECT_EQ(dialog_->GetWindowRect(), window);
    ExpectPlaces(places, PlacesFrom(false));
  }
};

TEST_F(EveryFormTest, OfTheProject) {
  TryAll(testdata::Forms());
}

TEST_F(EveryFormTest, OfOtherPrograms) {
  if (testdata::GivenForms().empty()) GTEST_SKIP() << testdata::kNoGivenForms;
  TryAll(testdata::GivenForms());
}

}  // namespace
}  // namespace Wexa
