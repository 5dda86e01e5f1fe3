#pragma once

namespace Wexa {

class BaseGUIObject;
class FormReader;

// What a form says of a widget, put into the widget before its native window exists: text,
// rectangle, size limits and policy, native style, and what only its kind has. Throws the
// conversion errors of numbers that are none.
void ApplyWidgetSettings(BaseGUIObject& widget, const FormReader& form);
// Explicit minimum and maximum sizes.
void ApplySizeLimits(BaseGUIObject& widget, const FormReader& form);

}  // namespace Wexa
