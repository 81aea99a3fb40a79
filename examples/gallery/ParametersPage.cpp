// The parameters page: a scene object's inspector built from the parameter
// tree. A name, a transform (position, rotation, scale), a material with
// colours, sliders, check boxes and function buttons, and a simulation
// branch of thirty numbers that makes the tree scroll. Every change reaches
// the log as a node hint with the leaf's node id and name.
#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kTextX = 24;
constexpr int kTop = 14;
constexpr int kTreeX = 24;
constexpr int kTreeY = 64;
constexpr int kTreeWidth = 620;
constexpr int kTreeHeight = 380;
constexpr int kAlignment = 150;
constexpr int kNotesX = kTreeX + kTreeWidth + 24;
constexpr unsigned int kTreeId = 900;

using PT = VUITreeTextEdits;

// Writes the tree's hints into the log with the node's id and the name of
// the parameter it holds.
class NodeHintLogger : public MessageReceiver {
 public:
  NodeHintLogger(GalleryLog& log, std::function<wxString(int)> nameOf)
      : m_log(log), m_nameOf(std::move(nameOf)) {}
  void OnUpdate(unsigned int, VornControl*, VornControlHint* hint) override {
    if (auto* h = dynamic_cast<NodeChangingHint*>(hint))
      Note("NodeChangingHint", h->m_nodeId, "");
    else if (auto* h = dynamic_cast<NodeChangedHint*>(hint))
      Note("NodeChangedHint", h->m_nodeId, "");
    else if (auto* h = dynamic_cast<FunctionButtonPushHint*>(hint))
      Note("FunctionButtonPushHint", h->m_nodeId,
           wxString::Format("  type %d (was %d)", h->m_newType, h->m_previousType));
    else if (auto* h = dynamic_cast<NodeButtonPushHint*>(hint))
      Note("NodeButtonPushHint", h->m_nodeId, wxString::Format("  button %d", h->m_buttonId));
  }

 private:
  void Note(const char* what, int node, const wxString& tail) {
    m_log.Add(wxString::Format("%s  node %d (%s)%s", what, node, m_nameOf(node), tail));
  }
  GalleryLog& m_log;
  std::function<wxString(int)> m_nameOf;
};

// A list-box branch of render presets; its choice reaches the log as the
// branch's node hint.
class PresetBranch : public VornLBBranchNode {
 public:
  PresetBranch(VornTreeNode* parent, VornString name, std::vector<VornString> presets)
      : VornLBBranchNode(parent, std::move(name)), m_presets(std::move(presets)) {}
  void OnStartUp() override {
    VornListBox* list = GetListBox();
    list->ClearAll();
    for (const VornString& p : m_presets) list->Append(p, nullptr);
    list->SetSelected(0, false);
  }

 private:
  std::vector<VornString> m_presets;
};

// The tree-styled movie bar's reports: playhead drags and range changes.
class TreeMovieGroup : public VornMovieBarCG {
 public:
  explicit TreeMovieGroup(GalleryLog& log) : m_log(log) {}
  void ControlDrag(unsigned int, VornControl* control) override { Note("ControlDrag", control); }
  void ControlShapeChanged(unsigned int, VornControl* control) override {
    Note("ControlShapeChanged", control);
  }

 private:
  void Note(const char* what, VornControl* control) {
    if (auto* bar = dynamic_cast<VornMovieBar*>(control))
      m_log.Add(wxString::Format("%s  VornVUIMovieBar: value %.2f, range %.2f-%.2f", what,
                                 bar->GetValue(), bar->GetStart(), bar->GetEnd()));
  }
  GalleryLog& m_log;
};

