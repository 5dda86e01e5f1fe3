#pragma once

#include <map>
#include <string>

#include "Dialog.h"
#include "MFC/DialogImplMFC.h"

namespace preview {

// Gives the dialog the colours of the key map, if there is one.
void UseKeyMap(Wexa::Dialog& dialog);

// Turns tab widgets and stacks of a shown dialog to pages, by their names. Throws
// std::runtime_error when the form has no such widget or the widget no such page.
using Pages = std::map<std::string, int>;
void ShowPages(Wexa::Dialog& dialog, const Pages& pages);

// A form's dialog, shown without a modal loop so that it can be sized, measured and pictured.
class Preview {
 public:
  // Builds the dialog; throws what its construction throws, and std::runtime_error for a file that
  // cannot be read.
  explicit Preview(const std::string& file);

  // Makes the windows and lays them out.
  void Show();
  // Paints what is due and shows it.
  void Paint();
  // Handles all that waits. Throws std::runtime_error when that goes on without an end.
  void Settle();
  // Gives the client area this size in pixels as far as the dialog's limits allow.
  void Resize(Wexa::Size client);
  void ShowPages(const Pages& pages) { preview::ShowPages(dialog_, pages); }
  // Paints the window with its frame into a PNG file.
  void SavePicture(const std::string& png);

  Wexa::Dialog::impl& Impl() { return *dialog_.GetImpl(); }
  // The client area on the screen, its left edge first whatever the direction of the layout.
  CRect ClientOnScreen();

 private:
  Wexa::Dialog dialog_;
};

}  // namespace preview
