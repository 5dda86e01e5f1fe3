#pragma once

// Which object a window has, and how its messages reach it.

#include "platform/Classes.h"
#include "window/CreationHook.h"

struct ClassLayer {
  // The object of a window; `permanent`: not one that was made for a FromHandle.
  static CWnd* Find(HWND window);
  static CWnd* FindPermanent(HWND window);
  // The window's object, made for as long as the window lives when it has none.
  static CWnd* FindOrMake(HWND window);

  // FALSE when the window is gone or has another permanent object.
  static BOOL Attach(CWnd& object, HWND window);
  static void Detach(CWnd& object);

  // The dialog whose DoModal is running belongs to this loop.
  static void SetRun(CDialogEx& dialog, struct ModalRun* run);

 private:
  friend class CreationScope;
  static void OnCreating(HWND window);
  static LRESULT Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR data);
  static void Retire(HWND window);
};

// While it lives, the next window that is created becomes the object's own.
class CreationScope {
 public:
  explicit CreationScope(CWnd& object);
  ~CreationScope();
  CreationScope(const CreationScope&) = delete;
  CreationScope& operator=(const CreationScope&) = delete;

 private:
  CWnd* outerObject_;
  core::CreationHook outerHook_;
};
