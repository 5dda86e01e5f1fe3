#include "Button.h"
#include "ButtonBox.h"
#include "CheckBox.h"
#include "ChildDialog.h"
#include "ComboBox.h"
#include "ComboBoxFS.h"
#include "Configuration.h"
#include "DateEdit.h"
#include "DoubleSpinEdit.h"
#include "DrawElement.h"
#include "Edit.h"
#include "GroupBox.h"
#include "HyperLinkElement.h"
#include "Label.h"
#include "Line.h"
#include "ListBox.h"
#include "MultiLineEdit.h"
#include "ProgressBar.h"
#include "RadioButton.h"
#include "RichEdit.h"
#include "ScrollArea.h"
#include "ScrollBar.h"
#include "Slider.h"
#include "SpinEdit.h"
#include "Splitter.h"
#include "StackedDialog.h"
#include "TabView.h"
#include "TreeView.h"
#include "WexaObjectFactory.h"

namespace Wexa {

namespace {

template <typename Widget>
void Register(const char* formClass) {
  WexaObjectFactory::Instance().Register(formClass, std::make_shared<Creator<Widget>>());
}

}  // namespace

void WexaConfig::RegisterWexaControls() {
  Register<ScrollArea>("QScrollArea");
  Register<Button>("QPushButton");
  Register<Edit>("QLineEdit");
  Register<MultiLineEdit>("QPlainTextEdit");
  Register<RichEdit>("QTextEdit");
  Register<ListBox>("QTableWidget");
  Register<ListBox>("QListWidget");
  Register<CheckBox>("QCheckBox");
  Register<RadioButton>("QRadioButton");
  Register<GroupBox>("QGroupBox");
  Register<ComboBox>("QComboBox");
  Register<Label>("QLabel");
  Register<TabView>("QTabWidget");
  Register<ChildDialog>("QWidget");
  Register<Slider>("QSlider");
  Register<ScrollBar>("QScrollBar");
  Register<SpinEdit>("QSpinBox");
  Register<DoubleSpinEdit>("QDoubleSpinBox");
  Register<StackedDialog>("QStackedWidget");
  Register<ButtonBox>("QDialogButtonBox");
  Register<TreeView>("QTreeView");
  Register<Splitter>("QSplitter");
  Register<DateEdit>("QDateEdit");
  Register<Line>("Line");
  Register<HyperLinkElement>("HyperLinkElement");
  Register<DrawElement>("DrawElement");
  Register<ProgressBar>("QProgressBar");
  Register<ComboBoxFS>("QComboBoxFS");
}

}  // namespace Wexa
