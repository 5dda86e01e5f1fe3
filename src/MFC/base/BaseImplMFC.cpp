#include "MFC/BaseImplMFC.h"

#include <algorithm>
#include <utility>

#include "BaseGUIObject.h"
#include "Event.h"
#include "MFC/EventDispatch.h"
#include "MFC/base/DialogFont.h"
#include "MFC/base/WidgetColors.h"
#include "WexaException.h"
#include "WexaUtils.h"
#include "layout/Layout.h"
#include "layout/Rescaling.h"
#include "layout/SizeLimits.h"
#include "layout/WidgetItem.h"
#include "layout/WidgetTree.h"
#include "platform/Postponed.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr UINT kHoverMilliseconds = 1;

Rect ToRect(const RECT& r) {
  return Rect(CRect(r));
}

}  // namespace

int Scale(int units) {
  constexpr double kLimit = 1 << 26;  // far beyond any screen: sums of such metrics stay in range
  return static_cast<int>(std::clamp(units * WexaUtils::GetScaleFactor(), -kLimit, kLimit));
}
Size Scale(int width, int height) {
  return {Scale(width), Scale(height)};
}

Size CheckSizeFor(HFONT font, const std::wstring& text) {
  SIZE extent = GetTextExtent(font, text, INT32_MAX, DT_SINGLELINE);
  int label = text.empty() ? 0 : Theme::CheckGap() + extent.cx + Scale(2);
  int height = std::max(Theme::CheckSize(), static_cast<int>(extent.cy)) + Scale(4);
  return {Theme::CheckSize() + label, height};
}

BaseImplMFC* ImplOf(const BaseGUIObject* widget) {
  return widget ? static_cast<BaseImplMFC*>(widget->GetBaseImpl().get()) : nullptr;
}

BaseImplMFC::BaseImplMFC(BaseGUIObject* owner)
    : owner_(owner),
      maximumSize_(WidgetSizeLimit(), WidgetSizeLimit()),
      skinManager_(this, SkinMode::Default) {}

BaseImplMFC::~BaseImplMFC() {
  DeleteLayout();
}

void BaseImplMFC::DeleteLayout() {
  delete std::exchange(Links().layout, nullptr);
}

void BaseImplMFC::LeaveDialog(bool survives) {
  if (survives) skinManager_.SetSkinMode(skinManager_.GetSkinMode());
  children_.clear();
  if (owner_) owner_->SetParent(nullptr);
}

void BaseImplMFC::KeepState() {
  creation_.text = Window().GetWindowText();
}

void BaseImplMFC::Release() {
  HWND window = GetHandle();
  if (window) RunPostponing([this] { Window().DestroyWindow(); });
  // One of the window's last handlers may be what ends the widget: the window is there still.
  if (IsWindow(window) && owner_) DetachWindowProcedure(*owner_, window);
  if (const auto holder = holder_.lock(); holder && owner_)
    static_cast<BaseImplMFC&>(*holder).ForgetChild(*owner_);
  owner_ = nullptr;
}

HWND BaseImplMFC::GetHandle() {
  CWnd* window = GetCWnd();
  return window ? window->GetSafeHwnd() : nullptr;
}

CWnd& BaseImplMFC::Window() {
  CWnd* window = GetCWnd();
  if (!window || !window->GetSafeHwnd()) throw WexaException("", 0, "Control is not valid.");
  return *window;
}

// -- Creation -----------------------------------------------------------------

bool BaseImplMFC::Create(HWND parent) {
  lastGeometry_ = Rect();
  ResolveFont();
  if (!IsWindow(parent) || !CreateNative(CWnd::FromHandle(parent))) return false;
  AttachWindowProcedure(*owner_, GetHandle());
  Window().SetFont(Font(), false);
  if (!creation_.enabled) Enable(false, true);
  return true;
}

