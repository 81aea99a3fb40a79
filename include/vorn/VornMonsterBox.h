#pragma once
// The multi-column box: a row of column headings over a scrolling panel that
// holds one real cell window per row and column (text or check box), a
// MonsterScrollBar shown when the rows do not fit, push buttons below the
// cells and a resize grip at the bottom right.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/font.h>
#include <wx/panel.h>

#include <memory>
#include <vector>

#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornImageCache.h"
#include "vorn/VornSimpleScrollBar.h"

class VornMonsterBox;
class MonsterColumn;

// Sent to the box's group after every step of a grip resize.
class MonSizeChangeHint : public VornControlHint {};

// ---- headings ---------------------------------------------------------------

// The title of one column, drawn by the box into its heading strip.
class ColumnHeading {
 public:
  virtual ~ColumnHeading() = default;
  // Where the heading lies in the box and the colour of its right separator.
  void SetPlace(const wxRect& rect, const wxColour& separator);
  const wxRect& GetPlace() const { return m_place; }
  virtual void Draw(wxDC* dc);

 protected:
  // Draws the title itself, left-aligned inside rect.
  virtual void DrawTitle(wxDC& dc, const wxRect& rect) = 0;

  wxRect m_place;
  wxColour m_separator;
};

class TextColumnHeading : public ColumnHeading {
 public:
  TextColumnHeading(const VornString& text, const wxColour& colour);
  TextColumnHeading(const VornString& text, const wxColour& colour, const wxFont& font);
  void SetFont(const wxFont& font) { m_font = font; }
  const VornString& GetText() const { return m_text; }

 protected:
  void DrawTitle(wxDC& dc, const wxRect& rect) override;

  VornString m_text;
  wxColour m_colour;
  wxFont m_font;
};

class BitmapColumnHeading : public ColumnHeading {
 public:
  explicit BitmapColumnHeading(const wxBitmap* bitmap);  // borrowed

 protected:
  void DrawTitle(wxDC& dc, const wxRect& rect) override;

  const wxBitmap* m_pBitmap = nullptr;  // not owned
};

// ---- cells ------------------------------------------------------------------

// One cell: a window in the box's panel that holds the control the user
// works with.
class ColumnEntry : public wxWindow {
 public:
  explicit ColumnEntry(wxWindow* panel);
  ~ColumnEntry() override;

  void SetColumn(MonsterColumn* column) { m_pColumn = column; }
  MonsterColumn* GetColumn() const { return m_pColumn; }
  // Places the cell in the panel; subclasses also place their control.
  virtual void SetGeometry(int x, int y, int w, int h);
  virtual VornControl* GetControl() = 0;
  virtual bool BelongsToMe(VornControl* control);
  // Alternate rows get a slightly different background.
  virtual void SetCellColours(const wxColour& text, const wxColour& background);

 protected:
  void OnPaint(wxPaintEvent& event);
  void OnEraseBackground(wxEraseEvent& event);
  // The rows scroll under the wheel wherever the pointer is in the box.
  void ForwardWheel(wxMouseEvent& event);
  void ForwardWheelOf(wxWindow* window);
  // The id cell controls carry: the box's.
  static int BoxId(wxWindow* panel);

  MonsterColumn* m_pColumn = nullptr;  // not owned

  wxDECLARE_EVENT_TABLE();
};

// Cell controls carry the box's id and join the group without an id (a
// box may hold more cells than there are window ids), so their reports say
// "the box" and FindRowColumn tells which cell.

// A cell showing a line of text; a click reports the text control to the
// group (ControlSelected on press, ControlUnSelected on release over it).
class StaticTextColumnEntry : public ColumnEntry {
 public:
  StaticTextColumnEntry(wxPanel* panel, const VornString& text, const wxColour& textColour,
                        const wxColour& background, bool centred, VornControlGroup* group);
  void SetGeometry(int x, int y, int w, int h) override;
  VornControl* GetControl() override;
  void SetCellColours(const wxColour& text, const wxColour& background) override;
  const VornString& GetText() const;
  void SetText(const VornString& text);
  bool IsCentred() const { return m_bCentred; }

 private:
  class Label;
  Label* m_pLabel = nullptr;  // child window
  bool m_bCentred = false;
};

