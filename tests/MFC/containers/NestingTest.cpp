// Containers in containers: they come to rest, ask what is inside once, and follow its changes.

#include <array>

#include "ChildDialog.h"
#include "Event.h"
#include "Label.h"
#include "ScrollArea.h"
#include "Splitter.h"
#include "StackedDialog.h"
#include "TabView.h"
#include "WexaObjectFactory.h"
#include "platform/Classes.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string InColumn(const std::string& inner) {
  return "<layout class=\"QVBoxLayout\">" + ItemXml(inner) + "</layout>";
}

std::string PlaceXml(int width = 200, int height = 120) {
  return "<property name=\"geometry\"><rect><x>10</x><y>10</y><width>" + std::to_string(width) +
         "</width><height>" + std::to_string(height) + "</height></rect></property>";
}

struct Kind {
  const char* className;
  bool hasLayout;
};
constexpr std::array kKinds{Kind{"QGroupBox", true},  Kind{"QGroupBox", false},
                            Kind{"QWidget", true},    Kind{"QWidget", false},
                            Kind{"QTabWidget", true}, Kind{"QStackedWidget", true},
                            Kind{"QSplitter", false}, Kind{"QScrollArea", false}};

std::string Within(const Kind& kind, const std::string& name, const std::string& inner) {
  const std::string className = kind.className;
  std::string content = kind.hasLayout ? InColumn(inner) : inner;
  if (className == "QTabWidget" || className == "QStackedWidget")
    content = WidgetXml("QWidget", name + "page", content);
  return WidgetXml(className, name, PlaceXml() + content);
}

constexpr char kLeaf[] =
    "<widget class=\"QTabWidget\" name=\"leaf\"><widget class=\"QWidget\" name=\"p\"/></widget>";

class NestingTest : public FormTest {
 protected:
  // False when messages go on and on.
  static bool ComesToRest() {
    constexpr int kMostMessages = 3000;
    MSG message{};
    for (int i = 0; PeekMessageW(&message, PM_NOREMOVE); ++i) {
      if (i == kMostMessages) return false;
      AfxPumpMessage();
    }
    return true;
  }
  bool OpensToRest(const std::string& content) {
    dialog_ = Make(FormXml(content, 400, 300));
    dialog_->DoModeless(true);
    if (!ComesToRest()) return false;
    dialog_->MoveWindow(0, 0, 600, 400, true);
    return ComesToRest();
  }
};

TEST_F(NestingTest, EveryNestingComesToRest) {
  for (const Kind& outer : kKinds)
    for (const Kind& middle : kKinds)
      for (const Kind& inner : kKinds) {
        const std::string nested =
            Within(outer, "a", Within(middle, "b", Within(inner, "c", kLeaf)));
        EXPECT_TRUE(OpensToRest(nested)) << nested;
        dialog_.reset();
      }
  EXPECT_TRUE(OpensToRest(InColumn(Within(kKinds[0], "a", kLeaf))));
}

// -- How often the innermost widget is asked ------------------------------------------------------

int g_asked = 0;

class CountedLabel : public Label {
 public:
  Size IdealSize() override {
    ++g_asked;
    return Label::IdealSize();
  }
};

TEST_F(NestingTest, DeeperNestingAsksNoMoreOften) {
  WexaObjectFactory::Instance().Register("CountedLabel", std::make_shared<Creator<CountedLabel>>());
  for (const char* className : {"QSplitter", "QScrollArea"}) {
    int asked[2] = {};
    for (const int depth : {3, 30}) {
      std::string nested = WidgetXml("CountedLabel", "leaf");
      for (int i = 0; i < depth; ++i) nested = Within({className, false}, "n", nested);
      g_asked = 0;
      EXPECT_TRUE(OpensToRest(nested));
      asked[depth == 30] = g_asked;
    }
    EXPECT_GT(asked[0], 0);
    EXPECT_EQ(asked[1], asked[0]) << className;
  }
}

// -- Changes inside -------------------------------------------------------------------------------

TEST_F(NestingTest, AChangeReachesWhatPlacesItWithoutALayoutAround) {
  const std::string row = WidgetXml("QLabel", "row", PropertyXml("text", "string", "a"));
  for (const std::size_t kind : {std::size_t{0}, std::size_t{2}}) {
    for (const char* holder : {"QSplitter", "QScrollArea"}) {
      Open(FormXml(Within({holder, false}, "a",
                          Within({"QSplitter", false}, "b",
                                 Within(kKinds[kind], "c", row) + WidgetXml("QLabel", "rest"))),
                   400, 300));
      const int before = PlaceOf(L"c").Width();
      Find<Label>(L"row").SetText(std::wstring(40, L'm'));
      Robot::PumpAll();
      EXPECT_GT(PlaceOf(L"c").Width(), before) << holder << " " << kKinds[kind].className;
    }
  }
}

// -- Handlers that destroy ------------------------------------------------------------------------

