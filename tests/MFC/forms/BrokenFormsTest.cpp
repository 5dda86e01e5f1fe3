// Damaged forms: each gives an error, or a dialog that opens and paints.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "MFC/DialogImplMFC.h"
#include "WexaException.h"
#include "data/TestData.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

struct Span {
  std::size_t start;
  std::size_t length;
};

// Every damage of every form, when asked for; else a few of each.
std::size_t Samples() {
  return std::getenv("WEXA_TEST_ALL_DAMAGES") ? SIZE_MAX : 5;
}

class BrokenFormsTest : public DialogTest {
 protected:
  // Whether it opened.
  bool Try(const std::string& form) {
    const bool opened = OpenOrFail(form);
    dialog_.reset();
    EXPECT_TRUE(GetTopLevelWindows().empty());
    return opened;
  }

  // Damages the form at some of the places, one at a time.
  void ReplaceEach(const std::string& form, const std::vector<Span>& places,
                   const std::string& replacement) {
    const std::size_t step = std::max<std::size_t>(1, places.size() / Samples());
    for (std::size_t i = 0; i < places.size(); i += step) {
      std::string damaged = form;
      damaged.replace(places[i].start, places[i].length, replacement);
      SCOPED_TRACE("\"" + replacement + "\" at " + std::to_string(places[i].start));
      Try(damaged);
    }
  }

  template <typename Damage>
  void ForEachForm(Damage damage) {
    for (const std::string& path : testdata::Forms()) {
      const std::string form = testdata::BytesOf(path);
      SCOPED_TRACE(path);
      damage(form);
    }
  }

 private:
  bool OpenOrFail(const std::string& form) {
    std::ofstream(file_, std::ios::binary) << form;
    try {
      dialog_ = std::make_unique<Dialog>(std::wstring(file_.begin(), file_.end()), nullptr, 0, 1.0);
      dialog_->DoModeless(true);
      Robot::PumpAll();
      Robot::PixelAt(dialog_->GetHandle(), 0, 0);
      return true;
    } catch (const WexaException& error) {
      EXPECT_TRUE(IsKnown(error.what())) << error.what();
    } catch (const rapidxml::parse_error&) {
    } catch (const std::invalid_argument&) {  // of a number's conversion
    } catch (const std::out_of_range&) {
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
    return false;
  }

  static bool IsKnown(const std::string& text) {
    return text.ends_with("Could not load and parse UI file") ||
           text.ends_with("Cannot build UI model of dialog.") ||
           text.ends_with("Cannot to parse UI tree.");
  }

  void SetUp() override {
    const std::wstring file = FileOf("");
    file_.assign(file.begin(), file.end());
  }

  std::string file_;
};

std::vector<Span> AttributesIn(const std::string& form) {
  std::vector<Span> spans;
  for (auto at = form.find("=\""); at != form.npos; at = form.find("=\"", at + 1)) {
    const auto start = form.find_last_of(" \n", at);
    const auto end = form.find('"', at + 2);
    if (start != form.npos && end != form.npos) spans.push_back({start, end + 1 - start});
  }
  return spans;
}

std::vector<Span> NumbersIn(const std::string& form) {
  std::vector<Span> spans;
  for (auto at = form.find_first_of(">\""); at != form.npos;
       at = form.find_first_of(">\"", at + 1)) {
    const auto end = form.find_first_not_of("-0123456789", at + 1);
    const bool isWhole = end != form.npos && (form[end] == '<' || form[end] == '"');
    if (isWhole && end > at + 1) spans.push_back({at + 1, end - at - 1});
  }
  return spans;
}

TEST_F(BrokenFormsTest, CutFormsNeverOpen) {
  ForEachForm([&](const std::string& form) {
    const auto end = form.rfind("</ui>");
    const std::size_t step = std::max<std::size_t>(1, end / Samples());
    for (std::size_t length = 0; length < end; length += step)
      EXPECT_FALSE(Try(form.substr(0, length))) << "cut after " << length;
  });
}

TEST_F(BrokenFormsTest, FormsWithoutAnAttributeOpenOrFail) {
  ForEachForm([&](const std::string& form) { ReplaceEach(form, AttributesIn(form), ""); });
}

TEST_F(BrokenFormsTest, FormsWithWrongNumbersOpenOrFail) {
  ForEachForm([&](const std::string& form) {
    const auto numbers = NumbersIn(form);
    for (const char* wrong :
         {"", "text", "-7", "-2147483648", "2147483647", "99999999999999999999"})
      ReplaceEach(form, numbers, wrong);
  });
}

TEST_F(BrokenFormsTest, HugeNumbersStayWithinBounds) {
  const std::string huge = "2147483647";
  const auto geometry = [&](const std::string& x, const std::string& width) {
    return "<property name=\"geometry\"><rect><x>" + x + "</x><y>" + x + "</y><width>" + width +
           "</width><height>" + width + "</height></rect></property>";
  };
  const auto size = [&](const char* name) {
    return PropertyXml(name, "size", "<width>" + huge + "</width><height>" + huge + "</height>");
  };
  const std::string grid = "<layout class=\"QGridLayout\" rowstretch=\"" + huge + "\">" +
                           PropertyXml("spacing", "number", huge) +
                           PropertyXml("leftMargin", "number", huge);
  const auto column = [](const std::string& items) { return ColumnXml(items); };
  const std::string roots[] = {
      geometry("0", huge),
      geometry(huge, huge),
      size("minimumSize"),
      geometry("0", "100") + WidgetXml("QLineEdit", "w", geometry(huge, huge)),
      column(WidgetItem("QTextEdit", "w", size("minimumSize"))),
      column(WidgetItem("QSpinBox", "w", PropertyXml("maximum", "number", huge))),
      column(WidgetItem("QComboBox", "w", PropertyXml("minimumContentsLength", "number", huge))),
      column(ItemXml("<spacer>" + size("sizeHint") + "</spacer>")),
      grid + ItemXml(WidgetXml("QLineEdit", "w"), "row=\"0\" column=\"0\"") + "</layout>"};
  for (const std::string& root : roots)
    EXPECT_TRUE(Try("<ui>" + WidgetXml("QDialog", "root", root) + "</ui>")) << root;
}

TEST_F(BrokenFormsTest, CellsFarAwayDoNotTakeMemory) {
  for (const char* cell : {"row=\"2147483647\" column=\"0\"", "row=\"0\" column=\"99999999\"",
                           "row=\"-3\" column=\"-1\"",
                           "row=\"0\" column=\"0\" rowspan=\"2147483647\" colspan=\"-5\""}) {
    const std::string grid = LayoutXml("QGridLayout", ItemXml(WidgetXml("QLineEdit", "w"), cell));
    Try(FormXml(grid, 100, 100));
  }
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST_F(BrokenFormsTest, FormsNestedVeryDeepFailOrOpen) {
  constexpr int kDepth = 100'000;
  const auto nested = [](const std::string& open, const std::string& close, int depth) {
    return FormXml(Repeated(open, depth) + Repeated(close, depth), 300, 200);
  };
  const std::string widget = "<widget class=\"QWidget\">";
  const std::string layout = "<layout class=\"QVBoxLayout\"><item>";
  for (int depth : {50, 200, kDepth}) {
    Try(nested(widget, "</widget>", depth));
    Try(nested("<widget class=\"Unknown\">", "</widget>", depth));
    Try(nested(layout, "</item></layout>", depth));
    Try(nested(widget + layout, "</item></layout></widget>", depth));
  }
  Try(FormXml(Repeated(widget, kDepth), 300, 200));
}

}  // namespace
}  // namespace Wexa