CRect BaseImplMFC::ScaledRect() const {
  const CRect& r = creation_.rect;
  return {Scale(r.left), Scale(r.top), Scale(r.right), Scale(r.bottom)};
}

std::wstring BaseImplMFC::Text() {
  return GetHandle() ? Window().GetWindowText() : creation_.text;
}

void BaseImplMFC::SetText(const std::wstring& text) {
  creation_.text = text;
  if (GetHandle()) Window().SetWindowText(text);
  InvalidateLayout();
}

// -- Visibility and enabling --------------------------------------------------

void BaseImplMFC::Show(bool show, bool updateLayout) {
  Window().ShowWindow(show ? SW_SHOW : SW_HIDE);
  if (updateLayout && owner_ && owner_->Type() != BaseGUIObject::GuiType::Dialog)
    InvalidateLayout();
}

bool BaseImplMFC::IsVisible() {
  return (GetWindowLongPtrW(GetHandle(), GWL_STYLE) & WS_VISIBLE) != 0;
}

void BaseImplMFC::Enable(bool enable, bool remember) {
  CWnd& window = Window();
  bool keepsDisabled = enable && !creation_.enabled && !remember;
  if (!keepsDisabled) {
    window.EnableWindow(enable);
    if (remember) creation_.enabled = enable;
  }
  window.Invalidate(true);
}

bool BaseImplMFC::IsEnabled() {
  return Window().IsWindowEnabled() != FALSE;
}

// -- Geometry -----------------------------------------------------------------

Rect BaseImplMFC::GetWindowRect() {
  return ToRect(Window().GetWindowRect());
}
Rect BaseImplMFC::GetClientRect() {
  return ToRect(Window().GetClientRect());
}

Point BaseImplMFC::ScreenToClient(int x, int y) {
  POINT point{x, y};
  Window().ScreenToClient(&point);
  return {point.x, point.y};
}

Point BaseImplMFC::ClientToScreen(int x, int y) {
  POINT point{x, y};
  Window().ClientToScreen(&point);
  return {point.x, point.y};
}

Size BaseImplMFC::IdealSize() {
  return Links().layout ? Links().layout->TotalSizeHint() : Size(-1, -1);
}

Size BaseImplMFC::MinimumIdealSize() {
  return Links().layout ? Links().layout->TotalMinimumSize() : Size(-1, -1);
}

void BaseImplMFC::SetMinimumSize(Size size) {
  if (minimumSize_ == size) return;
  minimumSize_ = size;
  ForgetSizesFrom(owner_);
}

void BaseImplMFC::SetMaximumSize(Size size) {
  if (maximumSize_ == size) return;
  maximumSize_ = size;
  ForgetSizesFrom(owner_);
}

void BaseImplMFC::SetSizePolicy(const SizePolicy& policy) {
  sizePolicy_ = policy;
  ForgetSizesFrom(owner_);
}

Size BaseImplMFC::Clamped(int width, int height) const {
  return {std::max(std::min(width, maximumSize_.Width()), minimumSize_.Width()),
          std::max(std::min(height, maximumSize_.Height()), minimumSize_.Height())};
}

void BaseImplMFC::MoveWindow(int x, int y, int width, int height, bool) {
  CWnd& window = Window();
  Size size = Clamped(width, height);
  Rect place(x, y, size.Width(), size.Height());
  const auto isTopLevel = [&] {
    return (window.GetStyle() & WS_CHILD) == 0;
  };  // moved by its user, too
  if (place != lastGeometry_ || isTopLevel()) window.MoveWindow(place.PlatformRect(), true);
  lastGeometry_ = place;
  if (GetHandle()) UpdateLayout();  // unless a handler closed the window
}

void BaseImplMFC::Resize(int width, int height) {
  CRect place = Window().GetWindowRect();
  if (CWnd* parent = (Window().GetStyle() & WS_CHILD) ? Window().GetParent() : nullptr)
    parent->ScreenToClient(&place);
  MoveWindow(place.left, place.top, width, height, true);
}

