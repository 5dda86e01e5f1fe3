#include "Canvas.h"

#include <algorithm>

#include "Connection.h"
#include "SharedMemory.h"

namespace display::x11 {
namespace {

RECT Clip(const RECT& area, SIZE size) {
  return {std::max(area.left, 0), std::max(area.top, 0), std::min(area.right, size.cx),
          std::min(area.bottom, size.cy)};
}

}  // namespace

Canvas::Canvas(Connection& connection, SIZE size) : connection_(connection), size_(size) {}

Canvas::~Canvas() = default;

void Canvas::Resize(SIZE size) {
  if (size.cx == size_.cx && size.cy == size_.cy) return;
  size_ = size;
  painted_ = false;
  data_ = nullptr;
}

std::size_t Canvas::ByteCount() const {
  return static_cast<std::size_t>(size_.cx) * static_cast<std::size_t>(size_.cy) * 4;
}

Pixels Canvas::Lock() {
  if (reading_ && !connection_.HasPassed(*reading_)) connection_.Synchronize();
  reading_.reset();
  if (!data_) Allocate();
  return {data_, size_.cx, size_.cy, size_.cx * 4};
}

// Memory is kept while it suffices, and grows with room to spare: a window being resized by hand
// changes its size with every motion. A deep screen gets converted copies.
void Canvas::Allocate() {
  const std::size_t bytes = ByteCount();
  const bool tooSmall = !shared_ || shared_->Size() < bytes;
  if (tooSmall && copied_.empty() && !connection_.Format().IsDeep()) {
    const std::size_t spare = shared_ ? bytes / 4 : 0;
    shared_ = SharedMemory::Create(connection_, bytes + spare);
  }
  if (shared_) {
    data_ = static_cast<std::uint32_t*>(shared_->Data());
  } else {
    copied_.resize(bytes / 4);
    data_ = copied_.data();
  }
}

void Canvas::Present(xcb_window_t window, const RECT& area) {
  const RECT visible = Clip(area, size_);
  if (!data_ || visible.left >= visible.right || visible.top >= visible.bottom) return;
  painted_ = true;
  shared_ ? PresentShared(window, visible) : PresentCopied(window, visible);
}

void Canvas::PresentShared(xcb_window_t window, const RECT& area) {
  const auto x = static_cast<std::int16_t>(area.left);
  const auto y = static_cast<std::int16_t>(area.top);
  reading_ = xcb_shm_put_image(
                 connection_.Get(), window, connection_.DrawingContext(),
                 static_cast<std::uint16_t>(size_.cx), static_cast<std::uint16_t>(size_.cy),
                 static_cast<std::uint16_t>(x), static_cast<std::uint16_t>(y),
                 static_cast<std::uint16_t>(area.right - area.left),
                 static_cast<std::uint16_t>(area.bottom - area.top), x, y,
                 connection_.Format().depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0, shared_->Segment(), 0)
                 .sequence;
}

// One request holds only so many bytes: the area goes over in bands of rows.
void Canvas::PresentCopied(xcb_window_t window, const RECT& area) {
  constexpr std::uint32_t kHeader = sizeof(xcb_put_image_request_t) / 4 + 1;
  const std::uint32_t words = xcb_get_maximum_request_length(connection_.Get()) - kHeader;
  const LONG rows = std::max(1, static_cast<LONG>(words) / (area.right - area.left));
  for (LONG top = area.top; top < area.bottom; top += rows) {
    SendRows(window, {area.left, top, area.right, std::min(top + rows, area.bottom)});
  }
}

void Canvas::SendRows(xcb_window_t window, const RECT& rows) {
  const LONG width = rows.right - rows.left;
  const LONG height = rows.bottom - rows.top;
  request_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const PixelFormat& format = connection_.Format();
  auto* target = request_.data();
  for (LONG y = rows.top; y < rows.bottom; ++y, target += width) {
    format.Write(data_ + std::ptrdiff_t{y} * size_.cx + rows.left, width, target);
  }
  xcb_put_image(connection_.Get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, connection_.DrawingContext(),
                static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                static_cast<std::int16_t>(rows.left), static_cast<std::int16_t>(rows.top), 0,
                format.depth, static_cast<std::uint32_t>(request_.size() * 4),
                reinterpret_cast<const std::uint8_t*>(request_.data()));
}

}  // namespace display::x11
