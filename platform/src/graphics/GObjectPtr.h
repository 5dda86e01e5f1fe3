#pragma once

#include <glib-object.h>

#include <memory>

// Owns a reference to one of glib's objects.
struct GObjectRelease {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using GObjectPtr = std::unique_ptr<T, GObjectRelease>;
