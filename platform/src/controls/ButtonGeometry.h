#pragma once

// Where the parts of a button are, and how large it wants to be. Painting and layouts ask the same
// functions. Device pixels.

#include "platform/Geometry.h"
#include "platform/Types.h"

namespace ButtonGeometry {

enum class Look { Push, Check, Radio, Group };

// How a button of this style looks; what looks pushable is Push.
Look LookOf(DWORD style);

// The square or circle of a check box or radio button, at the left and vertically centred.
CRect MarkRect(const CRect& client);
// The text beside it.
CRect MarkTextRect(const CRect& client);
// The text of a push button.
CRect PushTextRect(const CRect& client);

// The size at which the button's text fits, with its present font and style.
SIZE IdealSize(HWND button);

}  // namespace ButtonGeometry
