#pragma once

// The pixels of one window and their way to the screen: through shared memory where the server
// can read it, else copied into requests.

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "display/Display.h"

namespace display::x11 {

class Connection;
class SharedMemory;

class Canvas {
 public:
  Canvas(Connection& connection, SIZE size);
  ~Canvas();

  SIZE Size() const { return size_; }
  void Resize(SIZE size);
  // Waits until the server has read what was presented before. After a resize the pixels are
  // arbitrary until painted.
  Pixels Lock();
  void Present(xcb_window_t window, const RECT& area);
  // Whether these pixels have been presented since they were made.
  bool IsPainted() const { return painted_; }

 private:
  void Allocate();
  std::size_t ByteCount() const;
  void PresentShared(xcb_window_t window, const RECT& area);
  void PresentCopied(xcb_window_t window, const RECT& area);
  void SendRows(xcb_window_t window, const RECT& rows);

  Connection& connection_;
  SIZE size_;
  std::unique_ptr<SharedMemory> shared_;
  std::vector<std::uint32_t> copied_;
  std::vector<std::uint32_t> request_;
  std::uint32_t* data_ = nullptr;
  std::optional<unsigned> reading_;  // the request that reads the shared pixels
  bool painted_ = false;
};

}  // namespace display::x11
