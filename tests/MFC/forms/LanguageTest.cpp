// Dialogs in other languages: forms and the translations that belong to them.

#include "ButtonBox.h"
#include "Label.h"
#include "data/TestData.h"
#include "support/DialogTest.h"
#include "support/LanguageFolder.h"
#include "translation/EncrypterAccess.h"

namespace Wexa {
namespace {

// The language files of a host, which are plain.
class LanguageTest : public FormTest, protected LanguageFolder {
 protected:
  ~LanguageTest() override {
    SetLayoutRTL(false);
    *GetFontInfo() = oldFont_;
  }

  // Takes the TS file of the garden planner as the program's.
  void Load(const std::string& file, const std::wstring& language) {
    LoadBytes(testdata::BytesOf(testdata::TsFile(file)), language);
  }
  void LoadBytes(const std::string& ts, const std::wstring& language) {
    SetCurrentLanguage(language, false);
    Write(GetTranslationFilePath(L"program"), ts);
    Translator::GetInstance().ResetStringsTable();
    Translator::GetInstance().LoadStrings(L"program");
  }
  std::wstring Title(const std::string& path) {
    return GetWindowTextString(OpenFile(*WidenUtf8(path)).GetHandle());
  }

 private:
  logFont oldFont_ = *GetFontInfo();
};

// A form of every widget that shows texts, all of them the same, each on a line of its own as form
// files are written.
std::string FormOfTexts(const std::string& text) {
  const auto widget = [&](const char* className, const char* property) {
    return WidgetItem(className, std::string(className) + property,
                      PropertyXml(property, "string", text));
  };
  const std::string items = ItemXml(TextXml(text)) + ItemXml(TextXml(text));
  std::string form = ColumnForm(
      widget("QLabel", "text") + widget("QPushButton", "toolTip") + widget("QPushButton", "text") +
          widget("QCheckBox", "text") + widget("QRadioButton", "text") +
          widget("QLineEdit", "text") + widget("QLineEdit", "placeholderText") +
          widget("QSpinBox", "prefix") + widget("QSpinBox", "suffix") +
          widget("QPlainTextEdit", "plainText") + widget("QTextEdit", "html") +
          widget("QProgressBar", "format") + widget("QGroupBox", "title") +
          WidgetItem("QTabWidget", "tabs",
                     WidgetXml("QWidget", "page", AttributeXml("title", text))) +
          WidgetItem("QComboBox", "combo", items) + WidgetItem("QListWidget", "list", items),
      300, 900);
  for (auto at = form.find("<string>"); at != form.npos; at = form.find("<string>", at + 2))
    form.insert(form.insert(at, "\n").find("</string>", at) + 9, "\n");
  return form;
}

// A TS file that puts "*" before each text of the form.
std::string StarsFor(const std::string& form, const std::string& name) {
  std::string ts = "<TS language=\"de\"><context>";
  long line = 1;
  for (std::size_t at = 0; at < form.size(); ++at) {
    if (form.compare(at, 8, "<string>") == 0) {
      const auto text = form.substr(at + 8, form.find('<', at + 8) - at - 8);
      ts += "<message><location filename=\"" + name + "\" line=\"" + std::to_string(line) +
            "\"/><translation>*" + text + "</translation></message>";
    }
    if (form[at] == '\n') ++line;
  }
  return ts + "</context></TS>";
}

// What a person sees of a form with the pointer over the button that has a tip.
class TranslatedTexts : public LanguageTest {
 protected:
  using Picture = std::vector<std::uint32_t>;

  Picture PictureOf(const std::string& file, const std::string& form) {
    Write(*WidenUtf8(Path(file)), form);
    Title(Path(file));
    robot_.MoveTo(Find<BaseGUIObject>(L"QPushButtontoolTip").GetPlatformHandle());
    robot_.AdvanceTime(1000);
    Picture picture;
    for (HWND window : GetTopLevelWindows()) Append(picture, window);
    return picture;
  }

