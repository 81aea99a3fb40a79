#pragma once
// The parameter tree: a node model that knows the tree's shape and does all
// layout arithmetic, and the controls it places. Every leaf wraps one
// VornVUIControl; a branch owns a header control (with a toggle button) and a
// sub-tree; the root owns the root control and the registry of every node.
// VornMainVUITreeControl is the outer window: a scroll bar at the left and the
// tree to its right.
//
// Windows are nested: a leaf's control is a child window of the control of
// the tree level that holds it (the root control or a branch header), so
// rectangles are in the parent control's coordinates.
#include <wx/bitmap.h>
#include <wx/font.h>
#include <wx/weakref.h>

#include <memory>
#include <vector>

#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornSimpleScrollBar.h"
#include "vornhost/Color.h"
#include "vornhost/Types.h"

class AssetManager;
class VornTreeRootNode;
class VornTreeNode;
class VornBranchNode;
class VornVUIControlNode;
class VornVUIControl;
class VornVUITreeRootControl;
class VornVUIBranchControl;
class VornBranchToggleButton;
class VornMainVUITreeControl;
class VornTreeRootScrollControl;

// ---- nodes ---------------------------------------------------------------------

class VornNode {
 public:
  // --- construction
  VornNode();
  VornNode(const VornNode&) = delete;
  VornNode& operator=(const VornNode&) = delete;
  virtual ~VornNode();

  // --- operations every node implements, in this order
  // The deepest node under (x, y), in this node's coordinates; a leaf yields
  // itself.
  virtual void GetNodeFromPoint(VornNode*& out, int x, int y);
  virtual void SetVisible(bool visible);
  // The root at the top of the parent chain, or null when detached.
  virtual VornTreeRootNode* GetRoot();
  virtual int GetWidth() = 0;
  virtual int GetHeight() = 0;
  virtual int GetAllignmentPoint() = 0;
  // Places the node; rectangles are in the parent control's coordinates.
  virtual void SetDisplay(int x1, int y1, int x2, int y2) = 0;
  // The control that holds this node's windows.
  virtual VornVUIControl* GetVornVUIControl() = 0;
  // Applies the layout to the windows and repaints.
  virtual void Refresh() = 0;

  // --- accessors
  int GetNodeID() const { return m_nodeID; }
  void SetNodeID(int id) { m_nodeID = id; }
  VornNode* GetParent() const { return m_pParent; }
  void SetParent(VornNode* parent) { m_pParent = parent; }
  bool IsVisible() const { return m_bVisible; }

 protected:
  // How far the window of a child of parent is shifted from its layout
  // place: the scroll position for children of the root, else 0.
  static int WindowShiftOf(VornNode* parent);
  // Moves and sizes a window, unless it is already there.
  static void PlaceWindow(VornControl* control, int x, int y, int w, int h);
  // Repaints a placed window, unless it is a child of the root lying wholly
  // outside the view (it is painted when scrolled in).
  static void RepaintWindow(VornNode* parent, VornControl* control);
  // Whether rows y1..y2 of a child of parent (in parent's layout) are in or
  // near the view: always for a level below the root.
  static bool InView(VornNode* parent, int y1, int y2);
  // The rows of parent's layout in or near the view; false when every row
  // counts as in view (a level below the root).
  static bool ViewSpan(VornNode* parent, int& top, int& bottom);

  int m_nodeID = -1;              // -1 until registered
  VornNode* m_pParent = nullptr;  // not owned
  bool m_bVisible = false;
};

// A node that sits in a tree level's list of children.
class VornLeafNode : public VornNode {
 public:
  // Where the leaf sits among its siblings (the connector lines follow it).
  enum POSITION { P_NONE, P_FIRST, P_MIDDLE, P_LAST, P_ONLY };

  VornLeafNode() = default;
  ~VornLeafNode() override;

  virtual void SetPosition(POSITION position);

  POSITION GetPosition() const { return m_position; }
  bool IsOnTree() const { return m_bOnTree; }
  void SetOnTree(bool onTree) { m_bOnTree = onTree; }

 protected:
  POSITION m_position = P_NONE;
  bool m_bOnTree = false;  // in some level's list of children
};

// A leaf that wraps one parameter control.
class VornVUIControlNode : public VornLeafNode {
 public:
  // --- construction
  // setDefaults copies the tree's background, line and mouse-over colours
  // into the control. Gives the control a window under the parent's control
  // when it has none, registers with the root and binds the control to the
  // tree control's group. Does not insert itself into parent's list.
  // Under a hidden level (a closed branch) the window is made when the node
  // is first shown: the control gets its window id now and must accept its
  // value calls before Create.
  VornVUIControlNode(VornVUIControl* control, VornTreeNode* parent, bool setDefaults);
  // Deletes the control.
  ~VornVUIControlNode() override;

