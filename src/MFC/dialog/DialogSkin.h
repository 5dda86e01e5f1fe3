#pragma once

#include <vector>

#include "SkinManager.h"

namespace Wexa {

class BaseGUIObject;
class DialogElements;

// A dialog's skin above those of its widgets: it begins as the global one, and its colours go on
// reaching them through every change of mode.
class DialogSkin {
 public:
  DialogSkin(SkinManager& skin, const DialogElements& elements)
      : skin_(skin), elements_(elements) {}

  void BeginWithGlobal();
  // False, and nothing changes, for a mode that cannot be loaded.
  bool SetMode(SkinMode mode);
  void SetCustom(const SkinManager& skin);
  // The desktop's colours or its contrast changed, for the dialog with these children.
  void FollowSystem(const std::vector<BaseGUIObject*>& children);

 private:
  bool EnterKeyMapMode();
  void PassOn(SkinMode mode);

  SkinManager& skin_;
  const DialogElements& elements_;
};

}  // namespace Wexa
