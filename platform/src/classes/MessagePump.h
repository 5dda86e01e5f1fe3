#pragma once

#include "platform/Window.h"

enum class Pumped { Message, Quit, NothingLeft };

// Takes one message from the queue and handles it. Quit: WM_QUIT came, with this exit code;
// NothingLeft: no message can ever come.
Pumped PumpOneMessage(int& exitCode);