TEST_F(NestingTest, ASizeHandlerMayDestroyTheDialogWhileItOpens) {
  for (const Kind& kind : kKinds) {
    for (const bool modal : {false, true}) {
      for (const bool inLayout : {false, true}) {
        const std::string nested = Within(kind, "a", WidgetXml("QWidget", "x"));
        dialog_ = Make(FormXml(inLayout ? InColumn(nested) : nested, 400, 300));
        for (const wchar_t* name : {L"a", L"x"})
          Find<BaseGUIObject>(name).SetEventProcedure([this](BaseGUIObject*, Event* event) {
            if (event->GetType() == Event::Resize) dialog_.reset();
            return false;
          });
        Dialog& dialog = *dialog_;
        modal ? static_cast<void>(dialog.DoModal()) : dialog.DoModeless(true);
        Robot::PumpAll();
        EXPECT_TRUE(!inLayout || !dialog_) << kind.className;
        dialog_.reset();
        EXPECT_TRUE(GetTopLevelWindows().empty());
      }
    }
  }
}

// -- Containers and children that outlive each other ----------------------------------------------

TEST_F(NestingTest, ContainersHeldByTheHostForgetTheirChildren) {
  Open(FormXml(Within(kKinds[4], "tabs", WidgetXml("QLabel", "l")) +
                   Within(kKinds[5], "stack", "") + Within(kKinds[6], "split", kLeaf) +
                   Within(kKinds[7], "area", WidgetXml("QWidget", "content")),
               400, 300));
  std::vector<std::shared_ptr<BaseGUIObject>> held;
  for (const wchar_t* name : {L"tabs", L"stack", L"split", L"area"})
    held.push_back(dialog_->GetElementByName(name));
  dialog_.reset();
  for (const auto& container : held) {
    container->IdealSize();
    container->MinimumIdealSize();
    container->GetSkinManager().SetColorChangeFlag(true);
  }
  EXPECT_EQ(static_cast<TabView&>(*held[0]).GetItemCount(), 0);
  EXPECT_EQ(static_cast<StackedDialog&>(*held[1]).GetPage(0), nullptr);
  EXPECT_TRUE(static_cast<Splitter&>(*held[2]).GetViews().empty());
}

TEST_F(NestingTest, ChildrenOfTheHostMayGoFirst) {
  Open(FormXml(Within(kKinds[4], "tabs", "") + Within(kKinds[5], "stack", "") +
                   Within(kKinds[6], "split", kLeaf) + WidgetXml("QScrollArea", "area"),
               400, 300));
  auto page = std::make_unique<ChildDialog>();
  auto stacked = std::make_unique<ChildDialog>();
  auto view = std::make_unique<Label>();
  auto content = std::make_unique<Label>();
  Find<TabView>(L"tabs").AddPage(page.get(), L"second");
  Find<StackedDialog>(L"stack").AddChildDialog(stacked.get());
  Find<Splitter>(L"split").AddView(view.get());
  Find<ScrollArea>(L"area").SetContent(content.get());
  Find<TabView>(L"tabs").SetCurrentIndex(1);
  for (const auto& child : std::initializer_list<BaseGUIObject*>{page.get(), stacked.get()})
    child->Create(Find<BaseGUIObject>(L"tabs").GetPlatformHandle());
  page.reset();
  stacked.reset();
  view.reset();
  content.reset();
  Robot::PumpAll();
  EXPECT_EQ(Find<TabView>(L"tabs").GetItemCount(), 1);
  EXPECT_EQ(Find<TabView>(L"tabs").GetCurrentIndex(), 0);
  EXPECT_TRUE(Find<BaseGUIObject>(L"tabspage").IsVisible());
  EXPECT_EQ(Find<StackedDialog>(L"stack").GetPage(1), nullptr);
  EXPECT_EQ(Find<Splitter>(L"split").GetViews().size(), 1u);
  dialog_->MoveWindow(0, 0, 500, 400, true);
  Robot::PumpAll();
}

// -- Enabled state --------------------------------------------------------------------------------

TEST_F(NestingTest, ADisabledContainerDisablesWhatIsInItAndGivesItBack) {
  for (const Kind& kind : kKinds) {
    const std::string edits =
        WidgetXml("QSplitter", "s",
                  WidgetXml("QLineEdit", "on") +
                      WidgetXml("QLineEdit", "off", PropertyXml("enabled", "bool", "false")));
    const std::string disabled = PropertyXml("enabled", "bool", "false");
    Open(FormXml(WidgetXml("QWidget", "outer", disabled + InColumn(Within(kind, "inner", edits))),
                 400, 300));
    EXPECT_FALSE(Find<BaseGUIObject>(L"on").IsEnabled()) << kind.className;
    Find<BaseGUIObject>(L"outer").Enable(true, true);
    EXPECT_TRUE(Find<BaseGUIObject>(L"on").IsEnabled()) << kind.className;
    EXPECT_FALSE(Find<BaseGUIObject>(L"off").IsEnabled()) << kind.className;
  }
}

}  // namespace
}  // namespace Wexa
