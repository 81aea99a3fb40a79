// The sub-primitive buttons: their metrics with and without images, a click
// becoming the host's button-push hint with the leaf's node id, the stored
// values of the texture and function buttons, and the colour button's
// round trip through the colour dialog.
#include <gtest/gtest.h>

#include <functional>

#include "TreeEdit2bSupport.h"
#include "vorn/ColourPicker.h"
#include "vorn/GradientControl.h"

namespace {

using namespace treeedit2b;

TEST(TreeSubPrim, WidthIsTheImageAndItsMarginOrOnlyTheMarginWithoutImages) {
  TestFrame frame{wxSize(400, 100)};
  LoggedGroup host;
  auto images = MakeCache({VIT_OFF, VIT_OFF_DOWN}, 24, 16);
  struct Case {
    const char* what;
    std::function<VUITreeSubPrimBase*()> make;
    int width;  // right of the alignment point
  };
  const Case cases[] = {
      {"24-px images", [&] { return new VUITreeSubPrimBase(&Skin(), "n", false, images.get()); },
       24 + 35},
      {"no images", [&] { return new VUITreeSubPrimBase(&Skin(), "n", false, nullptr); }, 5},
      {"with a function button",
       [&] { return new VUITreeSubPrimBase(&Skin(), "n", true, images.get()); }, 24 + 35 + 22},
      // The skin's faces are 34 pixels wide.
      {"colour", [&] { return new VUITreeColorButton(&Skin(), "n", false); }, 34 + 35},
      {"texture", [&] { return new VUITreeTextureButton(&Skin(), "n", false); }, 34 + 35},
      {"gradient", [&] { return new VUITreeGradientButton(&Skin(), "n", false); }, 34 + 35},
  };
  int id = 10;
  for (const Case& c : cases) {
    VUITreeSubPrimBase* control = c.make();
    NameWidth::Force(control, 60);
    control->Create(frame.Get(), ++id, &host.group);
    EXPECT_EQ(control->GetAllignmentPt(), 80) << c.what;
    EXPECT_EQ(control->GetMaxWidth(), 80 + c.width) << c.what;
    EXPECT_EQ(control->GetMaxHeight(), 32) << c.what;
    EXPECT_EQ(control->GetButton() != nullptr, c.width != 5) << c.what;
  }
}

TEST(TreeSubPrim, AClickAsksTheHostForItsEditorWithTheLeafsNodeId) {
  TreeOnFrame t;
  auto* branch = new VornBranchNode(t.root, "Surface");
  t.root->AddToEnd(branch);
  std::vector<VUITreeSubPrimBase*> buttons = {
      t.Add(branch->GetTree(), new VUITreeTextureButton(&Skin(), "Bump", true)),
      t.Add(branch->GetTree(), new VUITreeFunctionButton(&Skin(), "Height", false)),
      t.Add(branch->GetTree(), new VUITreeCurveButton(&Skin(), "Falloff", false)),
      t.Add(branch->GetTree(), new VUITreeGradientButton(&Skin(), "Ramp", false)),
      t.Add(branch->GetTree(), new VUITreeMaterialButton(&Skin(), "Coat", false)),
  };
  branch->Expand();
  t.tree->RefreshTree();
  for (VUITreeSubPrimBase* b : buttons) {
    ASSERT_NE(b->GetButton(), nullptr) << b->GetParamName();
    Click(b->GetButton());
    EXPECT_EQ(t.hints.Take(), "push " + std::to_string(TreeOnFrame::IdOf(b)) + " 1")
        << b->GetParamName();
    // A press the user takes back (released elsewhere) asks for nothing.
    Do(b->GetButton(), "enter down leave up");
    EXPECT_EQ(t.hints.Take(), "") << b->GetParamName();
  }
}

TEST(TreeSubPrim, TextureAndFunctionButtonsKeepAValueOfEveryType) {
  VUITreeTextureButton texture(&Skin(), "Albedo", false);
  VUITreeFunctionButton function(&Skin(), "Offset", false);
  for (VUITreeStoredValues* v : {static_cast<VUITreeStoredValues*>(&texture),
                                 static_cast<VUITreeStoredValues*>(&function)}) {
    // Each type keeps its own slot: setting one leaves the others alone.
    v->SetValue(int32(-7)), v->SetValue(2.5), v->SetValue(Vec2d(1, 2));
    v->SetValue(Vec3d(3, 4, 5)), v->SetValue(Vec4d(6, 7, 8, 9));
    v->SetValue(Quaternion(0.5, 0.25, 0.125, 1)), v->SetValue(Color(0.1, 0.2, 0.3));
    v->SetValue(ColorA(0.4, 0.5, 0.6, 0.7)), v->SetValue(VornString("brick.png"));
    int32 i = 0;
    double r = 0;
    Vec2d v2;
    Vec3d v3;
    Vec4d v4;
    Quaternion q;
    Color c;
    ColorA ca;
    VornString s;
    ASSERT_TRUE(v->GetValue(i) && v->GetValue(r) && v->GetValue(v2) && v->GetValue(v3) &&
                v->GetValue(v4) && v->GetValue(q) && v->GetValue(c) && v->GetValue(ca) &&
                v->GetValue(s));
    EXPECT_TRUE(i == -7 && r == 2.5 && v2.y == 2 && v3.z == 5 && v4.w == 9 && q.x == 0.5 &&
                q.w == 1 && c.b == 0.3 && ca.a == 0.7 && s == "brick.png");
  }
}

// The dialog step of a user who drags the picker to a colour and presses
// OK (or Cancel): real clicks on the dialog's buttons.
struct DialogUser {
  VUITreeColorButton::DialogStep Step(bool ok) {
    return [this, ok](VornColourDialog& dialog) {
      ++runs;
      dialog.GetPicker()->GetColourRGB(shownFirst);
      dialog.Show();
      dialog.GetPicker()->SetColourRGB(pick);
      Click(ok ? dialog.GetOkButton() : dialog.GetCancelButton());
      return dialog.GetChosen();
    };
  }
  Color pick{0.0, 0.0, 0.0};
  Color shownFirst{-1, -1, -1};
  int runs = 0;
};

TEST(TreeSubPrim, TheColourButtonAppliesTheColourChosenInTheDialog) {
  TreeOnFrame t;
  VornVUIControlNode* node = nullptr;
  auto* button =
      t.Add(t.root, new VUITreeColorButton(&Skin(), "Tint", false, Color(1, 1, 1)), &node);
  DialogUser user;
  user.pick = Color(1.0, 0.0, 0.0);
  button->SetDialogStep(user.Step(true));
  Click(button->GetButton());
  EXPECT_EQ(user.runs, 1);
  // The dialog opened on the button's colour.
  EXPECT_TRUE(user.shownFirst.r == 1.0 && user.shownFirst.g == 1.0);
  Color value;
  ASSERT_TRUE(button->GetValue(value));
  EXPECT_TRUE(value.r == 1.0 && value.g == 0.0 && value.b == 0.0);
  EXPECT_EQ(t.hints.Take(), "changed " + std::to_string(node->GetNodeID()));
  // The swatch on the button shows it.
  VornPushButton* face = button->GetButton();
  const wxBitmap drawn = Render(face, face->GetSize().x, face->GetSize().y);
  EXPECT_EQ(PixelAt(drawn, face->GetSize().x / 2, face->GetSize().y / 2), wxColour(255, 0, 0));

  // Cancel keeps the colour and reports nothing.
  user.pick = Color(0.0, 0.0, 1.0);
  button->SetDialogStep(user.Step(false));
  Click(button->GetButton());
  EXPECT_EQ(user.runs, 2);
  ASSERT_TRUE(button->GetValue(value));
  EXPECT_TRUE(value.r == 1.0 && value.b == 0.0);
  EXPECT_EQ(t.hints.Take(), "");
}

TEST(TreeSubPrim, AButtonFaceTheSkinCannotSupplyIsAnAssertion) {
  EXPECT_EQ(FiredAssertion(
                [] { VUITreeSubPrimBase::LoadButtonImages(&Skin(), "vui_tree_prim_nothing.sts"); }),
            "val == true");
}

}  // namespace

