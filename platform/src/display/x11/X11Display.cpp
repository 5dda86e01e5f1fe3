#include "X11Display.h"

#include "Clipboard.h"
#include "Connection.h"
#include "Cursors.h"
#include "KeyState.h"
#include "Keyboard.h"
#include "Pointer.h"
#include "Records.h"
#include "Resolution.h"
#include "Router.h"
#include "Surfaces.h"
#include "Waker.h"
#include "WindowManager.h"
#include "WindowProperties.h"
#include "XSettings.h"
#include "Xdnd.h"

namespace display {
namespace x11 {
namespace {

class X11Display : public Display {
 public:
  X11Display() { WriteLeader(connection_); }

  int Dpi() const override { return resolution_.Dpi(); }
  RECT WorkArea() const override { return windowManager_.WorkArea(); }

  void CreateSurface(SurfaceId id, SurfaceKind kind, SurfaceId owner, const RECT& place) override;
  void DestroySurface(SurfaceId id) override;
  void MoveSurface(SurfaceId id, const RECT& place) override;
  void ShowSurface(SurfaceId id, bool show) override;
  void SetTitle(SurfaceId id, const std::wstring& title) override;
  void SetResizable(SurfaceId id, bool resizable, SIZE minimum, SIZE maximum) override;
  void SetModal(SurfaceId id, bool modal) override;
  void SetCursor(SurfaceId id, CursorShape shape) override;
  void SetCursorPicture(SurfaceId id, const CursorPicture& picture) override;
  void RaiseSurface(SurfaceId id) override;
  void FocusSurface(SurfaceId id) override;
  bool BeginMoveSize(SurfaceId id, int edge) override;
  void GrabPointer(SurfaceId id) override;
  void UngrabPointer() override { pointer_.Ungrab(); }

  Pixels LockPixels(SurfaceId id) override;
  void Present(SurfaceId id, const RECT* damaged, std::size_t count) override;

  std::optional<Input> Poll() override;
  bool Wait(std::optional<std::uint64_t> deadline) override;
  void Wake() override { waker_.Wake(); }
  std::uint64_t Now() const override { return Waker::Now(); }

  POINT PointerPosition() const override;
  bool IsKeyDown(int virtualKey) const override { return Keys().IsDown(virtualKey); }
  bool IsKeyToggled(int virtualKey) const override { return Keys().IsToggled(virtualKey); }

  SystemScheme Scheme() const override { return settings_.Scheme(); }
  std::uint32_t DoubleClickTime() const override;
  void AnswerDrag(SurfaceId id, bool takesFiles) override;

  void SetClipboardText(const std::wstring& text) override;
  std::wstring ClipboardText() override;

 private:
  void TakeEvents();
  void Sleep(std::optional<std::uint64_t> deadline);
  void HandOut(const Record& record);
  KeyState& Keys() const;

