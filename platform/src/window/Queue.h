#pragma once

#include "platform/Window.h"

namespace core {

// Whether posted messages wait.
bool HasPosted();
// The messages that wait are forgotten.
void DropPosted();
// Throws the exception that was postponed, if any.
void ThrowPostponed();

}  // namespace core
