// What becomes of the parts of a form: widgets, their settings, and containers.

#include <rapidxml/rapidxml.hpp>

#include "ChildDialog.h"
#include "ComboBox.h"
#include "DateEdit.h"
#include "Edit.h"
#include "FormError.h"
#include "GroupBox.h"
#include "KvDateTime.h"
#include "Label.h"
#include "MFC/DialogImplMFC.h"
#include "MFC/base/DialogFont.h"
#include "MultiLineEdit.h"
#include "RichEdit.h"
#include "Splitter.h"
#include "StackedDialog.h"
#include "TabView.h"
#include "WexaException.h"
#include "layout/SizeLimits.h"
#include "platform/ControlConstants.h"
#include "support/DialogTest.h"
#include "translation/EncrypterAccess.h"

namespace Wexa {
namespace {

using GuiType = BaseGUIObject::GuiType;

class BuilderTest : public DialogTest {
 protected:
  template <typename Widget>
  Widget& Build(const std::string& content, const wchar_t* name = L"w") {
    dialog_ = Make(FormXml(content, 300, 200));
    return Find<Widget>(name);
  }
  BaseImplMFC& ImplNamed(const wchar_t* name) { return *ImplOf(&Find<BaseGUIObject>(name)); }
  DWORD StyleOf(const std::string& className, const std::string& properties) {
    Build<BaseGUIObject>(WidgetXml(className, "w", properties));
    return ImplNamed(L"w").Creation().style;
  }
  SizePolicy PolicyOf(const std::string& className, const std::string& properties = "") {
    return Build<BaseGUIObject>(WidgetXml(className, "w", properties)).GetSizePolicy();
  }
};

TEST_F(BuilderTest, AWidgetHasThePolicyOfItsFormClass) {
  using enum SizePolicy::Policy;
  const std::pair<SizePolicy, std::vector<const char*>> kCases[] = {
      {{Expanding, Expanding},
       {"QScrollArea", "QPlainTextEdit", "QTextEdit", "QTableWidget", "QListWidget", "QTreeView",
        "QTabWidget", "DrawElement"}},
      {{Expanding, Fixed}, {"QLineEdit", "QDialogButtonBox", "QProgressBar", "QSlider"}},
      {{Expanding, Preferred}, {"QSplitter"}},
      {{Minimum, Fixed},
       {"QPushButton", "QCheckBox", "QRadioButton", "QSpinBox", "QDoubleSpinBox", "QDateEdit",
        "Line", "QScrollBar"}},
      {{Preferred, Fixed}, {"QComboBox", "QComboBoxFS"}},
      {{Preferred, Preferred},
       {"QLabel", "QGroupBox", "QWidget", "QStackedWidget", "HyperLinkElement"}}};
  for (const auto& [policy, classes] : kCases)
    for (const char* name : classes) EXPECT_EQ(PolicyOf(name), policy) << name;
  for (const char* name : {"QDialogButtonBox", "QProgressBar", "QSlider"})
    EXPECT_EQ(PolicyOf(name, EnumXml("orientation", "Qt::Vertical")), SizePolicy(Fixed, Expanding));
  EXPECT_EQ(PolicyOf("QSplitter", EnumXml("orientation", "Qt::Orientation::Vertical")),
            SizePolicy(Preferred, Expanding));
}

TEST_F(BuilderTest, AStatedPolicyReplacesIt) {
  const auto policy = [&](const char* stretch) {
    return PolicyOf("QPushButton",
                    "<property name=\"sizePolicy\"><sizepolicy hsizetype=\"Expanding\" "
                    "vsizetype=\"QSizePolicy::Ignored\"><horstretch>" +
                        std::string(stretch) +
                        "</horstretch><verstretch>3</verstretch></sizepolicy></property>");
  };
  EXPECT_EQ(policy("2").GetHorizontalPolicy(), SizePolicy::Expanding);
  EXPECT_EQ(policy("2").GetHorizontalStretch(), 2);
  EXPECT_EQ(policy("2").GetVerticalStretch(), 3);
  EXPECT_EQ(policy("1000").GetHorizontalStretch(), 255);
  EXPECT_EQ(policy("-4").GetHorizontalStretch(), 0);
}

TEST_F(BuilderTest, LimitsAreMarkedPerAxis) {
  const auto& least = Build<BaseGUIObject>(
      WidgetXml("QLineEdit", "w", SizeXml("minimumSize", 40, 0) + SizeXml("maximumSize", 90, 50)));
  const LayoutLinks& links = ImplOf(&least)->Links();
  EXPECT_TRUE(links.explicitMinimum.width && links.explicitMinimum.height);
  EXPECT_TRUE(links.explicitMaximum.width && links.explicitMaximum.height);
  EXPECT_EQ(ImplOf(&least)->MinimumSize(), Scale(40, 0));
  EXPECT_EQ(ImplOf(&least)->MaximumSize(), Scale(90, 50));
  Build<BaseGUIObject>(WidgetXml("QLineEdit", "w"));
  EXPECT_FALSE(ImplNamed(L"w").Links().explicitMinimum.width);
  EXPECT_EQ(ImplNamed(L"w").MaximumSize(), Size(WidgetSizeLimit(), WidgetSizeLimit()));
  dialog_ = Make(FormXml(SizeXml("minimumSize", 200, 100), 300, 200));
  EXPECT_EQ(dialog_->MinimumSize(), Scale(200, 100));
  EXPECT_TRUE(dialog_->GetImpl()->Links().explicitMinimum.width);
}

TEST_F(BuilderTest, ClassesAddTheirStyleBits) {
  struct Case {
    const char* className;
    std::string property;
    DWORD mask;
    DWORD bits;
  };
  const Case kCases[] = {
      {"QListWidget", BoolXml("sortingEnabled"), 0x10, 0x10},
      {"QSlider", EnumXml("orientation", "Qt::Orientation::Vertical"), 0x2, 0x2},
      {"QScrollBar", EnumXml("orientation", "Qt::Vertical"), 0x1, 0x1},
      {"Line", EnumXml("orientation", "Qt::Vertical"), 0x1F, 0x11},
      {"Line", EnumXml("orientation", "Qt::Horizontal"), 0x1F, 0x10},
      {"QLabel", EnumXml("frameShape", "QFrame::Box"), WS_BORDER, WS_BORDER},
      {"QLabel", EnumXml("frameShape", "QFrame::Boxed"), WS_BORDER, 0},
      {"QTreeView", EnumXml("frameShape", "QFrame::Shape::NoFrame"), WS_BORDER, 0},
      {"QLineEdit", "", WS_TABSTOP, WS_TABSTOP},
      {"QLineEdit", EnumXml("focusPolicy", "Qt::FocusPolicy::NoFocus"), WS_TABSTOP, 0}};
  for (const Case& c : kCases)
    EXPECT_EQ(StyleOf(c.className, c.property) & c.mask, c.bits) << c.className << c.property;
}

TEST_F(BuilderTest, DialogStyleBitsMoveToTheExtendedStyle) {
  dialog_ = Make(ColumnForm(""), 0x10CC0000 | 0x400 | 0x8 | 0x80 | 0x1);
  dialog_->DoModeless(true);
  const DWORD extended = dialog_->GetWndPtr()->GetExStyle();
  EXPECT_EQ(extended & 0x489, 0x489u);
  EXPECT_FALSE(dialog_->GetWndPtr()->GetStyle() & 0x400);
  EXPECT_FALSE(extended & WS_EX_LAYOUTRTL);
}

TEST_F(BuilderTest, TheTitleIsTheWindowsText) {
  Open(FormXml(PropertyXml("windowTitle", "string", "Ein Tit\xC3\xA4l &amp; mehr"), 300, 200));
  EXPECT_EQ(dialog_->GetWndPtr()->GetWindowText(), L"Ein Titäl & mehr");
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), Scale(300, 200));
}

