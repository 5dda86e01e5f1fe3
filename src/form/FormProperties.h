#pragma once

#include "XmlDocument.h"

namespace Wexa {

class FormNode;

// Reads a `property` element into the node; one that has no slot, or whose value is of another kind
// than the property has, is skipped. False when a rectangle or a size lacks one of its numbers.
bool ReadProperty(const XmlNode& property, FormNode& node);

// Reads an `attribute` element of a widget: what the widget's container shows or uses of it.
void ReadAttribute(const XmlNode& attribute, FormNode& node);

}  // namespace Wexa
