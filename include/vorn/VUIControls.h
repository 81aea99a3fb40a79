#pragma once
// The parameter tree's editors: the hints they send to the tree's group and
// the sub-controls that keep the editors of one parameter in step. Each
// sub-control shows a sibling's value message without reporting back.
#include <wx/frame.h>
#include <wx/weakref.h>

#include <functional>
#include <memory>
#include <optional>

#include "vorn/AssetManager.h"
#include "vorn/ValInterface.h"
#include "vorn/VornAngleControl.h"
#include "vorn/VornButton.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornEdit.h"
#include "vorn/VornListBox.h"
#include "vorn/VornMovieBar.h"
#include "vorn/VornNode.h"
#include "vorn/VornSlider.h"
#include "vorn/VornThumbWheelControl.h"
#include "vornhost/Utility.h"

// ---- hints sent to the tree's group ---------------------------------------------

// The wrapped editor is being changed (a drag); read the value through the
// control's value interfaces.
class NodeChangingHint : public VornControlHint {
 public:
  explicit NodeChangingHint(int nodeId = -1) : m_nodeId(nodeId) {}
  ~NodeChangingHint() override;
  int m_nodeId;  // -1 when the control has no node
};

// The wrapped editor was changed (final).
class NodeChangedHint : public VornControlHint {
 public:
  explicit NodeChangedHint(int nodeId = -1) : m_nodeId(nodeId) {}
  ~NodeChangedHint() override;
  int m_nodeId;  // -1 when the control has no node
};

// The user chose what drives the parameter on its function button.
class FunctionButtonPushHint : public VornControlHint {
 public:
  // The function types a function button offers.
  enum { FT_WIDGET = 0, FT_TEXTURE = 1, FT_FUNCTION = 2 };
  FunctionButtonPushHint(int nodeId = -1, int newType = FT_WIDGET, int previousType = FT_WIDGET)
      : m_nodeId(nodeId), m_newType(newType), m_previousType(previousType) {}
  ~FunctionButtonPushHint() override;
  int m_nodeId;        // -1 when the control has no node
  int m_newType;       // one of the FT_ values
  int m_previousType;  // always FT_WIDGET
};

// ---- sub-controls -----------------------------------------------------------------
// Each ignores hints it sent itself; otherwise it takes the value messages
// listed and shows them without notification.

// Real and integer messages are written in the edit's number format ("%.6f"
// in the real style, "%i" otherwise); a text is taken as it is.
class VUITreeSubEditBox : public VornEdit {
 public:
  using VornEdit::VornEdit;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  // Changes the edit style and rewrites the text in its format.
  void ForceStyle(int style);
};

// An integer message switches the button on when non-zero.
class VUITreeSubButtonToggle : public VornButtonToggle {
 public:
  using VornButtonToggle::VornButtonToggle;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
};

// Real and integer messages become the slider's value (0 to 1); a text
// message is a wiring error.
class VUITreeSubSlider : public VornSliderB {
 public:
  using VornSliderB::VornSliderB;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
};

// Real and integer messages become the wheel's value, redrawn; a text
// message is a wiring error.
class VUITreeSubThumbWheel : public VornThumbWheelControl {
 public:
  using VornThumbWheelControl::VornThumbWheelControl;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
};

// ---- the editors ----------------------------------------------------------------
// Every leaf of the parameter tree: a name label left of the alignment line,
// an editor right of it, and optionally a function button (at the right
// end) that says whether the parameter is a widget value, a texture or a
// function. The editors report to an inner group; the control passes their
// change hints to the tree's group as node hints.

class VUITreeControlBase;
class VUITreeFields;

// The function button's group: a choice in its list goes to the owner.
class VUITreeFuncCG : public VornControlGroup {
 public:
  explicit VUITreeFuncCG(VUITreeControlBase* owner) : m_pOwner(owner) {}
  using VornControlGroup::ControlSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;
  VUITreeControlBase* GetOwner() const { return m_pOwner; }

 private:
  VUITreeControlBase* m_pOwner;  // not owned: the owner holds this group
};

class VUITreeControlBase : public LButDisplayCallback, public VornVUIControl {
 public:
  // Metrics the tree's layout uses.
  static constexpr int kNameGap = 20;     // alignment point = name width + this
  static constexpr int kBaseWidth = 103;  // right of the alignment point
  static constexpr int kHeight = 32;
  static constexpr int kEditorGap = 4;       // from the alignment line to the editor
  static constexpr int kFunctionSpace = 22;  // added right of a functionable editor

