#pragma once

#include <memory>
#include <string>

#include "XmlDocument.h"
#include "form/FormModel.h"

namespace Wexa {

// Reads the root `widget` element of a form with all below it. `text` is the document's, as it was
// before it was parsed. Throws what FormInteger throws for the numbers of a cell, and
// std::runtime_error for a rectangle or a size without a number; they are FormErrors that have all
// but the file.
std::unique_ptr<FormNode> ReadFormTree(const XmlNode& rootWidget, const XmlDocument& document,
                                       const std::wstring& text);

}  // namespace Wexa