  // --- VornNode
  int GetWidth() override;
  int GetHeight() override;
  int GetAllignmentPoint() override;
  void SetDisplay(int x1, int y1, int x2, int y2) override;
  VornVUIControl* GetVornVUIControl() override;
  void Refresh() override;

  // --- accessors
  void GetDisplay(int& x1, int& y1, int& x2, int& y2) const;

 protected:
  // Makes the control's window under the parent's control (the node made
  // none while its level was hidden); false when the parent has no window.
  bool CreateWindow();

  std::unique_ptr<VornVUIControl> m_pControl;
  int m_x1 = 0;
  int m_x2 = 0;
  int m_y1 = 0;
  int m_y2 = 0;
};

// One level of the tree: an ordered list of owned children stacked
// vertically and aligned on one line.
class VornTreeNode : public VornNode {
 public:
  // --- construction
  VornTreeNode() = default;
  // Deletes every child.
  ~VornTreeNode() override;

  // --- VornNode
  void GetNodeFromPoint(VornNode*& out, int x, int y) override;
  void SetVisible(bool visible) override;
  int GetWidth() override;
  int GetHeight() override;
  int GetAllignmentPoint() override;
  void SetDisplay(int x1, int y1, int x2, int y2) override;
  // The control of the branch (or root) this level belongs to.
  VornVUIControl* GetVornVUIControl() override;
  void Refresh() override;

  // --- the list of children. The tree takes ownership of what is added;
  // what is removed goes back to the caller. False for a null leaf or a
  // position out of range.
  bool AddToBegin(VornLeafNode* leaf);
  bool AddToEnd(VornLeafNode* leaf);
  // pos 0 .. GetSize(); GetSize() appends.
  bool AddAtPosition(VornLeafNode* leaf, int pos);
  bool RemoveFromBegin(VornLeafNode*& leaf);
  bool RemoveFromEnd(VornLeafNode*& leaf);
  bool RemoveAtPosition(VornLeafNode*& leaf, int pos);
  VornLeafNode* GetBegin() const;
  VornLeafNode* GetEnd() const;
  VornLeafNode* GetAtPos(int i) const;
  int GetSize() const { return static_cast<int>(m_children.size()); }
  // False when leaf is not a child.
  bool GetNodePos(VornLeafNode* leaf, int& pos) const;
  // Swaps the places of two children.
  bool Exchange(VornLeafNode* first, VornLeafNode* second);
  // Puts leaf at pos and hands back the child that was there.
  bool SwapAtPos(VornLeafNode* leaf, VornLeafNode*& old, int pos);
  void DeleteAllLeafNodes();
  // Gives every child its POSITION from its place in the list.
  void ResetPositionValues();

  // --- the stored rectangle
  void GetDisplay(int& x1, int& y1, int& x2, int& y2) const;

 protected:
  // Common bookkeeping of a child joining or leaving the list.
  void Attach(VornLeafNode* leaf);
  void Detach(VornLeafNode* leaf);

  std::vector<VornLeafNode*> m_children;  // display order, owned
  int m_x1 = 0;
  int m_x2 = 0;
  int m_y1 = 0;
  int m_y2 = 0;
};

// A collapsible branch: a header control and a sub-tree shown below it when
// expanded.
class VornBranchNode : public VornLeafNode {
 public:
  // --- construction
  // Registers, creates the sub-tree and the header control with the name.
  // Does not insert itself into parent's list.
  VornBranchNode(VornTreeNode* parent, VornString name);
  ~VornBranchNode() override;

  // --- VornNode
  void GetNodeFromPoint(VornNode*& out, int x, int y) override;
  void SetVisible(bool visible) override;
  int GetWidth() override;
  int GetHeight() override;
  int GetAllignmentPoint() override;
  void SetDisplay(int x1, int y1, int x2, int y2) override;
  VornVUIControl* GetVornVUIControl() override;
  void Refresh() override;

  // --- hooks the toggle button calls after the state change
  virtual void OnExpand();
  virtual void OnCollapse();

  // --- operations
  VornTreeNode* GetTree() const { return m_pTree.get(); }
  // Whether the header has its window (it is made when first placed in
  // view).
  bool HasWindow() const;
  void Expand();
  void Collapse();
  void Toggle();
  void SetExpandedVal(bool expanded);
  bool IsExpanded() const { return m_bExpanded; }
  // true collapses and deletes every leaf of the sub-tree.
  void SetNull(bool null);
  bool IsNull() const { return m_bNull; }
  VornVUIBranchControl* GetBranchControl() const { return m_pControl.get(); }
  void GetDisplay(int& x1, int& y1, int& x2, int& y2) const;

