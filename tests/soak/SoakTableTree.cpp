// The two compound families of the soak test: the multi-column box (rows of
// cell windows, buttons, a grip) and the parameter tree (branches of editor
// leaves whose windows come and go as branches open and nodes are deleted).
#include <algorithm>
#include <utility>
#include <vector>

#include "Soak.h"

namespace {

using Random = SoakRandom;

VornControlGroup* Side(VornControlGroup* group) {
  return group;
}

// ---- the multi-column box ----------------------------------------------------

// Columns: 0 text, 1 check box, and maybe a third text column; rows are
// whole (one cell per column), as a host fills them.
void AddRow(VornMonsterBox* box, const SoakSkin& s, Random& r, bool insert) {
  const int row = insert ? r.Below(box->GetRowCount() + 1) : box->GetRowCount();
  for (int c = 0; c < box->GetColumnCount(); ++c) {
    if (c == 1)
      box->InsertEntry(row, c, s.Images("table_check.sts"), r.Chance(30));
    else
      box->InsertEntry(row, c, SoakText(r), s.Colour("table_cell_text"), r.Chance(50));
  }
  insert ? box->InsertLineData(row, nullptr) : box->AddLineData(nullptr);
}

// Keeps the skin, for the check boxes of rows added later.
class SoakBox : public VornMonsterBox {
 public:
  explicit SoakBox(const SoakSkin& s) : skin(s) {}
  SoakSkin skin;
};

VornControl* MakeBox(const SoakSkin& s, wxWindow* parent, int x, int y, int id, SoakGroup& g,
                     Random& r) {
  auto* box = new SoakBox(s);
  VornString name = "soak";
  box->SetColors(s.Colour("table_cell"), s.Colour("table_cell_text"));
  box->SetSepColour(s.Colour("table_separator"));
  box->Create(s.Picture("table_frame.sts"), s.Picture("table_heading.sts"),
              s.Picture("table_spacer.sts"), x, y, r.Between(20, 400), r.Between(20, 300), name,
              parent, id, r.Chance(80) ? Side(g.OneOfN()) : Side(g.Value()),
              r.Chance(60) ? kMonsterBoxResizable : 0);
  box->SetMaxSize(r.Between(40, 500));
  const int columns = r.Between(2, 3);
  for (int c = 0; c < columns; ++c)
    box->AddColumn(SoakText(r), s.Colour("table_heading_text"), s.Font("label_bold"),
                   r.Between(1, 160));
  for (int i = r.Chance(30) ? r.Between(10, 40) : r.Below(6); i > 0; --i) AddRow(box, s, r, false);
  // Buttons report to the soak's group under ids wx makes.
  for (int b = r.Below(3); b > 0; --b)
    box->AddButton(s.Images("table_button_plus.sts"), wxID_ANY, SoakText(r), g.OneOfN());
  return box;
}

void BoxValue(VornControl* c, Random& r) {
  auto* box = static_cast<SoakBox*>(c);
  const SoakSkin& s = box->skin;
  const int rows = box->GetRowCount();
  r.OneOf(
      {[&] {
         if (rows < 60) AddRow(box, s, r, r.Chance(50));
       },
       [&] {
         if (rows > 0) box->DeleteRow(r.Below(rows));
       },
       [&] { r.Chance(15) ? box->ClearAll() : box->SetRowHeight(r.Between(1, 40)); },
       [&] {  // a click on a cell, as the user makes it
         VornControl* cell = box->GetRowColumn(r.Below(rows + 1), r.Below(box->GetColumnCount()));
         if (cell && cell->IsShownOnScreen()) SoakClick(cell, 3, 3);
       },
       [&] { r.Chance(50) ? box->SetScrollPos(r.Value()) : box->ScrollRows(r.Between(-5, 5)); },
       [&] {  // the grip of a shown box dragged, maybe released elsewhere
         if (!box->IsShownOnScreen()) return;
         const wxRect grip = box->GripRect();
         const int x = grip.x + grip.width / 2, y = grip.y + grip.height / 2;
         SoakMouse(box, wxEVT_LEFT_DOWN, x, y, true);
         SoakMouse(box, wxEVT_MOTION, x, y + r.Between(-300, 300), true);
         if (r.Chance(80)) SoakMouse(box, wxEVT_LEFT_UP, x, y, false);
       },
       [&] { box->SetSize(r.Between(1, 400), r.Between(1, 400)); },
       [&] { r.Chance(50) ? box->Resizable(r.Chance(50)) : box->SetMaxSize(r.Between(1, 500)); }});
}

// ---- the parameter tree --------------------------------------------------------

// A leaf or branch in place: its level and position there.
struct Slot {
  VornTreeNode* level;
  int pos;
};

// Every level (the root first, then each branch's sub-tree) and every slot.
void Walk(VornTreeNode* level, std::vector<VornTreeNode*>& levels, std::vector<Slot>& slots) {
  levels.push_back(level);
  for (int i = 0; i < level->GetSize(); ++i) {
    slots.push_back({level, i});
    if (auto* branch = dynamic_cast<VornBranchNode*>(level->GetAtPos(i)))
      if (!branch->IsNull()) Walk(branch->GetTree(), levels, slots);
  }
}

VornVUIControl* MakeEditor(AssetManager* am, Random& r) {
  const VornString name = SoakText(r);
  const bool function = r.Chance(30);
  switch (r.Below(6)) {
    case 0:
      return new VUITreeSlider(am, name, function, -r.Value() * 10, r.Value() * 10, r.Value(),
                               r.Chance(30));
    case 1:
      return new VUITreeThumbWheel(am, name, function, -100, 100, r.Value(), r.Value() + 0.01,
                                   r.Chance(30));
    case 2:
      return new VUITreeCheckBox(am, name, function, r.Chance(50));
    case 3:
      return new VUITreeExpandTextEdits(am, name, function, r.Between(2, 4));
    case 4:
      return new VornTerminatorControl;
    default:
      return new VUITreeTextEdits(
          am, name, function, static_cast<VUITreeTextEdits::PTYPE>(r.Below(9)), r.Between(8, 80));
  }
}

void AddNode(VornMainVUITreeControl* tree, Random& r) {
  std::vector<VornTreeNode*> levels;
  std::vector<Slot> slots;
  Walk(tree->GetTreeRoot(), levels, slots);
  if (slots.size() >= 40) return;
  VornTreeNode* level = r.Pick(levels);
  VornLeafNode* node =
      r.Chance(25) ? static_cast<VornLeafNode*>(new VornBranchNode(level, SoakText(r)))
                   : new VornVUIControlNode(MakeEditor(tree->GetTreeRoot()->GetAssetManager(), r),
                                            level, r.Chance(80));
  level->AddAtPosition(node, r.Below(level->GetSize() + 1));
}

// As the branch's own button does it, or through the node when the header
// has no window yet.
void ToggleBranch(VornBranchNode* branch, Random& r) {
  VornBranchToggleButton* toggle = branch->GetBranchControl()->GetToggleButton();
  if (toggle && toggle->IsShownOnScreen() && r.Chance(70)) {
    SoakClick(toggle, 2, 2);
    return;
  }
  r.Chance(50) ? branch->Expand() : branch->Collapse();
}

// Sets a leaf's value through the interface its editor serves.
void EditorValue(VornVUIControl* editor, Random& r) {
  if (auto* slider = dynamic_cast<VUITreeSlider*>(editor)) {
    slider->SetVal(r.Value() * 20 - 10, r.Chance(50));
  } else if (auto* wheel = dynamic_cast<VUITreeThumbWheel*>(editor)) {
    r.Chance(80) ? wheel->SetVal(r.Value() * 200 - 100, r.Chance(50))
                 : wheel->ResetVals(-r.Value() * 10, r.Value() * 10, r.Value());
  } else if (auto* box = dynamic_cast<VUITreeCheckBox*>(editor)) {
    box->SetValue(int32(r.Below(3)));
  } else if (auto* edits = dynamic_cast<VUITreeTextEdits*>(editor)) {
    r.OneOf(
        {[&] { edits->SetValue(Vec4d(r.Value(), r.Value(), r.Value(), r.Value())); },
         [&] { edits->SetValue(SoakText(r)); }, [&] { edits->SetEditable(r.Chance(70)); },
         [&] {
           if (edits->GetFieldCount() > 0)
             edits->GetField(r.Below(edits->GetFieldCount()))->SetText(SoakText(r), r.Chance(70));
         }});
  } else if (auto* expand = dynamic_cast<VUITreeExpandTextEdits*>(editor)) {
    r.Chance(50) ? expand->SetValue(Vec2d(r.Value(), r.Value()))
                 : expand->SetValue(Vec4d(r.Value(), r.Value(), r.Value(), r.Value()));
  }
}

void DeleteNode(const Slot& slot, Random& r) {
  auto* branch = dynamic_cast<VornBranchNode*>(slot.level->GetAtPos(slot.pos));
  if (branch && r.Chance(30)) return branch->SetNull(true);
  if (r.Chance(5)) return slot.level->DeleteAllLeafNodes();
  VornLeafNode* removed = nullptr;
  if (slot.level->RemoveAtPosition(removed, slot.pos)) delete removed;
}

VornControl* MakeTree(const SoakSkin& s, wxWindow* parent, int x, int y, int id, SoakGroup& g,
                      Random& r) {
  auto* tree = new VornMainVUITreeControl;
  tree->Create(r.Between(10, 200), &s.assets, x, y, r.Between(30, 500), r.Between(30, 400), parent,
               id, r.Chance(80) ? Side(g.Value()) : Side(g.OneOfN()));
  for (int i = r.Below(12); i > 0; --i) AddNode(tree, r);
  tree->RefreshTree();
  return tree;
}

void TreeValue(VornControl* c, Random& r) {
  auto* tree = static_cast<VornMainVUITreeControl*>(c);
  std::vector<VornTreeNode*> levels;
  std::vector<Slot> slots;
  Walk(tree->GetTreeRoot(), levels, slots);
  const Slot* slot = slots.empty() ? nullptr : &r.Pick(slots);
  VornLeafNode* node = slot ? slot->level->GetAtPos(slot->pos) : nullptr;
  r.OneOf({[&] { AddNode(tree, r); },
           [&] {
             if (auto* branch = dynamic_cast<VornBranchNode*>(node)) ToggleBranch(branch, r);
           },
           [&] {
             r.Chance(50) ? tree->ScrollBy(r.Value() * 400 - 200)
                          : tree->GetScrollBar()->SetSliderVal(r.Value(), r.Chance(70));
           },
           [&] {
             if (node) EditorValue(node->GetVornVUIControl(), r);
           },
           [&] {
             if (slot) DeleteNode(*slot, r);
           },
           [&] { tree->SetTreeSize(r.Between(1, 500), r.Between(1, 400)); }});
  // A host lays the tree out again after changing it.
  if (r.Chance(90)) tree->RefreshTree();
}

// The leaves of closed branches have no window until first shown, yet are
// alive and in the tree's group.
void TreeParts(VornControl* c, std::vector<const VornControl*>& out) {
  for (VornNode* node : static_cast<VornMainVUITreeControl*>(c)->GetTreeRoot()->GetNodeList())
    if (VornVUIControl* control = node->GetVornVUIControl()) out.push_back(control);
}

}  // namespace

std::vector<SoakFamily> SoakTableAndTreeFamilies() {
  return {
      {"multi-column box", MakeBox, BoxValue},
      {"parameter tree", MakeTree, TreeValue, {}, {}, {}, TreeParts},
  };
}
