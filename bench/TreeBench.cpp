// Parameter tree at scale: 1,000 branches of 10 leaves (sliders, check boxes
// and text edits), against wxPropertyGrid holding the same content (1,000
// categories of float, bool, int and string properties), in the same run.
//
// Figures: building the whole tree shown and collapsed; expanding one branch
// and collapsing it again (layout and repaint); one of 100 scroll steps from
// top to bottom; the heap and live windows after building (counters of the
// build figures). Tree/... builds from stand-in leaves, TreeEditors/... from
// the tree's editors of the grid's four kinds, TreeAllEditors/... from every
// editor kind of the tree (the grid keeps its four: it has no others).
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/propgrid/propgrid.h>
#include <wx/propgrid/props.h>

#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "BenchSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"
#include "vorn/VornButton.h"
#include "vorn/VornEdit.h"
#include "vorn/VornNode.h"
#include "vorn/VornSlider.h"

namespace {

constexpr int kBranches = 1000;
constexpr int kLeaves = 10;
constexpr int kViewW = 420;
constexpr int kViewH = 600;

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

AssetManager& Skin() {
  static AssetManager* assets = [] {
    auto* am = new AssetManager;
    auto* loader = new FileAssetLoader;
    loader->Init(VORN_SKIN_DIR);
    am->SetAssetLoader(loader);
    am->SetLanguage("english", "");
    am->LoadAssets();
    am->LoadColourData("colours.txt");
    am->LoadFontData("fonts.txt");
    return am;
  }();
  return *assets;
}

// ---- measuring ------------------------------------------------------------------

size_t HeapBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

long ResidentKb() {
  std::ifstream statm("/proc/self/statm");
  long size = 0, resident = 0;
  statm >> size >> resident;
  return resident * 4;
}

int CountWindows(wxWindow* window) {
  int n = 1;
  for (wxWindow* child : window->GetChildren()) n += CountWindows(child);
  return n;
}

// Repaints everything that is invalid now, as the next frame would.
void Paint(wxWindow* frame) {
  frame->wxWindow::Update();
  wxTheApp->ProcessPendingEvents();
}

// ---- the tree's content -----------------------------------------------------------

enum class Kind { Slider, Check, IntText, StringText };

Kind KindOf(int leaf) {
  return static_cast<Kind>(leaf % 4);
}

std::string LeafName(int leaf) {
  static const char* kNames[] = {"Roughness",    "Visible", "Samples", "Label",     "Opacity",
                                 "Cast shadows", "Layer",   "Comment", "Intensity", "Locked"};
  return kNames[leaf];
}

// A leaf that owns the native windows an editor of its kind would: a name
// (drawn), and a slider with its value box, a toggle, or an edit field.
class StandInLeaf : public VornVUIControl {
 public:
  StandInLeaf(Kind kind, std::string name) : m_kind(kind), m_name(std::move(name)) {}

  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style) override {
    if (!VornVUIControl::Create(parent, id, group, style)) return false;
    const int a = GetAllignmentPt();
    const wxColour text(222, 227, 234), fill(24, 28, 34);
    switch (m_kind) {
      case Kind::Slider:
        m_slider = std::make_unique<VornSlider>(a + 3, 6, 90, 20, this, 1, &m_inner);
        m_edit = std::make_unique<VornEdit>(a + 96, 6, 44, 20, this, text, fill, 2, &m_inner);
        break;
      case Kind::Check:
        m_toggle = std::make_unique<VornButtonToggle>(nullptr, a + 3, 8, 16, 16, this, 1, &m_inner);
        break;
      case Kind::IntText:
      case Kind::StringText:
        m_edit = std::make_unique<VornEdit>(a + 8, 6, 60, 20, this, text, fill, 2, &m_inner);
        break;
    }
    return true;
  }
  int GetAllignmentPt() override { return NameWidth(m_name) + 20; }
  int GetMaxWidth() override {
    const int a = GetAllignmentPt();
    switch (m_kind) {
      case Kind::Slider:
        return a + 143;
      case Kind::Check:
        return a + 103;
      default:
        return a + 15 + 60;
    }
  }
  int GetMaxHeight() override { return 32; }
  void OnDraw(wxDC* dc) override {
    dc->SetBrush(wxBrush(CtoWxC(GetRowBackgroundCol())));
    dc->SetPen(*wxTRANSPARENT_PEN);
    dc->DrawRectangle(0, 0, GetWidth(), GetHeight());
    dc->SetTextForeground(wxColour(222, 227, 234));
    dc->DrawText(wxString::FromUTF8(m_name.c_str()), 4, 8);
  }

