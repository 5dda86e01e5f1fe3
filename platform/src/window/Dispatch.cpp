#include "window/Dispatch.h"

#include "window/Session.h"
#include "window/WindowClass.h"

namespace core {

// One message on its way through a window's chain.
class Passage {
 public:
  explicit Passage(Window& window)
      : window_(window),
        hold_(&window),
        position_(window.subclasses.size()),
        outer_(CurrentSession().innermost) {
    CurrentSession().innermost = this;
    ++window_.running;
  }
  ~Passage() {
    CurrentSession().innermost = outer_;
    if (--window_.running == 0) DropRemoved();
  }
  Passage(const Passage&) = delete;
  Passage& operator=(const Passage&) = delete;

  static Passage* Of(HWND window) {
    Passage* passage = CurrentSession().innermost;
    while (passage && passage->window_.handle != window) passage = passage->outer_;
    return passage;
  }

  // The next procedure of the chain; its own calls of Next go further down.
  LRESULT Next(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!window_.alive) return 0;
    struct Restore {
      std::size_t& position;
      std::size_t value;
      ~Restore() { position = value; }
    } restore{position_, position_};
    while (position_ > 0) {
      const Subclass link = window_.subclasses[--position_];
      if (link.procedure)
        return link.procedure(window_.handle, message, wParam, lParam, link.id, link.data);
    }
    window_.classToldEnd |= message == WM_NCDESTROY;
    return window_.windowClass->procedure(window_.handle, message, wParam, lParam);
  }

 private:
  void DropRemoved() {
    if (!window_.chainChanged) return;
    std::erase_if(window_.subclasses, [](const Subclass& s) { return !s.procedure; });
    window_.chainChanged = false;
  }

  Window& window_;
  Hold hold_;
  std::size_t position_;
  Passage* outer_;
};

namespace {

Subclass* FindSubclass(Window& window, SUBCLASSPROC procedure, UINT_PTR id) {
  for (Subclass& s : window.subclasses)
    if (s.procedure == procedure && s.id == id) return &s;
  return nullptr;
}

}  // namespace

LRESULT Send(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Passage(window).Next(message, wParam, lParam);
}

}  // namespace core

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  core::Window* w = core::Find(window);
  return w ? core::Send(*w, message, wParam, lParam) : 0;
}

LRESULT DispatchMessageW(const MSG* message) {
  if (!message) return 0;
  return SendMessageW(message->hwnd, message->message, message->wParam, message->lParam);
}

BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data,
                       MoveInterest moves) {
  core::Window* w = core::Find(window);
  if (!w || !procedure) return FALSE;
  const core::Subclass link{procedure, id, data, moves};
  if (core::Subclass* known = core::FindSubclass(*w, procedure, id))
    *known = link;
  else
    w->subclasses.push_back(link);
  return TRUE;
}

BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id) {
  core::Window* w = core::Find(window);
  core::Subclass* known = w && procedure ? core::FindSubclass(*w, procedure, id) : nullptr;
  if (!known) return FALSE;
  if (w->running > 0) {
    known->procedure = nullptr;
    w->chainChanged = true;
  } else {
    w->subclasses.erase(w->subclasses.begin() + (known - w->subclasses.data()));
  }
  return TRUE;
}

LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (core::Passage* passage = core::Passage::Of(window))
    return passage->Next(message, wParam, lParam);
  const core::Window* w = core::Find(window);
  return w ? w->windowClass->procedure(window, message, wParam, lParam) : 0;
}
