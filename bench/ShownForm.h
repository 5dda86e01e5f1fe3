#pragma once

#include "Dialog.h"
#include "MFC/DialogImplMFC.h"
#include "bench/Bench.h"
#include "layout/Layout.h"
#include "platform/Classes.h"

namespace bench {

// A generated form, open and painted on a fresh display.
class ShownForm {
 public:
  explicit ShownForm(int widgets, int scale = 1) : ShownForm(GeneratedForm(widgets), scale) {}
  explicit ShownForm(const std::string& file, int scale = 1)
      : dialog_((UseOffscreen(scale), Wide(file)), nullptr, 0, 1.0) {
    dialog_.DoModeless(true);
    PaintNow();
  }

  Wexa::Dialog& Dialog() { return dialog_; }
  Wexa::Dialog::impl& Impl() { return *dialog_.GetImpl(); }
  Wexa::Layout& Layout() { return *Impl().Links().layout; }
  // A size at which nothing is squeezed, and a little more of it every other time.
  Wexa::Size NextSize() {
    const Wexa::Size hint = Layout().TotalSizeHint();
    isLarger_ = !isLarger_;
    const int more = isLarger_ ? kStep : 0;
    return {hint.Width() + more, hint.Height() + more};
  }

 private:
  static constexpr int kStep = 24;

  Wexa::Dialog dialog_;
  bool isLarger_ = false;
};

}  // namespace bench
