#pragma once

#include <array>
#include <atomic>
#include <deque>
#include <map>

#include "display/Display.h"
#include "platform/Geometry.h"

namespace display {

// A screen in memory. Nothing happens by itself: input comes from the user's operations below, time
// from AdvanceTime and from waiting. Records come in the order in which a real display reports
// them.
class OffscreenDisplay : public Display {
 public:
  explicit OffscreenDisplay(int dpi = 96);
  ~OffscreenDisplay() override;

  // -- What a user does ------------------------------------------------------------------------

  void MovePointer(POINT screen);
  void PressButton(MouseButton button);
  void ReleaseButton(MouseButton button);
  void TurnWheel(int delta, bool horizontal = false);
  void PressKey(int virtualKey, const std::u32string& text = {}, bool repeated = false);
  void ReleaseKey(int virtualKey);
  void SetToggled(int virtualKey, bool toggled);
  // Holds files over a place; TakesFiles tells what came back.
  void DragFiles(POINT screen);
  void DropFiles(POINT screen, const std::vector<std::wstring>& files);
  void RequestClose(SurfaceId id);
  void ChangeResolution(int dpi);
  void ChangeScheme(SystemScheme scheme);
  // The desktop moves or sizes a window.
  void PlaceByDesktop(SurfaceId id, const RECT& place);
  // The desktop takes the focus away from all windows.
  void LoseFocus();
  void AdvanceTime(std::uint64_t milliseconds) { now_ += milliseconds; }
  void Report(Input input);  // any record, with the time filled in

  // -- What a user sees ------------------------------------------------------------------------

  bool IsShown(SurfaceId id) const;
  RECT PlaceOf(SurfaceId id) const;
  std::wstring TitleOf(SurfaceId id) const;
  CursorShape CursorOf(SurfaceId id) const;
  const std::optional<CursorPicture>& CursorPictureOf(SurfaceId id) const;
  bool IsModal(SurfaceId id) const;
  bool IsResizable(SurfaceId id) const;
  SurfaceKind KindOf(SurfaceId id) const;
  SurfaceId Focused() const { return focused_; }
  bool TakesFiles() const { return takesFiles_; }
  SurfaceId SurfaceAt(POINT screen) const;                  // 0: none
  std::uint32_t PixelAt(SurfaceId id, int x, int y) const;  // 0xAARRGGBB
  // The areas presented since they were last forgotten.
  const std::vector<RECT>& Presented(SurfaceId id) const;
  void ForgetPresented();

  // -- Display ---------------------------------------------------------------------------------

  int Dpi() const override { return dpi_; }
  RECT WorkArea() const override;
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
  bool BeginMoveSize(SurfaceId, int) override { return false; }
  void GrabPointer(SurfaceId id) override { grabbing_ = id; }
  void UngrabPointer() override { grabbing_ = 0; }
  Pixels LockPixels(SurfaceId id) override;
  void Present(SurfaceId id, const RECT* damaged, std::size_t count) override;
  std::optional<Input> Poll() override;
  bool Wait(std::optional<std::uint64_t> deadline) override;
  void Wake() override { woken_ = true; }
  std::uint64_t Now() const override { return now_; }
  POINT PointerPosition() const override { return pointer_; }
  bool IsKeyDown(int virtualKey) const override;
  bool IsKeyToggled(int virtualKey) const override;
  SystemScheme Scheme() const override { return scheme_; }
  void AnswerDrag(SurfaceId, bool takesFiles) override { takesFiles_ = takesFiles; }
  void SetClipboardText(const std::wstring& text) override { clipboard_ = text; }
  std::wstring ClipboardText() override { return clipboard_; }

 private:
  struct Surface;
  struct Key {
    bool down = false;
    bool toggled = false;
  };

  Surface* Find(SurfaceId id) const;
  const Surface& Get(SurfaceId id) const;  // throws std::out_of_range for an unknown one
  Input PointerRecord(Input::Kind kind) const;
  SurfaceId PointerTarget() const;
  void SetButton(MouseButton button, bool down);
  void SetKey(int virtualKey, bool down);
  Input KeyRecord(Input::Kind kind, int virtualKey) const;
  void GiveFocus(SurfaceId id);
  void FollowPointer();

  int dpi_;
  std::map<SurfaceId, std::unique_ptr<Surface>> surfaces_;
  std::vector<SurfaceId> stack_;  // shown, topmost first
  std::deque<Input> records_;
  std::array<Key, 256> keys_{};
  POINT pointer_{};
  SurfaceId pointerOver_ = 0;
  SurfaceId pressedOn_ = 0;  // until all buttons are up, its surface gets the pointer
  int buttonsDown_ = 0;
  SurfaceId grabbing_ = 0;
  SurfaceId focused_ = 0;
  bool takesFiles_ = false;
  SystemScheme scheme_ = SystemScheme::Light;
  std::uint64_t now_ = 1000;
  std::atomic<bool> woken_ = false;
  std::wstring clipboard_;
};

}  // namespace display