TEST_F(BuilderTest, WidgetsTakeTheirSettings) {
  const auto edit = [](const std::string& name, const std::string& property) {
    return TextWidget("QLineEdit", name, "a text of some words", property);
  };
  Open(ColumnForm(
      edit("secret", EnumXml("echoMode", "QLineEdit::EchoMode::Password")) +
          edit("fixed", BoolXml("readOnly")) +
          edit("right",
               PropertyXml("alignment", "set", "Qt::AlignmentFlag::AlignRight|Qt::AlignTop")) +
          TextWidget("QLabel", "wrapped", "a text of some words", BoolXml("wordWrap")) +
          WidgetItem(
              "QComboBox", "combo",
              ItemXml(TextXml("one")) + ItemXml(TextXml("two")) + NumberXml("currentIndex", 1)) +
          WidgetItem(
              "QDateEdit", "date",
              PropertyXml("date", "date", "<year>2024</year><month>2</month><day>29</day>")) +
          WidgetItem("QPlainTextEdit", "plain",
                     PropertyXml("plainText", "string", "&lt;b&gt;as it is")) +
          WidgetItem("QTextEdit", "rich",
                     PropertyXml("html", "string", "&lt;p&gt;&lt;b&gt;bold&lt;/b&gt;&lt;/p&gt;")),
      200, 200));
  const auto style = [&](const wchar_t* name) {
    return Find<BaseGUIObject>(name).GetPlatformWindow()->GetStyle();
  };
  EXPECT_EQ(Find<Edit>(L"secret").GetPasswordMode(), Edit::PasswordMode::Password);
  EXPECT_TRUE(style(L"fixed") & ES_READONLY);
  EXPECT_TRUE(style(L"right") & ES_RIGHT);
  EXPECT_TRUE(ImplNamed(L"wrapped").HasHeightForWidth());
  EXPECT_EQ(Find<ComboBox>(L"combo").GetCurrentIndex(), 1);
  EXPECT_EQ(Find<DateEdit>(L"date").GetDate(), (KvDateTime{2024, 2, 29}));
  EXPECT_EQ(Find<MultiLineEdit>(L"plain").GetText(), L"<b>as it is");
  EXPECT_EQ(Find<RichEdit>(L"rich").GetText(), L"bold");
}

