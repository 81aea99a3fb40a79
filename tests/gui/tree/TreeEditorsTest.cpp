// The tree editors on their own (no tree): metrics, the function button,
// the node hints their inner editors' changes become, the nine value
// interfaces of the text edits, the label and the assertion texts.
#include <gtest/gtest.h>

#include <cmath>

#include "../list/ListTestSupport.h"
#include "TreeEditorTestSupport.h"

namespace {

using namespace treetest;
using PT = VUITreeTextEdits;

bool Near(double a, double b) {
  return std::fabs(a - b) < 1e-12;
}

using TreeEditorsTest = EditorFixture;

TEST_F(TreeEditorsTest, MetricsFollowTheNameWidthAndTheEditor) {
  struct Case {
    const char* what;
    std::function<VUITreeControlBase*()> make;
    int width;
  };
  const Case cases[] = {
      {"base", [&] { return Make<VUITreeControlBase>("n", false); }, 183},
      {"check box", [&] { return Make<VUITreeCheckBox>("n", false); }, 183},
      {"slider", [&] { return Make<VUITreeSlider>("n", false, 0.0, 1.0, 0.5); }, 223},
      {"vec3d, 40-px fields", [&] { return Make<VUITreeTextEdits>("n", false, PT::PT_VEC3D, 40); },
       80 + 31 + 120},
      {"int, 40-px field", [&] { return Make<VUITreeTextEdits>("n", false, PT::PT_INT, 40); },
       80 + 15 + 40},
      {"quaternion, 50-px fields",
       [&] { return Make<VUITreeTextEdits>("n", false, PT::PT_QUATERNION, 50); }, 80 + 39 + 200},
      {"expand, two 40-px fields", [&] { return Make<VUITreeExpandTextEdits>("n", false, 2, 40); },
       80 + 23 + 80},
      {"thumb wheel", [&] { return Make<VUITreeThumbWheel>("n", false, 0.0, 9.0, 1.0, 1.0); },
       80 + 4 + 96 + 6 + 72 + 3},
      {"slider with function button", [&] { return Make<VUITreeSlider>("n", true, 0.0, 1.0, 0.5); },
       223 + 22},
  };
  for (const Case& c : cases) {
    VUITreeControlBase* control = c.make();
    NameWidth::Force(control, 60);
    EXPECT_EQ(control->GetAllignmentPt(), 80) << c.what;
    EXPECT_EQ(control->GetMaxWidth(), c.width) << c.what;
    EXPECT_EQ(control->GetMaxHeight(), 32) << c.what;
  }
}

TEST_F(TreeEditorsTest, TheNameIsMeasuredInTheSkinsNameFontAndTheWindowTakesTheSize) {
  auto* box = Make<VUITreeCheckBox>("Casts shadows", false);
  wxFont font;
  ASSERT_TRUE(Skin().GetFont("vuiedit_tree_contname", font));
  wxBitmap scratch(10, 10);
  wxMemoryDC dc(scratch);
  dc.SetFont(font);
  EXPECT_EQ(box->GetNameWidth(), dc.GetTextExtent("Casts shadows").x);
  EXPECT_GT(box->GetNameWidth(), 40);
  EXPECT_EQ(box->GetSize(), wxSize(box->GetNameWidth() + 123, 32));
  // Editors start right of the alignment line.
  EXPECT_GE(box->GetButton()->GetPosition().x, box->GetAllignmentPt());
}

TEST_F(TreeEditorsTest, TheFunctionButtonReportsTextureAndFunctionButNotWidget) {
  auto* slider = Make<VUITreeSlider>("Roughness", true, 0.0, 1.0, 0.5);
  VornListButton* button = slider->GetFunctionButton();
  ASSERT_NE(button, nullptr);
  // The button sits in the column right of the editor.
  EXPECT_GE(button->GetPosition().x, slider->GetMaxWidth() - 22);
  EXPECT_LE(button->GetRect().GetRight(), slider->GetMaxWidth());
  const struct {
    int downs;
    const char* hints;
  } choices[] = {{1, "function -1 1 0"}, {2, "function -1 2 0"}, {0, ""}};
  for (const auto& c : choices) {
    ExpandedVornListBox* popup = ListFixture::Open(button);
    ASSERT_NE(popup, nullptr);
    Key(popup, WXK_HOME);
    for (int i = 0; i < c.downs; ++i) Key(popup, WXK_DOWN);
    Key(popup, WXK_RETURN);
    Do(button, "up leave");
    EXPECT_EQ(tree.hints.Take(), c.hints) << c.downs;
  }
  // The list as the user sees it.
  ASSERT_EQ(button->GetCount(), 4);
  EXPECT_EQ(button->GetItemText(0), "Widget");
  EXPECT_FALSE(button->GetElement(1)->IsSelectable());
  EXPECT_EQ(button->GetItemText(2), "Texture");
  EXPECT_EQ(button->GetItemText(3), "Function");
  // A chosen separator row cannot come from the list: a programming error.
  button->SetSelected(1, false);
  EXPECT_EQ(FiredAssertion([&] { slider->OnFunctionButtonPush(); }),
            "row == 0 || row == 2 || row == 3");
}

TEST_F(TreeEditorsTest, AControlWithoutFunctionButtonRefusesItsOperations) {
  auto* box = Make<VUITreeCheckBox>("Visible", false);
  EXPECT_EQ(box->GetFunctionButton(), nullptr);
  EXPECT_EQ(FiredAssertion([&] { box->OnFunctionButtonPush(); }), "this->m_functionable");
  EXPECT_EQ(FiredAssertion([&] { box->UpDateData(nullptr); }), "this->m_functionable");
}

TEST_F(TreeEditorsTest, ASliderDragBecomesNodeHintsAndMovesTheValueBox) {
  auto* s = Make<VUITreeSlider>("Opacity", false, 10.0, 20.0, 12.0);
  VUITreeSubSlider* inner = s->GetSlider();
  EXPECT_DOUBLE_EQ(inner->GetValue(), 0.2);
  EXPECT_EQ(TextOf(s->GetEditBox()), "12.000000");
  const int x = inner->GetLayout().thumbMiddle, y = inner->GetSize().y / 2;
  Mouse(inner, wxEVT_ENTER_WINDOW, x, y);
  Mouse(inner, wxEVT_LEFT_DOWN, x, y);
  Mouse(inner, wxEVT_MOTION, x + 20, y);
  Mouse(inner, wxEVT_MOTION, x + 30, y);
  EXPECT_EQ(tree.hints.Take(), "changing -1 x2");
  Mouse(inner, wxEVT_LEFT_UP, x + 30, y);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  double value = 0;
  ASSERT_TRUE(s->GetValue(value));
  EXPECT_DOUBLE_EQ(value, 10.0 + 10.0 * inner->GetValue());
  EXPECT_GT(value, 12.5);
  char shown[32];
  snprintf(shown, sizeof shown, "%.6f", value);
  EXPECT_EQ(TextOf(s->GetEditBox()), shown);

  // A typed value moves the slider, limited to the range.
  s->GetEditBox()->SetText("17.5", true);
  EXPECT_DOUBLE_EQ(s->GetVal(), 17.5);
  EXPECT_DOUBLE_EQ(inner->GetValue(), 0.75);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  s->GetEditBox()->SetText("99", true);
  EXPECT_DOUBLE_EQ(s->GetVal(), 20.0);
  EXPECT_EQ(TextOf(s->GetEditBox()), "20.000000");
  tree.hints.Take();

  // SetVal reports only when asked.
  s->SetVal(15, false);
  EXPECT_EQ(tree.hints.Take(), "");
  s->SetVal(11, true);
  EXPECT_EQ(tree.hints.Take(), "real 11.000000");
  EXPECT_EQ(TextOf(s->GetEditBox()), "11.000000");
}

TEST_F(TreeEditorsTest, AnIntegerSliderKeepsWholeNumbers) {
  auto* s = Make<VUITreeSlider>("Samples", false, 0.0, 10.0, 3.4, true);
  EXPECT_EQ(TextOf(s->GetEditBox()), "3");
  int32 whole = 0;
  ASSERT_TRUE(s->GetValue(whole));
  EXPECT_EQ(whole, 3);
  s->GetEditBox()->SetText("6.7", true);
  ASSERT_TRUE(s->GetValue(whole));
  EXPECT_EQ(whole, 6);  // the field's integer style reads 6 before the slider does
}

TEST_F(TreeEditorsTest, OnlyAControlsOwnEditorsChangesAreForwarded) {
  auto* a = Make<VUITreeCheckBox>("A", false);
  auto* b = Make<VUITreeCheckBox>("B", false);
  // b's own report reaches a through the shared tree group: a stays quiet.
  b->SetValue(1);
  EXPECT_EQ(tree.hints.Take(), "int 1");
  Click(a->GetButton());
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  int32 on = 0;
  EXPECT_TRUE(a->GetValue(on));
  EXPECT_EQ(on, 1);
  EXPECT_TRUE(a->GetButton()->GetOn());
  a->SetValue(0);
  EXPECT_FALSE(a->GetButton()->GetOn());
  EXPECT_EQ(tree.hints.Take(), "int 0");
}

TEST_F(TreeEditorsTest, EveryTextEditTypeRoundTripsItsValueThroughTheFields) {
  const Vec2d v2(1.5, -2.25);
  const Vec3d v3(0.125, 2, -3.5);
  const Vec4d v4(1, 2, 3, 4.75);
  const Quaternion q(0, 0.7071, 0, 0.7071);
  const Color c(0.25, 0.5, 1);
  const ColorA ca(0.1, 0.2, 0.3, 0.4);
  const struct {
    PT::PTYPE type;
    int fields;
    int style;
    const char* first;  // the first field's text
  } cases[] = {
      {PT::PT_INT, 1, VornEdit::ES_INT, "-42"},
      {PT::PT_REAL, 1, VornEdit::ES_REAL, "3.141593"},
      {PT::PT_VEC2D, 2, VornEdit::ES_REAL, "1.500000"},
      {PT::PT_VEC3D, 3, VornEdit::ES_REAL, "0.125000"},
      {PT::PT_VEC4D, 4, VornEdit::ES_REAL, "1.000000"},
      {PT::PT_QUATERNION, 4, VornEdit::ES_REAL, "0.000000"},
      {PT::PT_COLOR, 3, VornEdit::ES_REAL, "0.250000"},
      {PT::PT_COLORA, 4, VornEdit::ES_REAL, "0.100000"},
      {PT::PT_STRING, 1, VornEdit::ES_TEXT, "Marble, polished"},
  };
  for (const auto& k : cases) {
    auto* e = Make<VUITreeTextEdits>("p", false, k.type);
    ASSERT_EQ(e->GetFieldCount(), k.fields) << k.type;
    EXPECT_EQ(e->GetField(0)->GetStyle(), k.style) << k.type;
    // Set through the type's interface; every other interface refuses.
    int served = 0;
    served += e->SetValue(int32(-42));
    served += e->SetValue(3.14159265);
    served += e->SetValue(v2);
    served += e->SetValue(v3);
    served += e->SetValue(v4);
    served += e->SetValue(q);
    served += e->SetValue(c);
    served += e->SetValue(ca);
    served += e->SetValue(VornString("Marble, polished"));
    EXPECT_EQ(served, 1) << k.type;
    EXPECT_EQ(TextOf(e->GetField(0)), k.first) << k.type;
    int32 i = 0;
    double r = 0;
    Vec2d o2;
    Vec3d o3;
    Vec4d o4;
    Quaternion oq;
    Color oc;
    ColorA oca;
    VornString os;
    const bool got[] = {e->GetValue(i),  e->GetValue(r),   e->GetValue(o2),
                        e->GetValue(o3), e->GetValue(o4),  e->GetValue(oq),
                        e->GetValue(oc), e->GetValue(oca), e->GetValue(os)};
    for (int t = 0; t < 9; ++t) EXPECT_EQ(got[t], t == k.type) << k.type << " " << t;
    switch (k.type) {
      case PT::PT_INT:
        EXPECT_EQ(i, -42);
        break;
      case PT::PT_REAL:
        EXPECT_TRUE(Near(r, 3.141593));
        break;
      case PT::PT_VEC2D:
        EXPECT_TRUE(Near(o2.x, v2.x) && Near(o2.y, v2.y));
        break;
      case PT::PT_VEC3D:
        EXPECT_TRUE(Near(o3.x, v3.x) && Near(o3.y, v3.y) && Near(o3.z, v3.z));
        break;
      case PT::PT_VEC4D:
        EXPECT_TRUE(Near(o4.x, 1) && Near(o4.y, 2) && Near(o4.z, 3) && Near(o4.w, 4.75));
        break;
      case PT::PT_QUATERNION:
        EXPECT_TRUE(Near(oq.x, 0) && Near(oq.y, 0.7071) && Near(oq.z, 0) && Near(oq.w, 0.7071));
        break;
      case PT::PT_COLOR:
        EXPECT_TRUE(Near(oc.r, 0.25) && Near(oc.g, 0.5) && Near(oc.b, 1));
        break;
      case PT::PT_COLORA:
        EXPECT_TRUE(Near(oca.r, 0.1) && Near(oca.g, 0.2) && Near(oca.b, 0.3) && Near(oca.a, 0.4));
        break;
      case PT::PT_STRING:
        EXPECT_EQ(os, "Marble, polished");
        break;
    }
  }
}

TEST_F(TreeEditorsTest, ATypedFieldIsReadBackAndReported) {
  auto* e = Make<VUITreeTextEdits>("Position", false, PT::PT_VEC3D);
  e->SetValue(Vec3d(1, 2, 3));
  e->GetField(1)->SetText("-7.25", true);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  Vec3d v;
  ASSERT_TRUE(e->GetValue(v));
  EXPECT_TRUE(Near(v.x, 1) && Near(v.y, -7.25) && Near(v.z, 3));
  // Read-only fields and a forced style.
  e->SetEditable(false);
  EXPECT_FALSE(e->GetField(2)->IsEditable());
  e->ForceStyle(VornEdit::ES_INT);
  EXPECT_EQ(TextOf(e->GetField(1)), "-7");
  // No field past the last: refused once the assertion returns.
  static std::string fired;
  const VornAssertHandler previous =
      VornSetAssertHandler([](const VornAssertInfo& info) { fired = info.condition; });
  VUITreeSubEditBox* past = e->GetField(3);
  VornSetAssertHandler(previous);
  EXPECT_EQ(past, nullptr);
  EXPECT_EQ(fired, "index >= 0 && index < static_cast<int>(m_fields.size())");
}

TEST_F(TreeEditorsTest, AValueSetBeforeTheWindowsExistIsShownWhenTheyAre) {
  // A leaf of a closed branch gets its value before its first Create.
  auto* e = new VUITreeTextEdits(&Skin(), "Albedo", false, PT::PT_COLOR);
  e->SetValue(Color(0.25, 0.5, 0.75));
  Color before;
  ASSERT_TRUE(e->GetValue(before));
  EXPECT_TRUE(Near(before.r, 0.25) && Near(before.b, 0.75));
  e->Create(frame.Get(), ++lastId, &tree.group);
  EXPECT_EQ(TextOf(e->GetField(0)), "0.250000");
  EXPECT_EQ(TextOf(e->GetField(2)), "0.750000");
  Color after;
  ASSERT_TRUE(e->GetValue(after));
  EXPECT_TRUE(Near(after.g, 0.5));
}

TEST_F(TreeEditorsTest, ExpandingEditsTakeTheSizeOfTheVectorSetLast) {
  auto* e = Make<VUITreeExpandTextEdits>("Scale", false, 3, 40);
  const int align = e->GetAllignmentPt();
  EXPECT_EQ(e->GetFieldCount(), 3);
  e->SetValue(Vec2d(4, 5));
  EXPECT_EQ(e->GetFieldCount(), 2);
  EXPECT_EQ(e->GetMaxWidth(), align + 23 + 80);
  EXPECT_EQ(e->GetSize().x, e->GetMaxWidth());
  EXPECT_FALSE(e->GetField(2)->IsShown());
  Vec3d three;
  EXPECT_FALSE(e->GetValue(three));
  e->SetValue(Vec4d(1, 2, 3, 4));
  EXPECT_EQ(e->GetFieldCount(), 4);
  EXPECT_EQ(e->GetSize().x, align + 39 + 160);
  Vec4d four;
  ASSERT_TRUE(e->GetValue(four));
  EXPECT_TRUE(Near(four.x, 1) && Near(four.w, 4));
  e->GetField(3)->SetText("8", true);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
}

TEST_F(TreeEditorsTest, TheThumbWheelAndItsBoxShowOneLimitedValue) {
  auto* w = Make<VUITreeThumbWheel>("Distance", false, -100.0, 100.0, 35.0, 1.0);
  EXPECT_EQ(TextOf(w->GetEditBox()), "35.000000");
  EXPECT_FLOAT_EQ(w->GetWheel()->GetCurrentValue(), 35);
  VornControl* wheel = w->GetWheel();
  Mouse(wheel, wxEVT_ENTER_WINDOW, 40, 10);
  Mouse(wheel, wxEVT_LEFT_DOWN, 40, 10);
  Mouse(wheel, wxEVT_MOTION, 45, 10);
  Mouse(wheel, wxEVT_LEFT_UP, 45, 10);
  EXPECT_EQ(tree.hints.Take(), "changing -1 changed -1");
  double v = 0;
  w->GetValue(v);
  EXPECT_NEAR(v, 35 * (1 + 5 / 350.0), 1e-4);  // the wheel's step: a 350th of the value
  EXPECT_EQ(TextOf(w->GetEditBox()).substr(0, 5), "35.50");
  w->GetEditBox()->SetText("250", true);
  EXPECT_FLOAT_EQ(w->GetWheel()->GetCurrentValue(), 100);
  EXPECT_EQ(TextOf(w->GetEditBox()), "100.000000");
  w->ResetVals(0, 10, 20);
  EXPECT_DOUBLE_EQ(w->GetVal(), 10);
}

TEST_F(TreeEditorsTest, TheLabelShowsTheNameInItsColourAndShortensItWhenScrolledLeft) {
  auto* box = Make<VUITreeCheckBox>("Receives light", false);
  wxColour nameColour;
  ASSERT_TRUE(Skin().GetColour("vuiedit_tree_ContNameCol", nameColour));
  const wxBitmap drawn = Render(box, box->GetMaxWidth(), 32);
  // Tight tolerance: the connector is drawn in white, close to the name's.
  EXPECT_GT(CountNear(drawn, nameColour, 12), 10);
  // Nothing of the name right of the alignment line.
  wxBitmap right = drawn.GetSubBitmap(wxRect(box->GetAllignmentPt() - 2, 0, 30, 32));
  EXPECT_EQ(CountNear(right, nameColour, 12), 0);

  wxBitmap scratch(10, 10);
  wxMemoryDC dc(scratch);
  dc.SetFont(wxFont(wxFontInfo(9)));
  const struct {
    int width;
    const char* starts;
  } fits[] = {{1000, "Receives light"}, {60, "Rec"}, {4, ""}};
  for (const auto& f : fits) {
    VornString out;
    int width = f.width;
    box->GetCoolMushName("Receives light", out, width, &dc);
    EXPECT_LE(width, f.width);
    EXPECT_EQ(dc.GetTextExtent(wxString::FromUTF8(out.c_str())).x, width);
    EXPECT_EQ(out.rfind(f.starts, 0), 0u) << out;
    if (f.width == 60) {
      EXPECT_EQ(out.substr(out.size() - 2), "..");
    }
  }
}

TEST_F(TreeEditorsTest, TheSkinMustSupplyTheEditorsFontsAndColours) {
  EXPECT_EQ(FiredAssertion([] { VUITreeCheckBox box(nullptr, "x", false); }), "assetman != __null");
  AssetManager bare;  // no fonts, no colours
  EXPECT_EQ(FiredAssertion([&] { VUITreeCheckBox box(&bare, "x", false); }), "val == true");
  EXPECT_EQ(FiredAssertion([] { VUITreeTextEdits::FieldCount(static_cast<PT::PTYPE>(9)); }),
            "type >= PT_INT && type <= PT_STRING");
}

}  // namespace
