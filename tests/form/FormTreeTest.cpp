#include "form/FormTree.h"

#include "FormTestSupport.h"

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Kind = FormNode::Kind;
using LayoutKind = FormNode::LayoutKind;

TEST(FormTree, ChildrenKeepTheirOrderAndKnowTheirParent) {
  const auto model = ParseRootWith(
      L"<widget class=\"QLabel\" name=\"a\"/><layout class=\"QVBoxLayout\" name=\"b\"/>"
      L"<widget name=\"c\"><widget name=\"e\"/></widget>");
  const auto& children = model.root->children;
  ASSERT_THAT(children, SizeIs(3));
  EXPECT_EQ(children[0]->name, L"a");
  EXPECT_EQ(children[1]->kind, Kind::Layout);
  EXPECT_EQ(children[2]->parent, model.root.get());
  EXPECT_EQ(children[2]->children.at(0)->parent, children[2].get());
}

LayoutKind KindOfLayout(const std::wstring& className) {
  const auto model = ParseRootWith(L"<layout class=\"" + className + L"\"/>");
  EXPECT_EQ(model.root->children.at(0)->className, className);
  return model.root->children.at(0)->layoutKind;
}

TEST(FormTree, LayoutKindFollowsTheClass) {
  EXPECT_EQ(KindOfLayout(L"QHBoxLayout"), LayoutKind::HBox);
  EXPECT_EQ(KindOfLayout(L"QVBoxLayout"), LayoutKind::VBox);
  EXPECT_EQ(KindOfLayout(L"QGridLayout"), LayoutKind::Grid);
  EXPECT_EQ(KindOfLayout(L"QFormLayout"), LayoutKind::Grid);
}

TEST(FormTree, LayoutAttributesFillTheSlotsOfTheirNames) {
  const auto model = ParseRootWith(
      L"<layout class=\"QGridLayout\" name=\"g\" rowstretch=\"0,1\" columnstretch=\"2,3\" "
      L"rowminimumheight=\"0,30\" columnminimumwidth=\"4\" stretch=\"5\" odd=\"first\" "
      L"other=\"last\"/>");
  const auto& layout = *model.root->children.at(0);
  EXPECT_EQ(TextIn(layout, PropertyId::RowStretch), L"0,1");
  EXPECT_EQ(TextIn(layout, PropertyId::ColumnStretch), L"2,3");
  EXPECT_EQ(TextIn(layout, PropertyId::RowMinimumHeight), L"0,30");
  EXPECT_EQ(TextIn(layout, PropertyId::ColumnMinimumWidth), L"4");
  EXPECT_EQ(TextIn(layout, PropertyId::Stretch), L"5");
  EXPECT_EQ(TextIn(layout, PropertyId::Other), L"last");
}

TEST(FormTree, WidgetAttributesFillNoSlot) {
  const auto model = ParseForm(L"<ui><widget class=\"QWidget\" text=\"x\" native=\"true\"/></ui>");
  EXPECT_EQ(TextIn(*model.root, PropertyId::Text), L"(none)");
  EXPECT_EQ(TextIn(*model.root, PropertyId::Other), L"(none)");
}

