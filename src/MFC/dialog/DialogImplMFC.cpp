#include "MFC/DialogImplMFC.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "Configuration.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/dialog/BaseDialogMFC.h"
#include "MFC/tips/ToolTips.h"
#include "WexaException.h"
#include "WexaUtils.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr const char* kHeader = "include/MFC/DialogImplMFC";
constexpr const char* kSource = "src/MFC/DialogImplMFC";
constexpr int kFilteredOut = -1;
// A dialog's surface stays within what memory and servers bear.
constexpr int kLargestSide = 16384;
constexpr std::int64_t kMostPixels = 32 << 20;

Size WithinSurfaceLimits(Size size) {
  int width = std::clamp(size.Width(), 1, kLargestSide);
  int height = std::clamp(size.Height(), 1, kLargestSide);
  return {width, std::min(height, static_cast<int>(kMostPixels / width))};
}

// High contrast overrides the host's colours.
const SkinManager* KeyMapParent() {
  WexaConfig& config = WexaConfig::Instance();
  config.FollowSystemColors();
  return WexaUtils::IsSystemHighContrastMode() ? nullptr : &config.keyMapSkin;
}

void ReloadPalettesOf(const std::vector<BaseGUIObject*>& widgets) {
  for (BaseGUIObject* widget : widgets) {
    widget->GetSkinManager().ReloadPalette();
    ReloadPalettesOf(ImplOf(widget)->Children());
  }
}

void Reinitialise(BaseGUIObject& widget, const SkinManager& parent, SkinMode mode) {
  widget.GetSkinManager().ResetInitilization();
  widget.GetSkinManager().InitSkinManager(&parent, mode);
}

[[noreturn]] void ThrowNotCreated() {
  throw WexaException(kSource, __LINE__, "Cannot create dialog from dialog template data.");
}

}  // namespace

Dialog::impl::impl(Dialog* owner, DWORD style, CWnd* parent)
    : BaseImplMFC(owner),
      window_(std::make_unique<BaseDialogMFC>(*this)),
      parentWindow_(parent),
      toolTips_(std::make_unique<ToolTips>()) {
  Creation().style = style;
  resizable = (style & WS_THICKFRAME) != 0;
  InitSkin();
}

Dialog::impl::~impl() {
  DropElements();
}

// The dialog is gone for its host: its widgets go now, even while a handler still runs in them.
void Dialog::impl::Release() {
  BaseImplMFC::Release();
  DropElements();
}

// Layouts go before the widgets that their items place; children before their parents.
void Dialog::impl::DropElements() {
  auto elements = std::exchange(elements_, {});
  elementsByName_.clear();
  Children().clear();
  for (Element& element : elements) ImplOf(element.widget.get())->DeleteLayout();
  DeleteLayout();
  for (Element& element : elements) {
    const bool hostHoldsIt = element.widget.use_count() > 1;
    ImplOf(element.widget.get())->LeaveDialog(hostHoldsIt);
  }
  while (!elements.empty()) elements.pop_back();
}

CWnd* Dialog::impl::GetCWnd() {
  return window_.get();
}

// -- Elements

void Dialog::impl::AddElement(const std::wstring& name, std::shared_ptr<BaseGUIObject> widget) {
  elementsByName_.try_emplace(name, elements_.size());
  elements_.push_back({name, std::move(widget)});
}

std::shared_ptr<BaseGUIObject> Dialog::impl::ElementByName(const std::wstring& name) const {
  auto found = elementsByName_.find(name);
  return found == elementsByName_.end() ? nullptr : elements_[found->second].widget;
}

// A widget may consist of several windows.
BaseGUIObject* Dialog::impl::FocusedElement() const {
  for (HWND window = GetFocus(); window; window = ::GetParent(window))
    if (BaseGUIObject* widget = WidgetOf(window)) return widget;
  return nullptr;
}

// An element, or a part of one that is a widget itself.
BaseGUIObject* Dialog::impl::WidgetOf(HWND window) const {
  for (const Element& element : elements_) {
    if (element.widget->GetPlatformHandle() == window) return element.widget.get();
    for (BaseGUIObject* part : ImplOf(element.widget.get())->Children())
      if (part->GetPlatformHandle() == window) return part;
  }
  return nullptr;
}

// -- Showing and ending

int Dialog::impl::DoModal() {
  MakeWindow();
  window_->InitModalIndirect(&Template(), parentWindow_);
  wasInitialized_ = false;
  auto result = static_cast<int>(window_->DoModal());
  if (!wasInitialized_ && Owner()) ThrowNotCreated();
  return result;
}

void Dialog::impl::DoModeless(CWnd* parent, bool show) {
  MakeWindow();
  if (!show) Template().style &= ~WS_VISIBLE;
  if (!window_->CreateIndirect(&Template(), parent) && Owner()) ThrowNotCreated();
}

bool Dialog::impl::CreateNative(CWnd* parent) {
  DoModeless(parent, true);
  return true;
}

void Dialog::impl::MakeWindow() {
  if (GetHandle()) window_->DestroyWindow();
  FollowResolution();
  BuildTemplate();
}

void Dialog::impl::Done(int state) {
  if (!GetHandle()) throw WexaException(kHeader, __LINE__, "Invalid Control!");
  auto* dialog = static_cast<Dialog*>(Owner());
  if (dialog->FilterDone(state) == kFilteredOut || !GetHandle()) return;
  if (dialog->IsModalMode()) {
    window_->EndDialog(state);
  } else {
    window_->DestroyWindow();
  }
}