 private:
  static void Append(Picture& picture, HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    for (int y = 0; y < area.bottom; ++y)
      for (int x = 0; x < area.right; ++x) picture.push_back(Robot::PixelAt(window, x, y));
  }
};

TEST_F(TranslatedTexts, LookAsIfTheFormWereWrittenInTheLanguage) {
  const std::string form = FormOfTexts("a\nword");
  const auto packed = EncrypterAccess::Pack(form);
  LoadBytes(StarsFor(form, "form.ui"), L"de");
  const Picture written = PictureOf("written.ui", FormOfTexts("*a\nword"));
  EXPECT_TRUE(PictureOf("other.ui", form) != written);
  EXPECT_TRUE(PictureOf("form.ui", form) == written);
  EXPECT_TRUE(PictureOf("form.ui.kv", {packed.begin(), packed.end()}) == written);
}

TEST_F(LanguageTest, StandardButtonsTakeTheirTextsFromTheCommonStrings) {
  SetCurrentLanguage(L"de", false);
  WriteStrings(L"", false, "<string id='Wexa::BBoxCancel'>Abbrechen</string>");
  Translator::GetInstance().LoadStrings(L"");
  Write(GetWorkingDirPath() + L"f.ui",
        ColumnForm(WidgetItem("QDialogButtonBox", "box",
                              PropertyXml("standardButtons", "set",
                                          "QDialogButtonBox::Cancel|QDialogButtonBox::Ok"))));
  Title(Path("f.ui"));
  auto& box = Find<ButtonBox>(L"box");
  EXPECT_EQ(box.GetButton(StandardButton::Cancel)->GetText(), L"Abbrechen");
  EXPECT_EQ(box.GetButton(StandardButton::OK)->GetText(), L"OK");
}

TEST_F(LanguageTest, FormsOfTheSameRevisionAreTranslatedToTheEnd) {
  Load("de", L"de_DE");
  EXPECT_EQ(Title(testdata::Form("preferences.ui")), L"Einstellungen");
  EXPECT_EQ(Find<Button>(L"resetButton").GetText(), L"Alles &zurücksetzen");
  EXPECT_EQ(Find<Button>(L"applyButton").GetText(), L"Über&nehmen");
  EXPECT_EQ(Title(testdata::Form("find_plant.ui")), L"Pflanze suchen");
  EXPECT_TRUE(Translator::GetInstance().GetDiagnostics().empty());
}

TEST_F(LanguageTest, FormsOfAnotherRevisionAreTranslatedToTheLineThatDiffers) {
  Load("fr", L"fr_FR");
  EXPECT_EQ(Title(testdata::Form("legend.ui")), L"Légende");
  EXPECT_EQ(Find<Label>(L"snowLabel").GetText(), L"Au repos jusqu'au printemps");
  EXPECT_EQ(Title(testdata::Form("bed_tree.ui")), L"Planches");
  EXPECT_EQ(Find<Label>(L"sortLabel").GetText(), L"&Trier par");
  EXPECT_EQ(Find<Button>(L"closeButton").GetText(), L"&Close");
}

TEST_F(LanguageTest, FilesWithRelativeLinesGiveTheFirstTextAndAReason) {
  SetLayoutRTL(true);
  Load("ar", L"ar");
  EXPECT_EQ(Title(testdata::Form("find_plant.ui")), L"ابحث عن نبتة");
  EXPECT_EQ(Find<Button>(L"findButton").GetText(), L"&Find");
  EXPECT_EQ(Translator::GetInstance().GetDiagnostics().size(), 1u);
}

TEST_F(LanguageTest, AFontOfTheStringsFileIsTheDialogs) {
  const std::string form = ColumnForm(WidgetItem("QLabel", "label", TextXml("A text to measure")));
  Write(GetWorkingDirPath() + L"f.ui", form);
  Title(Path("f.ui"));
  const int height = Find<BaseGUIObject>(L"label").IdealSize().Height();
  SetCurrentLanguage(L"de", false);
  Write(GetStringsFilePath(L"", false),
        "<r language='de'><Font><PreFont FaceName='DejaVu Sans' Height='200'/></Font></r>");
  Translator::GetInstance().LoadStrings(L"");
  Title(Path("f.ui"));
  EXPECT_GT(Find<BaseGUIObject>(L"label").IdealSize().Height(), height * 3 / 2);
}

}  // namespace
}  // namespace Wexa