// A cell holding a toggle drawn from a check-box image set; it reports as a
// VornButtonToggle does.
class CheckBoxColumnEntry : public ColumnEntry {
 public:
  CheckBoxColumnEntry(wxPanel* panel, const VornwxBitmapCache* images, VornControlGroup* group,
                      bool on);
  void SetGeometry(int x, int y, int w, int h) override;
  VornControl* GetControl() override { return m_pToggle; }
  void SetCellColours(const wxColour& text, const wxColour& background) override;
  bool GetOn() const { return m_pToggle->GetOn(); }

 private:
  class Toggle;
  VornButtonToggle* m_pToggle = nullptr;  // child window
};

// ---- columns ----------------------------------------------------------------

// One column: its place, heading and cells (owned, top to bottom).
class MonsterColumn {
 public:
  MonsterColumn(VornMonsterBox* box, std::unique_ptr<ColumnHeading> heading);
  ~MonsterColumn();
  MonsterColumn(const MonsterColumn&) = delete;
  MonsterColumn& operator=(const MonsterColumn&) = delete;

  // Stores x and w and lays out every cell.
  void SetWidth(int x, int w);
  void InsertEntry(int index, ColumnEntry* entry, int rowHeight);
  void DeleteEntry(int index);
  void ClearAll();
  // Places every cell at its row, shifted by the box's scroll offset.
  void LayoutEntries();

  int GetX() const { return m_x; }
  int GetWidth() const { return m_width; }
  ColumnHeading* GetHeading() const { return m_pHeading.get(); }
  int GetEntryCount() const { return static_cast<int>(m_entries.size()); }
  ColumnEntry* GetEntry(int index) const;
  int IndexOf(VornControl* control) const;  // -1 when no cell claims it
  VornMonsterBox* GetBox() const { return m_pBox; }

 private:
  void PlaceEntry(int index);

  int m_x = 0;
  int m_width = 0;
  std::unique_ptr<ColumnHeading> m_pHeading;
  std::vector<ColumnEntry*> m_entries;  // owned (windows, destroyed explicitly)
  VornMonsterBox* m_pBox = nullptr;     // not owned
};

// ---- the box ----------------------------------------------------------------

// Style bit that makes the box resizable by its grip.
constexpr long kMonsterBoxResizable = 1L << 4;

class VornMonsterBox : public VornControl {
 public:
  // --- construction
  VornMonsterBox();
  ~VornMonsterBox() override;
  VornMonsterBox(const VornMonsterBox&) = delete;
  VornMonsterBox& operator=(const VornMonsterBox&) = delete;

  // frame: drawn behind the whole box; heading: the strip behind the column
  // titles; spacer: drawn between buttons, its width is their gap. All
  // borrowed and may be null.
  bool Create(const wxBitmap* frame, const wxBitmap* heading, const wxBitmap* spacer, int x, int y,
              int w, int h, VornString& name, wxWindow* parent, int id, VornControlGroup* group,
              long style = 0);
  using VornControl::Create;

  // --- columns and cells
  void AddColumn(const VornString& title, const wxColour& colour, int width, bool unused = false);
  void AddColumn(const VornString& title, const wxColour& colour, const wxFont& font, int width,
                 bool unused = false);
  void AddColumn(const wxBitmap* bitmap, int width, bool unused = false);
  void AddEntry(int column, const VornString& text, const wxColour& colour, bool centred);
  void AddEntry(int column, const VornwxBitmapCache* images, bool on);
  void InsertEntry(int row, int column, const VornString& text, const wxColour& colour,
                   bool centred);
  void InsertEntry(int row, int column, const VornwxBitmapCache* images, bool on);
  void DeleteRow(int row);
  // Removes every row (the columns stay).
  void ClearAll();
  int GetRowCount() const { return m_rows; }
  int GetColumnCount() const { return static_cast<int>(m_columns.size()); }
  // The control of a cell, or null outside the rows and columns.
  VornControl* GetRowColumn(int row, int column);
  ColumnEntry* GetRowColumnEntry(int row, int column);
  // The cell holding control, or -1, -1.
  void FindRowColumn(VornControl* control, int& row, int& column);

  // --- per-row caller data
  void AddLineData(void* data);
  void InsertLineData(int row, void* data);
  void* GetLineData(int row) const;  // null outside the rows
  int GetLineDataCount() const { return static_cast<int>(m_lineData.size()); }