void Dialog::impl::OnCloseRequest() {
  bool hasSystemMenu = (window_->GetStyle() & WS_SYSMENU) != 0;
  if (hasSystemMenu && Owner()) Done(Rejected);
}

// -- Size

Size Dialog::impl::IdealSize() {
  Size content = BaseImplMFC::IdealSize();
  return Links().layout ? content : clientSize;
}

Size Dialog::impl::FrameSize() {
  auto style = static_cast<unsigned long>(GetHandle() ? window_->GetStyle() : Creation().style);
  return {static_cast<int>(WexaUtils::DialogFrameWidth(style)),
          static_cast<int>(WexaUtils::DialogFrameHeight(style))};
}

// The limits count for the client area: it is what the form and the layout know.
Size Dialog::impl::WithinLimits(Size client) {
  return WithinSurfaceLimits(client.GetDeflated(MaximumSize()).GetInflated(MinimumSize()));
}

void Dialog::impl::MoveWindow(int x, int y, int width, int height, bool) {
  CWnd& window = Window();
  Size frame = FrameSize();
  Size client = WithinLimits({width - frame.Width(), height - frame.Height()});
  Rect place(x, y, client.Width() + frame.Width(), client.Height() + frame.Height());
  window.MoveWindow(place.PlatformRect(), true);
  if (GetHandle()) UpdateLayout();  // unless a handler closed the window
}

void Dialog::impl::ResizeClient(int width, int height) {
  CRect place = Window().GetWindowRect();
  Size frame = FrameSize();
  MoveWindow(place.left, place.top, width + frame.Width(), height + frame.Height(), true);
}

void Dialog::impl::SetFixedSize(Size size) {
  SetMinimumSize(size);
  SetMaximumSize(size);
  Links().explicitMinimum = {true, true};
  Links().explicitMaximum = {true, true};
  if (GetHandle()) ResizeClient(size.Width(), size.Height());
}

void Dialog::impl::OnGetMinMaxInfo(MINMAXINFO& info) {
  Size frame = FrameSize();
  Size least = WithinSurfaceLimits(MinimumSize());
  Size most = MaximumSize().GetDeflated({kLargestSide, kLargestSide}).GetInflated({1, 1});
  info.ptMinTrackSize = {least.Width() + frame.Width(), least.Height() + frame.Height()};
  info.ptMaxTrackSize = {most.Width() + frame.Width(), most.Height() + frame.Height()};
}

// The largest width and the largest height are not to be had together.
void Dialog::impl::OnPositionChanging(WINDOWPOS& request) {
  if (request.flags & SWP_NOSIZE) return;
  const Size frame = FrameSize();
  const Size client =
      WithinSurfaceLimits({request.cx - frame.Width(), request.cy - frame.Height()});
  request.cx = std::min(request.cx, client.Width() + frame.Width());
  request.cy = std::min(request.cy, client.Height() + frame.Height());
}

// -- Skin

void WexaConfig::RepaintDialogs() {
  for (HWND window : GetTopLevelWindows())
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void Dialog::impl::InitSkin() {
  WexaConfig::Instance().FollowSystemColors();
  const SkinManager& global = WexaConfig::Instance().globalSkin;
  if (global.GetSkinMode() == SkinMode::Custom) {
    GetSkinManager().SetCustomSkin(global);
  } else {
    GetSkinManager().InitSkinManager(&global, global.GetRequestedMode());
  }
}

COLORREF Dialog::impl::BackgroundColor() {
  return DialogBackground(GetSkinManager());
}

// The window core has the dialog painted.
void Dialog::impl::OnSystemColorsChanged() {
  WexaConfig::Instance().FollowSystemColors();
  SkinManager& skin = GetSkinManager();
  if (skin.GetRequestedMode() == SkinMode::XML) skin.SetParentSkinManager(KeyMapParent());
  skin.ReloadPalette();
  ReloadPalettesOf(Children());
}

bool Dialog::impl::SetSkinMode(SkinMode mode, bool repaint) {
  const bool entered =
      mode == SkinMode::XML ? EnterKeyMapMode() : GetSkinManager().SetSkinMode(mode);
  if (!entered) return false;
  ReinitialiseChildSkins(mode);
  if (repaint && GetHandle()) static_cast<Dialog*>(Owner())->UpdateWindow();
  return true;
}

bool Dialog::impl::EnterKeyMapMode() {
  if (!WexaConfig::Instance().keyMapSkin.IsKeyMapApplied()) return false;
  SkinManager& skin = GetSkinManager();
  skin.ResetInitilization();
  const bool entered = skin.InitSkinManager(KeyMapParent(), SkinMode::XML);
  if (!entered) skin.ResetInitilization();
  return entered;
}

// The dialog's skin stays above those of its widgets, so that its colours go on reaching them.
void Dialog::impl::ReinitialiseChildSkins(SkinMode mode) {
  for (Element& element : elements_) {
    Reinitialise(*element.widget, GetSkinManager(), mode);
    if (element.widget->Type() != GuiType::ButtonBox) continue;
    for (BaseGUIObject* button : ImplOf(element.widget.get())->Children())
      Reinitialise(*button, element.widget->GetSkinManager(), mode);
  }
}

void Dialog::impl::SetCustomSkin(const SkinManager& skin, bool update) {
  GetSkinManager().SetCustomSkin(skin);
  ReinitialiseChildSkins(SkinMode::Default);
  if (update && GetHandle()) static_cast<Dialog*>(Owner())->UpdateWindow();
}

}  // namespace Wexa