TEST_F(BuilderTest, ChildrenOfContainersAreTheirsAndCountFromThem) {
  Open(FormXml(WidgetXml("QGroupBox", "group",
                         PropertyXml("title", "string", "Group") + GeometryXml(30, 40, 150, 100) +
                             WidgetXml("QLineEdit", "inner", GeometryXml(7, 21, 90, 22))) +
                   WidgetXml("QLineEdit", "outer", GeometryXml(10, 150, 90, 22)),
               300, 200));
  auto& group = Find<GroupBox>(L"group");
  EXPECT_EQ(group.GetTitle(), L"Group");
  EXPECT_EQ(Find<Edit>(L"inner").GetParent(), &group);
  EXPECT_EQ(GetParent(Find<Edit>(L"inner").GetPlatformHandle()), group.GetPlatformHandle());
  EXPECT_EQ(PlaceOf(L"group").GetSize(), Scale(150, 100));
  EXPECT_EQ(PlaceOf(L"outer"), Rect(Scale(10), Scale(150), Scale(90), Scale(22)));
  EXPECT_EQ(PlaceOf(L"inner"),
            Rect(Scale(30) + Scale(7), Scale(40) + Scale(21), Scale(90), Scale(22)));
}

TEST_F(BuilderTest, AChildDialogPlacesItsChildrenAUnitFurtherInForEachStepOfTheScale) {
  const int offset = static_cast<int>(WexaUtils::GetScaleFactor());
  Open(FormXml(WidgetXml("QWidget", "page",
                         GeometryXml(30, 40, 150, 100) +
                             WidgetXml("QLineEdit", "inner", GeometryXml(7, 21, 90, 22))),
               300, 200));
  EXPECT_EQ(PlaceOf(L"inner"), Rect(Scale(30) + Scale(7 + offset), Scale(40) + Scale(21 + offset),
                                    Scale(90), Scale(22)));
}

