#include "ComboBoxFS.h"

namespace Wexa {

ComboBoxFS::ComboBoxFS() : ComboBox(GuiType::ComboBoxFS) {}

}  // namespace Wexa
