#pragma once

#include <memory>

#include "MFC/BaseImplMFC.h"
#include "MFC/DrawnWnd.h"

namespace Wexa {

// Implementations whose window is one of the library's own.
class DrawnImpl : public BaseImplMFC {
 public:
  DrawnImpl(BaseGUIObject* owner, std::shared_ptr<DrawnWnd> window);
  CWnd* GetCWnd() override;

 protected:
  DrawnWnd& Shown() { return *window_; }
  bool CreateNative(CWnd* parent) override;

 private:
  std::shared_ptr<DrawnWnd> window_;
};

}  // namespace Wexa
