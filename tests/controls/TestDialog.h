#pragma once

// A dialog whose notifications a test can read, and templates for it.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Classes.h"
#include "platform/ControlConstants.h"

#pragma pack(push, 2)
struct TestTemplate {
  DLGTEMPLATE header{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 10, 10, 200, 150};
  WORD menuClassAndTitle[3] = {};
};
#pragma pack(pop)

class TestDialog : public CDialogEx {
 public:
  using Command = std::pair<int, int>;  // control id and notification code

  BOOL Open(CWnd* owner = nullptr) { return CreateIndirect(&template_.header, owner); }
  std::intptr_t RunModal(CWnd* owner = nullptr) {
    InitModalIndirect(&template_.header, owner);
    return DoModal();
  }
  void SetStyle(DWORD style, DWORD exStyle = 0) {
    template_.header.style = style;
    template_.header.dwExtendedStyle = exStyle;
  }

  // The clicks since the last call, focus notices left out.
  std::vector<int> TakeClicks() {
    std::vector<int> ids;
    for (const auto& [id, code] : std::exchange(commands, {})) {
      if (code == BN_CLICKED) ids.push_back(id);
    }
    return ids;
  }
  std::vector<int> TakeCodesOf(int control) {
    std::vector<int> codes;
    for (const auto& [id, code] : std::exchange(commands, {})) {
      if (id == control) codes.push_back(code);
    }
    return codes;
  }

  std::vector<Command> commands;
  std::function<BOOL()> onInit;             // its answer is WM_INITDIALOG's
  std::function<void(int, int)> onCommand;  // before the dialog's own handling

 protected:
  BOOL OnInitDialog() override { return onInit ? onInit() : TRUE; }
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    const HWND window = m_hWnd;
    commands.emplace_back(LOWORD(wParam), HIWORD(wParam));
    const auto handler = onCommand;  // it may delete this
    if (handler) handler(LOWORD(wParam), HIWORD(wParam));
    return FromHandlePermanent(window) != this || CDialogEx::OnCommand(wParam, lParam);
  }

 private:
  TestTemplate template_;
};
