// The composite: keys, the colour dot through the chooser, the tree of the
// selected point, and scrolling the displayed part during a drag.
#include "../edit/EditTestSupport.h"
#include "GradientTestSupport.h"
#include "vorn/VUIControls.h"

using namespace gradtest;
using edittest::Key;

namespace {

// On the 420-wide strip of the composite showing 0..1, 0.5 lies at x = 210.
constexpr int kMid = 210;

VUITreeSlider* Row(GradientControl* e, int row) {
  auto* leaf = e->GetTree()->GetTreeRoot()->GetAtPos(row);
  return dynamic_cast<VUITreeSlider*>(leaf->GetVornVUIControl());
}

TEST_F(GradientTest, DeleteAndBackspaceDeleteTheSelectedPointOtherKeysDoNot) {
  const struct {
    int code;
    bool deletes;
  } cases[] = {{WXK_DELETE, true}, {WXK_BACK, true},           {'a', false},
               {WXK_LEFT, false},  {WXK_NUMPAD_DELETE, false}, {WXK_RETURN, false}};
  for (const auto& k : cases) {
    ThreePoints(gradient);
    GradientControl* e = MakeEditor();
    Mouse(e->GetColourControl(), wxEVT_LEFT_DOWN, kMid, 20);  // a mark: selects only
    Mouse(e->GetColourControl(), wxEVT_LEFT_UP, kMid, 20);
    Take();
    CaptureDprintf debug;
    Key(e->GetColourControl(), wxEVT_KEY_DOWN, k.code);
    EXPECT_EQ(gradient.GetNumPoints(), k.deletes ? 2 : 3) << k.code;
    EXPECT_EQ(Take(), k.deletes ? "delete 2 unsel 9" : "") << k.code;
    EXPECT_TRUE(
        debug.Contains("GradientControl: Vorn Key Down (code = " + std::to_string(k.code) + ")\n"));
    EXPECT_EQ(debug.Contains("Colour Control says \"thank you for the delete key notification\"\n"),
              k.deletes);
    EXPECT_EQ(e->GetColourControl()->GetSelect(), k.deletes ? 0u : 2u);
    e->Destroy();
  }
}

TEST_F(GradientTest, APointOutsideTheDisplayedPartIsNotDeleted) {
  GradientControl* e = MakeEditor();
  ColourControl* strip = e->GetColourControl();
  strip->SetSelect(2);  // at 0.5
  for (double top : {0.4, 0.5}) {
    GradientHintRange range(0.0, top);
    group.Update(0, nullptr, &range);  // from the host: reaches every part
    EXPECT_DOUBLE_EQ(strip->GetDisplayMax(), top);
    Key(strip, wxEVT_KEY_DOWN, WXK_DELETE);
    EXPECT_EQ(gradient.GetNumPoints(), top == 0.4 ? 3 : 2) << top;  // bounds included
  }
}

TEST_F(GradientTest, TheColourDotRecoloursTheSelectedPointThroughTheChooser) {
  GradientControl* e = MakeEditor();
  ColourControl* strip = e->GetColourControl();
  std::vector<Color> offered;
  bool accept = true;
  e->SetColourChooser([&](Color& c, const wxPoint&) {
    offered.push_back(c);
    c = Color(0.25, 0.5, 1.0);
    return accept;
  });
  Mouse(strip, wxEVT_LEFT_DOWN, 200, 85);  // nothing selected: no picker
  Mouse(strip, wxEVT_LEFT_UP, 200, 85);
  EXPECT_TRUE(offered.empty());
  strip->SetSelect(1);
  const struct {
    int dx, dy;
    bool opens;
  } cases[] = {{0, 0, true}, {7, 1, true}, {7, 2, false}, {-2, -6, true}, {0, 8, false}};
  for (const auto& k : cases) {
    offered.clear();
    Mouse(strip, wxEVT_LEFT_DOWN, 200 + k.dx, 85 + k.dy);
    Mouse(strip, wxEVT_LEFT_UP, 200 + k.dx, 85 + k.dy);
    EXPECT_EQ(offered.size(), k.opens ? 1u : 0u) << k.dx << "," << k.dy;
  }
  Gradient::CONTROL_POINT p;
  gradient.GetPoint(1, p);
  EXPECT_EQ(p.colour, Color(0.25, 0.5, 1.0));
  EXPECT_DOUBLE_EQ(Row(e, 1)->GetVal(), 0.25);
  EXPECT_DOUBLE_EQ(Row(e, 2)->GetVal(), 0.5);
  EXPECT_DOUBLE_EQ(Row(e, 3)->GetVal(), 1.0);
  EXPECT_EQ(Take(), "value value value");
  accept = false;  // cancelled: nothing changes
  gradient.GetPoint(1, p);
  p.colour = Color(1, 1, 1);
  gradient.SetPoint(1, p);
  Mouse(strip, wxEVT_LEFT_DOWN, 200, 85);
  gradient.GetPoint(1, p);
  EXPECT_EQ(p.colour, Color(1, 1, 1));
  EXPECT_EQ(Take(), "");
}

TEST_F(GradientTest, TheTreeShowsTheSelectedPointAndFollowsADrag) {
  GradientControl* e = MakeEditor();
  ColourControl* strip = e->GetColourControl();
  Mouse(strip, wxEVT_LEFT_DOWN, 110, 4);  // the red point at 0.25
  EXPECT_DOUBLE_EQ(Row(e, 0)->GetVal(), 0.25);
  EXPECT_DOUBLE_EQ(Row(e, 1)->GetVal(), 1.0);
  EXPECT_DOUBLE_EQ(Row(e, 2)->GetVal(), 0.0);
  Mouse(strip, wxEVT_MOTION, 150, 4);
  EXPECT_DOUBLE_EQ(Row(e, 0)->GetVal(), 0.35);
  Mouse(strip, wxEVT_LEFT_UP, 170, 4);
  EXPECT_DOUBLE_EQ(Row(e, 0)->GetVal(), 0.4);
  EXPECT_EQ(Take(), "select 1 move 0.25 0.35 move 0.35 0.4 unsel 9");
}

TEST_F(GradientTest, TypingInTheTreeMovesAndRecoloursTheSelectedPoint) {
  GradientControl* e = MakeEditor();
  e->GetColourControl()->SetSelect(3);
  Take();
  Row(e, 0)->GetEditBox()->SetText("0.6", true);
  EXPECT_DOUBLE_EQ(Pos(3), 0.6);
  Row(e, 2)->GetEditBox()->SetText("0.5", true);
  Gradient::CONTROL_POINT p;
  gradient.GetPoint(3, p);
  EXPECT_EQ(p.colour, Color(0, 0.5, 1));
  EXPECT_EQ(Take(), "move 0.75 0.6 value");
}

TEST_F(GradientTest, ADragPastTheStripsEndScrollsTheDisplayedPartUntilItReachesOne) {
  GradientControl* e = MakeEditor();
  GradientHintRange range(0.25, 0.75);
  group.Update(0, nullptr, &range);
  Take();
  ColourControl* strip = e->GetColourControl();
  Mouse(strip, wxEVT_LEFT_DOWN, kMid, 4);
  Mouse(strip, wxEVT_MOTION, 415, 4);
  EXPECT_EQ(Take(), "select 2 scroll up 0.725 range 0.3 0.8 move 0.5 0.8");
  for (int i = 0; i < 8; ++i) Mouse(strip, wxEVT_MOTION, 415, 4);
  Mouse(strip, wxEVT_LEFT_UP, 415, 4);
  for (GradientControlComp* part :
       {static_cast<GradientControlComp*>(strip), static_cast<GradientControlComp*>(e),
        static_cast<GradientControlComp*>(e->GetSummary())}) {
    EXPECT_NEAR(part->GetDisplayMin(), 0.5, 1e-9);
    EXPECT_DOUBLE_EQ(part->GetDisplayMax(), 1.0);
  }
  EXPECT_NEAR(e->GetRangeControl()->GetLeft(), 0.5, 1e-9);
  EXPECT_DOUBLE_EQ(Pos(2), 1.0);
  // And back down to 0.
  Mouse(strip, wxEVT_LEFT_DOWN, 410, 4);
  now += 500;
  for (int i = 0; i < 12; ++i) Mouse(strip, wxEVT_MOTION, 2, 4);
  Mouse(strip, wxEVT_LEFT_UP, 2, 4);
  EXPECT_DOUBLE_EQ(strip->GetDisplayMin(), 0.0);
  EXPECT_NEAR(strip->GetDisplayMax(), 0.5, 1e-9);
  EXPECT_DOUBLE_EQ(Pos(2), 0.0);
}

}  // namespace
