#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"
#include "RGBColor.h"
#include "WexaUtils.h"

class CButton;

namespace Wexa {

// A push button, or with SetChecked a toggle. Colours are 0x00BBGGRR with transparency in the top
// byte.
class WEXA_API Button : public BaseGUIObject {
 public:
  class impl;

  // Native buttons are drawn by the theme. All others are drawn by the library in the button's own
  // colours; those from Flat on keep the transparency of their border colours.
  enum class ButtonStyle {
    Native = 0,
    Framed = 1,
    Raised = 2,
    Accent = 3,
    Flat = 4,
    IconOnly = 5,
    IconAndText = 6,
    Link = 7
  };

  // Without a native window: the dialog that holds the widget makes it.
  Button();
  // Adopts a native button object, whose window may exist already.
  explicit Button(std::shared_ptr<CButton> native);
  ~Button() override;

  // Fired by a click: pointer, Space, Return on the default button, mnemonic.
  CallbackList<> Clicked;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The first call turns the button into a toggle, also before it has a window. Throws
  // WexaException "SetChecked re-create error" when the native button cannot be made anew.
  virtual void SetChecked(bool checked);
  virtual bool GetCheck();
  // Shows a picture before the text, in the style IconOnly instead of it. What fits or fills, fits
  // the button's area as it is now. `iconSize` chooses among the icons of an icon file. Nothing
  // changes when there is no picture to read; with `redraw` the button shows it at once.
  virtual void LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                           WexaUtils::ScalePicture scale, int iconSize, bool redraw);
  // A file, its type by its extension.
  virtual void LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale, int iconSize,
                           bool redraw);
  // The same for the picture that a disabled button shows instead.
  virtual void LoadPictureDisabled(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                                   WexaUtils::ScalePicture scale, int iconSize, bool redraw);
  virtual void LoadPictureDisabled(const std::wstring& path, WexaUtils::ScalePicture scale,
                                   int iconSize, bool redraw);
  // Makes the disabled picture: the normal one's shape in the skin's colour of disabled text.
  // Nothing happens without a normal picture.
  virtual void GeneratePictureDisabled(bool redraw);
  // Native gives up the borders of SetBorderColor, too.
  virtual void SetStyle(ButtonStyle style);
  // The same as SetStyle.
  virtual void UseTextAndIcon(ButtonStyle style);
  virtual ButtonStyle GetStyle();
  // 0x00BBGGRR, for the enabled text.
  virtual void SetTextColor(int color);

  void SetText(const std::wstring& text);
  std::wstring GetText();
  void SetFont(FontData& font);
  // What the native window has when no font was set.
  FontData GetFont();

  // Faces of the library-drawn styles in these states.
  void SetBackgroundColor(RGBColor normal, RGBColor hovered, RGBColor pressed, RGBColor disabled,
                          RGBColor checked);
  // One face for all states; with `redraw` at once.
  void SetBackgroundColor(unsigned int color, bool redraw);
  // Makes the button library-drawn. Opaque unless the style is Flat or above. Nothing happens
  // without a native window.
  void SetBorderColor(RGBColor normal, RGBColor hovered, RGBColor pressed);
  void SetTextColor(RGBColor normal, RGBColor disabled);
  // SetStyle(Raised).
  void Use3dStyle();
  void DisableFocusRect(bool disable);
  bool IsDisableFocusRect();
  // In 96-DPI units.
  void SetRoundedButtonCornerRadius(int radius);
  int GetRoundedButtonCornerRadius();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
