#pragma once

// Who measures the screen: called once, by the first question for the resolution that comes before
// SetScreenDpi. It answers by calling that.
using ScreenProbe = void (*)();
void SetScreenProbe(ScreenProbe probe);
