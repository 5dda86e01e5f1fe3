#include "controls/EditControl.h"

#include <algorithm>

#include "platform/ControlConstants.h"

namespace {

constexpr std::size_t kDefaultLimit = 32767;
constexpr std::size_t kNoLimit = 0x7FFFFFFE;
constexpr wchar_t kPasswordDot = L'\u25CF';
constexpr int kPlainInset = 1;

wchar_t* TextOf(LPARAM lParam) {
  return reinterpret_cast<wchar_t*>(lParam);
}

EditView::Alignment AlignmentOf(DWORD style) {
  if (style & ES_CENTER) return EditView::Alignment::Center;
  return style & ES_RIGHT ? EditView::Alignment::Right : EditView::Alignment::Left;
}

// A line has room for neither of these.
bool IsLineEnd(wchar_t c) {
  return c == L'\n' || c == L'\r' || c == L'\x2028' || c == L'\x2029';
}

std::wstring_view FirstLine(std::wstring_view text) {
  const auto end = std::find_if(text.begin(), text.end(), IsLineEnd);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

bool HasFrame(DWORD style) {
  return (style & WS_BORDER) != 0;
}

SIZE Inset(DWORD style) {
  return HasFrame(style) ? Theme::FieldPadding()
                         : SIZE{ScaleUnits(kPlainInset), ScaleUnits(kPlainInset)};
}

LRESULT CopyText(const std::wstring& text, wchar_t* buffer, std::size_t count) {
  if (!buffer || count == 0) return 0;
  const std::size_t length = text.copy(buffer, count - 1);
  buffer[length] = 0;
  return static_cast<LRESULT>(length);
}

}  // namespace

EditControl::EditControl(HWND window) : Control(window), limit_(kDefaultLimit) {
  if (Style() & ES_PASSWORD) passwordChar_ = kPasswordDot;
}

LRESULT EditControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  const bool handled =
      HandleInput(message, wParam, lParam, result) || HandleText(message, wParam, lParam, result) ||
      HandleEditMessage(message, wParam, lParam, result) ||
      HandleMode(message, wParam, lParam, result) || HandleClipboard(message, result) ||
      HandleWindow(message, wParam, lParam, result);
  return handled ? result : Control::Handle(message, wParam, lParam);
}

bool EditControl::HandleText(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case WM_SETTEXT:
      SetContent(TextOf(lParam));
      result = TRUE;
      return true;
    case WM_GETTEXT: result = CopyText(buffer_.Text(), TextOf(lParam), wParam); return true;
    case WM_GETTEXTLENGTH: result = static_cast<LRESULT>(buffer_.Length()); return true;
    default: return false;
  }
}

bool EditControl::HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case EM_GETSEL:
      result = ReportSelection(reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
      return true;
    case EM_SETSEL: SelectFromMessage(static_cast<LPARAM>(wParam), lParam); return true;
    case EM_SCROLLCARET: UpdateView(Scroll::ToCaret); return true;
    case EM_REPLACESEL:
      Insert(lParam ? TextOf(lParam) : L"", EditBuffer::Change::Single);
      return true;
    case EM_CANUNDO: result = buffer_.CanUndo(); return true;
    case WM_UNDO:
    case EM_UNDO:
      result = buffer_.CanUndo();
      Undo();
      return true;
    case EM_CHARFROMPOS:
      result = static_cast<LRESULT>(view_.IndexAtX(GET_X_LPARAM(lParam)));
      return true;
    case EM_POSFROMCHAR:
      result = MAKELPARAM(view_.XOfIndex(wParam), view_.LineRect().top);
      return true;
    default: return false;
  }
}

bool EditControl::HandleMode(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case EM_LIMITTEXT: limit_ = wParam ? wParam : kNoLimit; return true;
    case EM_GETLIMITTEXT: result = static_cast<LRESULT>(limit_); return true;
    case EM_SETPASSWORDCHAR:
      passwordChar_ = static_cast<wchar_t>(wParam);
      UpdateView(Scroll::ToCaret);
      return true;
    case EM_GETPASSWORDCHAR: result = passwordChar_; return true;
    case EM_SETREADONLY:
      SetReadOnly(wParam != 0);
      result = TRUE;
      return true;
    case EM_SETMARGINS: SetMargins(wParam, lParam); return true;
    case EM_GETMARGINS: result = MAKELPARAM(leftMargin_, rightMargin_); return true;
    case EM_SETCUEBANNER:
      SetCue(TextOf(lParam), wParam != 0);
      result = TRUE;
      return true;
    case EM_GETCUEBANNER:
      result =
          CopyText(cue_, reinterpret_cast<wchar_t*>(wParam), static_cast<std::size_t>(lParam)) > 0;
      return true;
    default: return false;
  }
}

