#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"
#include "WexaUtils.h"

namespace Wexa {

// A text; a line that does not fit ends in an ellipsis, unless it is wrapped. With a buddy, the
// character after its "&" is a mnemonic that gives the buddy the focus. A picture takes the text's
// place.
class WEXA_API Label : public BaseGUIObject {
 public:
  class impl;

  enum class Alignment { Left = 0, Center = 1, Right = 2 };

  // Without a native window: the dialog that holds the widget makes it.
  Label();
  ~Label() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetText(const std::wstring& text);
  std::wstring GetText();
  void SetAlignment(Alignment alignment);
  // Content is centred vertically unless told otherwise.
  void SetVerticallyCentered(bool centered);
  // A wrapped label's height depends on its width.
  void SetWordWrap(bool wrap);
  // Space, in 96-DPI units, between the text and the edges that it is aligned to; none for less
  // than 0, and none at an edge from which the text is centred.
  void SetIndent(int units);
  void SetFont(const FontData& font);
  // Shows a picture, grey while the label is disabled. What fits or fills follows the label's size.
  // `iconSize` chooses among the icons of an icon file. False when there is no picture to read;
  // nothing changes then.
  bool LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                   WexaUtils::ScalePicture scale, int iconSize);
  // A file, its type by its extension.
  bool LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale, int iconSize);
  // Not owned; null for none.
  void SetBuddy(BaseGUIObject* buddy);
  BaseGUIObject* GetBuddy() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
