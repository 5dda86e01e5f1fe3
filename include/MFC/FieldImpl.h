#pragma once

#include <string>
#include <vector>

#include "MFC/PaintedImpl.h"

namespace Wexa {

// Widgets that show content in a bordered field. They are shown, not edited.
class FieldImpl : public PaintedImpl {
 public:
  explicit FieldImpl(BaseGUIObject* owner);
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;

 protected:
  void FillPalette(ControlPalette& palette) override;
  // Draws inside the field's padding.
  virtual void PaintContent(Painter& painter, const CRect& inner,
                            const ControlPalette& palette) = 0;
  virtual int CornerRadius() const { return 0; }
  COLORREF TextColor(const ControlPalette& palette);
  // One line of this width in pixels with the field's padding around it.
  Size LineSize(int textWidth) const;
};

// One line of text with a part at its right end: combo, spin and date fields.
class LineFieldImpl : public FieldImpl {
 public:
  using FieldImpl::FieldImpl;
  Size IdealSize() override;
  Size MinimumIdealSize() override;
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

 protected:
  void PaintContent(Painter& painter, const CRect& inner, const ControlPalette& palette) override;
  virtual std::wstring ShownText() = 0;
  // Widest text that the field should hold, in pixels.
  virtual int ContentWidth() = 0;
  virtual void PaintEnd(Painter& painter, const CRect& end, const ControlPalette& palette) = 0;
};

// Lines of text: lists, trees and text areas.
class TextAreaImpl : public FieldImpl {
 public:
  using FieldImpl::FieldImpl;
  Size IdealSize() override;
  Size MinimumIdealSize() override;
  SizePolicy DefaultPolicy() const override {
    return {SizePolicy::Expanding, SizePolicy::Expanding};
  }
  std::vector<std::wstring> lines;
  bool wraps = false;

 protected:
  // The text of a text area, which forms know under several names.
  void ReadText(const FormReader& form);
  void PaintContent(Painter& painter, const CRect& inner, const ControlPalette& palette) override;
};

}  // namespace Wexa
