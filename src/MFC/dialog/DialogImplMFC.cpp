#include "MFC/DialogImplMFC.h"

#include <algorithm>
#include <cstdint>

#include "MFC/base/WidgetColors.h"
#include "MFC/dialog/BaseDialogMFC.h"
#include "MFC/tips/ToolTips.h"
#include "WexaUtils.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

// A dialog's surface stays within what memory and servers bear.
constexpr int kLargestSide = 16384;
constexpr std::int64_t kMostPixels = 32 << 20;

Size WithinSurfaceLimits(Size size) {
  int width = std::clamp(size.Width(), 1, kLargestSide);
  int height = std::clamp(size.Height(), 1, kLargestSide);
  return {width, std::min(height, static_cast<int>(kMostPixels / width))};
}

}  // namespace

Dialog::impl::impl(Dialog* owner, DWORD style, CWnd* parent)
    : BaseImplMFC(owner),
      window_(std::make_unique<BaseDialogMFC>(*this)),
      input_(elements_, *window_),
      skin_(GetSkinManager(), elements_),
      life_(*this, *window_, parent),
      resolution_(*this),
      toolTips_(std::make_unique<ToolTips>()) {
  Creation().style = style;
  skin_.BeginWithGlobal();
}

Dialog::impl::~impl() {
  DropElements();
}

// The dialog is gone for its host: its widgets go now, even while a handler still runs in them.
void Dialog::impl::Release() {
  BaseImplMFC::Release();
  DropElements();
}

void Dialog::impl::DropElements() {
  Children().clear();
  DeleteLayout();
  elements_.Drop();
}

CWnd* Dialog::impl::GetCWnd() {
  return window_.get();
}

bool Dialog::impl::CreateNative(CWnd* parent) {
  life_.ShowModeless(parent, true);
  return true;
}

void Dialog::impl::MarkInitialized() {
  Facade().initialized_ = true;
}

bool Dialog::impl::OnPreTranslate(const MSG& message) {
  if (!Owner()) return false;
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN)
    window_->OnInputWithin(*Owner(), message.hwnd, message.message);
  return input_.OnInput(message);
}

// -- Size

Size Dialog::impl::IdealSize() {
  Size content = BaseImplMFC::IdealSize();
  return Links().layout ? content : clientSize_;
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

void Dialog::impl::OnResolutionChanged() {
  resolution_.Follow();
  if (GetHandle()) pages_.TellResolution();
}

// -- Skin

COLORREF Dialog::impl::BackgroundColor() {
  return DialogBackground(GetSkinManager());
}

void Dialog::impl::OnSystemColorsChanged() {
  skin_.FollowSystem(Children());
}

bool Dialog::impl::SetSkinMode(SkinMode mode, bool repaint) {
  if (!skin_.SetMode(mode)) return false;
  if (repaint && GetHandle()) Facade().UpdateWindow();
  return true;
}

void Dialog::impl::SetCustomSkin(const SkinManager& skin, bool update) {
  skin_.SetCustom(skin);
  if (update && GetHandle()) Facade().UpdateWindow();
}

}  // namespace Wexa