  // ---- construction
  // Loads the name font and the name and highlight colours (assertion when
  // the skin lacks one).
  VUITreeControlBase(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeControlBase() override;
  // Creates the window and, when functionable, the function button.
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VornVUIControl::Create;

  // ---- metrics
  int GetAllignmentPt() override;  // name width + 20
  int GetMaxWidth() override;      // alignment + 103 (+ the function button)
  int GetMaxHeight() override;     // 32
  // Measures the name in the name font.
  void SetNameTextSizes();
  // name shortened, ending in dots, to fit width pixels in dc's font; width
  // becomes the shortened name's width.
  void GetCoolMushName(VornString name, VornString& out, int& width, wxDC* dc);

  // ---- the function button
  // Fills the button's list: "Widget", a separator, "Texture", "Function".
  void UpDateData(VornListButton* button) override;
  // Hook: the user chose a row. Sends a FunctionButtonPushHint for a type
  // other than the widget one.
  virtual void OnFunctionButtonPush();

  // ---- reports
  // Turns an inner editor's VUIControlChanging / VUIControlChanged into a
  // node hint for the tree's group; everything else stays inside.
  void NotifyParentGroup(unsigned int id, VornControl* source, VornControlHint* hint);
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  void OnDraw(wxDC* dc) override;

  // ---- accessors
  const VornString& GetParamName() const { return m_name; }
  void SetParamName(const VornString& name);
  int GetNameWidth() const { return m_nameWidth; }
  bool IsFunctionable() const { return m_functionable; }
  VornListButton* GetFunctionButton() const { return m_pFunctionButton; }
  AssetManager* GetAssetManager() const { return m_pAssetManager; }
  bool IsCreated() const { return m_bCreated; }
  // The holding node's id, -1 without a node.
  int GetNodeId();
  // The label as last drawn (empty before the first OnDraw).
  const wxBitmap& GetLabelBitmap() const { return m_label; }

 protected:
  // ---- for the editors
  // x of the editor's left edge.
  int EditorLeft() { return GetAllignmentPt() + kEditorGap; }
  // The width right of the alignment line that the editor needs; the base
  // adds the function button's column.
  virtual int EditorWidth() { return kBaseWidth; }
  // Top of a part h pixels high, centred in the row.
  static int RowTop(int h) { return (kHeight - h) / 2; }
  wxColour BackgroundColour() const;
  // Places the function button at the control's right end.
  void PlaceFunctionButton();
  // True for the control's own editors (its child windows).
  bool IsInner(const VornControl* source) const;
  // Lays the whole tree out again (after a change of size).
  void Relayout();
  // Drops the label so that the next OnDraw rebuilds it.
  void InvalidateLabel() { m_labelX = kNoLabel; }

  AssetManager* m_pAssetManager;  // not owned
  VornString m_name;
  wxFont m_nameFont;
  wxColour m_nameColour;
  wxColour m_highlightColour;
  bool m_functionable;
  VornListButton* m_pFunctionButton = nullptr;  // a child window
  VUITreeFuncCG m_functionGroup{this};
  wxFont m_listFont;
  int m_nameWidth = 0;
  bool m_bCreated = false;
  bool m_bChanging = false;  // between a node-changing and a node-changed hint

 private:
  static constexpr int kNoLabel = -1000000;
  void BuildLabel();
  int m_labelX = kNoLabel;  // x position the label was built for
  VornString m_labelName;
  bool m_bLabelRowHighlight = false;
  wxBitmap m_label;
};

// A slider with a value box beside it. The value runs from the minimum to
// the maximum (whole numbers when integer); the inner slider from 0 to 1.
class VUITreeSlider : public VUITreeControlBase, public RealVal, public IntVal {
 public:
  static constexpr int kWidth = 143;  // right of the alignment point
  static constexpr int kSliderWidth = 58;

  VUITreeSlider(AssetManager* assetman, VornString name, bool functionable, double minimum,
                double maximum, double value, bool integer = false);
  ~VUITreeSlider() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  // Moves the slider and the box; with notify a RealValChanged (under id)
  // goes to the control's group.
  void SetVal(double value, bool notify, int id = 0);
  double GetVal() const { return m_value; }
  bool GetValue(double& out) override;
  bool SetValue(double value) override;
  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  VUITreeSubSlider* GetSlider() const { return m_pSlider; }
  VUITreeSubEditBox* GetEditBox() const { return m_pEdit; }

 protected:
  int EditorWidth() override { return kWidth; }
  double Limited(double value) const;
  void ShowInBox();

  double m_minimum, m_maximum, m_value;
  bool m_bInteger;
  VornControlGroupValue m_sliderGroup;  // the slider and this control
  VornControlGroupValue m_boxGroup;     // the value box and this control
  VUITreeSubSlider* m_pSlider = nullptr;
  VUITreeSubEditBox* m_pEdit = nullptr;
};

// A thumb wheel with a value box beside it; the wheel's value is the
// parameter's, limited to the minimum and maximum.
class VUITreeThumbWheel : public VUITreeControlBase, public RealVal, public IntVal {
 public:
  VUITreeThumbWheel(AssetManager* assetman, VornString name, bool functionable, double minimum,
                    double maximum, double value, double step, bool integer = false);
  ~VUITreeThumbWheel() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  void SetVal(double value, bool notify, int id = 0);
  double GetVal() const { return m_value; }
  void ResetVals(double minimum, double maximum, double value);
  bool GetValue(double& out) override;
  bool SetValue(double value) override;
  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  VUITreeSubThumbWheel* GetWheel() const { return m_pWheel; }
  VUITreeSubEditBox* GetEditBox() const { return m_pEdit; }

