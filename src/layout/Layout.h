#pragma once

#include <optional>
#include <string_view>

#include "WexaObject.h"
#include "layout/LayoutItem.h"
#include "layout/WidgetLink.h"

namespace Wexa {

class BaseImpl;
class Event;

// What a layout's total sizes do to the widget that owns the layout.
enum class SizeConstraint {
  Default = 0,  // a dialog gets the layout's minimum, on the axes where it has none of its own
  NoConstraint = 1,
  Minimum = 2,
  Fixed = 3,
  Maximum = 4,
  MinAndMax = 5
};

// The constraint that a form's text names; nothing for a text that names none.
std::optional<SizeConstraint> SizeConstraintFromText(std::wstring_view text);

struct Margins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  friend bool operator==(const Margins&, const Margins&) = default;
};

// The base of box and grid. A layout is either the top-level layout of a widget or nested in
// another layout, which then owns it. Sizes are device pixels.
class Layout : public WexaObject, public LayoutItem {
 public:
  // A nested layout leaves the layout that holds it.
  ~Layout() override;

  // -- Items, in order ----------------------------------------------------------------------------

  // The next pass over the geometry has to look at the items again.
  virtual void MarkDirty() = 0;
  // Takes the ownership of the item; null is ignored.
  virtual void AddItem(LayoutItem* item) = 0;
  // Null for an index out of range.
  virtual LayoutItem* ItemAt(int index) = 0;
  // Gives the item to the caller.
  virtual LayoutItem* TakeAt(int index) = 0;
  virtual int Count() = 0;
  // A widget above the layout's area; null for none. It is not owned.
  virtual void SetMenuBar(BaseGUIObject* menuBar);
  // Puts the item in the place of another, which goes to the caller. Null, and nothing is taken,
  // for an index out of range or a null item.
  virtual LayoutItem* ReplaceAt(int index, LayoutItem* item) = 0;
  // The first item of widget `from` becomes one of widget `to`. Returns the old item, for the
  // caller to delete; null when there is none. Recursive looks into nested layouts and into
  // widgets.
  LayoutItem* ReplaceWidget(BaseGUIObject* from, BaseGUIObject* to, bool recursive);

  // -- The layout as an item ----------------------------------------------------------------------

  Size MinimumSize() override { return {}; }
  Size MaximumSize() override;
  Orientation ExpandingDirections() override { return Orientation::Both; }
  void SetGeometry(const Rect& rect) override { geometry_ = rect; }
  Rect Geometry() override { return geometry_; }
  bool IsEmpty() override;
  void Invalidate(bool update) override;
  // Margins and spacings, and those of all nested layouts.
  void Rescale(const Rescaling& rescale) override;
  Layout* AsLayout() override { return this; }

  // -- Margins, spacing, constraint ---------------------------------------------------------------

  // -1 stands for the default of that side.
  void SetContentsMargins(int left, int top, int right, int bottom);
  // As resolved; any pointer may be null.
  void GetContentsMargins(int* left, int* top, int* right, int* bottom) const;
  // Negative for the default.
  virtual void SetSpacing(int spacing);
  // -1 for a layout without a parent and without spacing of its own.
  virtual int Spacing();
  void SetSizeConstraint(SizeConstraint constraint);

  // -- The widget's point of view -----------------------------------------------------------------

  // The widget whose area the layout shares out, itself or within other layouts; null for none.
  BaseGUIObject* ParentWidget() const;
  // With the widget's own margins and the menu bar.
  Size TotalSizeHint();
  Size TotalMinimumSize();
  Size TotalMaximumSize();
  int TotalHeightForWidth(int width);
  int TotalMinimumHeightForWidth(int width);

  // -- Passes over the geometry -------------------------------------------------------------------

  // Fills the area, or the layout's minimum where the area is smaller.
  void Fit(const Rect& area);
  // Runs the requested pass of the top-level layout: size constraint, then geometry. Nothing
  // happens when no pass was requested.
  void Activate();
  // Asks for a pass later, here and in all that holds this layout. Nothing happens when it was
  // asked for already, unless forced.
  void RequestUpdate(bool force);
  // Resize and LayoutRequest run a pass.
  void WidgetEvent(Event* event);
  // The posted request has arrived; the next one is posted again.
  void ClearRequestPosted() { requestPosted_ = false; }
  // The windows in the widget are new: nothing has its place, no request is under way.
  void StartAgain();
  // Marks this layout and those that hold it, up to the first widget.
  void MarkDirtyUpward();

 protected:
  // Tells whether a layout still lives after calls that may run a host's code.
  class Watch {
   public:
    explicit Watch(Layout& layout) : layout_(&layout), outer_(layout.watch_) {
      layout.watch_ = this;
    }
    ~Watch() {
      if (layout_) layout_->watch_ = outer_;
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    bool IsGone() const { return !layout_; }

   private:
    friend class Layout;
    Layout* layout_;
    Watch* outer_;
  };

  // The parent is a widget, a layout or null.
  explicit Layout(WexaObject* parent);

  // What a layout without spacing of its own uses: -1 without a parent.
  int DefaultSpacing() const;
  Margins ResolvedMargins() const;
  // Links an item that becomes, or is no longer, one of this layout's.
  void Adopt(LayoutItem& item);
  void LetGo(LayoutItem& item);
  // Places one of its items. A nested layout that is aligned keeps to its hint there.
  static void PlaceItem(LayoutItem& item, const Rect& cell);

 private:
  void AttachTo(BaseGUIObject& widget);
  void LeaveParent();
  int DefaultMargin() const;
  Size WidgetMargins() const;
  int MenuBarHeight(int width);
  int WithWidgetMargins(int height, int width);
  void Arrange(Rect area, int width);

  void ActivateTopLevel();
  void PrepareTree();
  void ApplyConstraint();
  void ApplyDefaultConstraint();
  void UpdateWidgetGeometry();
  void ClearRequestsInTree();
  bool IsRequestUnderWay() const;
  void PostRequest();
  Layout* NextToRequest() const;
  bool BelongsToChildDialog() const;
  LayoutItem* ReplaceIn(int index, BaseGUIObject* from, BaseGUIObject* to, bool recursive);

  Layout* parentLayout_ = nullptr;
  WidgetLink parentWidget_;
  Watch* watch_ = nullptr;
  WidgetLink menuBar_;
  Rect geometry_;
  Margins margins_{-1, -1, -1, -1};
  int insideSpacing_ = -1;
  SizeConstraint constraint_ = SizeConstraint::Default;
  bool isTopLevel_ = false;
  bool activated_ = true;  // the last requested pass has run
  bool requestPosted_ = false;
};

// The rectangle within the margins, and a size with them.
Rect WithoutMargins(const Rect& rect, const Margins& margins);
Size WithMargins(const Size& size, const Margins& margins);

}  // namespace Wexa
