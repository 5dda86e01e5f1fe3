#pragma once

#include "XmlDocument.h"

namespace Wexa {

class FormNode;

// Reads a `property` element, which stands on the given line, into the node; one that has no slot,
// or whose value is of another kind than the property has, is skipped. Throws std::runtime_error, a
// FormError, when a rectangle or a size lacks one of its numbers.
void ReadProperty(const XmlNode& property, int line, FormNode& node);

// Reads an `attribute` element of a widget: what the widget's container shows or uses of it.
void ReadAttribute(const XmlNode& attribute, FormNode& node);

}  // namespace Wexa
