#pragma once

#include "graphics/PixelRegion.h"
#include "platform/Region.h"

// The area behind a region handle; null for a null or stale one.
const PixelRegion* GetPixelRegion(HRGN region);