 protected:
  // The state changes behind Expand and Collapse.
  void Exp();
  void Col();
  // Makes the header's window under the parent's control; false when the
  // parent has none.
  bool CreateWindow();
  bool ParentHasWindow() const;
  // Whether the tree has its window: then the header gets one once it and
  // the headers above it are placed in view.
  bool TreeHasWindow() const;

  bool m_bExpanded = false;
  std::unique_ptr<VornVUIBranchControl> m_pControl;
  int m_x1 = 0;
  int m_x2 = 0;
  int m_y1 = 0;
  int m_y2 = 0;
  bool m_bNull = false;
  std::unique_ptr<VornTreeNode> m_pTree;
};

// The top of the tree: the root control, a fixed alignment line and the
// registry of every node.
class VornTreeRootNode : public VornTreeNode {
 public:
  // --- construction
  // Takes node id 0; starts invisible. The root control's window is made
  // when the tree control is set.
  VornTreeRootNode(int alignment, Color background, AssetManager* assetManager);
  ~VornTreeRootNode() override;

  // --- VornNode
  void GetNodeFromPoint(VornNode*& out, int x, int y) override;
  VornTreeRootNode* GetRoot() override { return this; }
  int GetWidth() override;
  int GetAllignmentPoint() override;
  void SetDisplay(int x1, int y1, int x2, int y2) override;
  VornVUIControl* GetVornVUIControl() override;
  void Refresh() override;

  // --- accessors
  void SetTreeControl(VornMainVUITreeControl* tree);
  VornMainVUITreeControl* GetTreeControl() const { return m_pTreeControl; }
  AssetManager* GetAssetManager() const { return m_pAssetManager; }
  Color GetBackgroundCol() const;
  Color GetLineCol() const;
  // Every registered node still alive, in registration order.
  const std::vector<VornNode*>& GetNodeList();
  VornVUITreeRootControl* GetRootControl() const { return m_pRootControl.get(); }

  // --- the registry
  // Gives windows to the top-level rows that scrolled into view without one.
  void CreateWindowsInView();

  // Asserts the node is not registered yet; gives it the next id.
  void Register(VornNode* node);
  // Forgets the node (nodes call this as they are deleted).
  void Deregister(VornNode* node);
  // The first registered node whose control has the window id, or null.
  VornNode* GetNodeFromVornControlID(int id);

  // --- alignment
  void ResetAllign(int alignment);
  // The level's own alignment and width (without the fixed line).
  int GetRealTreeAllign();
  int GetRealTreeWidth();

 protected:
  // Drops deregistered slots once they are the majority.
  void Compact();

  std::vector<VornNode*> m_registry;  // not owned; null where deregistered
  int m_nextID = 0;
  std::unique_ptr<VornVUITreeRootControl> m_pRootControl;
  int m_rootAllignment = 0;
  int m_rx1 = 0;
  int m_rx2 = 0;
  int m_ry1 = 0;
  int m_ry2 = 0;
  AssetManager* m_pAssetManager = nullptr;           // not owned
  VornMainVUITreeControl* m_pTreeControl = nullptr;  // not owned
  int m_deregistered = 0;
};

// ---- controls ----------------------------------------------------------------

// Base of every control the tree places: a VornControl that reports its
// size and alignment line, with the tree's three colours.
class VornVUIControl : public VornControl {
 public:
  // --- construction
  VornVUIControl();
  ~VornVUIControl() override;

  // --- VornControl reactions: all empty, a tree control does not react to
  // the pointer unless it says so.
  void OnMouseMove(int x, int y) override;
  void OnMouseOver() override;
  void OnMouseDownLeft() override;
  void OnMouseDownRight() override;
  void OnMouseButton() override;
  void OnMouseEntering() override;
  void OnMouseLeaving() override;

  // --- operations a subclass implements
  // Makes the window at (0, 0), sized (GetMaxWidth(), GetMaxHeight()).
  virtual bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  // x of the line all controls of one tree level align on.
  virtual int GetAllignmentPt() = 0;
  virtual int GetMaxWidth() = 0;
  virtual int GetMaxHeight() = 0;

  using VornControl::Create;

  // --- the tree's colours
  void SetBackgroundCol(const Color& colour) { m_backgroundCol = colour; }
  const Color& GetBackgroundCol() const { return m_backgroundCol; }
  void SetLineCol(const Color& colour) { m_lineCol = colour; }
  const Color& GetLineCol() const { return m_lineCol; }
  void SetMouseOverCol(const Color& colour);
  const Color& GetMouseOverCol() const { return m_mouseOverCol; }
  bool HasMouseOverCol() const { return m_bMouseOverColSet; }

