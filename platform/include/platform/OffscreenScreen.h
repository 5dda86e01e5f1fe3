#pragma once

// What a person does at the screen in memory (WEXA_DISPLAY=offscreen), for robots that test
// programs. Each operation puts its record into the queue where a real screen's come from; the next
// pump handles it. Places are pixels of the screen. On a real screen all of them throw
// std::logic_error, and std::out_of_range for a key or a button that is none.

#include <cstdint>
#include <string>

#include "SystemColors.h"
#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

namespace offscreen {

enum class MouseButton { Left, Right, Middle, Extra1, Extra2 };

void MovePointer(POINT screen);
// Buttons count where the pointer is.
void PressButton(MouseButton button);
void ReleaseButton(MouseButton button);
// 120 is a notch; positive away from the user, or to the right.
void TurnWheel(int delta, bool horizontal);
// The key's virtual-key code, and the characters that it gives with the keys that are down.
void PressKey(int virtualKey, const std::u32string& text);
void ReleaseKey(int virtualKey);
bool IsKeyDown(int virtualKey);

// Lets time go by for timers, double clicks and carets.
void AdvanceTime(std::uint64_t milliseconds);
// The longest time between the presses of a double click, in milliseconds.
std::uint32_t DoubleClickTime();

// Takes effect in open windows, too; 96 pixels an inch are 100 %. Throws std::invalid_argument
// below 48 and above 960.
void ChangeResolution(int dpi);
// The desktop asks for other colours.
void ChangeScheme(SystemScheme scheme);

}  // namespace offscreen

#pragma GCC visibility pop