  Connection connection_;
  Waker waker_;
  Surfaces surfaces_{connection_};
  Cursors cursors_{connection_};
  Keyboard keyboard_{connection_};
  Pointer pointer_{connection_};
  Clipboard clipboard_{connection_};
  Resolution resolution_{connection_};
  mutable WindowManager windowManager_{connection_};
  mutable XSettings settings_{connection_};
  Records records_;
  Xdnd xdnd_{connection_, surfaces_, records_};
  mutable KeyState keys_;
  std::optional<POINT> position_;  // none while the pointer is elsewhere
  Router router_{{connection_, surfaces_, keyboard_, pointer_, clipboard_, resolution_,
                  windowManager_, xdnd_, settings_, records_}};
};

void X11Display::CreateSurface(SurfaceId id, SurfaceKind kind, SurfaceId owner, const RECT& place) {
  const Surface& surface = surfaces_.Create(id, kind, place);
  const Surface* front = surfaces_.Find(owner);
  WriteIdentity(connection_, surface.Window(), kind, front ? front->Window() : 0);
}

void X11Display::DestroySurface(SurfaceId id) {
  const Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  if (pointer_.Grabber() == surface->Window()) pointer_.Ungrab();
  records_.DropAll(id);
  surfaces_.Destroy(id);
}

void X11Display::MoveSurface(SurfaceId id, const RECT& place) {
  Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  records_.DropPlaces(id);
  surface->Move(place);
}

// Without a window manager nobody else gives a new dialog the keyboard.
void X11Display::ShowSurface(SurfaceId id, bool show) {
  Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  surface->Show(show);
  if (show && surface->Kind() == SurfaceKind::Dialog && !windowManager_.IsRunning()) {
    windowManager_.Focus(surface->Window());
  }
}

void X11Display::SetTitle(SurfaceId id, const std::wstring& title) {
  if (const Surface* surface = surfaces_.Find(id)) {
    WriteTitle(connection_, surface->Window(), title);
  }
}

void X11Display::SetResizable(SurfaceId id, bool resizable, SIZE minimum, SIZE maximum) {
  if (Surface* surface = surfaces_.Find(id)) surface->SetLimits(resizable, minimum, maximum);
}

void X11Display::SetModal(SurfaceId id, bool modal) {
  if (const Surface* surface = surfaces_.Find(id)) {
    WriteModal(connection_, surface->Window(), surface->IsShown(), modal);
  }
}

void X11Display::SetCursor(SurfaceId id, CursorShape shape) {
  if (Surface* surface = surfaces_.Find(id)) surface->SetCursor(cursors_.Get(shape));
}

// The window keeps the cursor.
void X11Display::SetCursorPicture(SurfaceId id, const CursorPicture& picture) {
  Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  const xcb_cursor_t cursor = cursors_.Make(picture);
  surface->SetCursor(cursor);
  if (cursor) xcb_free_cursor(connection_.Get(), cursor);
}

void X11Display::RaiseSurface(SurfaceId id) {
  if (Surface* surface = surfaces_.Find(id)) surface->Raise();
}

void X11Display::FocusSurface(SurfaceId id) {
  const Surface* surface = surfaces_.Find(id);
  if (surface && surface->IsShown() && surface->Kind() == SurfaceKind::Dialog) {
    windowManager_.Focus(surface->Window());
  }
}

bool X11Display::BeginMoveSize(SurfaceId id, int edge) {
  const Surface* surface = surfaces_.Find(id);
  return surface && windowManager_.BeginMoveSize(surface->Window(), edge, PointerPosition());
}

void X11Display::GrabPointer(SurfaceId id) {
  if (const Surface* surface = surfaces_.Find(id)) pointer_.Grab(surface->Window());
}

Pixels X11Display::LockPixels(SurfaceId id) {
  Surface* surface = surfaces_.Find(id);
  return surface ? surface->Image().Lock() : Pixels{};
}

void X11Display::Present(SurfaceId id, const RECT* damaged, std::size_t count) {
  Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  for (std::size_t i = 0; i < count; ++i) {
    surface->Image().Present(surface->Window(), damaged[i]);
  }
}

std::optional<Input> X11Display::Poll() {
  if (records_.IsEmpty()) TakeEvents();
  auto record = records_.Pop();
  if (!record) return std::nullopt;
  HandOut(*record);
  return std::move(record->input);
}

// Handing out a record makes its state the current one.
void X11Display::HandOut(const Record& record) {
  keys_.Apply(record);
  const Input& input = record.input;
  if (input.kind == Input::Kind::PointerLeft) {
    position_.reset();
  } else if (record.held) {
    position_ = input.position;
  }
  Surface* surface = surfaces_.Find(input.surface);
  if (surface && input.kind == Input::Kind::Resized) surface->Image().Resize(input.size);
}

bool X11Display::Wait(std::optional<std::uint64_t> deadline) {
  if (records_.IsEmpty()) TakeEvents();
  if (records_.IsEmpty()) Sleep(deadline);
  return true;
}

void X11Display::Sleep(std::optional<std::uint64_t> deadline) {
  waker_.Sleep(xcb_get_file_descriptor(connection_.Get()), deadline);
}

void X11Display::TakeEvents() {
  while (const auto event = connection_.NextEvent()) {
    router_.Route(*event);
  }
  xcb_flush(connection_.Get());
  connection_.ThrowIfLost();
}

POINT X11Display::PointerPosition() const {
  return position_ ? *position_ : pointer_.Ask().position;
}

KeyState& X11Display::Keys() const {
  if (!keys_.IsKnown()) keys_.Synchronize(pointer_.Ask().held);
  return keys_;
}

std::uint32_t X11Display::DoubleClickTime() const {
  return settings_.DoubleClickTime().value_or(Display::DoubleClickTime());
}

void X11Display::AnswerDrag(SurfaceId id, bool takesFiles) {
  const Surface* surface = surfaces_.Find(id);
  if (!surface) return;
  xdnd_.Answer(surface->Window(), takesFiles);
  xcb_flush(connection_.Get());
}

void X11Display::SetClipboardText(const std::wstring& text) {
  clipboard_.Own(text, router_.LastTime());
  xcb_flush(connection_.Get());
}

std::wstring X11Display::ClipboardText() {
  return clipboard_.Ask(router_.LastTime(), [this](std::uint64_t deadline) {
    Sleep(deadline);
    TakeEvents();
  });
}

}  // namespace
}  // namespace x11

std::unique_ptr<Display> OpenX11Display() {
  return std::make_unique<x11::X11Display>();
}

}  // namespace display