  // --- the node that holds the control (set by the node)
  VornVUIControlNode* GetVUIControlNode() const { return m_pVUIControlNode; }
  void SetVUIControlNode(VornVUIControlNode* node) { m_pVUIControlNode = node; }

  // --- the row highlight
  // True while the pointer is over this control's row (the tree control
  // tracks one row at a time). Drawing code fills the row with
  // GetRowBackgroundCol().
  bool IsRowHighlighted() const { return m_bRowHighlight; }
  void SetRowHighlight(bool on);
  // The mouse-over colour while highlighted (when set), else the background.
  const Color& GetRowBackgroundCol() const;

 protected:
  // Tells the tree control the pointer entered or left this row; wx events
  // are skipped on so VornControl keeps its own state.
  void OnRowEnter(wxMouseEvent& event);
  void OnRowLeave(wxMouseEvent& event);
  // The tree control this control belongs to, found through its node.
  virtual VornMainVUITreeControl* FindTreeControl();

  Color m_backgroundCol{0.0, 0.0, 0.0};
  Color m_lineCol{1.0, 1.0, 1.0};
  Color m_mouseOverCol{0.0, 0.0, 0.0};
  bool m_bMouseOverColSet = false;
  VornVUIControlNode* m_pVUIControlNode = nullptr;  // not owned
  bool m_bRowHighlight = false;

  wxDECLARE_EVENT_TABLE();
};

// The window every top-level node sits in; its size follows the root node's.
class VornVUITreeRootControl : public VornVUIControl {
 public:
  explicit VornVUITreeRootControl(VornTreeRootNode* root);
  ~VornVUITreeRootControl() override;

  void OnDraw(wxDC* dc) override;
  int GetAllignmentPt() override;
  int GetMaxWidth() override;
  int GetMaxHeight() override;

  VornTreeRootNode* GetRootNode() const { return m_pRoot; }

 protected:
  // The wheel scrolls the tree.
  void OnWheel(wxMouseEvent& event);
  VornMainVUITreeControl* FindTreeControl() override;

  VornTreeRootNode* m_pRoot = nullptr;  // not owned

  wxDECLARE_EVENT_TABLE();
};

// A small end mark placed as a leaf (alignment 20, 40 by 40).
class VornTerminatorControl : public VornVUIControl {
 public:
  VornTerminatorControl() = default;
  ~VornTerminatorControl() override;

  void OnDraw(wxDC* dc) override;
  int GetAllignmentPt() override;
  int GetMaxWidth() override;
  int GetMaxHeight() override;
};

// The header of a branch: the connector, the toggle button and the branch's
// name; the sub-tree's windows are its children below the header.
class VornVUIBranchControl : public VornVUIControl {
 public:
  // --- construction
  // Reads the name font "vuiedit_tree_contname" and colour
  // "vuiedit_tree_ContNameCol" (assertion "val == true" when missing).
  VornVUIBranchControl(AssetManager* assetManager, VornString name, VornBranchNode* branch);
  ~VornVUIBranchControl() override;

  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VornVUIControl::Create;

  // --- VornVUIControl
  void OnDraw(wxDC* dc) override;
  int GetAllignmentPt() override;
  int GetMaxWidth() override;
  int GetMaxHeight() override;

  // --- settings (top offset 20, indent 10, expansion gap 0, right margin 0)
  void SetTopOffset(double offset) { m_topOffset = offset; }
  double GetTopOffset() const { return m_topOffset; }
  void SetIndent(double indent) { m_indent = indent; }
  double GetIndent() const { return m_indent; }
  void SetExpGapFromTop(double gap) { m_expGap = gap; }
  double GetExpGapFromTop() const { return m_expGap; }
  void SetRightMargin(double margin) { m_rightMargin = margin; }
  double GetRightMargin() const { return m_rightMargin; }
  // The sub-tree's origin inside this control.
  int GetTreeOffsetX();
  int GetTreeOffsetY();

  // --- the header
  const VornString& GetBranchName() const { return m_name; }
  // The measured name width (in the name font).
  int GetNameWidth();
  VornBranchNode* GetBranchNode() const { return m_pBranch; }
  VornBranchToggleButton* GetToggleButton() const { return m_pToggle.get(); }
  AssetManager* GetAssetManager() const { return m_pAssetManager; }

 protected:
  // Measures the name on a memory DC.
  void SetNameTextSizes();
  VornMainVUITreeControl* FindTreeControl() override;

