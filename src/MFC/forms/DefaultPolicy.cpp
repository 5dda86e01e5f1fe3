#include "MFC/forms/DefaultPolicy.h"

#include <algorithm>
#include <array>

namespace Wexa {

namespace {

struct ClassPolicy {
  std::wstring_view className;
  SizePolicy::Policy horizontal;
  SizePolicy::Policy vertical;
  bool turns = false;  // the axes change places when it is vertical
};

constexpr std::array kPolicies{
    ClassPolicy{L"QScrollArea", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QPlainTextEdit", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QTextEdit", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QTableWidget", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QListWidget", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QTreeView", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QTabWidget", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"DrawElement", SizePolicy::Expanding, SizePolicy::Expanding},
    ClassPolicy{L"QLineEdit", SizePolicy::Expanding, SizePolicy::Fixed},
    ClassPolicy{L"QDialogButtonBox", SizePolicy::Expanding, SizePolicy::Fixed, true},
    ClassPolicy{L"QProgressBar", SizePolicy::Expanding, SizePolicy::Fixed, true},
    ClassPolicy{L"QSlider", SizePolicy::Expanding, SizePolicy::Fixed, true},
    ClassPolicy{L"QSplitter", SizePolicy::Expanding, SizePolicy::Preferred, true},
    ClassPolicy{L"QPushButton", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"QCheckBox", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"QRadioButton", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"QSpinBox", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"QDoubleSpinBox", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"QDateEdit", SizePolicy::Minimum, SizePolicy::Fixed},
    ClassPolicy{L"Line", SizePolicy::Minimum, SizePolicy::Fixed, true},
    ClassPolicy{L"QScrollBar", SizePolicy::Minimum, SizePolicy::Fixed, true},
    ClassPolicy{L"QComboBox", SizePolicy::Preferred, SizePolicy::Fixed},
    ClassPolicy{L"QComboBoxFS", SizePolicy::Preferred, SizePolicy::Fixed},
};

}  // namespace

SizePolicy DefaultPolicyOf(std::wstring_view className, bool isVertical) {
  auto found = std::find_if(kPolicies.begin(), kPolicies.end(),
                            [&](const ClassPolicy& p) { return p.className == className; });
  if (found == kPolicies.end()) return {SizePolicy::Preferred, SizePolicy::Preferred};
  bool turned = isVertical && found->turns;
  return turned ? SizePolicy(found->vertical, found->horizontal)
                : SizePolicy(found->horizontal, found->vertical);
}

}  // namespace Wexa
