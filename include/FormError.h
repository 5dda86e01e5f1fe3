#pragma once

#include <string>

#include "WexaExport.h"

namespace Wexa {

// Why a form file was refused, and where.
struct WEXA_API FormDiagnostic {
  std::wstring file;      // its path, as the dialog was given it
  int line = 0;           // counted from 1; 0 where it is not known, as in encrypted forms
  std::wstring widget;    // the name of the widget, layout or spacer; may be empty
  std::wstring property;  // of the widget, or attribute; may be empty
  std::wstring reason;    // one English sentence

  // One line: settings.ui:12: "spacing" of "grid": "wide" is no number
  std::wstring Describe() const;
};

// What each exception is that the construction of a Dialog throws for its form, besides the type
// that Dialog.h names:
//
//   try {
//     Dialog dialog(L"settings.ui");
//   } catch (const FormError& error) {
//     ShowToUser(error.diagnostic.Describe());
//   }
class WEXA_API FormError {
 public:
  explicit FormError(FormDiagnostic what);
  virtual ~FormError();

  FormDiagnostic diagnostic;

 protected:
  FormError(const FormError&);
  FormError& operator=(const FormError&);
};

}  // namespace Wexa