 private:
  // Names repeat, so each is measured once.
  static int NameWidth(const std::string& name) {
    static std::map<std::string, int> widths;
    auto it = widths.find(name);
    if (it != widths.end()) return it->second;
    wxBitmap scratch(10, 10);
    wxMemoryDC dc(scratch);
    wxFont font;
    Skin().GetFont("vuiedit_tree_contname", font);
    dc.SetFont(font);
    const int w = dc.GetTextExtent(wxString::FromUTF8(name.c_str())).x;
    widths[name] = w;
    return w;
  }

  Kind m_kind;
  std::string m_name;
  VornControlGroupValue m_inner;
  std::unique_ptr<VornSlider> m_slider;
  std::unique_ptr<VornEdit> m_edit;
  std::unique_ptr<VornButtonToggle> m_toggle;
};

// Which leaves the tree is built from.
enum class Leaves {
  StandIn,  // the stand-ins above
  Real,     // the tree's slider, check box and text editors, as the grid's four kinds
  Mixed,    // every editor kind of the tree, twenty kinds over two branches
};
Leaves g_leaves = Leaves::StandIn;

VornVUIControl* MakeMixedLeaf(int branch, int leaf) {
  AssetManager* am = &Skin();
  const VornString name = LeafName(leaf);
  switch ((branch % 2) * kLeaves + leaf) {
    case 0:
      return new VUITreeSlider(am, name, false, 0.0, 1.0, 0.5);
    case 1:
      return new VUITreeCheckBox(am, name, false, true);
    case 2:
      return new VUITreeTextEdits(am, name, false, VUITreeTextEdits::PT_INT);
    case 3:
      return new VUITreeTextEdits(am, name, false, VUITreeTextEdits::PT_STRING);
    case 4:
      return new VUITreeTextEdits(am, name, false, VUITreeTextEdits::PT_VEC3D);
    case 5:
      return new VUITreeTextEdits(am, name, false, VUITreeTextEdits::PT_COLOR);
    case 6:
      return new VUITreeThumbWheel(am, name, false, 0.0, 10.0, 5.0, 0.1);
    case 7:
      return new VUITreeExpandTextEdits(am, name, false);
    case 8:
      return new VUITreeAngleSelect(am, name, false, 45.0);
    case 9:
      return new VUITreeAngleClippers(am, name, false, 0.4);
    case 10:
      return new VUITreeEnumLB(am, name, false, "Nearest | Linear | Cubic");
    case 11:
      return new VUITreeLB(am, name, false);
    case 12:
      return new VUITreeColorButton(am, name, false, Color(0.2, 0.7, 0.8));
    case 13:
      return new VUITreeGradientButton(am, name, false);
    case 14:
      return new VUITreeTextureButton(am, name, true);
    case 15:
      return new VUITreeFunctionButton(am, name, false);
    case 16:
      return new VUITreeCurveButton(am, name, false);
    case 17:
      return new VUITreeMaterialButton(am, name, false);
    case 18:
      return new VUITreeMonsterBox(am, name, false, 200, 100);
    default:
      return new VUITreePopControl(am, name, false, 200, 36);
  }
}

VornVUIControl* MakeLeaf(int branch, int leaf) {
  if (g_leaves == Leaves::Mixed) return MakeMixedLeaf(branch, leaf);
  if (g_leaves == Leaves::StandIn) return new StandInLeaf(KindOf(leaf), LeafName(leaf));
  const VornString name = LeafName(leaf);
  switch (KindOf(leaf)) {
    case Kind::Slider:
      return new VUITreeSlider(&Skin(), name, false, 0.0, 1.0, 0.5);
    case Kind::Check:
      return new VUITreeCheckBox(&Skin(), name, false, true);
    case Kind::IntText:
      return new VUITreeTextEdits(&Skin(), name, false, VUITreeTextEdits::PT_INT);
    default:
      return new VUITreeTextEdits(&Skin(), name, false, VUITreeTextEdits::PT_STRING);
  }
}

// ---- the two contenders ------------------------------------------------------------

