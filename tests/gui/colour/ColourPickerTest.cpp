// The picker's frame: its parts staying in step through their hints, the
// numeric and hexadecimal fields (typed, clamped, restored), the swatches,
// and the dialog's OK and Cancel, without and with a modal loop.
#include <gtest/gtest.h>
#include <wx/timer.h>

#include <filesystem>

#include "../edit/EditTestSupport.h"
#include "ColourTestSupport.h"
#include "vorn/FileAsset.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornEdit.h"

namespace {

using colourtest::PickerTest;
using colourtest::State;
using Field = ColourPicker::Field;

std::string Text(VornEdit* edit) {
  return GetText(edit);
}

// Types into a field as a user would and presses Enter.
void TypeInto(VornEdit* edit, const std::string& text) {
  edittest::Focus(edit, true);
  edittest::Ctrl(edit, 'a');
  edittest::Type(edit, text);
  edittest::Press(edit, WXK_RETURN);
  edittest::Focus(edit, false);
}

TEST_F(PickerTest, PartsStayInStepThroughTheirHints) {
  picker->SetColourRGB(Color(0.2, 0.4, 0.6));
  EXPECT_EQ(Take(), "rgb picker 0.2 0.4 0.6");
  EXPECT_TRUE(InStep());
  // A pick in the field (offset by the field's place in the frame).
  Mouse(hv, wxEVT_LEFT_DOWN, 61, 61);
  Mouse(hv, wxEVT_LEFT_UP, 61, 61);
  const std::string id = std::to_string(static_cast<unsigned int>(hv->GetId()));
  EXPECT_EQ(Take(), "sel " + id + " hsv hv 0.25 0.666667 0.5 unsel " + id);
  EXPECT_TRUE(InStep());
  EXPECT_EQ(Text(picker->GetField(ColourPicker::kHue)), "0.250");
  // A drag of the saturation slider, from its tab.
  const int tab = SaturationPreview::SatToPos(2.0 / 3.0);
  Mouse(sp, wxEVT_LEFT_DOWN, 25, tab);
  Mouse(sp, wxEVT_MOTION, 25, tab + 11);
  Mouse(sp, wxEVT_LEFT_UP, 25, tab + 11);
  const std::string spId = std::to_string(static_cast<unsigned int>(sp->GetId()));
  EXPECT_EQ(Take(), "sel " + spId + " hsv sp 0.25 0.566667 0.5 unsel " + spId);
  EXPECT_TRUE(InStep());
  EXPECT_EQ(Text(picker->GetField(ColourPicker::kSaturation)), "0.567");
  // The colour to compare with reaches every part and its swatch, left of
  // the current one; the current colour stays.
  picker->SetInitialRGB(Color(1, 0, 0));
  EXPECT_EQ(Take(), "prev picker 1 0 0");
  EXPECT_EQ(hv->GetPreviousRGB(), Color(1, 0, 0));
  EXPECT_EQ(sp->GetPreviousRGB(), Color(1, 0, 0));
  EXPECT_TRUE(InStep());
  picker->SetColourRGB(Color(0, 0, 1));
  const wxBitmap shot = Render(picker, ColourPicker::kWidth, ColourPicker::kHeight);
  const wxRect prev = picker->GetPreviousSwatch(), cur = picker->GetCurrentSwatch();
  EXPECT_EQ(PixelAt(shot, prev.x + prev.width / 2, prev.y + prev.height / 2), *wxRED);
  EXPECT_EQ(PixelAt(shot, cur.x + cur.width / 2, cur.y + cur.height / 2), *wxBLUE);
  EXPECT_EQ(prev.GetRight() + 1, cur.GetLeft());
}

TEST_F(PickerTest, TypedNumbersAreClampedAndBadTextRestored) {
  picker->SetColourRGB(Color(0.2, 0.4, 0.6));
  Take();
  const struct {
    Field field;
    const char* typed;
    const char* log;
    const char* shown;  // the field's text afterwards
    const char* hex;
  } cases[] = {
      {ColourPicker::kRed, "0.25", "rgb picker 0.25 0.4 0.6", "0.250", "#3F6699"},
      {ColourPicker::kGreen, "1.5", "rgb picker 0.25 1 0.6", "1.000", "#3FFF99"},
      {ColourPicker::kRed, "abc", "", "0.250", "#3FFF99"},
      {ColourPicker::kRed, "0.5x", "", "0.250", "#3FFF99"},
      {ColourPicker::kBlue, " 0 ", "rgb picker 0.25 1 0", "0.000", "#3FFF00"},
      {ColourPicker::kValue, "0.5", "hsv picker 0.291667 1 0.5", "0.500", "#1F7F00"},
      // A grey keeps the hue it had.
      {ColourPicker::kSaturation, "-3", "hsv picker 0.291667 0 0.5", "0.000", "#7F7F7F"},
      {ColourPicker::kHex, "#336699", "rgb picker 0.2 0.4 0.6", "#336699", "#336699"},
      {ColourPicker::kHex, "zz", "", "#336699", "#336699"},
      {ColourPicker::kHex, "#12345", "", "#336699", "#336699"},
      {ColourPicker::kHex, "ff8000", "rgb picker 1 0.501961 0", "#FF8000", "#FF8000"},
      {ColourPicker::kHue, "0.5", "hsv picker 0.5 1 1", "0.500", "#00FFFF"},
  };
  for (const auto& c : cases) {
    TypeInto(picker->GetField(c.field), c.typed);
    EXPECT_EQ(Take(), c.log) << c.typed;
    EXPECT_EQ(Text(picker->GetField(c.field)), c.shown) << c.typed;
    EXPECT_EQ(Text(picker->GetField(ColourPicker::kHex)), c.hex) << c.typed;
    EXPECT_TRUE(InStep()) << c.typed;
  }
  EXPECT_EQ(Text(picker->GetField(ColourPicker::kHue)), "0.500");
  EXPECT_EQ(Text(picker->GetField(ColourPicker::kGreen)), "1.000");
}

TEST_F(PickerTest, HexRoundTrips) {
  for (int r : {0, 1, 51, 127, 128, 254, 255}) {
    const int g = 255 - r / 2, b = 255 - r;
    const Color colour(r / 255.0, g / 255.0, b / 255.0);
    picker->SetColourRGB(colour);
    const std::string hex = Text(picker->GetField(ColourPicker::kHex));
    EXPECT_EQ(hex, wxString::Format("#%02X%02X%02X", r, g, b).ToStdString());
    picker->SetColourRGB(Color(0.5, 0.5, 0.5));
    TypeInto(picker->GetField(ColourPicker::kHex), hex);
    Color back;
    picker->GetColourRGB(back);
    EXPECT_EQ(back, colour) << hex;
    // The components shown read back as the same colour to 3 decimals.
    EXPECT_NEAR(std::stod(Text(picker->GetField(ColourPicker::kRed))), colour.r, 0.0005) << hex;
  }
}

TEST_F(PickerTest, AFocusedFieldCatchesUpWhenItLosesTheFocus) {
  VornEdit* red = picker->GetField(ColourPicker::kRed);
  edittest::Focus(red, true);
  picker->SetColourRGB(Color(0.75, 0, 0));
  EXPECT_EQ(Text(red), "0.000");  // a focused field keeps what the user sees
  edittest::Focus(red, false);
  PumpEvents();
  EXPECT_EQ(Text(red), "0.750");
}

TEST(ColourPickerAlone, KeepsItsOwnGroupWithoutOne) {
  TestFrame frame(wxSize(500, 240));
  auto* picker = new ColourPicker(0, 0, frame.Get(), 1, nullptr);
  ASSERT_NE(picker->GetGroup(), nullptr);
  Mouse(picker->GetHueValueControl(), wxEVT_LEFT_DOWN, 111, 11);
  Mouse(picker->GetHueValueControl(), wxEVT_LEFT_UP, 111, 11);
  EXPECT_EQ(State(*picker), State(*picker->GetHueValueControl()));
  EXPECT_EQ(Text(picker->GetField(ColourPicker::kHue)), "0.500");
  picker->SetEnabled(false);
  EXPECT_FALSE(picker->GetSaturationPreview()->GetEnabled());
  EXPECT_FALSE(picker->GetField(ColourPicker::kHex)->GetEnabled());
}

// ---- The dialog ----------------------------------------------------------------

class ColourDialogTest : public ::testing::Test {
 protected:
  AssetManager assets;
  TestFrame frame{wxSize(200, 100)};