void BaseImplMFC::SetFixedSize(Size size) {
  minimumSize_ = size;
  maximumSize_ = size;
  Links().explicitMinimum = {true, true};
  Links().explicitMaximum = {true, true};
  if (GetHandle()) Resize(size.Width(), size.Height());
}

int BaseImplMFC::GetFrameWidth() {
  CWnd& window = Window();
  return (window.GetWindowRect().Width() - window.GetClientRect().Width()) / 2;
}

// -- Layout -------------------------------------------------------------------

int BaseImplMFC::HeightForWidth(int width) {
  return HasHeightForWidth() ? Links().layout->TotalHeightForWidth(width) : -1;
}

bool BaseImplMFC::HasHeightForWidth() {
  return Links().layout && Links().layout->HasHeightForWidth();
}

Rect BaseImplMFC::GetLayoutRect() {
  const auto& margins = Links().contentsMargins;
  return GetLocalRect().MarginsAdded(-margins[0], -margins[1], -margins[2], -margins[3]);
}

void BaseImplMFC::SetLayoutGeometry(int x, int y, int width, int height) {
  MoveWindow(x, y, width, height, true);
}

void BaseImplMFC::UpdateLayout() {
  if (Links().layout) Links().layout->Fit(GetLayoutRect());
}

void BaseImplMFC::InvalidateLayout() {
  InvalidateSizesFrom(owner_);
}

void BaseImplMFC::PlaceAsRequested() {
  if (!Links().layout) return;
  Event request(Event::LayoutRequest);
  Links().layout->WidgetEvent(&request);
  if (GetHandle() && Links().layout) Links().layout->ClearRequestPosted();
}

bool BaseImplMFC::PostLayoutRequest() {
  return GetHandle() && PostMessageW(GetHandle(), kUpdateLayoutsMessage, 0, 0);
}

int BaseImplMFC::ParentScrollOffset() {
  return GetScrollPos(GetParent(GetHandle()), SB_VERT);
}

// -- Timers, redraws, pointer -------------------------------------------------

unsigned BaseImplMFC::SetTimer(unsigned id, unsigned milliseconds) {
  return static_cast<unsigned>(Window().SetTimer(id, milliseconds));
}

void BaseImplMFC::KillTimer(unsigned id) {
  Window().KillTimer(id);
}

void BaseImplMFC::Update(const Region& region) {
  Window().RedrawWindow(nullptr, region.PlatformRegion().GetSafeHandle(),
                        RDW_INVALIDATE | RDW_ERASE);
}

