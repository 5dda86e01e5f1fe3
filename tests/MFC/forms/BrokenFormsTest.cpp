// Damaged forms: each gives an error, or a dialog that opens and paints.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "WexaException.h"
#include "data/TestData.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

struct Span {
  std::size_t start;
  std::size_t length;
};

// The attributes, each with the blank before it.
std::vector<Span> AttributesIn(const std::string& form) {
  std::vector<Span> spans;
  for (auto at = form.find("=\""); at != form.npos; at = form.find("=\"", at + 1)) {
    const auto start = form.find_last_of(" \n", at);
    const auto end = form.find('"', at + 2);
    if (start != form.npos && end != form.npos) spans.push_back({start, end + 1 - start});
  }
  return spans;
}

// The numbers that are the whole text of an element or an attribute.
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

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
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

  // Damages the form at some of the places, one at a time; at all of them on request.
  void ReplaceEach(const std::string& form, const std::vector<Span>& places,
                   const std::string& replacement) {
    const std::size_t samples = std::getenv("WEXA_TEST_ALL_DAMAGES") ? SIZE_MAX : 5;
    const std::size_t step = std::max<std::size_t>(1, places.size() / samples);
    for (std::size_t i = step / 2; i < places.size(); i += step) {
      std::string damaged = form;
      damaged.replace(places[i].start, places[i].length, replacement);
      SCOPED_TRACE("\"" + replacement + "\" at " + std::to_string(places[i].start));
      Try(damaged);
    }
  }

 private:
  bool OpenOrFail(const std::string& form) {
    std::ofstream(path_, std::ios::binary) << form;
    try {
      Robot::PixelAt(OpenFile(file_).GetHandle(), 0, 0);
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

  const std::wstring file_ = FileOf("");
  const std::string path_{file_.begin(), file_.end()};
};

TEST_F(BrokenFormsTest, DamagedFormsOpenOrFailAndCutOnesFail) {
  for (const std::string& path : testdata::Forms()) {
    SCOPED_TRACE(path);
    const std::string form = testdata::BytesOf(path);
    const auto end = form.rfind("</ui>");
    for (std::size_t length = 0; length < end; length += end / 5)
      EXPECT_FALSE(Try(form.substr(0, length))) << "cut after " << length;
    ReplaceEach(form, AttributesIn(form), "");
    for (const char* wrong : {"", "text", "-2147483648", "2147483647", "99999999999999999999"})
      ReplaceEach(form, NumbersIn(form), wrong);
  }
}

TEST_F(BrokenFormsTest, HugeNumbersStayWithinBounds) {
  constexpr int kHuge = 2147483647;
  const std::string contents[] = {
      GeometryXml(0, 0, kHuge, kHuge),
      GeometryXml(kHuge, kHuge, kHuge, kHuge),
      SizeXml("minimumSize", kHuge, kHuge),
      WidgetXml("QLineEdit", "w", GeometryXml(kHuge, kHuge, kHuge, kHuge)),
      ColumnXml(WidgetItem("QTextEdit", "w", SizeXml("minimumSize", kHuge, kHuge)) +
                WidgetItem("QSpinBox", "w", NumberXml("maximum", kHuge)) +
                WidgetItem("QComboBox", "w", NumberXml("minimumContentsLength", kHuge)) +
                ItemXml("<spacer>" + SizeXml("sizeHint", kHuge, kHuge) + "</spacer>")),
      LayoutXml("QGridLayout",
                NumberXml("spacing", kHuge) + NumberXml("leftMargin", kHuge) +
                    ItemXml(WidgetXml("QLineEdit", "w"), "row=\"0\" column=\"0\""),
                "rowstretch=\"2147483647\"")};
  for (const std::string& content : contents)
    EXPECT_TRUE(Try("<ui>" + WidgetXml("QDialog", "root", content) + "</ui>")) << content;
}

TEST_F(BrokenFormsTest, CellsFarAwayDoNotTakeMemory) {
  for (const char* cell :
       {"row=\"2147483647\" column=\"0\"", "row=\"0\" column=\"99999999\"",
        "row=\"-3\" column=\"-1\"", "row=\"0\" column=\"0\" rowspan=\"2147483647\" colspan=\"-5\""})
    Try(FormXml(LayoutXml("QGridLayout", ItemXml(WidgetXml("QLineEdit", "w"), cell)), 100, 100));
}

TEST_F(BrokenFormsTest, FormsNestedVeryDeepFailOrOpen) {
  const std::string widget = "<widget class=\"QWidget\">";
  const std::string layout = "<layout class=\"QVBoxLayout\"><item>";
  const std::pair<std::string, std::string> kElements[] = {
      {widget, "</widget>"},
      {"<widget class=\"Unknown\">", "</widget>"},
      {layout, "</item></layout>"},
      {widget + layout, "</item></layout></widget>"}};
  for (const int depth : {50, 200, 100'000})
    for (const auto& [open, close] : kElements)
      Try(FormXml(Repeated(open, depth) + Repeated(close, depth), 300, 200));
  Try(FormXml(Repeated(widget, 100'000), 300, 200));
}

}  // namespace
}  // namespace Wexa
