#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "layout/BoxLayout.h"
#include "layout/GridLayout.h"
#include "layout/SpacerItem.h"
#include "layout/WidgetItem.h"
#include "layout/WidgetTree.h"
#include "support/FakeWidget.h"
#include "support/Printers.h"

namespace Wexa {

// A dialog with widgets to fill layouts with. The widgets outlive the layouts.
class LayoutTest : public testing::Test {
 protected:
  FakeWidget& Make(BaseGUIObject::GuiType type = BaseGUIObject::GuiType::Label) {
    return MakeIn(dialog_, type);
  }
  FakeWidget& MakeIn(WexaObject& parent, BaseGUIObject::GuiType type) {
    widgets_.push_back(std::make_unique<FakeWidget>(type, &parent));
    return *widgets_.back();
  }
  FakeWidget& Make(Size ideal, Size minimum) {
    FakeWidget& widget = Make();
    widget->ideal = ideal;
    widget->minimumIdeal = minimum;
    return widget;
  }
  FakeWidget& AddTo(Layout& layout, FakeWidget& widget) {
    layout.AddItem(new WidgetItemV2(&layout, &widget));
    return widget;
  }
  FakeWidget& AddTo(GridLayout& grid, FakeWidget& widget, int row, int column, int rowSpan = 1,
                    int columnSpan = 1) {
    grid.AddItem(new WidgetItemV2(&grid, &widget), row, column, rowSpan, columnSpan);
    return widget;
  }
  // What the window's queue does with a posted request.
  void DeliverRequest(FakeWidget& widget) {
    Event request(Event::LayoutRequest);
    widget->Links().layout->WidgetEvent(&request);
    widget->Links().layout->ClearRequestPosted();
  }
  void Resize(FakeWidget& widget, int width, int height) {
    widget.MoveWindow(0, 0, width, height, true);
  }

  std::vector<std::unique_ptr<FakeWidget>> widgets_;
  FakeWidget dialog_{BaseGUIObject::GuiType::Dialog};
};

}  // namespace Wexa
