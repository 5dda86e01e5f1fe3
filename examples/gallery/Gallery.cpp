#include "Gallery.h"

#include <wexa/platform/Painter.h>

namespace {

using Wexa::SkinMode;

// A bar for each value, as high as the value says in percent.
void DrawBars(Painter& painter, const Wexa::Rect& area) {
  constexpr int kValues[] = {30, 55, 40, 80, 65, 95};
  constexpr COLORREF kColors[] = {RGB(61, 143, 216), RGB(46, 158, 107)};
  const int step = area.Width() / static_cast<int>(std::size(kValues));
  int left = area.Left();
  for (int i = 0; const int value : kValues) {
    const int height = area.Height() * value / 100;
    painter.FillRect({left, area.Bottom() - height, left + step * 3 / 4, area.Bottom()},
                     kColors[i++ % 2]);
    left += step;
  }
}

}  // namespace

Gallery::Gallery() {
  // Colours by key, as a host would read them from a file of its own.
  Wexa::InitSkinColorByMap(
      Wexa::SkinMap::Inputs,
      {{L"Active_BG", 0xE8F4F0UL}, {L"Input_BG", 0xFFFFFFUL}, {L"Accent_color", 0x5A7A10UL}});
  OnClick(L"light", [this] { SetSkin(SkinMode::Default); });
  OnClick(L"dark", [this] { SetSkin(SkinMode::Dark); });
  OnClick(L"colored", [this] { SetSkin(SkinMode::XML); });
  OnClick(L"balloon", [this] { ShowBalloon(); });
  OnClick(L"close", [this] { dialog_.Done(Wexa::Dialog::Accepted); });
  OnClick(L"push", [this] { ++clicks_; });
  OnClick(L"turn", [this] { TurnStack(); });
  Find<Wexa::HyperLinkElement>(L"link").Clicked.Connect([this] { ShowBalloon(); });
  Find<Wexa::DrawElement>(L"canvas").SetPaintProcedure(DrawBars);
}

void Gallery::ShowBalloon() {
  Find<Wexa::Button>(L"balloon")
      .ShowBalloonTipEx(L"A balloon", L"It points at its widget and goes with the next key.",
                        Wexa::BalloonTipIconType::Information, true, true);
}

void Gallery::TurnStack() {
  auto& stack = Find<Wexa::StackedDialog>(L"stack");
  stack.SetCurrentIndex(1 - stack.GetCurrentIndex());
}
