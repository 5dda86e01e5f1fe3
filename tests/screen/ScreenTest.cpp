#include "screen/ScreenTest.h"

#include <algorithm>
#include <chrono>
#include <nlohmann/json.hpp>

#include "support/tool/Tool.h"

namespace screen {
namespace {

using Clock = std::chrono::steady_clock;
using nlohmann::json;

constexpr POINT kAside{1270, 1010};

int Red(std::uint32_t color) {
  return color >> 16 & 0xFF;
}

int Blue(std::uint32_t color) {
  return color & 0xFF;
}

bool IsDark(std::uint32_t color) {
  return Red(color) < 128 && Blue(color) < 128;
}

bool IsAccent(std::uint32_t color) {
  return Blue(color) - Red(color) > 128;
}

std::string SizeText(SIZE size) {
  return std::to_string(size.cx) + "x" + std::to_string(size.cy);
}

}  // namespace

ScreenTest::ScreenTest() {
  person_.MovePointer(kAside);
}

void ScreenTest::Open(const std::string& form, const std::string& title, SIZE client) {
  form_ = form;
  Start({WEXA_PREVIEW, "--size", SizeText(client), form}, title, client);
}

void ScreenTest::OpenInHost(const std::string& form, const std::string& title, SIZE client,
                            const std::string& manner) {
  form_ = form;
  Start({WEXA_SCREEN_HOST, form, manner}, title, client);
}

void ScreenTest::Start(const std::vector<std::string>& command, const std::string& title,
                       SIZE client) {
  program_ = std::make_unique<Program>(command);
  window_ = person_.WaitForWindow(title);
  ASSERT_NE(window_, 0u) << program_->WaitForEnd(0).errors;
  ASSERT_TRUE(Eventually([this] { return person_.FocusedWindow() == window_; }));
  const RECT place = person_.Place(window_);
  frame_ = {place.right - place.left - client.cx, place.bottom - place.top - client.cy};
  const int side = frame_.cx / 2;  // the frame is as wide at the bottom
  origin_ = {side, frame_.cy - side};
  Measure(client);
}

void ScreenTest::Measure(SIZE client) {
  const tool::Outcome outcome =
      tool::Tool(WEXA_PREVIEW)
          .Run("--dump - --display offscreen --size " + SizeText(client) + " " + form_);
  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  widgets_.clear();
  const json dump = json::parse(outcome.output);
  for (const auto& [name, place] : dump["sizes"][0]["widgets"].items()) {
    const int left = origin_.x + place[0].get<int>();
    const int top = origin_.y + place[1].get<int>();
    widgets_[name] = {left, top, left + place[2].get<int>(), top + place[3].get<int>()};
  }
}

void ScreenTest::ResizeClient(SIZE client) {
  person_.Resize(window_, {client.cx + frame_.cx, client.cy + frame_.cy});
  Measure(client);
}

RECT ScreenTest::At(const std::string& widget) const {
  return widgets_.at(widget);
}

RECT ScreenTest::OnScreen(const std::string& widget) {
  const RECT window = person_.Place(window_);
  const RECT place = At(widget);
  return {window.left + place.left, window.top + place.top, window.left + place.right,
          window.top + place.bottom};
}

std::vector<xcb_window_t> ScreenTest::Tips() {
  const xcb_atom_t type = person_.Atom("_NET_WM_WINDOW_TYPE_TOOLTIP");
  auto windows = person_.ShownWindows();
  std::erase_if(windows, [&](xcb_window_t window) {
    return person_.Number(window, "_NET_WM_WINDOW_TYPE") != type;
  });
  return windows;
}

void ScreenTest::ClickAt(POINT point) {
  const RECT place = person_.Place(window_);
  person_.ClickAt({place.left + point.x, place.top + point.y});
}

ScreenTest::Picture ScreenTest::Look(const RECT& area) {
  return person_.Screenshot(window_, area);
}

ScreenTest::Picture ScreenTest::LookAtWindow() {
  const RECT place = person_.Place(window_);
  return Look({0, 0, place.right - place.left, place.bottom - place.top});
}

long ScreenTest::DarkPixels(const RECT& area) {
  return std::ranges::count_if(Look(area), IsDark);
}

long ScreenTest::DarkPixelsOf(xcb_window_t window) {
  const RECT place = person_.Place(window);
  const RECT all{0, 0, place.right - place.left, place.bottom - place.top};
  return std::ranges::count_if(person_.Screenshot(window, all), IsDark);
}

long ScreenTest::AccentPixels(const RECT& area) {
  return std::ranges::count_if(Look(area), IsAccent);
}

bool ScreenTest::HasFocusFrame(const std::string& edit) {
  const RECT place = At(edit);
  const RECT bottom{place.left, place.bottom - 1, place.right, place.bottom};
  return AccentPixels(bottom) == place.right - place.left;
}

bool ScreenTest::Eventually(const std::function<bool()>& isSo) {
  constexpr int kPause = 5;
  const auto deadline = Clock::now() + std::chrono::seconds(10);
  while (!isSo()) {
    if (Clock::now() > deadline || person_.WaitForClose(window_, kPause)) return false;
  }
  return true;
}

}  // namespace screen
