#pragma once

// Who looks at the screen: called once, by the first question for the resolution or the colours
// that comes before they are set. It answers by calling SetScreenDpi and SetDesktopScheme.
using ScreenProbe = void (*)();
void SetScreenProbe(ScreenProbe probe);
void ProbeScreen();
