#pragma once

#include <string>

namespace bench {

// A form of 10, 40, 100 or 1,000 visible widgets: group boxes in group boxes, rows and columns in
// turn, with grids of labels, edits, combo boxes, spin boxes, check boxes and buttons in the
// innermost, and two buttons below. The same text every time.
std::string MadeForm(int widgets);

}  // namespace bench
