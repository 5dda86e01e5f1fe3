#pragma once

namespace Wexa {

class BaseGUIObject;
class FormNode;

// The settings of a widget's class that its form states: alignment, ranges, items, checks and so
// on.
void ApplyClassSettings(BaseGUIObject& widget, const FormNode& node);

}  // namespace Wexa
