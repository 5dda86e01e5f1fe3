#pragma once

// Makes the window classes of the standard controls and of dialogs known. The class layer and the
// dialog manager call it before they create a window; calling it again costs nothing.
void RegisterStandardControls();
