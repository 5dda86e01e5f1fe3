// The resolution changes while a dialog is open, or between its making and its showing.

#include <sstream>

#include "Button.h"
#include "Event.h"
#include "MFC/DialogImplMFC.h"
#include "data/TestData.h"
#include "platform/Font.h"
#include "support/DialogTest.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

std::string UnplacedForm() {
  const std::string place =
      PropertyXml("geometry", "rect", "<x>17</x><y>23</y><width>101</width><height>27</height>");
  return FormXml(WidgetXml("QPushButton", "button", place + PropertyXml("text", "string", "Press")),
                 301, 203);
}

class ResolutionTest : public DialogTest {
 protected:
  ~ResolutionTest() override { SetResolution(96); }

  void SetResolution(int dpi) {
    Robot::Screen().ChangeResolution(dpi);
    Robot::PumpAll();
  }

  // A dialog from a form's file, shown.
  std::unique_ptr<Dialog> Shown(const std::string& form) {
    auto dialog = MadeFrom(form);
    dialog->DoModeless(true);
    Robot::PumpAll();
    return dialog;
  }
  std::unique_ptr<Dialog> MadeFrom(const std::string& form) {
    return std::make_unique<Dialog>(std::wstring(form.begin(), form.end()), nullptr, 0, 1.0);
  }

  // Where everything visible is in the dialog, with the height of its font; the dialog's size is
  // the first line.
  std::vector<std::string> LookOf(Dialog& dialog) {
    std::vector<std::string> look;
    const auto say = [&look](const std::wstring& name, const Rect& place, int font) {
      std::ostringstream line;
      line << std::string(name.begin(), name.end()) << " " << place << " font " << font;
      look.push_back(line.str());
    };
    const Rect window = dialog.GetWindowRect();
    say(L"dialog", Rect(0, 0, window.Width(), window.Height()), 0);
    for (const auto& element : static_cast<Dialog::impl&>(*dialog.GetBaseImpl()).Elements()) {
      BaseGUIObject& widget = *element.widget;
      if (!IsWindowVisible(widget.GetPlatformHandle())) continue;
      const Rect place = widget.GetWindowRect();
      const Point corner = dialog.ScreenToClient(Point(place.Left(), place.Top()));
      say(element.name, Rect(corner.x, corner.y, place.Width(), place.Height()),
          GetFontMetrics(widget.GetPlatformWindow()->GetFont()).height);
    }
    return look;
  }

  std::vector<std::string> forms_ = testdata::Forms();
};

TEST_F(ResolutionTest, OpenDialogsLookAsIfTheyHadBeenOpenedAtTheNewOne) {
  const std::wstring unplaced = FileOf(UnplacedForm());
  forms_.emplace_back(unplaced.begin(), unplaced.end());
  for (const std::string& form : forms_) {
    SCOPED_TRACE(form);
    SetResolution(96);
    const auto open = Shown(form);
    for (const int dpi : {144, 120, 96}) {
      SCOPED_TRACE(dpi);
      SetResolution(dpi);
      EXPECT_EQ(LookOf(*open), LookOf(*Shown(form)));
    }
  }
}

TEST_F(ResolutionTest, ADialogMadeBeforeIsShownAtTheNewOne) {
  for (const std::string& form : forms_) {
    SetResolution(96);
    const auto made = MadeFrom(form);
    SetResolution(144);
    made->DoModeless(true);
    Robot::PumpAll();
    EXPECT_EQ(LookOf(*made), LookOf(*Shown(form))) << form;
  }
}

TEST_F(ResolutionTest, PicturesAndWhatItsUserMadeOfTheWindowGrow) {
  Open(ColumnForm(PushButton("button"), 300, 200));
  auto& button = Find<Button>(L"button");
  const pictures::Bytes picture = pictures::BmpFile(64, 48, pictures::Always(0xFFFF0000));
  button.LoadPicture(picture.data(), static_cast<int>(picture.size()), WexaUtils::BMP,
                     WexaUtils::ScaleByFactor, 0, true);
  Robot::PumpAll();
  const CRect frame = Rect(dialog_->GetWindowRect()).PlatformRect();
  dialog_->MoveWindow(frame.left, frame.top, frame.Width() + 100, frame.Height() + 50, true);
  Robot::PumpAll();
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), Size(400, 250));
  SetResolution(144);
  EXPECT_EQ(dialog_->GetClientRect().GetSize(), Size(600, 375));
  const CRect red = Robot::BoundsOf(button.GetPlatformHandle(), 0xFF0000);
  EXPECT_EQ(red.Width(), 96);
  EXPECT_EQ(red.Height(), 72);
}

TEST_F(ResolutionTest, AHandlerMayDestroyTheDialogMeanwhile) {
  std::ptrdiff_t count = 1;
  for (std::ptrdiff_t which = 0; which < count; ++which) {
    SetResolution(96);
    dialog_ = Shown(testdata::Form("garden_settings.ui"));
    const auto& elements = static_cast<Dialog::impl&>(*dialog_->GetBaseImpl()).Elements();
    count = elements.end() - elements.begin();
    elements.begin()[which].widget->SetEventProcedure([this](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::Resize) dialog_.reset();
      return false;
    });
    SetResolution(144);
  }
}

}  // namespace
}  // namespace Wexa
