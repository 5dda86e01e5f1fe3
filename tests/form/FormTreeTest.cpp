#include "form/FormTree.h"

#include <gmock/gmock.h>

#include "FormTestSupport.h"

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Kind = FormNode::Kind;
using LayoutKind = FormNode::LayoutKind;

TEST(FormTree, ChildrenKeepTheirOrderAndKnowTheirParent) {
  const auto root = ParseRootWith(
      L"<widget class=\"QLabel\" name=\"a\"/><layout class=\"QVBoxLayout\" name=\"b\"/>"
      L"<widget name=\"c\"><widget name=\"e\"/></widget>");
  const auto& children = root->children;
  ASSERT_THAT(children, SizeIs(3));
  EXPECT_EQ(children[0]->name, L"a");
  EXPECT_EQ(children[1]->kind, Kind::Layout);
  EXPECT_EQ(children[2]->parent, root.get());
  EXPECT_EQ(children[2]->children.at(0)->parent, children[2].get());
}

TEST(FormTree, LayoutKindFollowsTheClass) {
  const std::pair<std::wstring, LayoutKind> kKinds[] = {{L"QHBoxLayout", LayoutKind::HBox},
                                                        {L"QVBoxLayout", LayoutKind::VBox},
                                                        {L"QGridLayout", LayoutKind::Grid},
                                                        {L"QFormLayout", LayoutKind::Grid}};
  for (const auto& [className, kind] : kKinds) {
    const auto root = ParseRootWith(L"<layout class=\"" + className + L"\"/>");
    EXPECT_EQ(root->children.at(0)->className, className);
    EXPECT_EQ(root->children.at(0)->layoutKind, kind);
  }
}

TEST(FormTree, AttributesOfALayoutFillTheSlotsOfTheirNamesThoseOfAWidgetNone) {
  const auto root = ParseRootWith(
      L"<layout class=\"QGridLayout\" name=\"g\" rowstretch=\"0,1\" columnstretch=\"2,3\" "
      L"rowminimumheight=\"0,30\" columnminimumwidth=\"4\" stretch=\"5\" odd=\"first\" "
      L"other=\"last\"/><widget class=\"QWidget\" text=\"x\" native=\"true\"/>");
  EXPECT_EQ(SlotsOf(*root->children.at(0)), L"9=0,1 10=2,3 11=0,30 12=4 13=5 46=last");
  EXPECT_EQ(SlotsOf(*root->children.at(1)), L"");
}

TEST(FormTree, ItemsGiveTheirCellToTheirChild) {
  const auto root = ParseRootWith(
      L"<layout class=\"QGridLayout\">"
      L"<item row=\"1\" column=\"2\" rowspan=\"3\" colspan=\"4\"><layout name=\"a\"/></item>"
      L"<item row=\"5\" column=\"-1\" alignment=\"Qt::AlignRight\"><spacer name=\"b\"/></item>"
      L"<item><widget name=\"c\"/></item><item row=\"7\"/><layout name=\"direct\"/></layout>");
  const auto& children = root->children.at(0)->children;
  ASSERT_THAT(children, SizeIs(4));
  const auto cellOf = [&](std::size_t i) {
    const auto& cell = children[i]->cell;
    return std::vector{cell.row, cell.column, cell.rowSpan, cell.columnSpan};
  };
  EXPECT_THAT(cellOf(0), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(cellOf(1), ElementsAre(5, -1, 1, 1));
  EXPECT_THAT(cellOf(2), ElementsAre(0, 0, 1, 1));
  EXPECT_EQ(children[0]->kind, Kind::Layout);
  EXPECT_EQ(children[1]->kind, Kind::Spacer);
  EXPECT_EQ(children[3]->name, L"direct");
  EXPECT_EQ(ExtraIn(*children[1], L"itemAlignment"), L"Qt::AlignRight");
}

TEST(FormTree, SpacerHasNoClassAndNoChildren) {
  const auto root = ParseRootWith(
      L"<layout><item><spacer class=\"Odd\" name=\"s\">"
      L"<property name=\"orientation\"><enum>Qt::Vertical</enum></property>"
      L"<property name=\"sizeType\"><enum>QSizePolicy::Fixed</enum></property>"
      L"<property name=\"sizeHint\" "
      L"stdset=\"0\"><size><width>20</width><height>40</height></size></property>"
      L"<widget name=\"no\"/></spacer></item></layout>");
  const auto& spacer = *root->children.at(0)->children.at(0);
  EXPECT_EQ(spacer.className, L"");
  EXPECT_EQ(spacer.name, L"s");
  EXPECT_THAT(spacer.children, IsEmpty());
  EXPECT_EQ(SlotsOf(spacer), L"2=20 3=40 25=Qt::Vertical 34=QSizePolicy::Fixed");
}

TEST(FormTree, ItemsOfAWidgetAreItsTexts) {
  const auto root = ParseRootWith(
      L"<widget class=\"QComboBox\"><item><property "
      L"name=\"text\"><string>one</string></property></item>"
      L"<item><property name=\"icon\"><string>no</string></property></item>"
      L"<item><property name=\"text\"><string>two</string></property>"
      L"<property name=\"text\"><string>second column</string></property></item>"
      L"<column><property name=\"text\"><string>head</string></property></column></widget>");
  EXPECT_THAT(root->children.at(0)->itemTexts, ElementsAre(L"one", L"two"));
}

TEST(FormTree, UnknownElementsAreIgnored) {
  const auto root = ParseRootWith(
      L"text<addaction name=\"a\"/><action name=\"b\"><property name=\"text\"><string>t</string>"
      L"</property></action><!-- c --><zorder>a</zorder><spacer name=\"s\"/>");
  EXPECT_THAT(root->children, IsEmpty());
  EXPECT_EQ(SlotsOf(*root), L"");
}

TEST(FormTree, AttributesOfAWidgetAreKept) {
  const auto root = ParseRootWith(
      L"<attribute name=\"title\"><string>Page</string></attribute>"
      L"<attribute name=\"buttonGroup\"><string notr=\"true\">group</string></attribute>"
      L"<attribute name=\"headerVisible\"><bool>false</bool></attribute>"
      L"<attribute name=\"toolTip\"><string>tip</string></attribute>");
  EXPECT_EQ(root->titleAttribute, L"Page");
  EXPECT_EQ(root->buttonGroup, L"group");
  EXPECT_FALSE(root->headerVisible);
  EXPECT_TRUE(ParseRootWith(L"")->headerVisible);
}

}  // namespace
}  // namespace Wexa
