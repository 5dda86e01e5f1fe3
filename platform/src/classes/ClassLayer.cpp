#include "classes/ClassLayer.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace {

constexpr UINT_PTR kSubclassId = 0x43576E64;

struct Entry {
  CWnd* object = nullptr;
  std::unique_ptr<CWnd> temporary;  // the same object when it was made here
};

std::unordered_map<HWND, Entry>& Entries() {
  static auto* const entries = new std::unordered_map<HWND, Entry>;  // outlives static objects
  return *entries;
}

// Handles no message, so the window moves as it did without an object.
class TemporaryWnd : public CWnd {
 protected:
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
};

CWnd* objectInCreation = nullptr;

}  // namespace

CWnd* ClassLayer::Find(HWND window) {
  const auto found = Entries().find(window);
  return found == Entries().end() ? nullptr : found->second.object;
}

CWnd* ClassLayer::FindPermanent(HWND window) {
  const auto found = Entries().find(window);
  return found == Entries().end() || found->second.temporary ? nullptr : found->second.object;
}

CWnd* ClassLayer::FindOrMake(HWND window) {
  if (!IsWindow(window)) return nullptr;
  if (CWnd* known = Find(window)) return known;
  auto object = std::make_unique<TemporaryWnd>();
  Attach(*object, window);
  CWnd* made = object.get();
  Entries()[window].temporary = std::move(object);
  return made;
}

// A temporary object hands the window over; whoever still holds it sees an object without a window.
BOOL ClassLayer::Attach(CWnd& object, HWND window) {
  if (object.m_hWnd || !IsWindow(window) || FindPermanent(window)) return FALSE;
  if (CWnd* temporary = Find(window)) Detach(*temporary);
  Entries()[window].object = &object;
  object.m_hWnd = window;
  return SetWindowSubclass(window, Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(&object),
                           object.Moves());
}

void ClassLayer::Detach(CWnd& object) {
  const HWND window = std::exchange(object.m_hWnd, nullptr);
  object.owned_ = false;
  const auto found = Entries().find(window);
  if (found == Entries().end() || found->second.object != &object) return;
  RemoveWindowSubclass(window, Procedure, kSubclassId);
  const std::unique_ptr<CWnd> temporary = std::move(found->second.temporary);
  Entries().erase(found);
}

LRESULT ClassLayer::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR data) {
  const LRESULT result = reinterpret_cast<CWnd*>(data)->WindowProc(message, wParam, lParam);
  if (message == WM_NCDESTROY) Retire(window);
  return result;
}

void ClassLayer::Retire(HWND window) {
  CWnd* object = Find(window);
  if (!object) return;
  const bool permanent = FindPermanent(window) != nullptr;
  Detach(*object);
  if (permanent) object->PostNcDestroy();
}

void ClassLayer::OnCreating(HWND window) {
  CWnd* object = std::exchange(objectInCreation, nullptr);
  if (object && Attach(*object, window)) object->owned_ = true;
}

void ClassLayer::SetRun(CDialogEx& dialog, ModalRun* run) {
  dialog.run_ = run;
}

CreationScope::CreationScope(CWnd& object)
    : outerObject_(std::exchange(objectInCreation, &object)),
      outerHook_(core::SetCreationHook(ClassLayer::OnCreating)) {}

CreationScope::~CreationScope() {
  core::SetCreationHook(outerHook_);
  objectInCreation = outerObject_;
}