  void SetUp() override {
    auto* loader = new FileAssetLoader;
    ASSERT_TRUE(loader->Init(std::string(VORN_SKIN_DIR) + "/"));
    assets.SetAssetLoader(loader);
    assets.SetLanguage("english", "");
    ASSERT_TRUE(assets.LoadAssets());
    ASSERT_TRUE(assets.LoadColourData("colours.txt") && assets.LoadFontData("fonts.txt") &&
                assets.LoadMessages("messages.txt"));
  }
};

TEST_F(ColourDialogTest, OkReturnsTheChosenColourAndCancelNone) {
  VornColourDialog dialog(frame.Get(), assets, Color(0.2, 0.4, 0.6));
  EXPECT_EQ(dialog.GetPicker()->GetPreviousRGB(), Color(0.2, 0.4, 0.6));
  // The buttons sit below the picker, OK left of Cancel.
  EXPECT_GT(dialog.GetOkButton()->GetPosition().y, ColourPicker::kHeight);
  EXPECT_LT(dialog.GetOkButton()->GetPosition().x, dialog.GetCancelButton()->GetPosition().x);
  dialog.Show();
  dialog.GetPicker()->SetColourRGB(Color(1, 0.5, 0));
  Click(dialog.GetOkButton());
  EXPECT_FALSE(dialog.IsShown());
  ASSERT_TRUE(dialog.GetChosen().has_value());
  EXPECT_EQ(*dialog.GetChosen(), Color(1, 0.5, 0));
  dialog.Show();
  Click(dialog.GetCancelButton());
  EXPECT_FALSE(dialog.IsShown());
  EXPECT_FALSE(dialog.GetChosen().has_value());
  // Closing the window is a cancel too.
  dialog.Show();
  dialog.Close();
  EXPECT_FALSE(dialog.GetChosen().has_value());
}

TEST_F(ColourDialogTest, ModalRunEndsWithTheButtons) {
  for (const bool ok : {true, false}) {
    VornColourDialog dialog(frame.Get(), assets, Color(0, 0, 0));
    // Should the buttons fail to end the loop, a timer ends it as aborted.
    wxTimer guard;
    guard.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { dialog.Finish(wxID_ABORT); });
    guard.StartOnce(10000);
    bool ranInside = false;
    dialog.CallAfter([&] {
      ranInside = dialog.IsModal();
      TypeInto(dialog.GetPicker()->GetField(ColourPicker::kHex), "#204060");
      Click(ok ? dialog.GetOkButton() : dialog.GetCancelButton());
    });
    const std::optional<Color> chosen = dialog.Choose();
    guard.Stop();
    EXPECT_TRUE(ranInside);
    EXPECT_EQ(dialog.GetReturnCode(), ok ? wxID_OK : wxID_CANCEL);
    EXPECT_EQ(chosen.has_value(), ok);
    if (ok && chosen) {
      EXPECT_EQ(*chosen, Color(0x20 / 255.0, 0x40 / 255.0, 0x60 / 255.0));
    }
  }
}

}  // namespace
