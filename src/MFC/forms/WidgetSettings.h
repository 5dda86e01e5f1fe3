#pragma once

#include <string>

namespace Wexa {

class BaseGUIObject;
class FormNode;

// What a form says of a widget, put into the widget before its native window exists: texts,
// rectangle, size limits and policy, native style, and the settings of its class. `className` is
// the form class that the widget was made for. Throws the conversion errors of numbers that are
// none.
void ApplyWidgetSettings(BaseGUIObject& widget, const FormNode& node,
                         const std::wstring& className);
// Explicit minimum and maximum sizes.
void ApplySizeLimits(BaseGUIObject& widget, const FormNode& node);

}  // namespace Wexa
