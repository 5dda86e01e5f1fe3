#pragma once

#include "ComboBox.h"

namespace Wexa {

// A combo box that searches folders.
class WEXA_API ComboBoxFS : public ComboBox {
 public:
  ComboBoxFS();
};

}  // namespace Wexa