TEST(FormTree, ItemsGiveTheirCellToTheirChild) {
  const auto model = ParseRootWith(
      L"<layout class=\"QGridLayout\">"
      L"<item row=\"1\" column=\"2\" rowspan=\"3\" colspan=\"4\"><layout name=\"a\"/></item>"
      L"<item row=\"5\" column=\"-1\" alignment=\"Qt::AlignRight\"><spacer name=\"b\"/></item>"
      L"<item><widget name=\"c\"/></item><item row=\"7\"/></layout>");
  const auto& children = model.root->children.at(0)->children;
  ASSERT_THAT(children, SizeIs(3));
  const auto cellOf = [&](std::size_t i) {
    const auto& cell = children[i]->cell;
    return std::vector{cell.row, cell.column, cell.rowSpan, cell.columnSpan};
  };
  EXPECT_THAT(cellOf(0), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(cellOf(1), ElementsAre(5, -1, 1, 1));
  EXPECT_THAT(cellOf(2), ElementsAre(0, 0, 1, 1));
  EXPECT_EQ(children[0]->kind, Kind::Layout);
  EXPECT_EQ(children[1]->kind, Kind::Spacer);
  EXPECT_EQ(ExtraIn(*children[1], L"itemAlignment"), L"Qt::AlignRight");
}

TEST(FormTree, SpacerHasNoClassAndNoChildren) {
  const auto model = ParseRootWith(
      L"<layout><item><spacer class=\"Odd\" name=\"s\">"
      L"<property name=\"orientation\"><enum>Qt::Vertical</enum></property>"
      L"<property name=\"sizeType\"><enum>QSizePolicy::Fixed</enum></property>"
      L"<property name=\"sizeHint\" "
      L"stdset=\"0\"><size><width>20</width><height>40</height></size></property>"
      L"<widget name=\"no\"/></spacer></item></layout>");
  const auto& spacer = *model.root->children.at(0)->children.at(0);
  EXPECT_EQ(spacer.className, L"");
  EXPECT_EQ(spacer.name, L"s");
  EXPECT_THAT(spacer.children, IsEmpty());
  EXPECT_EQ(TextIn(spacer, PropertyId::Orientation), L"Qt::Vertical");
  EXPECT_EQ(TextIn(spacer, PropertyId::SizeType), L"QSizePolicy::Fixed");
  EXPECT_EQ(TextIn(spacer, PropertyId::Width), L"20");
  EXPECT_EQ(TextIn(spacer, PropertyId::Height), L"40");
}

TEST(FormTree, LayoutsMayHoldWidgetsAndLayoutsDirectly) {
  const auto model = ParseRootWith(L"<layout><widget name=\"a\"/><layout name=\"b\"/></layout>");
  const auto& children = model.root->children.at(0)->children;
  ASSERT_THAT(children, SizeIs(2));
  EXPECT_EQ(children[0]->name, L"a");
  EXPECT_EQ(children[1]->name, L"b");
}

TEST(FormTree, ItemsOfAWidgetAreItsTexts) {
  const auto model = ParseRootWith(
      L"<widget class=\"QComboBox\"><item><property "
      L"name=\"text\"><string>one</string></property></item>"
      L"<item><property name=\"icon\"><string>no</string></property></item>"
      L"<item><property name=\"text\"><string>two</string></property>"
      L"<property name=\"text\"><string>second column</string></property></item>"
      L"<column><property name=\"text\"><string>head</string></property></column></widget>");
  EXPECT_THAT(model.root->children.at(0)->itemTexts, ElementsAre(L"one", L"two"));
}

TEST(FormTree, UnknownElementsAreIgnored) {
  const auto model = ParseRootWith(
      L"text<addaction name=\"a\"/><action name=\"b\"><property name=\"text\"><string>t</string>"
      L"</property></action><!-- c --><zorder>a</zorder><spacer name=\"s\"/>");
  EXPECT_THAT(model.root->children, IsEmpty());
  EXPECT_EQ(TextIn(*model.root, PropertyId::Text), L"(none)");
}

TEST(FormTree, AttributesOfAWidgetAreKept) {
  const auto model = ParseRootWith(
      L"<attribute name=\"title\"><string>Page</string></attribute>"
      L"<attribute name=\"buttonGroup\"><string notr=\"true\">group</string></attribute>"
      L"<attribute name=\"headerVisible\"><bool>false</bool></attribute>"
      L"<attribute name=\"toolTip\"><string>tip</string></attribute>");
  EXPECT_EQ(model.root->titleAttribute, L"Page");
  EXPECT_EQ(model.root->buttonGroup, L"group");
  EXPECT_FALSE(model.root->headerVisible);
  EXPECT_TRUE(ParseRootWith(L"").root->headerVisible);
}

}  // namespace
}  // namespace Wexa
