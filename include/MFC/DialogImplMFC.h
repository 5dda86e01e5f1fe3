#pragma once

#include <memory>
#include <string>

#include "Dialog.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/BuildStatistics.h"
#include "MFC/DialogCursor.h"
#include "MFC/EmbeddedPages.h"
#include "MFC/dialog/DialogElements.h"
#include "MFC/dialog/DialogInput.h"
#include "MFC/dialog/DialogLife.h"
#include "MFC/dialog/DialogResolution.h"
#include "MFC/dialog/DialogSkin.h"

namespace Wexa {

class BaseDialogMFC;
class ToolTips;

// A dialog as a widget: its place and size, and the parts that do the rest.
class Dialog::impl : public BaseImplMFC {
 public:
  impl(Dialog* owner, DWORD style, CWnd* parent);
  ~impl() override;

  // Builds from the form file. Throws as the constructor of Dialog says.
  void Build(const std::wstring& uiFile);

  void Release() override;
  CWnd* GetCWnd() override;
  Size IdealSize() override;
  void SetFixedSize(Size size) override;
  void MoveWindow(int x, int y, int width, int height, bool repaint) override;
  COLORREF BackgroundColor() override;
  void OnSystemColorsChanged() override;
  void OnResolutionChanged() override;
  bool SetSkinMode(SkinMode mode, bool repaint) override;
  void SetCustomSkin(const SkinManager& skin, bool update);

  // The client area as the form states it, in pixels.
  Size ClientSize() const { return clientSize_; }
  void SetClientSize(Size size) { clientSize_ = size; }
  // What caption and frame add to it.
  Size FrameSize();
  // Gives the client area this size in pixels, kept within the dialog's limits.
  void ResizeClient(int width, int height);
  void MarkInitialized();

  Dialog& Facade() const { return *static_cast<Dialog*>(Owner()); }
  DialogElements& Elements() { return elements_; }
  DialogInput& Input() { return input_; }
  DialogLife& Life() { return life_; }
  DialogResolution& Resolution() { return resolution_; }
  ToolTips& Tips() { return *toolTips_; }
  EmbeddedPages& Pages() { return pages_; }
  DialogCursor& Cursor() { return cursor_; }
  BuildStatistics& Statistics() { return statistics_; }

  // -- From the native dialog
  bool OnPreTranslate(const MSG& message);
  void OnGetMinMaxInfo(MINMAXINFO& info);
  void OnPositionChanging(WINDOWPOS& request);

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  void DropElements();
  Size WithinLimits(Size client);

  std::unique_ptr<BaseDialogMFC> window_;
  DialogElements elements_;
  DialogInput input_;
  DialogSkin skin_;
  DialogLife life_;
  DialogResolution resolution_;
  std::unique_ptr<ToolTips> toolTips_;
  EmbeddedPages pages_{*this};
  DialogCursor cursor_;
  BuildStatistics statistics_;
  Size clientSize_;
};

}  // namespace Wexa
