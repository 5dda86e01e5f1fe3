#include "bench/MadeForm.h"

#include <map>
#include <stdexcept>

namespace bench {
namespace {

// How many group boxes stand in each, and how deep they nest.
struct Nesting {
  int boxes;
  int depth;
};

Nesting NestingFor(int widgets) {
  switch (widgets) {
    case 10: return {1, 1};
    case 40: return {2, 2};
    case 100: return {3, 2};
    case 1000: return {2, 5};
    default: throw std::invalid_argument("no form of so many widgets");
  }
}

class Maker {
 public:
  explicit Maker(int widgets) : nesting_(NestingFor(widgets)) {
    int boxes = 0;
    for (int depth = 0; depth < nesting_.depth; ++depth) {
      innermost_ *= nesting_.boxes;
      boxes += innermost_;
    }
    constexpr int kButtonsBelow = 2;
    leaves_ = widgets - boxes - kButtonsBelow;
    MakeForm(widgets);
  }

  std::string Take() { return std::move(text_); }

 private:
  void MakeForm(int widgets) {
    Line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    Open("ui version=\"4.0\"");
    Line("<class>Form</class>");
    Open("widget class=\"QWidget\" name=\"Form\"");
    Line(
        "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>400</width>"
        "<height>300</height></rect></property>");
    Property("windowTitle", "string", "Form of " + std::to_string(widgets) + " widgets");
    OpenLayout("QVBoxLayout");
    Item([this] { MakeBoxes(nesting_.depth, "QHBoxLayout"); });
    Item([this] { MakeButtonsBelow(); });
    Close("layout");
    Close("widget");
    Line("<resources/>");
    Line("<connections/>");
    Close("ui");
  }

  void MakeBoxes(int depth, const std::string& layout) {
    OpenLayout(layout);
    for (int i = 0; i < nesting_.boxes; ++i) Item([&] { MakeBox(depth - 1, layout); });
    Close("layout");
  }

  void MakeBox(int depth, const std::string& around) {
    const std::string title = "Group " + std::to_string(counts_["group"]);
    OpenWidget("QGroupBox", "group");
    Property("title", "string", title);
    if (depth == 0)
      MakeGrid();
    else
      MakeBoxes(depth, around == "QHBoxLayout" ? "QVBoxLayout" : "QHBoxLayout");
    Close("widget");
  }

  void MakeGrid() {
    constexpr int kColumns = 4;
    const int more = grids_++ < leaves_ % innermost_ ? 1 : 0;
    const int count = leaves_ / innermost_ + more;
    OpenLayout("QGridLayout");
    for (int i = 0; i < count; ++i) Item([this] { MakeLeaf(); }, Cell(i / kColumns, i % kColumns));
    Item([this] { MakeSpacer("Qt::Vertical", 20, 40); },
         Cell(count / kColumns + 1, 0) + " colspan=\"4\"");
    Close("layout");
  }

  void MakeLeaf() {
    constexpr int kKinds = 8;
    const int number = made_++;
    const std::string n = " " + std::to_string(number);
    switch (number % kKinds) {
      case 0: return MakeTextWidget("QLabel", "label", "Name" + n);
      case 1: return MakeTextWidget("QLineEdit", "edit", "Width of line" + n);
      case 2: return MakeTextWidget("QLabel", "label", "Colour" + n);
      case 3: return MakeCombo("Style" + n);
      case 4: return MakeTextWidget("QLabel", "label", "Repeat" + n);
      case 5: return MakeSpin();
      case 6: return MakeTextWidget("QCheckBox", "check", "Visible" + n);
      default: return MakeTextWidget("QPushButton", "button", "Apply" + n);
    }
  }

  void MakeTextWidget(const std::string& type, const std::string& name, const std::string& text) {
    OpenWidget(type, name);
    Property("text", "string", text);
    Close("widget");
  }

  void MakeCombo(const std::string& text) {
    OpenWidget("QComboBox", "combo");
    for (int i = 0; i < 5; ++i)
      Line("<item><property name=\"text\"><string>" + text + " choice " + std::to_string(i) +
           "</string></property></item>");
    Close("widget");
  }

  void MakeSpin() {
    OpenWidget("QSpinBox", "spin");
    Property("minimum", "number", "0");
    Property("maximum", "number", "1000");
    Property("value", "number", "42");
    Close("widget");
  }

  void MakeButtonsBelow() {
    OpenLayout("QHBoxLayout");
    Item([this] { MakeSpacer("Qt::Horizontal", 40, 20); });
    Item([this] { MakeTextWidget("QPushButton", "button", "OK"); });
    Item([this] { MakeTextWidget("QPushButton", "button", "Cancel"); });
    Close("layout");
  }

  void MakeSpacer(const std::string& orientation, int width, int height) {
    Open("spacer name=\"" + NextName("spacer") + "\"");
    Property("orientation", "enum", orientation);
    Line("<property name=\"sizeHint\" stdset=\"0\"><size><width>" + std::to_string(width) +
         "</width><height>" + std::to_string(height) + "</height></size></property>");
    Close("spacer");
  }

  // -- Elements ---------------------------------------------------------------------------------

  static std::string Cell(int row, int column) {
    return " row=\"" + std::to_string(row) + "\" column=\"" + std::to_string(column) + "\"";
  }
  std::string NextName(const std::string& name) {
    return name + "_" + std::to_string(++counts_[name]);
  }

  template <typename Make>
  void Item(Make make, const std::string& cell = "") {
    Open("item" + cell);
    make();
    Close("item");
  }
  void OpenWidget(const std::string& type, const std::string& name) {
    Open("widget class=\"" + type + "\" name=\"" + NextName(name) + "\"");
  }
  void OpenLayout(const std::string& type) {
    Open("layout class=\"" + type + "\" name=\"" + NextName("layout") + "\"");
  }
  void Property(const std::string& name, const std::string& kind, const std::string& value) {
    Line("<property name=\"" + name + "\"><" + kind + ">" + value + "</" + kind + "></property>");
  }
  void Open(const std::string& element) {
    Line("<" + element + ">");
    ++depth_;
  }
  void Close(const std::string& name) {
    --depth_;
    Line("</" + name + ">");
  }
  void Line(const std::string& line) { text_ += std::string(depth_, ' ') + line + "\n"; }

  Nesting nesting_;
  int innermost_ = 1;
  int leaves_ = 0;
  int grids_ = 0;
  int made_ = 0;
  std::size_t depth_ = 0;
  std::map<std::string, int> counts_;  // of names
  std::string text_;
};

}  // namespace

std::string MadeForm(int widgets) {
  return Maker(widgets).Take();
}

}  // namespace bench