class ParametersPage : public GalleryPage {
 public:
  ParametersPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx),
        m_logger(ctx.Log(), [this](int node) { return NameOfNode(node); }),
        m_movieGroup(ctx.Log()) {
    m_group.Register(&m_logger);
    m_pTree = new VornMainVUITreeControl;
    m_pTree->Create(kAlignment, &m_ctx.Assets(), kTreeX, kTreeY, kTreeWidth, kTreeHeight, this,
                    kTreeId, &m_group);
    Build();
    m_pTree->RefreshTree();
    SetSize(960, kTreeY + kTreeHeight + 16);
  }
  ~ParametersPage() override {
    DestroyChildren();
    m_group.DeRegister(&m_logger);
  }

  void Demo() override {
    // Roughness dragged, a box ticked, a colour channel typed.
    if (m_pRoughness) {
      Expand(m_pMaterial, true);
      VUITreeSubSlider* s = m_pRoughness->GetSlider();
      const int x = s->GetLayout().thumbMiddle, y = s->GetSize().y / 2;
      SendMouse(s, wxEVT_ENTER_WINDOW, x, y);
      SendMouse(s, wxEVT_LEFT_DOWN, x, y);
      SendMouse(s, wxEVT_MOTION, x + 6, y);
      SendMouse(s, wxEVT_MOTION, x + 12, y);
      SendMouse(s, wxEVT_LEFT_UP, x + 12, y);
      SendMouse(s, wxEVT_LEAVE_WINDOW, x + 12, y);
    }
    if (m_pShadows) ClickOn(m_pShadows->GetButton());
    if (m_pAlbedo) m_pAlbedo->GetField(1)->SetText("0.42", true);
    if (m_pName) m_pName->GetField(0)->SetText("Crate_043", true);
    Expand(m_pMaterial, false);
  }

  // The second picture: the branches open and the tree scrolled.
  bool OpenPopUpForShot() override {
    for (VornBranchNode* b : {m_pTransform, m_pMaterial, m_pSimulation}) Expand(b, true);
    // Scrolled so that the material branch comes to the top.
    ScrollToTop(m_pMaterial);
    return true;
  }
  // The third: the angle, list and linked editors open.
  bool OpenMoreForShot() override {
    for (VornBranchNode* b : {m_pLighting, m_pLinked}) Expand(b, true);
    if (m_pKeys) m_pKeys->SetOpen(true);
    ScrollToTop(m_pLighting);
    return true;
  }
  void ClosePopUps() override {
    if (VornTreeRootScrollControl* bar = m_pTree->GetScrollBar()) bar->SetSliderVal(0.0, true);
    if (m_pKeys) m_pKeys->SetOpen(false);
    for (VornBranchNode* b : {m_pTransform, m_pMaterial, m_pSimulation, m_pLighting, m_pLinked})
      Expand(b, false);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    const int h = DrawText(dc, m_ctx.Msg("Scene object"), kTextX, kTop, "label_bold", "text");
    DrawText(dc, m_ctx.Msg("VornMainVUITreeControl with VUITree editors"), kTextX, kTop + h + 4,
             "small", "text_dim");
    int y = kTreeY;
    for (const char* key : {"Open a branch with its arrow.", "Drag, tick or type a value:",
                            "the log shows the node hint", "with the leaf's node id.",
                            "The ... buttons choose", "widget, texture or function."})
      y += DrawText(dc, m_ctx.Msg(key), kNotesX, y, "small", "text_dim") + 4;
    DrawText(dc, m_ctx.Msg("VornVUIMovieBar: the movie bar in the tree's style"), kNotesX,
             kTreeY + 208, "small", "text_dim");
  }

 private:
  wxString NameOfNode(int node) const {
    auto it = m_names.find(node);
    return it != m_names.end() ? it->second : wxString("?");
  }

  // Adds a leaf to level; the control is returned for the demo.
  template <class Editor>
  Editor* Leaf(VornTreeNode* level, const char* key, Editor* editor) {
    auto* node = new VornVUIControlNode(editor, level, true);
    level->AddToEnd(node);
    m_names[node->GetNodeID()] = m_ctx.Msg(key);
    return editor;
  }
  VornBranchNode* Branch(VornTreeNode* level, const char* key) {
    auto* branch = new VornBranchNode(level, Utf8(m_ctx.Msg(key)));
    level->AddToEnd(branch);
    m_names[branch->GetNodeID()] = m_ctx.Msg(key);
    return branch;
  }
  VornString Name(const char* key) const { return Utf8(m_ctx.Msg(key)); }

  void ScrollToTop(VornBranchNode* branch) {
    VornTreeRootNode* root = m_pTree->GetTreeRoot();
    const int travel = root->GetHeight() - root->GetRootControl()->GetSize().y;
    int x1, y1, x2, y2;
    branch->GetDisplay(x1, y1, x2, y2);
    if (VornTreeRootScrollControl* bar = m_pTree->GetScrollBar())
      if (travel > 0) bar->SetSliderVal(std::min(1.0, static_cast<double>(y1) / travel), true);
  }

  void Expand(VornBranchNode* branch, bool open) {
    if (!branch || branch->IsExpanded() == open) return;
    // As the branch's own toggle button does it.
    branch->SetExpandedVal(open);
    if (VornBranchToggleButton* toggle = branch->GetBranchControl()->GetToggleButton())
      toggle->SetOn(open);
    open ? branch->OnExpand() : branch->OnCollapse();
    m_pTree->RefreshTree();
  }

  void Build() {
    AssetManager* am = &m_ctx.Assets();
    VornTreeRootNode* root = m_pTree->GetTreeRoot();
    m_pName = Leaf(root, "Name", new VUITreeTextEdits(am, Name("Name"), false, PT::PT_STRING, 140));
    m_pName->SetValue(VornString("Crate_042"));

    m_pTransform = Branch(root, "Transform");
    VornTreeNode* t = m_pTransform->GetTree();
    Leaf(t, "Position", new VUITreeTextEdits(am, Name("Position"), false, PT::PT_VEC3D))
        ->SetValue(Vec3d(1.5, 0, -4.25));
    Leaf(t, "Rotation", new VUITreeTextEdits(am, Name("Rotation"), false, PT::PT_QUATERNION))
        ->SetValue(Quaternion(0, 0.382683, 0, 0.92388));
    Leaf(t, "Scale", new VUITreeExpandTextEdits(am, Name("Scale"), false, 3))
        ->SetValue(Vec3d(1, 1, 1));

    m_pMaterial = Branch(root, "Material");
    VornTreeNode* m = m_pMaterial->GetTree();
    m_pAlbedo = Leaf(m, "Albedo", new VUITreeTextEdits(am, Name("Albedo"), true, PT::PT_COLOR));
    m_pAlbedo->SetValue(Color(0.8, 0.55, 0.3));
    Leaf(m, "Emission", new VUITreeTextEdits(am, Name("Emission"), true, PT::PT_COLOR))
        ->SetValue(Color(0, 0, 0));
    m_pRoughness =
        Leaf(m, "Roughness", new VUITreeSlider(am, Name("Roughness"), true, 0.0, 1.0, 0.35));
    Leaf(m, "Metalness", new VUITreeSlider(am, Name("Metalness"), true, 0.0, 1.0, 0.0));
    Leaf(m, "Opacity", new VUITreeSlider(am, Name("Opacity"), false, 0.0, 100.0, 100.0, true));
    Leaf(m, "Texture scale",
         new VUITreeThumbWheel(am, Name("Texture scale"), false, 0.01, 100.0, 2.0, 0.1));
    m_pShadows = Leaf(m, "Casts shadows", new VUITreeCheckBox(am, Name("Casts shadows"), false));
    Leaf(m, "Receives shadows", new VUITreeCheckBox(am, Name("Receives shadows"), false, true));
    Leaf(m, "Double sided", new VUITreeCheckBox(am, Name("Double sided"), false));

    m_pSimulation = Branch(root, "Simulation");
    VornTreeNode* s = m_pSimulation->GetTree();
    static const char* const kNumbers[] = {
        "Mass",           "Friction",       "Restitution",   "Linear damping", "Angular damping",
        "Gravity scale",  "Drag",           "Lift",          "Buoyancy",       "Sleep threshold",
        "Solver steps",   "Contact offset", "Rest offset",   "Max velocity",   "Max spin",
        "Stiffness",      "Damping ratio",  "Break force",   "Break torque",   "Wind response",
        "Air density",    "Water density",  "Heat capacity", "Conductivity",   "Temperature",
        "Ignition point", "Burn rate",      "Charge",        "Magnetism",      "Lifetime"};
    int i = 0;
    for (const char* key : kNumbers) {
      switch (i++ % 3) {
        case 0:
          Leaf(s, key, new VUITreeSlider(am, Name(key), false, 0.0, 10.0, (i % 10) * 0.9));
          break;
        case 1:
          Leaf(s, key, new VUITreeThumbWheel(am, Name(key), false, -1000.0, 1000.0, i * 1.25, 1));
          break;
        default:
          Leaf(s, key, new VUITreeTextEdits(am, Name(key), false, PT::PT_INT))
              ->SetValue(int32(i * 4));
      }
    }
    BuildAnglesAndChoices(am, root);
    BuildLinkedEditors(root);
  }

  // Angles, lists, an error control and a list-box branch, with the tree's
  // movie bar beside the tree.
  void BuildAnglesAndChoices(AssetManager* am, VornTreeRootNode* root) {
    m_pLighting = Branch(root, "Lighting");
    VornTreeNode* l = m_pLighting->GetTree();
    m_pCone = Leaf(l, "Cone angle", new VUITreeAngleClippers(am, Name("Cone angle"), false, 0.4));
    m_pHeading = Leaf(l, "Heading", new VUITreeAngleSelect(am, Name("Heading"), true, 135.0));
    m_pHeading->SetDisplayStyle(VUITreeAngleSelect::DS_WHOLE);
    auto* elevation =
        Leaf(l, "Sun elevation", new VUITreeAngleSelect(am, Name("Sun elevation"), false));
    elevation->SetRangeVals(-90.0, 270.0);
    elevation->SetDisplayStyle(VUITreeAngleSelect::DS_WHOLE);
    elevation->SetValue(35.0);
    auto* blend = Leaf(l, "Blend mode", new VUITreeLB(am, Name("Blend mode"), false));
    for (const char* mode : {"Normal", "Add", "Multiply", "Screen"}) blend->Append(mode);
    blend->SetSelected(0);
    m_pFilter = Leaf(l, "Filtering",
                     new VUITreeEnumLB(am, Name("Filtering"), false, "Nearest | Linear | Cubic"));
    m_pFilter->SetValue(VornString("Linear"));
    // A parameter whose editor could not be made keeps its place and value.
    auto* broken = new ErrorControl(360, 40, am, Name("Falloff curve"), "no editor for this type",
                                    "PT_CURVE", "VUITreeCurveButton");
    broken->SetValue(0.5);
    Leaf(l, "Falloff curve", broken);

    auto* presets =
        new PresetBranch(root, Name("Render preset"), {"Draft", "Preview", "Final", "Turntable"});
    root->AddToEnd(presets);
    m_names[presets->GetNodeID()] = m_ctx.Msg("Render preset");
    Leaf(presets->GetTree(), "Samples",
         new VUITreeSlider(am, Name("Samples"), false, 1.0, 64.0, 16.0, true));
    presets->DoStartSequence();
    m_pPresets = presets;

    const wxBitmap *start = nullptr, *end = nullptr, *head = nullptr;
    if (am->LoadImageCached("movie_start.sts", start) &&
        am->LoadImageCached("movie_end.sts", end) && am->LoadImageCached("movie_head.sts", head)) {
      auto* bar = new VornVUIMovieBar(start, end, head, kNotesX, kTreeY + 230, 260, 30, this,
                                      kTreeId + 1, &m_movieGroup);
      bar->SetTreeColours(m_pTree->GetBackgroundCol(), m_pTree->GetLineCol(),
                          WxCtoC(m_ctx.Colour("movie_played")));
      bar->SetUp(11, 19);
      bar->SetStart(0.15);
      bar->SetValue(0.4);
    }
  }

  // A branch of the editors that open something: the colour dialog, the
  // host's texture, function, curve, gradient and material editors, a table
  // and a pop-up box that open inside the tree; and a marker.
  void BuildLinkedEditors(VornTreeNode* root) {
    AssetManager* am = &m_ctx.Assets();
    m_pLinked = Branch(root, "Linked editors");
    VornTreeNode* l = m_pLinked->GetTree();
    Leaf(l, "Tint", new VUITreeColorButton(am, Name("Tint"), false, Color(0.22, 0.74, 0.77)));
    Leaf(l, "Bump map", new VUITreeTextureButton(am, Name("Bump map"), true));
    Leaf(l, "Displacement", new VUITreeFunctionButton(am, Name("Displacement"), true));
    Leaf(l, "Falloff", new VUITreeCurveButton(am, Name("Falloff"), false));
    // The ramp's button opens the gradient editor on the page's own ramp.
    m_ramp.AddPoint(0.0, Color(0.05, 0.08, 0.12));
    m_ramp.AddPoint(0.55, Color(0.13, 0.62, 0.66));
    m_ramp.AddPoint(1.0, Color(0.95, 0.93, 0.82));
    Leaf(l, "Colour ramp", new VUITreeGradientButton(am, Name("Colour ramp"), false))
        ->SetGradient(&m_ramp);
    Leaf(l, "Coating", new VUITreeMaterialButton(am, Name("Coating"), false));
    m_pKeys = Leaf(l, "Keyframes", new VUITreeMonsterBox(am, Name("Keyframes"), false, 300, 140));
    // The leaves' windows are made when the branch first opens: fill then.
    m_pKeys->WhenBoxReady([this](VornMonsterBox* box) {
      const wxColour title = m_ctx.Colour("table_heading_text");
      const wxColour text = m_ctx.Colour("table_cell_text");
      box->SetMaxSize(260);
      box->AddColumn(Utf8(m_ctx.Msg("Frame")), title, 90);
      box->AddColumn(Utf8(m_ctx.Msg("Value")), title, 110);
      box->AddColumn(Utf8(m_ctx.Msg("On")), title, 50);
      for (int i = 0; i < 8; ++i) {
        box->AddEntry(0, Utf8(wxString::Format("%d", i * 12)), text, false);
        box->AddEntry(1, Utf8(wxString::Format("%.2f", 0.5 + 0.25 * (i % 3))), text, true);
        box->AddEntry(2, m_ctx.Images("table_check.sts"), i % 2 == 0);
      }
    });
    m_pAdvanced = Leaf(l, "Advanced", new VUITreePopControl(am, Name("Advanced"), false, 240, 36));
    m_pAdvanced->WhenBoxReady([this](wxWindow* inside, VornControlGroup* group) {
      auto* toggle =
          new VornButtonToggle(m_ctx.Images("button_toggle.sts"), 6, 0, inside, 1, group);
      toggle->Move(6, (36 - toggle->GetSize().y) / 2);
      auto* label = new wxStaticText(inside, wxID_ANY, m_ctx.Msg("Cast caustics"),
                                     wxPoint(toggle->GetSize().x + 14, 10));
      label->SetForegroundColour(m_ctx.Colour("text"));
      label->SetFont(m_ctx.Font("small"));
    });
    Leaf(l, "Marker", new VornBlobbyControl);
  }

  VornControlGroup m_group;  // the host's tree group: only the node hints are logged
  NodeHintLogger m_logger;
  std::map<int, wxString> m_names;
  VornMainVUITreeControl* m_pTree = nullptr;
  VornBranchNode* m_pTransform = nullptr;
  VornBranchNode* m_pMaterial = nullptr;
  VornBranchNode* m_pSimulation = nullptr;
  VUITreeTextEdits* m_pName = nullptr;
  VUITreeTextEdits* m_pAlbedo = nullptr;
  VUITreeSlider* m_pRoughness = nullptr;
  VUITreeCheckBox* m_pShadows = nullptr;
  TreeMovieGroup m_movieGroup;
  VornBranchNode* m_pLighting = nullptr;
  VornLBBranchNode* m_pPresets = nullptr;
  VUITreeAngleClippers* m_pCone = nullptr;
  VUITreeAngleSelect* m_pHeading = nullptr;
  VUITreeEnumLB* m_pFilter = nullptr;
  Gradient m_ramp;  // edited through the tree's gradient button
  VornBranchNode* m_pLinked = nullptr;
  VUITreeMonsterBox* m_pKeys = nullptr;
  VUITreePopControl* m_pAdvanced = nullptr;
};

const GalleryPageRegistrar kRegistrar({97, "Parameters", "parameters",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ParametersPage(parent, ctx);
                                       }});

}  // namespace
