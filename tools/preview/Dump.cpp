#include "preview/Dump.h"

#include <nlohmann/json.hpp>

#include "Utf8.h"
#include "layout/Layout.h"
#include "platform/Window.h"
#include "preview/Preview.h"

namespace preview {
namespace {

using Json = nlohmann::ordered_json;

Json SizeJson(Wexa::Size size) {
  return {size.Width(), size.Height()};
}

Json RectJson(const CRect& rect) {
  return {rect.left, rect.top, rect.Width(), rect.Height()};
}

// Of two widgets of one name the first of the form counts.
Json WidgetsJson(Preview& preview, bool hidden) {
  Json widgets = Json::object();
  const CRect client = preview.ClientOnScreen();
  for (const auto& [name, widget] : preview.Impl().Elements()) {
    const HWND window = widget->GetPlatformHandle();
    CRect rect;
    if (name.empty() || (!hidden && !IsWindowVisible(window)) || !GetWindowRect(window, &rect))
      continue;
    widgets.emplace(Wexa::NarrowUtf8(name), RectJson(rect.Moved(-client.left, -client.top)));
  }
  return widgets;
}

Json EntryJson(Preview& preview, Wexa::Size request, bool hidden) {
  const CRect client = preview.ClientOnScreen();
  return {{"request", SizeJson(request)},
          {"client", SizeJson(client.Size())},
          {"widgets", WidgetsJson(preview, hidden)}};
}

Json SizesJson(Preview& preview, const std::vector<Wexa::Size>& sizes, bool hidden) {
  Json entries = Json::array();
  if (sizes.empty()) entries.push_back(EntryJson(preview, preview.Impl().ClientSize(), hidden));
  for (const Wexa::Size& size : sizes) {
    preview.Resize(size);
    entries.push_back(EntryJson(preview, size, hidden));
  }
  return entries;
}

// A dialog without a layout has only its own limits.
Json LayoutJson(Wexa::Dialog::impl& dialog) {
  Wexa::Layout* layout = dialog.Links().layout;
  return {{"hint", SizeJson(layout ? layout->TotalSizeHint() : dialog.IdealSize())},
          {"min", SizeJson(layout ? layout->TotalMinimumSize() : dialog.MinimumSize())},
          {"max", SizeJson(layout ? layout->TotalMaximumSize() : dialog.MaximumSize())}};
}

}  // namespace

std::string DumpText(Preview& preview, const std::string& formName,
                     const std::vector<Wexa::Size>& sizes, bool hidden) {
  Json dump{{"form", formName},
            {"sizes", SizesJson(preview, sizes, hidden)},
            {"layout", LayoutJson(preview.Impl())}};
  return dump.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace preview
