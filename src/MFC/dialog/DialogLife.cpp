#include "MFC/dialog/DialogLife.h"

#include <algorithm>

#include "MFC/DialogImplMFC.h"
#include "MFC/EventDispatch.h"
#include "Utf16.h"
#include "WexaConfig.h"
#include "WexaException.h"
#include "layout/Layout.h"

namespace Wexa {

namespace {

constexpr const char* kHeader = "include/MFC/DialogImplMFC";
constexpr const char* kSource = "src/MFC/DialogImplMFC";
constexpr int kFilteredOut = -1;
constexpr DWORD kNoCentering = 0x4;
constexpr DWORD kExtendedBits =
    WS_EX_CONTEXTHELP | WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_DLGMODALFRAME;
constexpr std::size_t kFixedTemplateBytes = 53;
constexpr std::size_t kTypefaceUnits = 12;
constexpr std::uint16_t kTemplatePointSize = 11;

[[noreturn]] void ThrowNotCreated() {
  throw WexaException(kSource, __LINE__, "Cannot create dialog from dialog template data.");
}

}  // namespace

// -- Showing and ending

int DialogLife::ShowModal() {
  MakeTemplate();
  window_.InitModalIndirect(&Template(), parent_);
  const auto result = static_cast<int>(window_.DoModal());
  if (!wasMade_ && dialog_.Owner()) ThrowNotCreated();
  return result;
}

void DialogLife::ShowModeless(CWnd* parent, bool show) {
  MakeTemplate();
  if (!show) Template().style &= ~WS_VISIBLE;
  window_.CreateIndirect(&Template(), parent);
  if (!wasMade_ && dialog_.Owner()) ThrowNotCreated();
}

void DialogLife::End(int state) {
  if (!window_.GetSafeHwnd()) throw WexaException(kHeader, __LINE__, "Invalid Control!");
  Dialog& facade = dialog_.Facade();
  if (facade.FilterDone(state) == kFilteredOut || !window_.GetSafeHwnd()) return;
  if (facade.IsModalMode()) {
    window_.EndDialog(state);
  } else {
    window_.DestroyWindow();
  }
}

void DialogLife::OnCloseRequest() {
  const bool hasSystemMenu = (window_.GetStyle() & WS_SYSMENU) != 0;
  if (hasSystemMenu && dialog_.Owner()) End(Dialog::Rejected);
}

// -- Template

DLGTEMPLATE& DialogLife::Template() {
  return *reinterpret_cast<DLGTEMPLATE*>(template_.data());
}

// Without controls: header, no menu, no class, title, point size, typeface. A window of before
// gives way.
void DialogLife::MakeTemplate() {
  if (window_.GetSafeHwnd()) window_.DestroyWindow();
  dialog_.Resolution().Follow();
  wasMade_ = false;
  dialog_.Creation().enabled = true;  // nobody could end it otherwise
  const std::u16string text = ToUtf16(title_);
  const std::u16string face = ToUtf16(GetFontInfo()->faceName).substr(0, kTypefaceUnits - 1);
  const std::size_t bytes = (2 * text.size() + kFixedTemplateBytes) & ~std::size_t{3};
  template_.assign(bytes / 4 + 1, 0);

  DLGTEMPLATE& header = Template();
  const DWORD style = dialog_.Creation().style;
  header.style = style & ~kExtendedBits;
  header.dwExtendedStyle = style & kExtendedBits;
  if (GetLayoutRTL()) header.dwExtendedStyle |= WS_EX_LAYOUTRTL;

  auto* units = reinterpret_cast<char16_t*>(&header + 1) + 2;  // after menu and class
  std::copy(text.begin(), text.end(), units);
  units += text.size() + 1;
  *units++ = kTemplatePointSize;
  std::copy(face.begin(), face.end(), units);
}

// -- Initialisation

bool DialogLife::OnInitDialog() {
  wasMade_ = true;
  const auto held = dialog_.Owner()->GetBaseImpl();  // a handler may destroy the dialog in any step
  for (const auto step :
       {&DialogLife::SettleStyle, &DialogLife::SizeToClient, &DialogLife::CreateElements,
        &DialogLife::ArrangeFirstTime, &DialogLife::Centre, &DialogLife::ShowFirstTime}) {
    (this->*step)();
    if (!window_.GetSafeHwnd() || !dialog_.Owner()) return false;
  }
  return TellHost() && !dialog_.Elements().Focused();
}

void DialogLife::CreateElements() {
  dialog_.Elements().CreateWindows(window_);
  if (!window_.GetSafeHwnd() || !dialog_.Owner()) return;
  dialog_.Facade().SetTopLevelDlg(&window_);
  AttachWindowProcedure(dialog_.Facade(), window_.GetSafeHwnd());
  dialog_.Elements().ApplyTabOrder();
}

void DialogLife::Centre() {
  if ((dialog_.Creation().style & kNoCentering) == 0) window_.CenterWindow();
}

void DialogLife::ShowFirstTime() {
  dialog_.Update();
  dialog_.Input().ApplyDefaultButton();
  SettleFrame();
  dialog_.Resolution().RememberArranged();
  dialog_.RefreshSkinColors();
}

// False when the window is gone: the host refused the dialog, ended it or destroyed it.
bool DialogLife::TellHost() {
  Dialog& facade = dialog_.Facade();
  const HWND window = window_.GetSafeHwnd();
  dialog_.MarkInitialized();
  const bool accepted = facade.InitializeControls();
  if (accepted && IsWindow(window)) facade.Initialized();
  if (!accepted && IsWindow(window)) End(Dialog::Rejected);
  return IsWindow(window);
}

void DialogLife::SettleStyle() {
  DWORD style = window_.GetStyle();
  if ((style & WS_CAPTION) != WS_CAPTION)
    style = (style & ~WS_DLGFRAME) | WS_BORDER;
  else if ((style & WS_DLGFRAME) && !(style & WS_BORDER))
    style &= ~WS_BORDER;
  window_.ModifyStyle(window_.GetStyle() & ~style, style);
}

void DialogLife::SizeToClient() {
  const Size client = dialog_.ClientSize();
  const Size frame = dialog_.FrameSize();
  window_.SetWindowPos(nullptr, 0, 0, client.Width() + frame.Width(),
                       client.Height() + frame.Height(),
                       SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

void DialogLife::ArrangeFirstTime() {
  Arrange(dialog_.ClientSize());
}

void DialogLife::Arrange(Size client) {
  dialog_.Elements().StartLayoutsAgain();
  if (Layout* layout = dialog_.Links().layout) ArrangeLayout(*layout, client);
  dialog_.Elements().ArrangeFreeOnes(window_);
}

// The first pass finds the dialog's limits; the window then takes a size within them in which all
// has its place, even where the form allows less, and tall enough for wrapped texts.
void DialogLife::ArrangeLayout(Layout& layout, Size client) {
  layout.RequestUpdate(false);
  layout.Activate();
  if (!window_.GetSafeHwnd()) return;
  const Size least = layout.TotalMinimumSize().GetInflated(dialog_.MinimumSize());
  const int width = std::max(client.Width(), least.Width());
  const int height = layout.HasHeightForWidth() ? layout.TotalMinimumHeightForWidth(width) : 0;
  dialog_.ResizeClient(width, std::max({client.Height(), least.Height(), height}));
}

void DialogLife::SettleFrame() {
  const DWORD frame = dialog_.Creation().style & WS_THICKFRAME;
  window_.ModifyStyle(frame ? 0 : WS_THICKFRAME, frame, SWP_FRAMECHANGED);
}

}  // namespace Wexa