bool EditControl::HandleClipboard(UINT message, LRESULT& result) {
  switch (message) {
    case WM_COPY: result = Copy(); return true;
    case WM_CUT: Cut(); return true;
    case WM_PASTE: Paste(); return true;
    case WM_CLEAR:
      if (!IsReadOnly() && buffer_.Replace({})) ContentChanged();
      return true;
    default: return false;
  }
}

bool EditControl::HandleInput(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_GETDLGCODE: result = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS; return true;
    case WM_KEYDOWN: return OnKeyDown(static_cast<int>(wParam));
    case WM_CHAR: OnCharacter(static_cast<wchar_t>(wParam)); return true;
    case WM_LBUTTONDOWN: OnPress(point); return true;
    case WM_LBUTTONDBLCLK: OnDoubleClick(point); return true;
    case WM_MOUSEMOVE: OnDrag(point); return false;
    case WM_LBUTTONUP:
    case WM_CANCELMODE: OnRelease(); return true;
    case WM_CAPTURECHANGED: StopDragging(); return true;
    case WM_TIMER: return OnTimer(wParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: OnFocus(message == WM_SETFOCUS); return true;
    default: return false;
  }
}

bool EditControl::HandleWindow(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case WM_CREATE:
      if (lParam) TakeFirstText(*reinterpret_cast<const CREATESTRUCTW*>(lParam));
      return true;
    case WM_SIZE: FitView(Scroll::ToCaret); return true;
    case WM_STYLECHANGED:
      result = Default(message, wParam, lParam);
      UpdateView(Scroll::ToCaret);
      return true;
    default: return false;
  }
}

// -- Text ----------------------------------------------------------------------------------------

bool EditControl::IsReadOnly() const {
  return (Style() & ES_READONLY) != 0;
}

// What is seen: one character for each of the text's.
std::wstring EditControl::DisplayText() const {
  if (passwordChar_) return std::wstring(buffer_.Length(), passwordChar_);
  std::wstring text = buffer_.Text();
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return c < L' ' || IsLineEnd(c); }, L' ');
  return text;
}

void EditControl::TakeFirstText(const CREATESTRUCTW& creation) {
  buffer_.SetText(creation.lpszName ? creation.lpszName : L"");
  UpdateView(Scroll::ToCaret);
}

void EditControl::SetContent(const wchar_t* text) {
  buffer_.SetText(text ? text : L"");
  ContentChanged();
}

void EditControl::Insert(std::wstring_view text, EditBuffer::Change change) {
  text = FirstLine(text);
  const std::size_t kept = buffer_.Length() - (buffer_.SelectionEnd() - buffer_.SelectionStart());
  const std::size_t room = limit_ > kept ? limit_ - kept : 0;
  const bool tooLong = text.size() > room;
  if (tooLong && !Notify(EN_MAXTEXT)) return;
  if (buffer_.Replace(text.substr(0, room), change)) ContentChanged();
}

void EditControl::EraseTo(std::size_t place) {
  const auto [from, to] = std::minmax({place, buffer_.Caret()});
  if (buffer_.Erase(from, to, EditBuffer::Change::Erasing)) ContentChanged();
}

void EditControl::ContentChanged() {
  UpdateView(Scroll::ToCaret);
  RestartBlinking();
  if (Notify(EN_UPDATE)) Notify(EN_CHANGE);
}

void EditControl::Undo() {
  if (!IsReadOnly() && buffer_.Undo()) ContentChanged();
}

void EditControl::Redo() {
  if (!IsReadOnly() && buffer_.Redo()) ContentChanged();
}

// -- Selection and clipboard ---------------------------------------------------------------------

void EditControl::Select(std::size_t anchor, std::size_t caret, Scroll scroll) {
  buffer_.Select(anchor, caret);
  RestartBlinking();
  UpdateView(scroll);
}

void EditControl::MoveCaret(std::size_t place, bool extend) {
  Select(extend ? buffer_.Anchor() : place, place, Scroll::ToCaret);
}

void EditControl::SelectWordAt(std::size_t index) {
  const TextLine& line = view_.Line();
  const std::size_t from = line.PreviousWord(std::min(line.NextCluster(index), buffer_.Length()));
  Select(from, line.NextWord(from), Scroll::ToCaret);
}