TEST_F(BuilderTest, PagesAndPanesAreAddedInTheirOrder) {
  const auto page = [](const std::string& name) {
    return WidgetXml("QWidget", name,
                     PropertyXml("text", "string", "") + AttributeXml("title", "of " + name));
  };
  Open(ColumnForm(
      WidgetItem("QTabWidget", "tabs", NumberXml("currentIndex", 1) + page("a") + page("b")) +
      WidgetItem("QStackedWidget", "stack", NumberXml("currentIndex", 7) + page("p") + page("q")) +
      WidgetItem("QSplitter", "split",
                 EnumXml("orientation", "Qt::Horizontal") + WidgetXml("QListWidget", "left") +
                     WidgetXml("QWidget", "right", ColumnXml(LineEdit("edit"))))));
  EXPECT_EQ(Find<TabView>(L"tabs").GetItemCount(), 2);
  EXPECT_EQ(Find<TabView>(L"tabs").GetTabText(0), L"of a");
  EXPECT_EQ(Find<TabView>(L"tabs").GetCurrentIndex(), 1);
  EXPECT_FALSE(Find<BaseGUIObject>(L"a").IsVisible());
  EXPECT_TRUE(Find<BaseGUIObject>(L"b").IsVisible());
  auto& stack = Find<StackedDialog>(L"stack");
  EXPECT_EQ(stack.GetCurrentIndex(), 0) << "an index out of range gives way to the first";
  EXPECT_EQ(static_cast<BaseGUIObject*>(stack.GetPage(1)), &Find<BaseGUIObject>(L"q"));
  EXPECT_EQ(Find<Splitter>(L"split").GetViews().size(), 2u);
  EXPECT_GE(PlaceOf(L"right").Left(), PlaceOf(L"left").Right());
  EXPECT_EQ(PlaceOf(L"right").Height(), PlaceOf(L"left").Height());
}

TEST_F(BuilderTest, ItemsStandAlignedInTheirCells) {
  Open(ColumnForm(ItemXml(WidgetXml("QLineEdit", "wide")) +
                      ItemXml(WidgetXml("QTextEdit", "corner"),
                              "alignment=\"Qt::AlignRight|Qt::AlignBottom\"") +
                      ItemXml("<layout class=\"QHBoxLayout\">" +
                                  ItemXml(WidgetXml("QLineEdit", "nested")) + "</layout>",
                              "alignment=\"Qt::AlignmentFlag::AlignHCenter\""),
                  600, 600));
  const Rect wide = PlaceOf(L"wide");
  const Rect corner = PlaceOf(L"corner");
  const Rect nested = PlaceOf(L"nested");
  EXPECT_EQ(corner.GetSize(), Find<BaseGUIObject>(L"corner").IdealSize());
  EXPECT_EQ(corner.Right(), wide.Right());
  EXPECT_GT(corner.Top(), wide.Bottom() + 6);
  EXPECT_EQ(nested.Width(), Find<BaseGUIObject>(L"nested").IdealSize().Width());
  EXPECT_NEAR(nested.Left() - wide.Left(), wide.Right() - nested.Right(), 1);
}

TEST_F(BuilderTest, ChildrenOfUnknownClassesAreBuiltInTheirPlace) {
  Open(FormXml(LayoutXml("QGridLayout", ItemXml(WidgetXml("QToolBox", "unknown",
                                                          ColumnXml(LineEdit("a") + LineEdit("b"))),
                                                "row=\"0\" column=\"1\"") +
                                            ItemXml(WidgetXml("QLabel", "label", TextXml("Name")),
                                                    "row=\"0\" column=\"0\"")),
               300, 200));
  EXPECT_EQ(dialog_->GetElementByName(L"unknown"), nullptr);
  EXPECT_EQ(Find<Edit>(L"a").GetParent(), dialog_.get());
  EXPECT_GE(PlaceOf(L"a").Left(), PlaceOf(L"label").Right());
  EXPECT_GE(PlaceOf(L"b").Top(), PlaceOf(L"a").Bottom());
  EXPECT_EQ(dialog_->GetImpl()->Statistics().unknownClasses,
            std::vector<std::wstring>{L"QToolBox"});
}

