#include "Configuration.h"

// Programs of the engines alone have no widgets to register and no dialogs.
void Wexa::WexaConfig::RegisterWexaControls() {}
void Wexa::WexaConfig::RepaintDialogs() {}
