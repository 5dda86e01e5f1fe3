#pragma once

// The fixture of control tests: an open dialog on the offscreen display, and hands to use it.

#include <gtest/gtest.h>

#include "controls/TestDialog.h"
#include "platform/VirtualKeys.h"
#include "support/Robot.h"

class ControlsTest : public testing::Test {
 protected:
  void SetUp() override {
    dialog_.onCommand = [](int, int) {};
    ASSERT_TRUE(dialog_.Open());
    AfxPumpPending();
  }

  HWND Add(const wchar_t* className, DWORD style, CRect place, int id, const wchar_t* text = L"",
           HWND parent = nullptr) {
    return CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                           place.Width(), place.Height(), parent ? parent : dialog_.m_hWnd,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr);
  }
  // Stacked in order of creation.
  HWND AddRow(const wchar_t* className, DWORD style, int id, const wchar_t* text = L"") {
    const int top = 5 + 28 * rows_++;
    return Add(className, style, {10, top, 160, top + 25}, id, text);
  }

  static POINT CentreOf(HWND window) { return Robot::CentreOf(window); }
  static bool IsChecked(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0) != 0; }
  static bool IsPushed(HWND button) {
    return (SendMessageW(button, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
  }

  TestDialog dialog_;
  Robot robot_;
  int rows_ = 0;
};
