#pragma once

#include <cstdint>

namespace Wexa {

class FormNode;
class Layout;

// Spacing, margins and size constraint of a form's layout, scaled.
void ApplyLayoutSettings(Layout& layout, const FormNode& node);
// Stretches and minimums of rows, columns or entries; after the children are in.
void ApplyLayoutLists(Layout& layout, const FormNode& node);
// How the item of that node stands in its cell, as LayoutItem has it.
std::uint32_t ItemAlignmentOf(const FormNode& node);

}  // namespace Wexa
