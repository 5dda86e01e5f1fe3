#pragma once

#include <string>
#include <vector>

namespace Wexa {

// The paths of the form files below the folders of published and of made forms.
const std::vector<std::string>& RealForms();

}  // namespace Wexa