void BaseImplMFC::Update() {
  Window().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void BaseImplMFC::Repaint() {
  CRect client = Window().GetClientRect();
  Window().RedrawWindow(&client, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void BaseImplMFC::SetAcceptDrops(bool accept) {
  if (!GetHandle()) return;
  DragAcceptFiles(GetHandle(), accept);
  acceptDrops_ = accept;
}

void BaseImplMFC::SetTrackMouseEvent() {
  TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_HOVER | TME_LEAVE, Window().GetSafeHwnd(),
                          kHoverMilliseconds};
  TrackMouseEvent(&request);
  mouseTracked_ = true;
}

int BaseImplMFC::GetLogicalPixelsX() {
  HDC dc = GetDC(Window().GetSafeHwnd());
  int pixels = GetDeviceCaps(dc, LOGPIXELSX);
  ReleaseDC(GetHandle(), dc);
  return pixels;
}

int BaseImplMFC::GetLogicalPixelsY() {
  HDC dc = GetDC(Window().GetSafeHwnd());
  int pixels = GetDeviceCaps(dc, LOGPIXELSY);
  ReleaseDC(GetHandle(), dc);
  return pixels;
}

// -- Children -----------------------------------------------------------------

void BaseImplMFC::AddChild(BaseGUIObject& child) {
  const auto self = owner_->GetBaseImpl();
  auto& link = ImplOf(&child)->holder_;
  const auto before = link.lock();
  if (before == self) return;
  if (before) static_cast<BaseImplMFC&>(*before).ForgetChild(child);
  children_.push_back(&child);
  link = self;
}

void BaseImplMFC::ForgetChild(BaseGUIObject& child) {
  std::erase(children_, &child);
}

// -- Another resolution -------------------------------------------------------

void BaseImplMFC::Rescale(const Rescaling& rescale) {
  minimumSize_ = rescale(minimumSize_);
  maximumSize_ = rescale(maximumSize_);
  for (std::int16_t& margin : Links().contentsMargins)
    margin = static_cast<std::int16_t>(rescale.Length(margin));
  if (Links().layout) Links().layout->Rescale(rescale);
  lastGeometry_ = Rect();
  if (font_) font_ = MakeFont(fontRecord_);
  if (GetHandle()) Window().SetFont(Font());
  if (Links().layoutItem) Links().layoutItem->InvalidateSizeCache();
  for (BaseGUIObject* child : children_) ImplOf(child)->Rescale(rescale);
}

// -- Fonts and colours --------------------------------------------------------

HFONT BaseImplMFC::Font() const {
  return font_ ? font_->GetSafeHandle() : DialogFont();
}

void BaseImplMFC::SetFont(const FontData& font) {
  fontRecord_ = font;
  ResolveFont();
}

void BaseImplMFC::ResolveFont() {
  if (!owner_) return;
  const BaseImplMFC* parent = ImplOf(static_cast<BaseGUIObject*>(owner_->GetParent()));
  const FontData inherited = parent ? parent->resolvedFont_ : FontData();
  const FontData resolved = MergedFont(fontRecord_, inherited);
  if (resolved == resolvedFont_) return;
  resolvedFont_ = resolved;
  if (parent && resolvedFont_ == inherited) {
    font_ = parent->font_;
  } else {
    font_ = IsFontSet(resolvedFont_) ? MakeFont(resolvedFont_) : nullptr;
  }
  if (GetHandle()) Window().SetFont(Font());
  InvalidateLayout();
  for (const BaseGUIObject* child : children_) ImplOf(child)->ResolveFont();
}

FontData BaseImplMFC::NativeFont() {
  return IsFontSet(fontRecord_) ? fontRecord_ : FontRecordOf(Font());
}

int BaseImplMFC::GetTextWidth(const std::wstring& text, const FontData* font) {
  if (!font) return GetTextExtent(Font(), text).cx;
  return GetTextExtent(MakeFont(*font)->GetSafeHandle(), text).cx;
}

bool BaseImplMFC::SetSkinMode(SkinMode mode, bool repaint) {
  if (!skinManager_.SetSkinMode(mode)) return false;
  for (BaseGUIObject* child : children_) child->SetSkinMode(mode, false);
  if (repaint && GetHandle())
    Window().RedrawWindow(nullptr, nullptr,
                          RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  return true;
}

void BaseImplMFC::OnSkinColorsChanged() {
  if (!skinManager_.GetColorChangeFlag()) RefreshSkinColors();
  for (BaseGUIObject* child : children_) child->GetSkinManager().SetColorChangeFlag(true);
}

void BaseImplMFC::RefreshSkinColors() {
  if (!GetHandle()) return;
  Window().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

COLORREF BaseImplMFC::BackgroundColor() {
  BaseImplMFC* parent = owner_ ? ImplOf(static_cast<BaseGUIObject*>(owner_->GetParent())) : nullptr;
  return parent ? parent->BackgroundColor() : DialogBackground(skinManager_);
}

void BaseImplMFC::ReadPalette(ControlPalette& palette) {
  palette.background = BackgroundColor();
  FillPalette(palette);
}

void BaseImplMFC::FillPalette(ControlPalette& palette) {
  FillCommonPalette(palette, skinManager_);
}

}  // namespace Wexa
