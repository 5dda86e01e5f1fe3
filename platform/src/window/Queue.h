#pragma once

#include "platform/Window.h"

namespace core {

// Whether posted messages wait.
bool HasPosted();

}  // namespace core
