#pragma once

// The resolution: WEXA_DPI, else "Xft.dpi" of the server's resource database, else 96.

#include <optional>

namespace display::x11 {

class Connection;

class Resolution {
 public:
  explicit Resolution(Connection& connection) : connection_(connection) {}

  int Dpi() const;
  // Asks again; true when it is not the one told before.
  bool Refresh();

 private:
  Connection& connection_;
  mutable std::optional<int> dpi_;
};

}  // namespace display::x11
