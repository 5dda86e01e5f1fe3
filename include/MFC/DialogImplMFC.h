#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "Dialog.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/BuildStatistics.h"
#include "MFC/DialogCursor.h"
#include "MFC/EmbeddedPages.h"

namespace Wexa {

class BaseDialogMFC;
class ButtonBox;
class ToolTips;

class Dialog::impl : public BaseImplMFC {
 public:
  struct Element {
    std::wstring name;
    std::shared_ptr<BaseGUIObject> widget;
  };

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

  int DoModal();
  void DoModeless(CWnd* parent, bool show);
  void Done(int state);
  // Gives the client area this size in pixels, kept within the dialog's limits.
  void ResizeClient(int width, int height);

  void AddElement(const std::wstring& name, std::shared_ptr<BaseGUIObject> widget);
  const std::vector<Element>& Elements() const { return elements_; }
  std::shared_ptr<BaseGUIObject> ElementByName(const std::wstring& name) const;
  BaseGUIObject* FocusedElement() const;
  BaseGUIObject* WidgetOf(HWND window) const;
  void SetDefaultButton(Button* button);

  Size clientSize;  // as built, in pixels
  std::wstring title;
  bool resizable = true;
  std::vector<std::wstring> tabOrder;
  WexaUtils::CursorTypes cursorType = WexaUtils::CursorTypes{};
  DialogCursor customCursor;
  BuildStatistics statistics;
  ToolTips& Tips() { return *toolTips_; }
  EmbeddedPages& Pages() { return pages_; }

  // -- From the native dialog
  bool OnInitDialog();
  bool OnPreTranslate(MSG& message, BOOL& result);
  void OnCloseRequest();
  bool OnSetCursor();
  void OnGetMinMaxInfo(MINMAXINFO& info);
  void OnPositionChanging(WINDOWPOS& request);

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  void InitSkin();
  void DropElements();
  void BuildTemplate();
  void MakeWindow();
  void SettleStyle();
  void SizeToClient();
  void CreateElements();
  void CreateElement(std::shared_ptr<BaseGUIObject> widget);
  void AttachSelf();
  void Centre();
  void ShowFirstTime();
  void ApplyTabOrder();
  void ArrangeFirstTime() { Arrange(clientSize); }
  void Arrange(Size client);
  void ArrangeLayout(Layout& layout, Size client);
  void FollowResolution();
  void ArrangeRescaled(const Rescaling& rescale, Size client);
  void PlaceUnplaced(const Rescaling& rescale);
  DLGTEMPLATE& Template();
  void ChooseDefaultButton();
  void SettleFrame();
  bool EnterKeyMapMode();
  void ReinitialiseChildSkins(SkinMode mode);
  bool FollowBuddyMnemonic(const MSG& message);
  bool FollowContainerMnemonic(const MSG& message);
  bool TurnHoveredArea(const MSG& message);
  Size FrameSize();
  Size WithinLimits(Size client);

  std::unique_ptr<BaseDialogMFC> window_;
  CWnd* parentWindow_;
  std::vector<Element> elements_;
  std::unordered_map<std::wstring, std::size_t> elementsByName_;
  std::vector<std::uint32_t> dialogTemplate_;  // keeps the records aligned
  int defaultButtonId_ = -1;
  double scaleFactor_ = WexaUtils::GetScaleFactor();  // of all sizes in pixels
  Size sizeAsArranged_;  // of the client area, before its user changed it
  bool wasInitialized_ = false;
  std::unique_ptr<ToolTips> toolTips_;
  EmbeddedPages pages_{*this};
};

}  // namespace Wexa