 protected:
  // The wheel and the value box side by side, + 3.
  int EditorWidth() override;
  double Limited(double value) const;
  void ShowValue();

  double m_minimum, m_maximum, m_value, m_step;
  bool m_bInteger;
  const BitmapA* m_pFrame = nullptr;  // the manager's
  const BitmapA* m_pStrip = nullptr;
  const BitmapA* m_pWindow = nullptr;
  VornControlGroupValue m_wheelGroup;  // the wheel and this control
  VornControlGroupValue m_boxGroup;    // the value box and this control
  VUITreeSubThumbWheel* m_pWheel = nullptr;
  VUITreeSubEditBox* m_pEdit = nullptr;
};

// A check box: 1 when ticked, 0 when not.
class VUITreeCheckBox : public VUITreeControlBase, public IntVal {
 public:
  VUITreeCheckBox(AssetManager* assetman, VornString name, bool functionable, bool on = false);
  ~VUITreeCheckBox() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  bool GetValue(int32& out) override;
  // Ticks or clears the box and sends an IntValChanged to the group.
  bool SetValue(int32 value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  VUITreeSubButtonToggle* GetButton() const { return m_pButton; }

 protected:
  bool m_bOn;
  VornControlGroupValue m_inner;  // the box and this control
  VUITreeSubButtonToggle* m_pButton = nullptr;
};

// One to four text fields for a typed value; PTYPE fixes how many and
// which value interface is served (the others answer false).
class VUITreeTextEdits : public VUITreeControlBase,
                         public IntVal,
                         public RealVal,
                         public Vec2dVal,
                         public Vec3dVal,
                         public Vec4dVal,
                         public QuaternionVal,
                         public ColorVal,
                         public ColorAVal,
                         public VornStringVal {
 public:
  enum PTYPE {
    PT_INT = 0,
    PT_REAL = 1,
    PT_VEC2D = 2,
    PT_VEC3D = 3,
    PT_VEC4D = 4,
    PT_QUATERNION = 5,
    PT_COLOR = 6,
    PT_COLORA = 7,
    PT_STRING = 8,
  };
  static constexpr int kDefaultFieldWidth = 64;
  // Fields and edit style of a type (assertion outside PT_INT..PT_STRING).
  static int FieldCount(PTYPE type);
  static int EditStyle(PTYPE type);

  VUITreeTextEdits(AssetManager* assetman, VornString name, bool functionable, PTYPE type,
                   int fieldWidth = kDefaultFieldWidth);
  ~VUITreeTextEdits() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  PTYPE GetType() const { return m_type; }
  void SetEditable(bool editable);
  // Every field takes this edit style instead of the type's.
  void ForceStyle(VornEdit::EDITSTYLE style);
  VUITreeSubEditBox* GetField(int index) const;
  int GetFieldCount() const;

  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;
  bool GetValue(double& out) override;
  bool SetValue(double value) override;
  bool GetValue(Vec2d& out) override;
  bool SetValue(Vec2d value) override;
  bool GetValue(Vec3d& out) override;
  bool SetValue(Vec3d value) override;
  bool GetValue(Vec4d& out) override;
  bool SetValue(Vec4d value) override;
  bool GetValue(Quaternion& out) override;
  bool SetValue(Quaternion value) override;
  bool GetValue(Color& out) override;
  bool SetValue(Color value) override;
  bool GetValue(ColorA& out) override;
  bool SetValue(ColorA value) override;
  bool GetValue(VornString& out) override;
  bool SetValue(VornString value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

 protected:
  int EditorWidth() override;
  // n numbers into or out of the fields, when the type is `type`.
  bool PutReals(PTYPE type, const double* values);
  bool TakeReals(PTYPE type, double* values);

  PTYPE m_type;
  int m_style;
  bool m_bEditable = true;
  std::unique_ptr<VUITreeFields> m_pFields;  // each field in a group with this control
};

// Text fields for a vector that take as many fields as the vector set last
// has (2 to 4); the tree lays itself out again when the count changes.
class VUITreeExpandTextEdits : public VUITreeControlBase,
                               public Vec4dVal,
                               public Vec3dVal,
                               public Vec2dVal {
 public:
  VUITreeExpandTextEdits(AssetManager* assetman, VornString name, bool functionable, int fields = 3,
                         int fieldWidth = VUITreeTextEdits::kDefaultFieldWidth);
  ~VUITreeExpandTextEdits() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  int GetFieldCount() const;
  VUITreeSubEditBox* GetField(int index) const;
  bool GetValue(Vec2d& out) override;
  bool SetValue(Vec2d value) override;
  bool GetValue(Vec3d& out) override;
  bool SetValue(Vec3d value) override;
  bool GetValue(Vec4d& out) override;
  bool SetValue(Vec4d value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

 protected:
  int EditorWidth() override;
  // Shows n fields; re-lays out the tree when n changed.
  void Expand(int n);
  bool Take(int n, double* values);

  int m_count;
  std::unique_ptr<VUITreeFields> m_pFields;  // each field in a group with this control
};

// ---- angle editors, list editors, the error control, list-box branches -----------

// A dial that shows a sibling's value message (a turn, 0 to 1) without
// reporting back; a text message is a wiring error.
class VUITreeSubAngle : public VornAngleControlB {
 public:
  using VornAngleControlB::VornAngleControlB;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
};

// Callipers that show a sibling's value message (0 to 1) without reporting
// back; a text message is a wiring error.
class VUITreeSubAngleClippers : public VornAngleClippers {
 public:
  using VornAngleClippers::VornAngleClippers;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
};

// Angle callipers: the value is the opening, 0 (closed) to 1 (a quarter
// turn). The int interface reads the value rounded.
class VUITreeAngleClippers : public VUITreeControlBase, public RealVal, public IntVal {
 public:
  static constexpr int kWidth = 118;  // right of the alignment point
  static constexpr int kClippersWidth = 110;
  static constexpr int kClippersHeight = 26;
  static constexpr int kSpan = 10;  // travel of span x 10 pixels

  VUITreeAngleClippers(AssetManager* assetman, VornString name, bool functionable,
                       double value = 0.0);
  ~VUITreeAngleClippers() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  int GetMaxHeight() override;  // callipers height + 6
  bool GetValue(double& out) override;
  // Moves the jaws and sends a RealValChanged to the group.
  bool SetValue(double value) override;
  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  VUITreeSubAngleClippers* GetClippers() const { return m_pClippers; }

 protected:
  int EditorWidth() override { return kWidth; }

  double m_value;
  VornControlGroupValue m_inner;  // the callipers and this control
  VUITreeSubAngleClippers* m_pClippers = nullptr;
};

// An angle selector: a dial and, unless the display style hides it, a
// value box. The dial's turn (0 to 1) maps onto the range (0 to 360 by
// default), so the value is in the range's units.
class VUITreeAngleSelect : public VUITreeControlBase, public RealVal, public IntVal {
 public:
  // How the value box shows the value.
  enum { DS_REAL = 0, DS_WHOLE = 1, DS_DIAL_ONLY = 2 };
  static constexpr int kDialSize = 26;

  VUITreeAngleSelect(AssetManager* assetman, VornString name, bool functionable,
                     double value = 0.0);
  ~VUITreeAngleSelect() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  int GetMaxHeight() override;  // selector height + 6

  // ---- settings
  void SetDisplayStyle(int style);
  int GetDisplayStyle() const { return m_displayStyle; }
  // The values at the turns 0 and 1; keeps the value, limited to the range.
  void SetRangeVals(double minimum, double maximum);
  // The dial's angle, in degrees, at which the value is the minimum.
  void SetZeroVal(double degrees);
  double GetZeroVal() const { return m_zero; }
  // Unsupported: the dial always runs counter-clockwise.
  void SetClockwiseVal(bool) {}

  // ---- the value
  bool GetValue(double& out) override;
  // Sets the value without a report.
  bool SetValue(double value) override;
  bool GetValue(int32& out) override;
  // Sets the value and sends an IntValChanged to the group.
  bool SetValue(int32 value) override;

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  VUITreeSubAngle* GetDial() const { return m_pDial; }
  VUITreeSubEditBox* GetEditBox() const { return m_pEdit; }

 protected:
  int EditorWidth() override { return kDialSize + kBaseWidth; }
  double Limited(double value) const;
  double TurnOf(double value) const;
  // Puts the value on the dial and in the box.
  void ShowValue();

  double m_value;
  double m_minimum = 0.0, m_maximum = 360.0;
  double m_zero = 0.0;
  int m_displayStyle = DS_REAL;
  VornControlGroupValue m_dialGroup;  // the dial and this control
  VornControlGroupValue m_boxGroup;   // the value box and this control
  VUITreeSubAngle* m_pDial = nullptr;
  VUITreeSubEditBox* m_pEdit = nullptr;
};

class VUITreeLB;

// The list's group: a choice goes to the owner.
class VornTreeLBCG : public VornControlGroup {
 public:
  explicit VornTreeLBCG(VUITreeLB* owner) : m_pOwner(owner) {}
  using VornControlGroup::ControlSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;
  VUITreeLB* GetOwner() const { return m_pOwner; }

 private:
  VUITreeLB* m_pOwner;  // not owned: the owner holds this group
};

// A drop-down list ("vuitree_listbox.lbs" in the font "vuiedit_tree_lbfont").
// Items and a selection given before Create are kept for the list.
class VUITreeLB : public VUITreeControlBase {
 public:
  VUITreeLB(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeLB() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  // ---- the items
  void Append(const VornString& text);
  void ClearAll();
  int GetCount() const { return static_cast<int>(m_items.size()); }
  VornString GetItemText(int index) const;
  // -1 for none; without a report.
  void SetSelected(int index);
  int GetSelected() const { return m_selected; }
  VornListBox* GetList() const { return m_pList; }

  // Hook: the user chose a row. Reports an IntValChanged with the row,
  // which the tree's group gets as a NodeChangedHint.
  virtual void OnListItemSelected();

 protected:
  // alignment + list width + 23
  int EditorWidth() override;

  std::vector<VornString> m_items;
  int m_selected = -1;
  int m_listWidth = 0;  // 0 until the script is read
  VornTreeLBCG m_listGroup{this};
  VornListBox* m_pList = nullptr;  // a child window
};

// A list of an enumeration's names, parsed from a text such as
// "Linear | Smooth | Step"; the value is the chosen name.
class VUITreeEnumLB : public VUITreeLB, public VornStringVal {
 public:
  VUITreeEnumLB(AssetManager* assetman, VornString name, bool functionable,
                const VornString& enumeration);
  ~VUITreeEnumLB() override;

  // Replaces the names; the selection is kept when its name survives.
  void SetEnumeration(const VornString& enumeration);
  const EnumStringParser& GetNames() const { return m_names; }
  // The index of a name, or -1; the name of an index, or "".
  int IndexOf(const VornString& name) const { return m_names.GetIndex(name); }
  VornString NameOf(int index) const { return m_names.GetName(index); }

  // False while nothing is chosen.
  bool GetValue(VornString& out) override;
  // False for a name that is not in the enumeration.
  bool SetValue(VornString value) override;

  // Reports a StringValChanged with the chosen name.
  void OnListItemSelected() override;

 protected:
  EnumStringParser m_names;
};

// Stands in for a parameter whose editor could not be made: the error sign
// and three lines ("Error: ", "ValType: ", "Widget: ") right of the name.
// Every value interface stores its value, so nothing set is lost.
class ErrorControl : public IntVal,
                     public RealVal,
                     public Vec2dVal,
                     public Vec3dVal,
                     public Vec4dVal,
                     public QuaternionVal,
                     public ColorVal,
                     public ColorAVal,
                     public VornStringVal,
                     public VornVUIControl {
 public:
  static constexpr int kSignSize = 18;
  static constexpr int kTextPoints = 8;

  // Loads the font "vui_control_name" (assertion "val == true" without it).
  ErrorControl(int width, int height, AssetManager* assetman, VornString name, VornString error,
               VornString valueType, VornString widget);
  ~ErrorControl() override;

  int GetAllignmentPt() override;  // name width + 20
  int GetMaxWidth() override { return m_width; }
  int GetMaxHeight() override { return m_height; }
  // Measures the name and the three lines.
  void SetNameSizes();
  void OnDraw(wxDC* dc) override;

  // The three lines as drawn.
  wxString GetLine(int index) const;
  // Where the sign and the lines are drawn.
  wxRect GetSignRect();
  wxRect GetTextRect();
  int GetTextWidth() const { return m_textWidth; }

  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;
  bool GetValue(double& out) override;
  bool SetValue(double value) override;
  bool GetValue(Vec2d& out) override;
  bool SetValue(Vec2d value) override;
  bool GetValue(Vec3d& out) override;
  bool SetValue(Vec3d value) override;
  bool GetValue(Vec4d& out) override;
  bool SetValue(Vec4d value) override;
  bool GetValue(Quaternion& out) override;
  bool SetValue(Quaternion value) override;
  bool GetValue(Color& out) override;
  bool SetValue(Color value) override;
  bool GetValue(ColorA& out) override;
  bool SetValue(ColorA value) override;
  bool GetValue(VornString& out) override;
  bool SetValue(VornString value) override;

 protected:
  int m_width;
  int m_height;
  VornString m_name, m_error, m_valueType, m_widget;
  wxFont m_nameFont;
  AssetManager* m_pAssetManager;  // not owned
  int32 m_int = 0;
  double m_real = 0.0;
  Vec2d m_vec2;
  Vec3d m_vec3;
  Vec4d m_vec4;
  Quaternion m_quaternion;
  Color m_color;
  ColorA m_colorA;
  VornString m_string;
  int m_nameWidth = 0;
  int m_textWidth = 0;
  int m_lineHeight = 0;
  wxColour m_textColour;
};

class VornLBBranchNode;

// The list-box branch's group: a choice goes to the node.
class VornLBBranchNodeCG : public VornControlGroup {
 public:
  explicit VornLBBranchNodeCG(VornLBBranchNode* owner) : m_pOwner(owner) {}
  using VornControlGroup::ControlSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;
  VornLBBranchNode* GetOwner() const { return m_pOwner; }

 private:
  VornLBBranchNode* m_pOwner;  // not owned: the owner holds this group
};

// A branch whose header carries a list: right of the name while the branch
// is collapsed, at the sub-tree's left offset (half its height lower) while
// it is open. The host calls DoStartSequence once the node is in the tree.
class VornLBBranchNode : public LBDisplayCallback, public VornBranchNode {
 public:
  VornLBBranchNode(VornTreeNode* parent, VornString name);
  ~VornLBBranchNode() override;

  // Loads "vuitree_listbox.lbs" and "vuiedit_tree_lbfont", makes the list
  // in the header, lets OnStartUp fill it and shows it. False when the
  // header has no window.
  bool DoStartSequence();

  // ---- hooks
  void OnExpand() override;
  void OnCollapse() override;
  // Fills the list (the default adds nothing).
  virtual void OnStartUp();
  // The user chose a row: the default sends a NodeChangedHint with the
  // branch's id to the tree's group.
  virtual void OnItemSelected();
  // Called before the list opens (the default keeps the items).
  void UpDateData(VornListBox* list) override;

  VornListBox* GetListBox() const { return m_pList; }
  // Where the list sits for the branch's state.
  wxPoint GetListPosition();

 protected:
  void PlaceList();

  VornLBBranchNodeCG m_listGroup{this};
  VornListBox* m_pList = nullptr;  // a child window of the header
  wxFont m_listFont;
};

// The movie bar drawn as the tree draws: the track a line in the tree's
// line colour, the sub-range a band, the played part in the highlight
// colour, on the tree's background.
class VornVUIMovieBar : public VornMovieBar {
 public:
  VornVUIMovieBar(const wxBitmap* startMarker, const wxBitmap* endMarker, const wxBitmap* playhead,
                  int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
                  long style = 0);
  ~VornVUIMovieBar() override;

  void SetTreeColours(const Color& background, const Color& line, const Color& played);
  void OnDraw(wxDC* dc) override;

 protected:
  Color m_background{0.0, 0.0, 0.0};
  Color m_line{1.0, 1.0, 1.0};
  Color m_played{0.0, 0.6, 0.6};
};

// ---- button, table and pop-up editors ---------------------------------------------

// Leaves whose editor is a button that hands the parameter to a bigger editor
// (a colour dialog, or the host's texture, function, curve, gradient or
// material editor), a multi-column box or a pop-up box that opens inside the
// tree, and a small marker.

class Gradient;
class GradientControl;
class VornColourDialog;
class VornMonsterBox;
class VUITreeSubPrimBase;

// A sub-primitive button was pressed and the host's editor should open.
class NodeButtonPushHint : public VornControlHint {
 public:
  explicit NodeButtonPushHint(int nodeId = -1, int buttonId = 0)
      : m_nodeId(nodeId), m_buttonId(buttonId) {}
  ~NodeButtonPushHint() override;
  int m_nodeId;    // -1 when the control has no node
  int m_buttonId;  // the id of the button pressed, inside its control
};

// The sub-primitive button's group: a completed click goes to the owner.
// (On the release, so that a dialog opened by it does not take the release.)
class VUITreeSubPrimBaseCG : public VornControlGroup {
 public:
  explicit VUITreeSubPrimBaseCG(VUITreeSubPrimBase* owner) : m_pOwner(owner) {}
  using VornControlGroup::ControlUnSelected;
  void ControlUnSelected(unsigned int id, VornControl* control) override;
  VUITreeSubPrimBase* GetOwner() const { return m_pOwner; }

 private:
  VUITreeSubPrimBase* m_pOwner;  // not owned: the owner holds this group
};

// A leaf whose editor is one button drawn from an image set. Without an
// image set there is no button (the control is then only its name).
class VUITreeSubPrimBase : public VUITreeControlBase {
 public:
  static constexpr int kImageSpace = 35;   // right of the alignment line, beside the image
  static constexpr int kNoImageSpace = 5;  // right of the alignment line without images
  static constexpr int kButtonId = 1;

  // images: borrowed (usually the manager's cached set), may be null.
  VUITreeSubPrimBase(AssetManager* assetman, VornString name, bool functionable,
                     const VornwxBitmapCache* images);
  ~VUITreeSubPrimBase() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  const VornwxBitmapCache* GetImageCache() const { return m_pImages; }
  VornPushButton* GetButton() const { return m_pButton; }

  // ---- hooks
  // A click on the button: by default a NodeButtonPushHint for the host.
  virtual void OnButtonPush(int buttonId);
  // Draws over the button's image (the colour button's swatch); nothing by
  // default. face: the button's rectangle in its own coordinates.
  virtual void DrawButtonFace(wxDC& dc, const wxRect& face);

  // The skin's image set name, loaded through the manager's cache (an
  // assertion when it cannot be loaded).
  static const VornwxBitmapCache* LoadButtonImages(AssetManager* assetman, const char* name);

 protected:
  int EditorWidth() override;

  const VornwxBitmapCache* m_pImages;  // not owned
  VUITreeSubPrimBaseCG m_buttonGroup{this};
  VornPushButton* m_pButton = nullptr;  // a child window
};

// The nine stored values of a control that stands in for a parameter of
// any type: each SetValue stores, each GetValue returns the value stored.
class VUITreeStoredValues : public IntVal,
                            public RealVal,
                            public Vec2dVal,
                            public Vec3dVal,
                            public Vec4dVal,
                            public QuaternionVal,
                            public ColorVal,
                            public ColorAVal,
                            public VornStringVal {
 public:
  bool GetValue(int32& out) override;
  bool SetValue(int32 value) override;
  bool GetValue(double& out) override;
  bool SetValue(double value) override;
  bool GetValue(Vec2d& out) override;
  bool SetValue(Vec2d value) override;
  bool GetValue(Vec3d& out) override;
  bool SetValue(Vec3d value) override;
  bool GetValue(Vec4d& out) override;
  bool SetValue(Vec4d value) override;
  bool GetValue(Quaternion& out) override;
  bool SetValue(Quaternion value) override;
  bool GetValue(Color& out) override;
  bool SetValue(Color value) override;
  bool GetValue(ColorA& out) override;
  bool SetValue(ColorA value) override;
  bool GetValue(VornString& out) override;
  bool SetValue(VornString value) override;

 protected:
  int32 m_int = 0;
  double m_real = 0.0;
  Vec2d m_vec2{};
  Vec3d m_vec3{};
  Vec4d m_vec4{};
  Quaternion m_quaternion{};
  Color m_color{};
  ColorA m_colorA{};
  VornString m_string;
};

// A colour swatch on a button; a click opens the colour dialog on the
// colour and applies the one chosen with OK, reported as a node change.
class VUITreeColorButton : public VUITreeSubPrimBase, public ColorVal {
 public:
  // Runs the dialog and returns the colour chosen, or none. By default the
  // dialog's own modal Choose(); tests and hosts may drive it otherwise.
  using DialogStep = std::function<std::optional<Color>(VornColourDialog&)>;

  VUITreeColorButton(AssetManager* assetman, VornString name, bool functionable,
                     const Color& colour = Color(1.0, 1.0, 1.0));
  ~VUITreeColorButton() override;

  // Shows the colour; no report (the host set it).
  bool SetValue(Color value) override;
  bool GetValue(Color& out) override;
  void SetDialogStep(DialogStep step) { m_dialogStep = std::move(step); }

  void OnButtonPush(int buttonId) override;
  void DrawButtonFace(wxDC& dc, const wxRect& face) override;

 protected:
  Color m_colour;
  DialogStep m_dialogStep;
};

// A parameter driven by a texture: a click asks the host for its texture
// editor; the values of every type are kept for when it turns back into a
// widget.
class VUITreeTextureButton : public VUITreeSubPrimBase, public VUITreeStoredValues {
 public:
  VUITreeTextureButton(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeTextureButton() override;
};

// A parameter driven by a function; as the texture button.
class VUITreeFunctionButton : public VUITreeSubPrimBase, public VUITreeStoredValues {
 public:
  VUITreeFunctionButton(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeFunctionButton() override;
};

// Buttons that ask the host for its curve, gradient or material editor.
class VUITreeCurveButton : public VUITreeSubPrimBase {
 public:
  VUITreeCurveButton(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeCurveButton() override;
};

// A click opens the gradient editor on the bound gradient in a window of its
// own (raised when already open); each change made there reaches the tree's
// group as a NodeChangedHint. Without a gradient a click is a
// NodeButtonPushHint for the host.
class VUITreeGradientButton : public VUITreeSubPrimBase {
 public:
  VUITreeGradientButton(AssetManager* assetman, VornString name, bool functionable);
  // Closes the editor window.
  ~VUITreeGradientButton() override;

  // gradient: not owned; it must outlive the editor window.
  void SetGradient(Gradient* gradient) { m_pGradient = gradient; }
  Gradient* GetGradient() const { return m_pGradient; }
  void OnButtonPush(int buttonId) override;
  // The editor's window and the editor while open, else null.
  wxFrame* GetEditorWindow() const { return m_pWindow.get(); }
  GradientControl* GetEditor() const;

  // Called by the editor window for each change of the gradient.
  void OnGradientEdited();

 protected:
  Gradient* m_pGradient = nullptr;  // not owned
  wxWeakRef<wxFrame> m_pWindow;     // owns the editor and its group
};

class VUITreeMaterialButton : public VUITreeSubPrimBase {
 public:
  VUITreeMaterialButton(AssetManager* assetman, VornString name, bool functionable);
  ~VUITreeMaterialButton() override;
};

class VUITreeMonsterBox;
class VUITreePopControl;

// The toggle beside a table editor's box: on while the box is open.
class VornVUIMonToggleButton : public VornButton {
 public:
  VornVUIMonToggleButton(VUITreeMonsterBox* owner, const VornwxBitmapCache* images, int x, int y,
                         wxWindow* parent, int id);
  // A click (released over it) opens or closes the box.
  void OnMouseButton() override;

 private:
  VUITreeMonsterBox* m_pOwner;  // the parent window
};

// A multi-column box that opens inside the tree under a toggle. The box
// reports to an inner group: its cells' changes become node hints, and a
// resize by its grip lays the tree out again.
class VUITreeMonsterBox : public VUITreeControlBase {
 public:
  static constexpr int kBoxMargin = 8;  // above and below the open box
  static constexpr int kToggleId = 1;
  static constexpr int kBoxId = 2;

  // The box is boxWidth x boxHeight when first opened.
  VUITreeMonsterBox(AssetManager* assetman, VornString name, bool functionable, int boxWidth,
                    int boxHeight, bool open = false);
  ~VUITreeMonsterBox() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  // The box, for the host to fill (columns, rows, buttons); made by Create.
  VornMonsterBox* GetMonsterBox() const { return m_pBox; }
  // Fills the box now if it exists, else as soon as Create has made it (a
  // leaf's windows may be made only when its branch first opens).
  void WhenBoxReady(std::function<void(VornMonsterBox*)> fill);
  VornVUIMonToggleButton* GetToggle() const { return m_pToggle; }
  // Opens or closes the box; the tree lays itself out again.
  void SetOpen(bool open);
  bool IsOpen() const { return m_bOpen; }
  // From the alignment line to the box: the toggle's column.
  int GetOffset() const;

  int GetMaxHeight() override;  // the open box's height + 16, else 32
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

 protected:
  int EditorWidth() override;  // the offset and the open box's width
  // Sizes the window to the metrics, places the parts and re-lays out the tree.
  void FitToBox();
  void PlaceParts();
  wxSize BoxSize() const;

  int m_boxWidth, m_boxHeight;
  bool m_bOpen;
  std::function<void(VornMonsterBox*)> m_fill;         // waiting for Create
  const VornwxBitmapCache* m_pToggleImages = nullptr;  // the manager's
  VornControlGroupValue m_boxGroup;                    // the box, its cells and this control
  VornMonsterBox* m_pBox = nullptr;                    // a child window
  VornVUIMonToggleButton* m_pToggle = nullptr;         // a child window
};

// The toggle beside a pop-up box: on while the box is open.
class VornTreePopToggleButton : public VornButton {
 public:
  VornTreePopToggleButton(VUITreePopControl* owner, const VornwxBitmapCache* images, int x, int y,
                          wxWindow* parent, int id);
  // A click (released over it) opens or closes the box.
  void OnMouseButton() override;

 private:
  VUITreePopControl* m_pOwner;  // the parent window
};

// A box of the host's own controls that pops open inside the tree under a
// toggle. The host makes its controls children of GetBox() reporting to
// GetBoxGroup(); their change hints become node hints.
class VUITreePopControl : public VUITreeControlBase {
 public:
  static constexpr int kBoxMargin = 8;  // above and below the open box
  static constexpr int kToggleId = 1;

  VUITreePopControl(AssetManager* assetman, VornString name, bool functionable, int boxWidth,
                    int boxHeight, bool open = false);
  ~VUITreePopControl() override;
  bool Create(wxWindow* parent, int id, VornControlGroup* group, long style = 0) override;
  using VUITreeControlBase::Create;

  // The box the host fills (made by Create) and the group its controls join.
  wxWindow* GetBox() const { return m_pBox; }
  VornControlGroup* GetBoxGroup() { return &m_boxGroup; }
  VornTreePopToggleButton* GetToggle() const { return m_pToggle; }
  // Fills the box now if it exists, else as soon as Create has made it.
  void WhenBoxReady(std::function<void(wxWindow* box, VornControlGroup* group)> fill);
  void SetOpen(bool open);
  bool IsOpen() const { return m_bOpen; }
  // Resizes the box; the tree lays itself out again when it is open.
  void SetBoxSize(int w, int h);
  int GetOffset() const;

  int GetMaxHeight() override;  // the open box's height + 16, else 32
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

 protected:
  int EditorWidth() override;
  void PlaceParts();
  void FitToBox();

  int m_boxWidth, m_boxHeight;
  bool m_bOpen;
  std::function<void(wxWindow*, VornControlGroup*)> m_fill;  // waiting for Create
  const VornwxBitmapCache* m_pToggleImages = nullptr;        // the manager's
  VornControlGroupValue m_boxGroup;                          // the host's controls and this one
  wxWindow* m_pBox = nullptr;                                // a child window
  VornTreePopToggleButton* m_pToggle = nullptr;              // a child window
};

// A small marker leaf (19 x 12, aligned at 9): a blob in the tree's line
// colour, drawn from an image made for the control's colours.
class VornBlobbyControl : public VornVUIControl {
 public:
  static constexpr int kWidth = 19;
  static constexpr int kHeight = 12;
  static constexpr int kAlignment = 9;

  VornBlobbyControl();
  ~VornBlobbyControl() override;

  int GetAllignmentPt() override { return kAlignment; }
  int GetMaxWidth() override { return kWidth; }
  int GetMaxHeight() override { return kHeight; }
  void OnDraw(wxDC* dc) override;

  // The blob: an anti-aliased disc of colour blob on background.
  static wxBitmap MakeBlobImage(const Color& background, const Color& blob);

 private:
  wxBitmap m_blob;         // made for the colours below
  Color m_blobBackground;  // the colours m_blob was made for
  Color m_blobColour;
};