class TreeSetup {
 public:
  TreeSetup() {
    frame = new wxFrame(nullptr, wxID_ANY, "tree", wxDefaultPosition, wxSize(kViewW, kViewH));
    frame->Show();
    Paint(frame);
    heapBefore = HeapBytes();
    rssBefore = ResidentKb();
    tree = new VornMainVUITreeControl;
    tree->Create(120, &Skin(), 0, 0, kViewW, kViewH, frame, 1, &group);
    VornTreeRootNode* root = tree->GetTreeRoot();
    for (int b = 0; b < kBranches; ++b) {
      auto* branch = new VornBranchNode(root, "Group " + std::to_string(b));
      root->AddToEnd(branch);
      for (int l = 0; l < kLeaves; ++l)
        branch->GetTree()->AddToEnd(
            new VornVUIControlNode(MakeLeaf(b, l), branch->GetTree(), true));
    }
    tree->RefreshTree();
    Paint(frame);
  }
  ~TreeSetup() { delete frame; }

  VornBranchNode* Branch(int i) {
    return static_cast<VornBranchNode*>(tree->GetTreeRoot()->GetAtPos(i));
  }
  // The toggle button's press and release, as the user gives them.
  void Click(VornBranchNode* branch) {
    VornBranchToggleButton* button = branch->GetBranchControl()->GetToggleButton();
    for (wxEventType type : {wxEVT_ENTER_WINDOW, wxEVT_LEFT_DOWN, wxEVT_LEFT_UP}) {
      wxMouseEvent e(type);
      e.SetEventObject(button);
      e.m_x = e.m_y = 4;
      e.SetLeftDown(type == wxEVT_LEFT_DOWN);
      button->GetEventHandler()->ProcessEvent(e);
    }
    Paint(frame);
  }
  // Scrolls to a fraction of the whole height and repaints.
  void ScrollTo(double value) {
    tree->GetScrollBar()->SetSliderVal(value, true);
    Paint(frame);
  }
  void ExpandAll() {
    for (int b = 0; b < kBranches; ++b) Branch(b)->Expand();
    tree->RefreshTree();
    Paint(frame);
  }

  wxFrame* frame;
  VornMainVUITreeControl* tree;
  VornControlGroup group;
  size_t heapBefore;
  long rssBefore;
};

class GridSetup {
 public:
  GridSetup() {
    frame = new wxFrame(nullptr, wxID_ANY, "grid", wxDefaultPosition, wxSize(kViewW, kViewH));
    frame->Show();
    Paint(frame);
    heapBefore = HeapBytes();
    rssBefore = ResidentKb();
    grid = new wxPropertyGrid(frame, wxID_ANY, wxPoint(0, 0), wxSize(kViewW, kViewH),
                              wxPG_DEFAULT_STYLE);
    grid->Freeze();
    for (int b = 0; b < kBranches; ++b) {
      const wxString group = wxString::Format("Group %d", b);
      wxPGProperty* category = grid->Append(new wxPropertyCategory(group, group));
      for (int l = 0; l < kLeaves; ++l) {
        const wxString label = wxString::FromUTF8(LeafName(l).c_str());
        const wxString name = wxString::Format("p%d_%d", b, l);
        wxPGProperty* p = nullptr;
        switch (KindOf(l)) {
          case Kind::Slider:
            p = new wxFloatProperty(label, name, 0.5);
            break;
          case Kind::Check:
            p = new wxBoolProperty(label, name, true);
            break;
          case Kind::IntText:
            p = new wxIntProperty(label, name, 7);
            break;
          case Kind::StringText:
            p = new wxStringProperty(label, name, "text");
            break;
        }
        grid->AppendIn(category, p);
      }
    }
    grid->CollapseAll();
    grid->Thaw();
    Paint(frame);
  }
  ~GridSetup() { delete frame; }

  wxPGProperty* Category(int i) { return grid->GetPropertyByName(wxString::Format("Group %d", i)); }
  void ScrollTo(double value) {
    int unitX = 1, unitY = 1;
    grid->GetScrollPixelsPerUnit(&unitX, &unitY);
    const int range = grid->GetVirtualSize().y - grid->GetClientSize().y;
    grid->Scroll(0, static_cast<int>(value * range / std::max(unitY, 1)));
    Paint(frame);
  }

  wxFrame* frame;
  wxPropertyGrid* grid;
  size_t heapBefore;
  long rssBefore;
};

// Heap, resident memory and windows since the setup began.
template <class Setup>
void MemoryCounters(benchmark::State& state, Setup& s) {
  state.counters["heap_kb"] = static_cast<double>(HeapBytes() - s.heapBefore) / 1024.0;
  state.counters["rss_kb"] = static_cast<double>(ResidentKb() - s.rssBefore);
  state.counters["windows"] = CountWindows(s.frame) - 1;
}

// ---- figures -------------------------------------------------------------------------