  AssetManager* m_pAssetManager = nullptr;  // not owned
  VornString m_name;
  wxFont m_nameFont;
  wxColour m_nameColour;
  int m_nameWidth = -1;                 // -1 until measured
  VornBranchNode* m_pBranch = nullptr;  // not owned
  double m_topOffset = 20.0;
  double m_indent = 10.0;
  double m_expGap = 0.0;
  double m_rightMargin = 0.0;
  std::unique_ptr<VornControlGroup> m_pToggleGroup;
  std::unique_ptr<VornBranchToggleButton> m_pToggle;
};

// The expand/collapse button of a branch header. Draws from the image set
// "vuiedit_tree_toggle.sts" when the skin has one (off: collapsed, on:
// expanded), else a drawn box with a plus or a minus.
class VornBranchToggleButton : public VornButton {
 public:
  explicit VornBranchToggleButton(VornBranchNode* branch);
  ~VornBranchToggleButton() override;

  void OnDraw(wxDC* dc) override;
  // On release, unless the branch is null: expands or collapses the branch
  // and refreshes the whole tree from the root.
  void OnMouseButton() override;

  VornBranchNode* GetBranch() const { return m_pBranch; }

 protected:
  VornBranchNode* m_pBranch = nullptr;  // not owned
};

// The outer window: a scroll bar at the left and the tree to its right.
class VornMainVUITreeControl : public VornControl {
 public:
  // --- construction
  VornMainVUITreeControl();
  ~VornMainVUITreeControl() override;

  // Needs the colours "vuiedit_scrollbar_fg/bg/mo" and
  // "vuiedit_tree_fg/bg/mo" (tree: line, background, mouse-over).
  virtual bool Create(int alignment, AssetManager* assetManager, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  using VornControl::Create;

  // --- operations a host calls
  // Resizes the whole control and lays the tree out again.
  void SetTreeSize(int w, int h);
  // Stores the scroll position (pixels) without scrolling.
  void SetScrollPos(int pos) { m_scrollPos = pos; }
  // The position Update would scroll to for the bar's value and the tree's
  // height now.
  int GetTargetScrollPos();
  int GetScrollPos() const { return m_scrollPos; }
  // Shows or hides the scroll bar and scrolls the tree to the bar's value.
  void Update() override;
  // Lays the tree out again from the root.
  void RefreshTree();
  VornTreeRootNode* GetTreeRoot() const { return m_pRoot.get(); }
  VornTreeRootScrollControl* GetScrollBar() const { return m_pScrollBar.get(); }

  // --- colours (passed on to every control of the tree)
  void SetBackgroundCol(const Color& colour);
  const Color& GetBackgroundCol() const { return m_backgroundCol; }
  void SetLineCol(const Color& colour);
  const Color& GetLineCol() const { return m_lineCol; }
  void SetMouseOverCol(const Color& colour);
  const Color& GetMouseOverCol() const { return m_mouseOverCol; }

  // --- the row highlight
  // The control whose row the pointer is over (null for none); repaints
  // the rows that change.
  void SetHighlightedRow(VornVUIControl* control);
  VornVUIControl* GetHighlightedRow() const { return m_pHighlighted.get(); }
  // Moves the scroll bar by pixels of tree (negative: up).
  void ScrollBy(double pixels);

  void OnDraw(wxDC* dc) override;

 protected:
  void OnWheel(wxMouseEvent& event);
  // Gives the root control the view right of the scroll bar.
  void PlaceRoot(int w, int h);

  std::unique_ptr<VornTreeRootScrollControl> m_pScrollBar;
  std::unique_ptr<VornControlGroupValue> m_pScrollGroup;
  std::unique_ptr<VornTreeRootNode> m_pRoot;
  int m_scrollPos = 0;
  Color m_backgroundCol;
  Color m_lineCol{1.0, 1.0, 1.0};
  Color m_mouseOverCol;
  wxWeakRef<VornVUIControl> m_pHighlighted;  // cleared when the control goes

  wxDECLARE_EVENT_TABLE();
};

// The tree control's scroll bar: every value change scrolls the tree.
class VornTreeRootScrollControl : public VornSimpleScrollBar {
 public:
  VornTreeRootScrollControl() = default;
  ~VornTreeRootScrollControl() override;

  void OnSliderChange() override;

  void SetRoot(VornMainVUITreeControl* tree) { m_pTree = tree; }
  VornMainVUITreeControl* GetRoot() const { return m_pTree; }

 protected:
  VornMainVUITreeControl* m_pTree = nullptr;  // not owned
};
