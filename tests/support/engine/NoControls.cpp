#include "Configuration.h"

// Programs of the engines alone have no widgets to register.
void Wexa::WexaConfig::RegisterWexaControls() {}
