// Dialogs in other languages: forms and the translations that belong to them.

#include <filesystem>
#include <fstream>
#include <iterator>

#include "DialogTest.h"
#include "FileText.h"
#include "GroupBox.h"
#include "TabView.h"
#include "Translator.h"
#include "Utf8.h"
#include "WexaConfig.h"
#include "support/FormTest.h"
#include "translation/EncrypterAccess.h"

namespace Wexa {
namespace {

namespace fs = std::filesystem;

constexpr const char* kForms = WEXA_SHARED_DIR "/forms/";

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A folder with a host's forms and language files, which are plain.
class LanguageTest : public FormTest {
 protected:
  LanguageTest() : folder_(testing::TempDir() + "/language_test/"), oldFont_(*GetFontInfo()) {
    fs::remove_all(folder_);
    SetWorkingDirPath(*WidenUtf8(folder_));
  }
  ~LanguageTest() override {
    SetCurrentLanguage(L"", true);
    SetWorkingDirPath(oldFolder_);
    SetLayoutRTL(false);
    *GetFontInfo() = oldFont_;
    fs::remove_all(folder_);
  }

  void Write(const std::wstring& path, const std::string& bytes) {
    const fs::path native = NativePath(path);
    fs::create_directories(native.parent_path());
    std::ofstream(native, std::ios::binary) << bytes;
  }
  // Takes a TS file as the program's, in the language it is written for.
  void Load(const std::string& tsFile, const std::wstring& language) {
    LoadBytes(BytesOf(kForms + tsFile), language);
  }
  void LoadBytes(const std::string& ts, const std::wstring& language) {
    SetCurrentLanguage(language, false);
    Write(GetTranslationFilePath(L"program"), ts);
    Translator::GetInstance().LoadStrings(L"program");
  }
  std::wstring Title(const std::string& path) {
    dialog_.reset();
    dialog_ = std::make_unique<Dialog>(*WidenUtf8(path), nullptr, 0, 1.0);
    dialog_->DoModeless(true);
    Robot::PumpAll();
    return GetWindowTextString(dialog_->GetHandle());
  }
  std::string Path(const std::string& name) const { return folder_ + name; }
  std::wstring Text(const wchar_t* name) {
    return GetWindowTextString(Find<BaseGUIObject>(name).GetPlatformHandle());
  }

 private:
  std::string folder_;
  std::wstring oldFolder_ = GetWorkingDirPath();
  logFont oldFont_;
};

std::string String(const std::string& text) {
  return "\n<string>" + text + "</string>\n";
}

std::string Property(const std::string& name, const std::string& text) {
  return "<property name=\"" + name + "\">" + String(text) + "</property>";
}

// Every text on a line of its own, as form files are written.
std::string FormOfManyTexts() {
  const std::string page = "<widget class=\"QWidget\" name=\"page\"><attribute name=\"title\">" +
                           String("tab") + "</attribute></widget>";
  return ColumnForm(ItemXml(WidgetXml("QLabel", "label", Property("text", "long\ntext"))) +
                    ItemXml(WidgetXml("QPushButton", "button", Property("text", "press"))) +
                    ItemXml(WidgetXml("QCheckBox", "check", Property("text", "choose"))) +
                    ItemXml(WidgetXml("QGroupBox", "group", Property("title", "group"))) +
                    ItemXml(WidgetXml("QTabWidget", "tabs", page)));
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

class TranslatedTexts : public LanguageTest {
 protected:
  void ExpectStars() {
    EXPECT_EQ(Text(L"label"), L"*long\ntext");
    EXPECT_EQ(Text(L"button"), L"*press");
    EXPECT_EQ(Text(L"check"), L"*choose");
    EXPECT_EQ(Find<GroupBox>(L"group").GetTitle(), L"*group");
    EXPECT_EQ(Find<TabView>(L"tabs").GetTabText(0), L"*tab");
  }
};

TEST_F(TranslatedTexts, ShowInPlainForms) {
  const std::string form = FormOfManyTexts();
  LoadBytes(StarsFor(form, "many.ui"), L"de");
  Write(GetWorkingDirPath() + L"many.ui", form);
  Title(Path("many.ui"));
  ExpectStars();
}

TEST_F(TranslatedTexts, ShowInEncryptedForms) {
  const std::string form = FormOfManyTexts();
  LoadBytes(StarsFor(form, "many.ui"), L"de");
  const auto packed = EncrypterAccess::Pack(form);
  Write(GetWorkingDirPath() + L"forms\\many.ui.kv", {packed.begin(), packed.end()});
  Title(Path("forms/many.ui.kv"));
  ExpectStars();
}

TEST_F(LanguageTest, RealFormsOpenTranslated) {
  Load("savvycan/SavvyCAN_pt_BR.ts", L"pt_BR");
  const std::string forms = std::string(kForms) + "savvycan/";
  EXPECT_EQ(Title(forms + "bisectwindow.ui"), L"Janela Bissetriz");
  EXPECT_EQ(Title(forms + "newconnectiondialog.ui"), L"Nova conexão");
  EXPECT_EQ(Title(forms + "mainsettingsdialog.ui"), L"Configurações principais");
  Load("pybitmessage/bitmessage_ja.ts", L"ja");
  EXPECT_EQ(Title(std::string(kForms) + "pybitmessage/newaddressdialog.ui"),
            L"新しいアドレスを作成");
  EXPECT_TRUE(Translator::GetInstance().GetDiagnostics().empty());
}

TEST_F(LanguageTest, FilesWithRelativeLinesGiveTheFirstTextAndAReason) {
  SetLayoutRTL(true);
  Load("gridcoin/bitcoin_ar.ts", L"ar");
  EXPECT_EQ(Title(std::string(kForms) + "gridcoin/optionsdialog.ui"), L"خيارات ...");
  EXPECT_EQ(Translator::GetInstance().GetDiagnostics().size(), 1u);
}

TEST_F(LanguageTest, EveryRealFormOpensInAnyLanguage) {
  for (const auto& [file, language] : {std::pair("gridcoin/bitcoin_de.ts", L"de"),
                                       std::pair("savvycan/SavvyCAN_pt_BR.ts", L"pt_BR")}) {
    Load(file, language);
    for (const auto& entry : fs::recursive_directory_iterator(kForms)) {
      if (entry.path().extension() != ".ui") continue;
      EXPECT_NO_THROW(Title(entry.path().string()));
    }
  }
}

TEST_F(LanguageTest, AFontOfTheStringsFileIsTheDialogs) {
  const std::string form = ColumnForm(
      ItemXml(WidgetXml("QLabel", "label", PropertyXml("text", "string", "A text to measure"))));
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