TEST_F(BuilderTest, CustomClassesStandForTheirBase) {
  std::string form = ColumnForm(WidgetItem("FancyEdit", "a") + WidgetItem("FancierEdit", "b") +
                                WidgetItem("Loop", "c"));
  const auto custom = [](const std::string& name, const std::string& base) {
    return "<customwidget><class>" + name + "</class><extends>" + base +
           "</extends></customwidget>";
  };
  form.replace(form.rfind("</ui>"), 5,
               "<customwidgets>" + custom("FancyEdit", "QLineEdit") +
                   custom("FancierEdit", "FancyEdit") + custom("Loop", "Loop") +
                   "</customwidgets></ui>");
  Open(form);
  EXPECT_EQ(Find<BaseGUIObject>(L"a").Type(), GuiType::Edit);
  EXPECT_EQ(Find<BaseGUIObject>(L"b").GetSizePolicy(),
            SizePolicy(SizePolicy::Expanding, SizePolicy::Fixed));
  EXPECT_EQ(dialog_->GetElementByName(L"c"), nullptr);
}

std::string FontXml(const std::string& content) {
  return "<property name='font'><font>" + content + "</font></property>";
}

TEST_F(BuilderTest, FontsOfContainersCountForWhatIsInThem) {
  const auto label = [](const std::string& name, const std::string& font) {
    return ItemXml(WidgetXml("QLabel", name, font + PropertyXml("text", "string", "Some text")));
  };
  const auto large = FontXml("<pointsize>20</pointsize><weight>75</weight>");
  Open(ColumnForm(
      label("plain", "") + label("rich", FontXml("<italic>true</italic>")) +
      ItemXml(WidgetXml(
          "QGroupBox", "box",
          large + ColumnXml(label("inner", "") +
                            label("own", FontXml("<bold>false</bold><underline>true</underline>")) +
                            ItemXml(WidgetXml("QDialogButtonBox", "buttons",
                                              PropertyXml("standardButtons", "set", "Ok"))))))));
  const auto fontOf = [&](const wchar_t* name) { return ImplNamed(name).NativeFont(); };
  EXPECT_EQ(fontOf(L"rich").italic, 1);
  EXPECT_EQ(fontOf(L"inner").pointSize, 20);
  EXPECT_EQ(fontOf(L"inner").bold, 1);
  const FontData own = FontRecordOf(ImplNamed(L"own").Font());
  EXPECT_EQ(std::tuple(own.pointSize, own.bold, own.underline), std::tuple(20, 0, 1));
  const auto& button = *ImplNamed(L"buttons").Children().front();
  EXPECT_EQ(FontRecordOf(ImplOf(&button)->Font()).pointSize, 20);
  EXPECT_GT(PlaceOf(L"inner").Height(), 3 * PlaceOf(L"plain").Height() / 2);
  EXPECT_THROW(Make(FormXml(FontXml("<pointsize>x</pointsize>"), 9, 9)), std::invalid_argument);
}

TEST_F(BuilderTest, WhatAFormHidesTakesNoPlace) {
  const auto hidden = PropertyXml("visible", "bool", "false");
  Open(ColumnForm(ItemXml(WidgetXml("QGroupBox", "box",
                                    hidden + ColumnXml(ItemXml(WidgetXml("QLabel", "in"))))) +
                  ItemXml(WidgetXml("QLineEdit", "edit", hidden)) +
                  ItemXml(WidgetXml("QTextEdit", "text"))));
  EXPECT_FALSE(Find<GroupBox>(L"box").IsVisible());
  EXPECT_FALSE(Find<Edit>(L"edit").IsVisible());
  EXPECT_LT(PlaceOf(L"text").Top(), 15);
  Find<Edit>(L"edit").Show(true, true);
  Robot::PumpAll();
  EXPECT_GT(PlaceOf(L"text").Top(), 25);
}

