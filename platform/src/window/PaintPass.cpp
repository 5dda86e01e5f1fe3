#include "window/PaintPass.h"

#include <algorithm>

#include "window/Coordinates.h"
#include "window/Dispatch.h"
#include "window/Overlaps.h"
#include "window/TopLevelSurface.h"
#include "window/Updates.h"

namespace core {
namespace {

// One window that has to paint: which of its pixels, from its top left corner.
struct Job {
  HWND window;
  PixelRegion area;
};

// Finds out who has to paint without sending a message: parents come before their children, lower
// siblings before those that lie over them. Regions are in surface pixels.
class JobCollector {
 public:
  explicit JobCollector(std::vector<Job>& jobs) : jobs_(jobs) {}

  // `covered` was painted over by what lies behind the window; `limit` is what ancestors let
  // through. Adds all that the window and its children will paint to `painted` when that is given.
  void Visit(Window& window, const CRect& place, const CRect& limit, const PixelRegion& covered,
             PixelRegion* painted) {
    window.subtreeDirty = false;
    window.allDue = false;
    const CRect visible = place.Intersected(limit);
    PixelRegion due = Taken(window.update, place, visible);
    PixelRegion deep = Taken(window.deepUpdate, place, visible);
    if (!covered.IsEmpty()) {
      PixelRegion inside = covered;
      inside.Intersect(visible);
      due.Unite(inside);
      deep.Unite(inside);
      window.eraseDue |= !inside.IsEmpty();
    }
    if (!due.IsEmpty()) AddJob(window, place, due);
    if (painted) painted->Unite(due);
    VisitChildren(window, place, visible, window.ClipsChildren() ? deep : due, painted);
  }

 private:
  static PixelRegion Taken(PixelRegion& update, const CRect& place, const CRect& visible) {
    PixelRegion taken = std::move(update);
    update.Clear();
    if (!taken.IsEmpty()) taken.Move(place.left, place.top).Intersect(visible);
    return taken;
  }

  void AddJob(Window& window, const CRect& place, const PixelRegion& due) {
    jobs_.push_back({window.handle, due});
    jobs_.back().area.Move(-place.left, -place.top);
  }

  void VisitChildren(Window& parent, const CRect& place, const CRect& visible,
                     const PixelRegion& covered, PixelRegion* painted) {
    if (parent.children.empty()) return;
    const CRect client = parent.client.Moved(place.left, place.top);
    const CRect limit = client.Intersected(visible);
    const std::vector<Overlap>& overlaps = OverlapsOf(parent);
    auto over = overlaps.begin();
    std::unordered_map<std::uint32_t, PixelRegion> fromBelow;
    for (auto i = static_cast<std::uint32_t>(parent.children.size()); i-- > 0;) {
      auto first = over;
      while (over != overlaps.end() && over->below == i) ++over;
      Window& child = *parent.children[i];
      if (!child.IsVisible() || !child.redraw) continue;
      const CRect childPlace = PlaceOf(parent, child, client);
      PixelRegion above = CoveredPart(covered, childPlace);
      if (auto found = fromBelow.find(i); found != fromBelow.end()) above.Unite(found->second);
      if (!child.subtreeDirty && above.IsEmpty()) continue;
      if (first == over) {
        Visit(child, childPlace, limit, above, painted);
      } else {
        PixelRegion own;
        Visit(child, childPlace, limit, above, &own);
        if (painted) painted->Unite(own);
        if (!own.IsEmpty())
          for (; first != over; ++first) fromBelow[first->above].Unite(own);
      }
    }
  }

  static CRect PlaceOf(const Window& parent, const Window& child, const CRect& client) {
    return Mirrored(parent, child.rect).Moved(client.left, client.top);
  }

  static PixelRegion CoveredPart(const PixelRegion& covered, const CRect& place) {
    PixelRegion part;
    if (covered.IsEmpty() || !covered.Intersects(place)) return part;
    part = covered;
    return part.Intersect(place);
  }

  std::vector<Job>& jobs_;
};

// The jobs of one pass. Those a thrown exception leaves undone are due again with the next pass.
class JobRunner {
 public:
  explicit JobRunner(std::vector<Job> jobs) : jobs_(std::move(jobs)) {}
  ~JobRunner() {
    for (; next_ < jobs_.size(); ++next_)
      if (Window* window = Find(jobs_[next_].window))
        Invalidate(*window, jobs_[next_].area, {.erase = window->eraseDue});
  }
  JobRunner(const JobRunner&) = delete;
  JobRunner& operator=(const JobRunner&) = delete;

  void Run() {
    while (next_ < jobs_.size()) {
      const Job& job = jobs_[next_++];
      Window* window = Find(job.window);
      if (window && IsShownBelowRoot(*window)) Paint(*window, job.area);
    }
  }

 private:
  static bool IsShownBelowRoot(const Window& window) {
    for (const Window* w = &window; w->parent; w = w->parent)
      if (!w->IsVisible()) return false;
    return true;
  }

  static void Paint(Window& window, const PixelRegion& area) {
    struct Asked {
      Window& window;
      Hold hold{&window};
      ~Asked() { window.painting.Clear(); }
    } asked{window};
    window.painting = area;
    const bool clientDue = area.Intersects(window.client);
    if (!PixelRegion(window.client).Contains(area.Bounds())) Send(window, WM_NCPAINT, 1);
    if (clientDue) Send(window, WM_PAINT);
  }

  std::vector<Job> jobs_;
  std::size_t next_ = 0;
};

// The outermost window up from here whose painting would go over the window's.
Window& OutermostDue(Window& window) {
  Window* start = &window;
  for (Window* w = window.parent; w; w = w->parent)
    if (!w->update.IsEmpty()) start = w;
  return *start;
}

}  // namespace

bool PaintTree(Window& window) {
  Window& root = Root(window);
  if (!window.subtreeDirty) return PresentDamage(root);
  Hold hold(&root);
  EnsurePixels(root);
  std::vector<Job> jobs;
  CRect limit = root.Bounds();
  for (const Window* w = window.parent; w; w = w->parent)
    limit = limit.Intersected(ClientOnSurface(*w));
  JobCollector(jobs).Visit(window, OnSurface(window), limit, PixelRegion(), nullptr);
  const bool painted = !jobs.empty();
  JobRunner(std::move(jobs)).Run();
  return (hold.Alive() && PresentDamage(root)) || painted;
}

bool IsPaintDue() {
  const std::vector<Window*>& windows = TopLevels();
  return std::any_of(windows.begin(), windows.end(),
                     [](const Window* w) { return w->IsVisible() && w->subtreeDirty; });
}

bool PresentDamage(Window& root) {
  if (!root.top || root.top->damage.IsEmpty() || root.top->surfaceId == 0) return false;
  PixelRegion damage = std::move(root.top->damage);
  root.top->damage.Clear();
  damage.Intersect(root.Bounds());
  const auto rects = damage.Rects();
  if (!rects.empty()) display::Current().Present(root.top->surfaceId, rects.data(), rects.size());
  return !rects.empty();
}

}  // namespace core

BOOL UpdateWindow(HWND window) {
  core::Window* w = core::Find(window);
  if (!w) return FALSE;
  if (core::IsShown(*w)) core::PaintTree(core::OutermostDue(*w));
  return TRUE;
}

bool PaintNow() {
  bool painted = false;
  for (const HWND handle : GetTopLevelWindows()) {
    core::Window* window = core::Find(handle);
    if (window && window->IsVisible()) painted |= core::PaintTree(*window);
  }
  return painted;
}
