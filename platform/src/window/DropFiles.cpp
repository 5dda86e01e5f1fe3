#include "window/DropFiles.h"

#include "window/Coordinates.h"
#include "window/HitTest.h"
#include "window/Session.h"

namespace core {
namespace {

HandleTable<HDROP, Drop>& Drops() {
  return CurrentSession().drops;
}

std::vector<HDROP>& Untaken() {
  return CurrentSession().untakenDrops;
}

// The window at the place that accepts files; null where none does.
Window* AcceptingAt(const display::Input& input) {
  Window* root = FindBySurface(input.surface);
  Window* window = root ? HitTest(*root, input.position).window : nullptr;
  while (window && !(window->exStyle & WS_EX_ACCEPTFILES)) window = window->parent;
  return window;
}

}  // namespace

void AnswerDrag(const display::Input& input) {
  const bool takesFiles = AcceptingAt(input) != nullptr;
  display::Current().AnswerDrag(input.surface, takesFiles);
}

std::optional<MSG> DropMessage(const display::Input& input) {
  Window* window = AcceptingAt(input);
  if (!window) return std::nullopt;
  const POINT point = ToClient(*window, input.position);
  const HDROP drop = Drops().Add(std::make_unique<Drop>(Drop{window->handle, point, input.files}));
  Untaken().push_back(drop);
  return MSG{window->handle, WM_DROPFILES,  reinterpret_cast<WPARAM>(drop), 0,
             input.time,     input.position};
}

void ForgetDrops(HWND window) {
  std::erase_if(Untaken(), [&](HDROP handle) {
    const Drop* drop = Drops().Find(handle);
    if (drop && drop->window != window) return false;
    Drops().Remove(handle);
    return true;
  });
}

}  // namespace core

BOOL DragAcceptFiles(HWND window, BOOL accept) {
  core::Window* w = core::Find(window);
  if (!w) return FALSE;
  w->exStyle = accept ? w->exStyle | WS_EX_ACCEPTFILES : w->exStyle & ~WS_EX_ACCEPTFILES;
  return TRUE;
}

UINT DragQueryFileW(HDROP handle, UINT index, wchar_t* buffer, UINT count) {
  constexpr UINT kCountOfFiles = 0xFFFFFFFF;
  const core::Drop* drop = core::Drops().Find(handle);
  if (!drop) return 0;
  if (index == kCountOfFiles) return static_cast<UINT>(drop->files.size());
  if (index >= drop->files.size()) return 0;
  const std::wstring& file = drop->files[index];
  if (!buffer) return static_cast<UINT>(file.size());
  if (count == 0) return 0;
  const std::size_t length = file.copy(buffer, count - 1);
  buffer[length] = 0;
  return static_cast<UINT>(length);
}

BOOL DragQueryPoint(HDROP handle, POINT* point) {
  const core::Drop* drop = core::Drops().Find(handle);
  if (!drop || !point) return FALSE;
  *point = drop->point;
  const core::Window* window = core::Find(drop->window);
  return window && CRect(0, 0, window->client.Width(), window->client.Height()).Contains(*point);
}

void DragFinish(HDROP handle) {
  core::Drops().Remove(handle);
  std::erase(core::Untaken(), handle);
}
