#include <algorithm>

#include "x11/X11Test.h"

#include "display/x11/X11Display.h"

namespace display {

X11Test::X11Test() : display_(OpenX11Display()) {
  person_.MovePointer({900, 900});
}

xcb_window_t X11Test::OpenDialog(SurfaceId id, const RECT& place) {
  display_->CreateSurface(id, SurfaceKind::Dialog, 0, place);
  const std::wstring title = L"dialog " + std::to_wstring(id);
  display_->SetTitle(id, title);
  display_->ShowSurface(id, true);
  Paint(id, 0xFF808080);
  Next([id](const Input& input) {
    return input.kind == Input::Kind::FocusIn && input.surface == id;
  });
  All();
  return person_.FindWindow("dialog " + std::to_string(id));
}

void X11Test::Paint(SurfaceId id, std::uint32_t color) {
  const Pixels pixels = display_->LockPixels(id);
  std::fill_n(pixels.data, pixels.width * pixels.height, color);
  const RECT all{0, 0, pixels.width, pixels.height};
  display_->Present(id, &all, 1);
  display_->Wait(display_->Now());
}

std::optional<Input> X11Test::Next(const Test& passes) {
  const std::uint64_t deadline = display_->Now() + 5000;
  while (display_->Now() < deadline) {
    while (auto input = display_->Poll()) {
      if (passes(*input)) return input;
    }
    display_->Wait(deadline);
  }
  return std::nullopt;
}

std::optional<Input> X11Test::Next(Input::Kind kind) {
  return Next([kind](const Input& input) { return input.kind == kind; });
}

// A tiny window is shown: once it is exposed, the server has done whatever was asked before.
std::vector<Input> X11Test::All() {
  const SurfaceId marker = nextMarker_++;
  display_->CreateSurface(marker, SurfaceKind::ToolTip, 0, {1278, 1022, 1279, 1023});
  display_->ShowSurface(marker, true);
  std::vector<Input> all;
  Next([&all, marker](const Input& input) {
    if (input.surface == marker) return input.kind == Input::Kind::Exposed;
    all.push_back(input);
    return false;
  });
  display_->DestroySurface(marker);
  return all;
}

std::vector<Input> X11Test::All(Input::Kind kind) {
  std::vector<Input> all = All();
  std::erase_if(all, [kind](const Input& input) { return input.kind != kind; });
  return all;
}

std::u32string X11Test::Typed() {
  std::u32string text;
  for (const Input& input : All(Input::Kind::KeyDown)) text += input.text;
  return text;
}

}  // namespace display
