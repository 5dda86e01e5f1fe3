#pragma once

// Marks what the shared library shows to its hosts; everything else stays inside.
#define WEXA_API __attribute__((visibility("default")))