  // --- buttons below the cells
  VornPushButton* AddButton(const VornwxBitmapCache* images, int id, const VornString& tipText,
                            VornControlGroup* group);
  const std::vector<VornPushButton*>& GetButtons() const { return m_buttons; }

  // --- geometry and scrolling
  // Resizes as a grip drag to height h would, and sets the width.
  void SetSize(int w, int h);
  using VornControl::SetSize;
  void SetMaxSize(int maxHeight) { m_maxHeight = maxHeight; }
  int GetMaxHeight() const { return m_maxHeight; }
  // Lays the rows out again at the new height.
  void SetRowHeight(int h);
  int GetRowHeight() const { return m_rowHeight; }
  int GetListHeight() const { return m_listHeight; }
  int GetScrollOffset() const { return m_scrollOffset; }
  // Shows the bar when the rows do not fit, hides it when they do.
  void CheckForScroll();
  // v in [0, 1] of the content that does not fit.
  void SetScrollPos(double v);
  // Scrolls by whole rows (positive: down); nothing while everything fits.
  void ScrollRows(int rows);
  MonsterScrollBar* GetScrollBar() const { return m_pScrollBar; }
  wxPanel* GetPanel() const { return m_pPanel; }

  // --- settings
  void SetColors(const wxColour& cellBackground, const wxColour& cellText);
  void SetSepColour(const wxColour& separator);
  void SetScrollHandle(const wxBitmap* handle) { m_pScrollHandle = handle; }
  void Resizable(bool resizable);
  bool IsResizable() const { return m_bResizable; }
  bool IsResizing() const { return m_bResizing; }
  const VornString& GetBoxName() const { return m_name; }
  // Background of a cell in row (alternate rows differ slightly).
  wxColour RowBackground(int row) const;

  // The heading strip and the resize grip, in box coordinates.
  wxRect HeadingRect() const;
  wxRect GripRect() const;

  void OnDraw(wxDC* dc) override;

 protected:
  void LocalLeftDown(wxMouseEvent& event);
  void LocalLeftUp(wxMouseEvent& event);
  void LocalLeftDClick(wxMouseEvent& event);
  void LocalMotion(wxMouseEvent& event);
  void OnMouseWheel(wxMouseEvent& event);
  // Another window took the pointer: a grip drag ends.
  void OnResizeCaptureLost(wxMouseCaptureLostEvent& event);

 private:
  friend class ColumnEntry;
  // Asserts that column exists; false (refuse) when it does not.
  bool ColumnOk(int column) const;
  void PutEntry(int row, int column, ColumnEntry* entry);
  void AddHeadedColumn(std::unique_ptr<ColumnHeading> heading, int width);
  void ApplyHeight(int height);
  void ScrollContentTo(int offset);
  void DrawGrip(wxDC& dc) const;
  void NotifySizeChange();
  int ContentHeight() const { return m_rowHeight * m_rows; }
  int SpacerWidth() const;

  Color m_scrollHover = Color(1.0, 1.0, 1.0);
  wxColour m_scrollOutline;
  wxColour m_scrollBackground;
  std::vector<std::unique_ptr<MonsterColumn>> m_columns;
  VornString m_name = "no name";
  int m_listHeight = 0;
  int m_rowHeight = 15;
  wxBitmap m_backBuffer;
  wxColour m_cellBackground;
  wxColour m_separator;
  wxColour m_cellText;
  const wxBitmap* m_pFrame = nullptr;         // not owned
  const wxBitmap* m_pHeading = nullptr;       // not owned
  const wxBitmap* m_pSpacer = nullptr;        // not owned
  const wxBitmap* m_pScrollHandle = nullptr;  // not owned
  wxPanel* m_pPanel = nullptr;                // child window
  MonsterScrollBar* m_pScrollBar = nullptr;   // child window, made on first need
  int m_rows = 0;
  int m_scrollOffset = 0;
  bool m_bResizable = false;
  std::vector<VornPushButton*> m_buttons;  // child windows
  bool m_bResizing = false;
  int m_lastY = 0;
  int m_maxHeight = 1 << 20;  // no limit until SetMaxSize
  std::vector<void*> m_lineData;

  wxDECLARE_EVENT_TABLE();
};