TEST(TreeSubPrim, AGradientButtonWithAGradientOpensTheEditorAndReportsItsChanges) {
  TreeOnFrame t;
  Gradient gradient;
  gradient.AddPoint(0.0, Color(0, 0, 0));
  const unsigned int middle = gradient.AddPoint(0.5, Color(1, 0, 0));
  gradient.AddPoint(1.0, Color(1, 1, 1));
  auto* button = new VUITreeGradientButton(&Skin(), "Ramp", false);
  button->SetGradient(&gradient);
  t.Add(t.root, button);
  t.tree->RefreshTree();

  Click(button->GetButton());
  wxWeakRef<wxFrame> window = button->GetEditorWindow();
  ASSERT_TRUE(window && window->IsShown());
  EXPECT_EQ(t.hints.Take(), "");  // opening is not a change
  Click(button->GetButton());     // a second click raises the same window
  EXPECT_EQ(button->GetEditorWindow(), window.get());

  // Delete on the editor removes the selected point: the tree hears a change.
  GradientControl* editor = button->GetEditor();
  ASSERT_NE(editor, nullptr);
  editor->GetColourControl()->SetSelect(middle);
  wxKeyEvent key(wxEVT_KEY_DOWN);
  key.m_keyCode = WXK_DELETE;
  editor->GetEventHandler()->ProcessEvent(key);
  EXPECT_EQ(gradient.GetNumPoints(), 2);
  EXPECT_EQ(t.hints.Take(), "changed " + std::to_string(TreeOnFrame::IdOf(button)));

  // The window goes with the button, before the gradient it edits.
  VornLeafNode* leaf = nullptr;
  t.root->RemoveFromEnd(leaf);
  delete leaf;
  EXPECT_FALSE(window);
}
