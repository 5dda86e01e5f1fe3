#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>

#include "SkinManagerColor.h"
#include "WexaExport.h"

namespace Wexa {

class BaseImpl;

enum class SkinMode : std::int32_t { Default = 0, Dark = 1, XML = 2, HCMDark = 3, Custom = 4 };

// Which names the colours have: those for input fields, or those for buttons.
enum class SkinMap : std::int32_t { Inputs = 0, Buttons = 1 };

// The 122 colours that a widget paints with. A slot that was not set explicitly shows the colour of
// the same slot of the parent skin, or without a parent that of the palette loaded last. Explicit
// changes tell the widget that owns the skin. A skin whose parent dies keeps the colours it shows.
// User-interface thread only.
class WEXA_API SkinManager {
 public:
  static constexpr int kSlotCount = 122;

  SkinManager(BaseImpl* owner, SkinMode mode);
  explicit SkinManager(SkinMode mode);
  // A copy has the colours, the parent and the state, but no owner: it tells no widget.
  SkinManager(const SkinManager& other);
  // Takes the colours of slots that are not locked, the parent and the state; the owner stays.
  SkinManager& operator=(const SkinManager& other);
  ~SkinManager();

  // Throws std::out_of_range for a number outside 0 to 121.
  SkinManagerColor& Slot(int number) { return slots_.at(static_cast<unsigned>(number)); }
  const SkinManagerColor& Slot(int number) const {
    return slots_.at(static_cast<unsigned>(number));
  }

  // -- Palettes
  // ------------------------------------------------------------------------------------

  // Loads a palette: all its slots become unset. In a high-contrast system that is the
  // high-contrast palette whatever the mode. With `detach` the parent is dropped. False, and
  // nothing is loaded, for modes other than Default to HCMDark, and for XML without a parent.
  // After detaching no slot has a fallback: what the palette does not define (37 and 65 in the dark
  // and the high-contrast one; 56, 69 to 73, 75 to 77, 79 to 81 in the light one) keeps the colour
  // that it showed.
  bool LoadSkin(SkinMode mode, bool lockColors, bool detach);
  // The same, unlocked and detached.
  bool SetSkinMode(SkinMode mode);
  // Shows what the other shows, locked slots too: takes over its colours, what they fall back on
  // and its state, and calls the mode Custom. Always true.
  bool SetCustomSkin(const SkinManager& other);
  // Loads a palette below a parent; null, or this skin, stands for none. A skin that is its own
  // parent and was initialised before is left as it is.
  bool InitSkinManager(const SkinManager* parent, SkinMode mode);
  bool IsInitDone() const { return initDone_; }
  void ResetInitilization() { initDone_ = false; }
  void LoadDefaultSkin(bool detach);
  void LoadDarkSkin(bool detach);
  void LoadHCMDarkSkin(bool detach);
  // A copy of the parent's resolved colours. Nothing happens without a parent.
  void LoadXMLSkin(bool detach);

  // Loads the palette that was asked for last once more, for a system whose colours or contrast
  // changed. Colours that were set explicitly stay; a custom skin stays as it is.
  void ReloadPalette();
  // The mode that was asked for, whatever the high-contrast system made of it.
  SkinMode GetRequestedMode() const { return requestedMode_; }

  SkinMode GetSkinMode() const { return mode_; }
  // Changes what GetSkinMode answers; loads nothing.
  void ChangeSkinModeIdentificator(SkinMode mode) { mode_ = mode; }

  // -- Parent
  // --------------------------------------------------------------------------------------

  // This skin itself when it has no parent.
  const SkinManager& GetParentSkinManager() const { return Parent() ? *Parent() : *this; }
  // Counts from the next palette load on.
  void SetParentSkinManager(const SkinManager* parent) { parent_.PointTo(parent); }
  SkinManager* GetPtr() { return this; }

  // -- Changes
  // -------------------------------------------------------------------------------------

  bool GetColorChangeFlag() const { return colorChangeFlag_; }
  // Setting the flag tells the owner first.
  void SetColorChangeFlag(bool changed);
  // Called before painting: has the owner refresh its colours when a slot changed since the last
  // call.
  void UpdateCustomColors();
  void UpdateColorObjects() {}

  // -- Colours by key
  // ------------------------------------------------------------------------------

  // Sets every slot that the map binds to the key, in any mix of upper and lower case, to the
  // resolved colour; locked slots too. Unknown keys change nothing.
  void AssignColor(SkinMap map, const std::wstring& key, SkinManagerColor color);
  void InitSkinColorByMap(SkinMap map, const std::map<std::wstring, SkinManagerColor>& colors);
  bool IsKeyMapApplied() const { return keyMapApplied_; }

 private:
  // A reference to another skin, which knows of it and ends it when it goes.
  class Reference {
   public:
    explicit Reference(SkinManager& holder) : holder_(holder) {}
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    ~Reference() { PointTo(nullptr); }
    const SkinManager* Target() const { return target_; }
    void PointTo(const SkinManager* target);
    SkinManager& Holder() const { return holder_; }

   private:
    SkinManager& holder_;
    const SkinManager* target_ = nullptr;
    Reference* next_ = nullptr;
    Reference** place_ = nullptr;  // what points to this one in the target's list
  };

  const SkinManager* Parent() const { return parent_.Target(); }
  bool LoadInSystem(SkinMode mode, bool detach);
  void LoadPalette(SkinMode mode, bool detach);
  void BeginLoad(SkinMode mode, bool detach);
  void SetParentFallbacks();
  void KeepColorsOf(const SkinManager& leaving);
  void CopySlots(const SkinManager& other);
  void CopyState(const SkinManager& other);
  const SkinManagerColor* FallbackOf(std::size_t slot) const;

  std::array<SkinManagerColor, kSlotCount> slots_;
  Reference parent_{*this};
  Reference fallbacks_{*this};               // the skin that the slots' fallbacks are of
  mutable Reference* references_ = nullptr;  // those that point here
  BaseImpl* owner_ = nullptr;
  SkinMode mode_ = SkinMode::Default;
  SkinMode requestedMode_ = SkinMode::Default;
  bool keyMapApplied_ = false;
  bool lockColors_ = false;
  bool initDone_ = false;
  bool colorChangeFlag_ = false;
};

}  // namespace Wexa