// From -1 removes the selection, to -1 means the end of the text.
void EditControl::SelectFromMessage(LPARAM from, LPARAM to) {
  const auto first = static_cast<std::int32_t>(from);
  const auto last = static_cast<std::int32_t>(to);
  if (first < 0) return Select(buffer_.Caret(), buffer_.Caret(), Scroll::No);
  const std::size_t end = last < 0 ? buffer_.Length() : static_cast<std::size_t>(last);
  Select(static_cast<std::size_t>(first), end, Scroll::No);
}

LRESULT EditControl::ReportSelection(DWORD* from, DWORD* to) const {
  const auto start = static_cast<DWORD>(buffer_.SelectionStart());
  const auto end = static_cast<DWORD>(buffer_.SelectionEnd());
  if (from) *from = start;
  if (to) *to = end;
  if (end > 0xFFFF) return -1;
  return MAKELPARAM(static_cast<int>(start), static_cast<int>(end));
}

bool EditControl::Copy() const {
  if (passwordChar_ || !buffer_.HasSelection()) return false;
  SetClipboardText(buffer_.SelectedText());
  return true;
}

void EditControl::Cut() {
  if (!IsReadOnly() && Copy() && buffer_.Replace({})) ContentChanged();
}

void EditControl::Paste() {
  if (!IsReadOnly()) Insert(GetClipboardText(), EditBuffer::Change::Single);
}

// -- Modes ---------------------------------------------------------------------------------------

void EditControl::SetReadOnly(bool readOnly) {
  const DWORD style = readOnly ? Style() | ES_READONLY : Style() & ~ES_READONLY;
  SetWindowLongPtrW(Window(), GWL_STYLE, static_cast<LONG_PTR>(style));
}

void EditControl::SetMargins(WPARAM which, LPARAM margins) {
  if (which & EC_LEFTMARGIN) leftMargin_ = LOWORD(margins);
  if (which & EC_RIGHTMARGIN) rightMargin_ = HIWORD(margins);
  UpdateView(Scroll::ToCaret);
}

void EditControl::SetCue(const wchar_t* text, bool withFocus) {
  cue_ = text ? text : L"";
  cueWithFocus_ = withFocus;
  Repaint();
}

void EditControl::OnFontChanged() {
  view_.SetFont(Font());
  UpdateView(Scroll::ToCaret);
}

void EditControl::UpdateView(Scroll scroll) {
  view_.SetAlignment(AlignmentOf(Style()));
  view_.SetMirrored((GetWindowLongPtrW(Window(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0);
  view_.SetText(DisplayText());
  FitView(scroll);
}

void EditControl::FitView(Scroll scroll) {
  const SIZE inset = Inset(Style());
  CRect area = Client().Shrunk(inset.cx, inset.cy);
  area.left += leftMargin_;
  area.right = std::max<LONG>(area.left, area.right - rightMargin_);
  view_.SetArea(area);
  if (scroll == Scroll::ToCaret) view_.ScrollTo(buffer_.Caret());
  Repaint();
}

int EditControl::IdealHeight(HWND window) {
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
  return GetFontMetrics(font).height + 2 * Inset(style).cy;
}

// -- Look ----------------------------------------------------------------------------------------

EditView::Marks EditControl::Marks() const {
  EditView::Marks marks;
  marks.selectionStart = buffer_.SelectionStart();
  marks.selectionEnd = buffer_.SelectionEnd();
  marks.caret = buffer_.Caret();
  marks.showsSelection = HasFocus() && buffer_.HasSelection();
  marks.showsCaret = HasFocus() && caretShown_;
  return marks;
}

void EditControl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  const ControlState state = State();
  if (HasFrame(Style())) {
    painter.FillRect(client, palette.background);
    Theme::DrawField(painter, client, state, palette);
  } else {
    painter.FillRect(client, state.enabled ? palette.face : palette.disabledFace);
  }
  const COLORREF text = state.enabled ? palette.text : palette.disabledText;
  if (buffer_.Length() == 0) PaintCue(painter, palette);
  view_.Paint(painter, {text, palette.selection, palette.selectionText, palette.text}, Marks());
}

void EditControl::PaintCue(Painter& painter, const ControlPalette& palette) const {
  if (cue_.empty() || (HasFocus() && !cueWithFocus_)) return;
  const DWORD style = Style();
  const UINT alignment = style & ES_CENTER ? DT_CENTER : style & ES_RIGHT ? DT_RIGHT : DT_LEFT;
  painter.Text(cue_, view_.Area(),
               alignment | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS, Font(),
               palette.placeholder);
}