template <class Setup, Leaves kLeaves = Leaves::StandIn>
void BM_Build(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  g_leaves = kLeaves;
  // One build beforehand, so that neither contender pays the process's
  // first-time costs (theme loading, fresh heap pages) for the other.
  std::make_unique<Setup>().reset();
  bool first = true;
  for (auto _ : state) {
    auto s = std::make_unique<Setup>();
    state.PauseTiming();
    if (first) MemoryCounters(state, *s);
    first = false;
    s.reset();
    state.ResumeTiming();
  }
}

// Toggles one branch in the middle of the scrolled tree open and shut; only
// the opening (kTimeOpening) or only the closing is measured.
template <Leaves kLeaves, bool kTimeOpening>
void BM_TreeToggle(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  g_leaves = kLeaves;
  TreeSetup s;
  s.ScrollTo(0.5);
  VornBranchNode* branch = s.Branch(kBranches / 2);
  for (auto _ : state) {
    if (!kTimeOpening) state.PauseTiming();
    s.Click(branch);  // expand
    if (kTimeOpening) state.PauseTiming();
    if (!kTimeOpening) state.ResumeTiming();
    s.Click(branch);  // collapse
    if (kTimeOpening) state.ResumeTiming();
  }
}

template <bool kTimeOpening>
void BM_GridToggle(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  GridSetup s;
  s.ScrollTo(0.5);
  wxPGProperty* category = s.Category(kBranches / 2);
  for (auto _ : state) {
    if (!kTimeOpening) state.PauseTiming();
    s.grid->Expand(category);
    Paint(s.frame);
    if (kTimeOpening) state.PauseTiming();
    if (!kTimeOpening) state.ResumeTiming();
    s.grid->Collapse(category);
    Paint(s.frame);
    if (kTimeOpening) state.ResumeTiming();
  }
}

// One step of 100 from top to bottom; the tree (or grid) collapsed, or with
// every branch open.
template <class Setup, bool kOpen, Leaves kLeaves = Leaves::StandIn>
void BM_ScrollStep(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  g_leaves = kLeaves;
  Setup s;
  if (kOpen) {
    if constexpr (std::is_same_v<Setup, TreeSetup>)
      s.ExpandAll();
    else
      s.grid->ExpandAll();
    Paint(s.frame);
  }
  int step = 0;
  for (auto _ : state) {
    step = step % 100 + 1;
    s.ScrollTo(step / 100.0);
    if (step == 100) {
      state.PauseTiming();
      s.ScrollTo(0.0);
      state.ResumeTiming();
    }
  }
}

}  // namespace

// Each leaf kind's figures are paired with the property grid measured again
// under its own name.
#define TREE_FIGURES(prefix, real)                 \
  BENCHMARK(BM_Build<TreeSetup, real>)             \
      ->Name(prefix "/Build")                      \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(1);                             \
  BENCHMARK(BM_Build<GridSetup>)                   \
      ->Name(prefix "/Build/baseline")             \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(1);                             \
  VORN_BENCH_TARGET(prefix "/Build", 1.0);         \
  BENCHMARK(BM_TreeToggle<real, true>)             \
      ->Name(prefix "/Expand")                     \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(10);                            \
  BENCHMARK(BM_GridToggle<true>)                   \
      ->Name(prefix "/Expand/baseline")            \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(10);                            \
  BENCHMARK(BM_TreeToggle<real, false>)            \
      ->Name(prefix "/Collapse")                   \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(10);                            \
  BENCHMARK(BM_GridToggle<false>)                  \
      ->Name(prefix "/Collapse/baseline")          \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(10);                            \
  BENCHMARK(BM_ScrollStep<TreeSetup, false, real>) \
      ->Name(prefix "/ScrollStep")                 \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(100);                           \
  BENCHMARK(BM_ScrollStep<GridSetup, false>)       \
      ->Name(prefix "/ScrollStep/baseline")        \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(100);                           \
  BENCHMARK(BM_ScrollStep<TreeSetup, true, real>)  \
      ->Name(prefix "/ScrollStepOpen")             \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(100);                           \
  BENCHMARK(BM_ScrollStep<GridSetup, true>)        \
      ->Name(prefix "/ScrollStepOpen/baseline")    \
      ->Unit(benchmark::kMillisecond)              \
      ->Iterations(100)

TREE_FIGURES("Tree", Leaves::StandIn);
TREE_FIGURES("TreeEditors", Leaves::Real);
TREE_FIGURES("TreeAllEditors", Leaves::Mixed);
