#pragma once

#include <string>

#include "PicaPoint.h"
#include "Point.h"
#include "SizePolicy.h"
#include "WexaExport.h"
#include "platform/Types.h"

class CWnd;

// What widgets share: the scale factor and conversions to and from platform values.
class WEXA_API WexaUtils {
 public:
  enum CheckBoxStates { Unchecked = 0, Checked = 1, PartiallyChecked = 2 };
  enum ImageTypes { Unknown = 0, BMP = 1, GIF = 2, JPG = 3, PNG = 4, ICO = 6, CUR = 7 };
  enum CursorTypes {
    Arrow = 1,
    Wait = 2,
    IBeam = 3,
    Cross = 4,
    UpArrow = 5,
    SizeCursor = 6,
    SizeNWSE = 8,
    SizeNESW = 9,
    SizeWE = 10,
    SizeNS = 11,
    SizeAll = 12,
    No = 13,
    Hand = 14
  };
  struct OsInfo {
    int valid;
    unsigned int major;
    unsigned int minor;
  };

  // The screen's resolution over 96 DPI, at least 1. Measured once.
  static double GetScaleFactor();

  // What the frame of a window of that style adds, in pixels.
  static unsigned int DialogFrameWidth(unsigned long style);
  static unsigned int DialogFrameHeight(unsigned long style);
  // Null for null.
  static HWND GetHandleFromWndPtr(CWnd* window);
  static CWnd* GetWndPtrFromHandle(HWND handle);

  // In screen coordinates.
  static Wexa::Point GetCursorPosition();
  // Adds the flags of a native mouse message's key state; flags that are set stay set.
  static void MapMouseKeys(unsigned int keyState, unsigned int& buttons, unsigned int& modifiers);
  // The native identifier; that of the arrow for anything else.
  static const wchar_t* GetPlattformCursorType(CursorTypes type);

  // Unchecked for an unknown state.
  static int ChBStateToMFCChBState(CheckBoxStates state);
  static CheckBoxStates MFCChBStateToChBState(int state);

  // The policy that a form file's text names, Fixed when it names none.
  static Wexa::SizePolicy::Policy PropertyToSizePolicy(const std::wstring& text);
  // By a file name's extension, with or without its dot.
  static ImageTypes WstrToImageType(std::wstring extension);
  static std::string ImageTypeToStr(ImageTypes type);

  // With at most 12 points.
  static Wexa::PicaPoint ConvertToPicaPoint(Wexa::PicaPoint value);
  static Wexa::PicaPoint DoubleToPica(double picas);
  static double PicaToDouble(Wexa::PicaPoint value);

  static OsInfo GetOsInfo();
  // The state now; cheap enough to ask before every palette load.
  static bool IsSystemHighContrastMode();
  // Whether the library is a module of its own rather than part of the executable.
  static bool IsRunInPlugin();

 private:
  WexaUtils() = default;
};
