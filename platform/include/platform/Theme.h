#pragma once

// The look of the native parts: one place decides how a button, a check box or an edit's frame
// is drawn and how large it is. Colours come with the call; metrics are device pixels.

#include <string_view>

#include "Painter.h"

#pragma GCC visibility push(default)  // hosts may use all of this

// What a control paints with. A window is asked for its palette with WM_GETCONTROLPALETTE
// (lParam = ControlPalette* to change); unanswered, the system colours stand.
struct ControlPalette {
  COLORREF background;  // behind the control, its parent's colour
  COLORREF face;        // the control's own area
  COLORREF text;
  COLORREF disabledFace;
  COLORREF disabledText;
  COLORREF border;
  COLORREF hoverFace;
  COLORREF hoverBorder;
  COLORREF pressedFace;
  COLORREF pressedText;
  COLORREF disabledBorder;
  COLORREF accent;      // focus, default button, filled check boxes
  COLORREF accentText;  // on the accent
  COLORREF selection;   // behind selected text
  COLORREF selectionText;
  COLORREF placeholder;
  int radius = 0;  // of the control's corners
};

struct ControlState {
  bool enabled = true;
  bool hovered = false;
  bool pressed = false;
  bool focused = false;
  bool focusCue = false;     // focused, and shown so: the keyboard was used
  bool mnemonicCue = false;  // the keyboard was used: texts show their mnemonics, focused or not
  bool isDefault = false;
  int check = 0;  // 0 unchecked, 1 checked, 2 partially checked
};

enum class FramePart { None, Caption, Close, Border };

// The colour so many percent of the way from one to the other.
COLORREF MixColors(COLORREF from, COLORREF to, int percent);
// How much two colours differ in brightness, from 1 to 21: text needs 4.5, in high contrast 7.
double Contrast(COLORREF a, COLORREF b);
// The system-colour palette of a control on a dialog.
ControlPalette SystemPalette();

namespace Theme {

// DT_HIDEPREFIX until the keyboard was used.
UINT PrefixFormat(const ControlState&);
// Push buttons: the frame, and how much room it takes around the text on each side.
void DrawPushButton(Painter&, const RECT&, const ControlState&, const ControlPalette&);
SIZE PushButtonPadding();
// Check boxes and radio buttons: the square or circle of this side length, and the gap to the text.
int CheckSize();
int CheckGap();
void DrawCheckBox(Painter&, const RECT&, const ControlState&, const ControlPalette&);
void DrawRadioButton(Painter&, const RECT&, const ControlState&, const ControlPalette&);
// Bordered fields (edits, lists, combo boxes): fill and frame.
void DrawField(Painter&, const RECT&, const ControlState&, const ControlPalette&);
// Field's inner padding from its outer edge to its text.
SIZE FieldPadding();
// The drop-down arrow of a combo box and the arrow pair of a spin box at the right end.
int ArrowButtonWidth();
void DrawDropDownArrow(Painter&, const RECT&, const ControlState&, const ControlPalette&);
void DrawSpinArrows(Painter&, const RECT&, const ControlState&, const ControlPalette&);
// Group boxes: the frame interrupted by its title, which stands left, centred or right: 0, 1, 2.
void DrawGroupBox(Painter&, const RECT&, std::wstring_view title, HFONT, const ControlState&,
                  const ControlPalette&, int across = 0);
// Space a group box's frame and title take on each side of its content.
RECT GroupBoxMargins(HFONT, bool hasTitle);
// One tab of a tab control, its text included. `outer` is the edge away from the pages.
enum class TabEdge { Top, Bottom, Left, Right };
void DrawTab(Painter&, const RECT&, std::wstring_view text, HFONT, bool selected, TabEdge outer,
             const ControlState&, const ControlPalette&);
SIZE TabPadding();
void DrawLine(Painter&, const RECT&, bool vertical, const ControlPalette&);
// Progress bars: filled from one fraction of their length to another, from the bottom up when
// vertical; and the rectangle that is filled so.
void DrawProgress(Painter&, const RECT&, double from, double to, bool vertical,
                  const ControlPalette&);
RECT ProgressPart(const RECT&, double from, double to, bool vertical);
// Sliders: the thumb's length along the track.
void DrawSlider(Painter&, const RECT&, double fraction, bool vertical, const ControlState&,
                const ControlPalette&);
int SliderThumbLength();
// The parts of scroll bars.
void DrawScrollThumb(Painter&, const RECT&, bool vertical, const ControlState&,
                     const ControlPalette&);
void DrawScrollArrow(Painter&, const RECT&, ArrowDirection, const ControlState&,
                     const ControlPalette&);
int ScrollBarWidth();
int ShortestScrollThumb();
// The handle between the panes of a splitter.
void DrawSplitHandle(Painter&, const RECT&, bool vertical, const ControlState&,
                     const ControlPalette&);

// Frames of top-level windows.
int CaptionHeight();
int SizingFrameWidth();
int FixedFrameWidth();
void DrawCaption(Painter&, const RECT& caption, std::wstring_view title, bool active,
                 bool hasCloseButton, FramePart hovered, FramePart pressed);
RECT CloseButtonRect(const RECT& caption);
void DrawWindowFrame(Painter&, const RECT&, int thickness, bool active);

}  // namespace Theme

#pragma GCC visibility pop