TEST_F(BuilderTest, TextsAreIndentedFromTheirEdge) {
  const auto text = PropertyXml("text", "string", "i");
  const auto right = PropertyXml("alignment", "set", "Qt::AlignRight");
  const auto indent = PropertyXml("indent", "number", "40");
  const auto place = GeometryXml(0, 0, 100, 20);
  const auto inkOf = [&](const std::string& className, const std::string& settings) {
    Open(FormXml(WidgetXml(className, "w", place + settings), 100, 20));
    std::string ink;
    for (int x = 0; x < 100; x += 20)
      ink += Robot::HasInk(dialog_->GetHandle(), {x, 3, x + 20, 9}) ? 'x' : '-';
    return ink;
  };
  EXPECT_EQ(inkOf("QLabel", text), "x----");
  EXPECT_EQ(inkOf("QLabel", text + indent), "--x--");
  EXPECT_EQ(inkOf("QLabel", text + indent + right), "--x--");
  auto& label = Build<Label>(WidgetXml("QLabel", "w", text + indent));
  EXPECT_EQ(
      label.IdealSize().Width() - Build<Label>(WidgetXml("QLabel", "w", text)).IdealSize().Width(),
      Scale(40));
}

TEST_F(BuilderTest, FailuresSayWhatIsWrongAndWhere) {
  const char* const kUnread = "Could not load and parse UI file";
  const auto label = [](const std::string& property) {
    return ColumnForm("\n<item>" + WidgetXml("QSpinBox", "s", "\n" + property) + "</item>");
  };
  const auto size = [&](const std::string& numbers) {
    return label(PropertyXml("minimumSize", "size", numbers));
  };
  struct {
    std::string form;
    const char* text;
    const wchar_t* says;
  } const kCases[] = {
      {"", kUnread, L": the file is empty"},
      {"no form at all", kUnread, L": neither XML nor an encrypted form"},
      {"<ui>\n\xC3\xA9\xE4</ui>", kUnread, L":2: the byte at offset 7 is not UTF-8"},
      {"<root/>", kUnread, L": No UI node has been found."},
      {"<a/>\n<ui/>", kUnread, L":2: No root widget has been found."},
      {"<ui/>\ntext", "expected <", L":2: expected <"},
      {label("&copy;"), "undefined entity", L":3: undefined entity"},
      {size("<width>1</width>"), "Cannot build UI model of dialog.",
       L":3: \"minimumSize\" of \"s\": the height is missing"},
      {size("<width>1</width><height>\ntall</height>"), "invalid stoi argument",
       L":3: \"minimumSize\" of \"s\": \"\ntall\" is no number"},
      {label(PropertyXml("value", "number", "x")), "invalid stod argument",
       L":3: \"value\" of \"s\": \"x\" is no number"},
      {FormXml("\n<layout class='QGridLayout' name='g' rowstretch='0,x'/>", 9, 9),
       "invalid stoi argument", L":2: \"rowstretch\" of \"g\": \"x\" is no number"},
      {FormXml("<layout name='g'>\n<item row='99999999999'/></layout>", 9, 9),
       "stoi argument out of range", L":2: \"row\" of \"g\": 99999999999 is out of range"}};
  for (const auto& [form, text, says] : kCases) {
    const std::wstring file = FileOf(form);
    try {
      Dialog(file, nullptr, 0, 1.0);
      ADD_FAILURE() << form;
    } catch (const FormError& error) {
      EXPECT_EQ(error.diagnostic.Describe(), file + says);
      const auto* exception = dynamic_cast<const std::exception*>(&error);
      EXPECT_TRUE(std::string(exception->what()).ends_with(text)) << exception->what();
    }
  }
  EXPECT_THROW(Dialog(L"/nowhere/at/all.ui", nullptr, 0, 1.0), WexaException);
  EXPECT_TRUE(GetTopLevelWindows().empty());
}

TEST_F(BuilderTest, EncryptedFormsHaveNoLines) {
  const auto packed = EncrypterAccess::Pack("<ui>\n<widget/>");
  try {
    Make({packed.begin(), packed.end()});
    ADD_FAILURE();
  } catch (const FormError& error) {
    EXPECT_EQ(error.diagnostic.line, 0);
    EXPECT_NE(dynamic_cast<const rapidxml::parse_error*>(&error), nullptr);
  }
}

}  // namespace
}  // namespace Wexa
