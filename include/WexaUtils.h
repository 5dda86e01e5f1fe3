#pragma once

#include <map>
#include <string>
#include <vector>

#include "FontData.h"
#include "PicaPoint.h"
#include "Point.h"
#include "SizePolicy.h"
#include "WexaExport.h"
#include "platform/Types.h"

class CWnd;

// What a version description file says. Texts that it does not have are empty.
struct PluginVersionInfo {
  std::wstring language;
  std::wstring version;
  // By name: the product's description, and what concerns its makers and licence.
  std::map<std::wstring, std::wstring> description;
  std::map<std::wstring, std::wstring> legal;
};

// What widgets share: the scale factor, pictures, and conversions to and from platform values.
class WEXA_API WexaUtils {
 public:
  enum CheckBoxStates : int { Unchecked = 0, Checked = 1, PartiallyChecked = 2 };
  enum ImageTypes : int { Unknown = 0, BMP = 1, GIF = 2, JPG = 3, PNG = 4, ICO = 6, CUR = 7 };
  // How a picture gets its size. Those that fit or fill take the rest from a target rectangle.
  enum ScalePicture : int {
    ScaleByFactor = 0,  // by the screen's scale factor
    KeepSize = 1,
    FitWidth = 2,
    FitHeight = 3,
    FillTarget = 4
  };
  enum CursorTypes : int {
    Custom = 1,  // the dialog's own; without one the arrow
    Wait = 2,
    IBeam = 3,
    Cross = 4,
    UpArrow = 5,
    SizeCursor = 6,
    Arrow = 7,
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

  // The screen's resolution over 96 DPI, at least 1.
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
  // The native identifier, which is not to be written to; that of the arrow for anything else.
  static wchar_t* GetPlattformCursorType(CursorTypes type);

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

  // major << 16 | minor, as a module that is loaded tells by its "DllGetVersion"; 0 when there is
  // no such module or it does not tell.
  static unsigned long GetVersion(const std::wstring& moduleName);
  static OsInfo GetOsInfo();
  // The state now; cheap enough to ask before every palette load.
  static bool IsSystemHighContrastMode();
  // Whether the library is a module of its own rather than part of the executable.
  static bool IsRunInPlugin();
  // Families whose letters are signs and pictures, so that names are not to be written in them.
  static const std::vector<std::wstring> symbol_fonts;
  // Appends one record for each font family, then sorts them all by face name: bold, italic and
  // underline are 1 when the family's plainest face is that, else -1; the size is not set. With
  // `lettersOnly` symbol and vertical families are left out. False when the system lists none.
  static bool GetSystemFonts(std::vector<Wexa::FontData>& fonts, bool lettersOnly);
  // Reads the XML file whose outermost element is "Ostrel": the texts of "language" and "version"
  // (or "Version"), and the "name" and "value" attributes of what "VerDes" (the description) and
  // "VerLeg" (the legal part) hold. False, and `info` empty, for other XML. Throws
  // rapidxml::parse_error, "error reading stream" when the file cannot be read.
  static bool GetPluginVersionInfo(std::wstring path, PluginVersionInfo& info);

  // -- Pictures. Bitmaps and icons are the caller's; null stands for any failure.

  // A file's bytes, which the caller deletes as an array. Null and size 0 when it cannot be read.
  static unsigned char* LoadImageBuffer(const std::wstring& path, int* size);
  // A picture from a file's bytes; of an icon file the icon that SelectIcon chooses.
  static HBITMAP GetBitmap(const unsigned char* data, int size, ImageTypes type, int iconSize);
  // The first icon in a file's bytes.
  static HICON GetIconFromBuffer(const unsigned char* data, int size);
  // The icon's colours, with no regard to its mask.
  static HBITMAP HIconToHBitmap(HICON icon);
  // With the alpha channel of the icon or, if it has none (`hasAlpha` is false then), one made from
  // its mask. Null for a cursor.
  static HBITMAP HIconToHBitmapAlpha(HICON icon, bool& hasAlpha);
  // Changes the bitmap itself and returns it: every pixel gets the colour 0x00BBGGRR and keeps its
  // alpha; the colour 0 turns it grey. Null for bitmaps of less than 24 bits.
  static HBITMAP ReplaceColor(CWnd* window, HBITMAP bitmap, unsigned long color);
  static HBITMAP ReplaceColorToGray(CWnd* window, HBITMAP bitmap);
  // The same bitmap when its size stays, else a new one. In a window of class "ComboBoxEx32"
  // heights follow the scale factor in every mode.
  static HBITMAP ScaleBitmap(HBITMAP bitmap, ScalePicture mode, RECT target, CWnd* window);

 private:
  WexaUtils() = default;
  static HBITMAP CharPToHBitmap(const unsigned char* data, int size);
  // Appends every icon found, wherever in the bytes it starts.
  static void GetIcons(std::vector<HICON>& icons, const unsigned char* data, int size);
  // The icon of that width, else the widest narrower one, else the first.
  static HICON SelectIcon(std::vector<HICON>& icons, int size);
  // Leaves the stale handles in place.
  static void DeleteIcons(std::vector<HICON>& icons);
};
