// The tables page: a resizable multi-column box of 200 rows with text and
// check-box columns and two buttons below it, and a readout of the cell last
// clicked. Every report reaches the log.
#include <memory>

#include "Gallery.h"

namespace {

constexpr int kTextX = 24;
constexpr int kBoxX = 24;
constexpr int kBoxY = 64;
constexpr int kBoxWidth = 420;
constexpr int kBoxHeight = 300;
constexpr int kRows = 200;
enum Id : unsigned int { kBox = 600, kAdd, kRemove };

class TablesPage : public GalleryPage {
 public:
  TablesPage(wxWindow* parent, GalleryContext& ctx) : GalleryPage(parent, ctx), m_group(ctx.Log()) {
    m_group.page = this;
    AssetManager& assets = ctx.Assets();
    const char* names[] = {"table_frame.sts", "table_heading.sts", "table_spacer.sts"};
    for (int i = 0; i < 3; ++i)
      if (!assets.LoadBitmap(names[i], m_pictures[i]))
        ctx.Log().Add(wxString::Format("cannot load %s", names[i]));
    VornString name = "table";
    m_pBox = new VornMonsterBox;
    m_pBox->SetScrollHandle(nullptr);
    m_pBox->SetColors(ctx.Colour("table_cell"), ctx.Colour("table_cell_text"));
    m_pBox->SetSepColour(ctx.Colour("table_separator"));
    m_pBox->Create(Picture(0), Picture(1), Picture(2), kBoxX, kBoxY, kBoxWidth, kBoxHeight, name,
                   this, kBox, &m_group, kMonsterBoxResizable);
    m_pBox->SetMaxSize(kBoxHeight + 160);
    const wxColour title = ctx.Colour("table_heading_text");
    const wxFont font = ctx.Font("label_bold");
    m_pBox->AddColumn(Utf8(ctx.Msg("Item")), title, font, 150);
    m_pBox->AddColumn(Utf8(ctx.Msg("Value")), title, font, 110);
    m_pBox->AddColumn(Utf8(ctx.Msg("On")), title, font, 50);
    m_pChecks = ctx.Images("table_check.sts");
    for (int i = 0; i < kRows; ++i) AddRow(i);
    m_pBox->AddButton(ctx.Images("table_button_plus.sts"), kAdd, Utf8(ctx.Msg("Add a row")),
                      &m_group);
    m_pBox->AddButton(ctx.Images("table_button_minus.sts"), kRemove,
                      Utf8(ctx.Msg("Delete the last row")), &m_group);
    m_group.SetName(kBox, ctx.Msg("Table"));
    m_group.SetName(kAdd, ctx.Msg("Add a row"));
    m_group.SetName(kRemove, ctx.Msg("Delete the last row"));
    SetSize(960, kBoxY + kBoxHeight + 200);
  }
  ~TablesPage() override { DestroyChildren(); }

  void Demo() override {
    // A check box ticked, a text cell clicked, a turn of the wheel and a
    // drag of the grip.
    ClickOn(m_pBox->GetRowColumnEntry(1, 2)->GetControl());
    ClickOn(m_pBox->GetRowColumnEntry(2, 0)->GetControl());
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.SetEventObject(m_pBox);
    wheel.m_wheelRotation = -240;
    wheel.m_wheelDelta = 120;
    m_pBox->GetEventHandler()->ProcessEvent(wheel);
    const wxRect grip = m_pBox->GripRect();
    const int gx = grip.x + 5, gy = grip.y + 5;
    SendMouse(m_pBox, wxEVT_LEFT_DOWN, gx, gy);
    SendMouse(m_pBox, wxEVT_MOTION, gx, gy + 40);
    SendMouse(m_pBox, wxEVT_LEFT_UP, gx, gy + 40);
  }

  // Called by the group for every selection.
  void Selected(unsigned int id, VornControl* control) {
    if (id == kAdd) {
      AddRow(m_pBox->GetRowCount());
    } else if (id == kRemove) {
      if (m_pBox->GetRowCount() > 0) m_pBox->DeleteRow(m_pBox->GetRowCount() - 1);
    } else if (control != m_pBox) {
      int row = -1, column = -1;
      m_pBox->FindRowColumn(control, row, column);
      if (row < 0) return;
      m_lastRow = row;
      m_lastColumn = column;
      m_ctx.Log().Add(wxString::Format("FindRowColumn  %s %d, %s %d", m_ctx.Msg("Row"), row + 1,
                                       m_ctx.Msg("Column"), column + 1));
      RefreshRect(ReadoutRect(), false);
    }
  }

 protected:
  void DrawPage(wxDC& dc) override {
    DrawText(dc, m_ctx.Msg("Tables"), kTextX, 14, "label_bold", "text");
    DrawText(dc, m_ctx.Msg("Click a cell, tick a box, turn the wheel or drag the grip."), kTextX,
             36, "small", "text_dim");
    const wxRect r = ReadoutRect();
    DrawText(dc, m_ctx.Msg("Cell last clicked"), r.x, r.y, "small", "text_dim");
    const wxString cell = m_lastRow < 0
                              ? wxString("-")
                              : wxString::Format("%s %d, %s %d", m_ctx.Msg("Row"), m_lastRow + 1,
                                                 m_ctx.Msg("Column"), m_lastColumn + 1);
    DrawText(dc, cell, r.x, r.y + 18, "label", "text");
  }

 private:
  class Group : public LoggingGroup<VornControlGroup1ofN> {
   public:
    using LoggingGroup::LoggingGroup;
    void ControlSelected(unsigned int id, VornControl* control) override {
      LoggingGroup::ControlSelected(id, control);
      if (page) page->Selected(id, control);
    }
    // The box's size hint carries no id: name it here, with the new height.
    bool Update(unsigned int id, VornControl* source, VornControlHint* hint) override {
      if (dynamic_cast<MonSizeChangeHint*>(hint) && source) {
        m_log.Add(wxString::Format("Update  %s: MonSizeChangeHint (%d)", NameOf(source->GetId()),
                                   source->GetHeight()));
        return true;
      }
      return LoggingGroup::Update(id, source, hint);
    }
    TablesPage* page = nullptr;
  };

  const wxBitmap* Picture(int i) const { return m_pictures[i].IsOk() ? &m_pictures[i] : nullptr; }
  wxRect ReadoutRect() const { return wxRect(kBoxX + kBoxWidth + 40, kBoxY, 220, 40); }

  void AddRow(int i) {
    m_pBox->AddEntry(0, Utf8(wxString::Format("%s %d", m_ctx.Msg("Item"), i + 1)),
                     m_ctx.Colour("table_cell_text"), false);
    m_pBox->AddEntry(1, Utf8(wxString::Format("%d", (i * 37) % 1000)),
                     m_ctx.Colour("table_cell_text"), true);
    m_pBox->AddEntry(2, m_pChecks, i % 3 == 0);
  }

  Group m_group;
  wxBitmap m_pictures[3];
  const VornwxBitmapCache* m_pChecks = nullptr;
  VornMonsterBox* m_pBox = nullptr;
  int m_lastRow = -1, m_lastColumn = -1;
};

const GalleryPageRegistrar kRegistrar({50, "Tables", "tables",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new TablesPage(parent, ctx);
                                       }});

}  // namespace
