#pragma once

#include <memory>

#include "XmlDocument.h"
#include "form/FormModel.h"

namespace Wexa {

// Reads the root `widget` element of a form with all below it. Null when a value is broken: nothing
// of the tree is kept then. Throws what FormInteger throws for the numbers of a cell.
std::unique_ptr<FormNode> ReadFormTree(const XmlNode& rootWidget);

}  // namespace Wexa
