#pragma once

#include "platform/Window.h"

namespace core {

// Whether posted messages wait.
bool HasPosted();
// Throws the exception that was postponed, if any.
void ThrowPostponed();

}  // namespace core
