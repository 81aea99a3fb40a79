// The text page: single-line fields of every style, a read-only value, date
// and time boxes fed by a live clock, and a scale box. Every report goes to
// the log under the name of the field that sent it. The multi-line box goes
// below the last row.
#include <wx/datetime.h>
#include <wx/timer.h>

#include <map>
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kHeadingX = 24;
constexpr int kFieldX = 250;
constexpr int kTop = 64;
constexpr int kRowHeight = 44;
constexpr int kRows = 7;
constexpr int kMultiLineRoom = 150;  // kept free at the bottom

enum Id : unsigned int {
  kText = 400,
  kPassword,
  kInt,
  kReal,
  kReadOnly,
  kDate,
  kTime,
  kScale,
  kMultiLine
};

// Logs selections, double clicks and text reports. The edits report with id
// 0, so reports are named after their source.
class TextGroup : public VornControlGroupValue, public MessageReceiver {
 public:
  explicit TextGroup(GalleryLog& log) : m_log(log) {
    Register(static_cast<MessageReceiver*>(this));
  }
  ~TextGroup() override { DeRegister(static_cast<MessageReceiver*>(this)); }

  void SetName(unsigned int id, const wxString& name) { m_names[id] = name; }
  void ControlSelected(unsigned int id, VornControl*) override { Note("ControlSelected", id); }
  void ControlDoubleClick(unsigned int id, VornControl*) override {
    Note("ControlDoubleClick", id);
  }
  void ControlDrag(unsigned int id, VornControl*) override { Note("ControlDrag", id); }
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override {
    if (source) id = static_cast<unsigned int>(source->GetId());
    if (auto* text = dynamic_cast<StringValChanged*>(hint))
      m_log.Add(wxString::Format("Update  %s: StringValChanged \"%s\"", Name(id),
                                 wxString::FromUTF8(text->m_value.c_str())));
  }

 private:
  wxString Name(unsigned int id) const {
    auto it = m_names.find(id);
    return it != m_names.end() ? it->second : wxString::Format("#%u", id);
  }
  void Note(const char* what, unsigned int id) {
    m_log.Add(wxString::Format("%s  %s", what, Name(id)));
  }

  GalleryLog& m_log;
  std::map<unsigned int, wxString> m_names;
};

class TextPage : public GalleryPage, public MessageReceiver {
 public:
  TextPage(wxWindow* parent, GalleryContext& ctx) : GalleryPage(parent, ctx), m_group(ctx.Log()) {
    m_group.Register(static_cast<MessageReceiver*>(this));
    const char* field = "edit_widget.sts";
    const char* value = "edit_value.sts";
    Add<VornEdit>(0, kText, field, "Editable text", VornEdit::ES_TEXT, true)
        ->SetText("Hello, Vorn");
    Add<VornEdit>(1, kPassword, field, "Password", VornEdit::ES_PASSWORD, true)
        ->SetText("swordfish");
    Add<VornEdit>(2, kInt, field, "Integer", VornEdit::ES_INT, true)->SetText("42");
    Add<VornEdit>(3, kReal, field, "Real, two decimals", VornEdit::ES_REAL2, true)->SetText("3.14");
    Add<VornEdit>(4, kReadOnly, value, "Read-only, right-aligned", VornEdit::ES_TEXT, false,
                  VornEdit::kRightAligned)
        ->SetText("1024 px");
    // The clock's boxes share one group that the page's timer feeds.
    auto* date = Add<DateEditBox>(5, kDate, value, "Date and time (UTC)", VornEdit::ES_TEXT, false,
                                  0, &m_clock);
    VornEditInfo info;
    const wxBitmap* picture = LoadWidget(value, info);
    auto* time = new TimeEditBox(picture, info, NextX(date), date->GetPosY(), this, kTime, false,
                                 VornEdit::ES_TEXT, &m_clock);
    time->SetCaretColour(m_ctx.Colour("text"));
    auto* scale =
        Add<ScaleEditBox>(6, kScale, field, "Scale box, 0 to 100", VornEdit::ES_INT, true);
    m_scaleCaption = wxRect(NextX(scale), scale->GetPosY() + 3, 400, 18);
    AddMultiLine(kRows);
    // A 0..1 value from elsewhere, shown as a percentage.
    VornControlGroup feed;
    feed.Register(kScale, scale);
    RealValChanged quarter(0.25);
    feed.Update(0, nullptr, &quarter);
    feed.DeRegister(kScale, true);

    m_clockTimer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Tick(); });
    Tick();
    m_clockTimer.Start(1000);
    SetSize(960, kTop + kRows * kRowHeight + kMultiLineRoom);
  }
  ~TextPage() override {
    m_clockTimer.Stop();
    m_group.DeRegister(static_cast<MessageReceiver*>(this));
    // The controls go before the groups they report to.
    DestroyChildren();
  }

  // Typed numbers formatted on Enter, and a word picked by a double click.
  void Demo() override {
    TypeAndEnter(kInt, "12abc");
    TypeAndEnter(kReal, "3.14159");
    TypeAndEnter(kScale, "40");
    auto* text = static_cast<VornEdit*>(FindWindow(kText));
    SendMouse(text, wxEVT_LEFT_DCLICK, 60, 11);
  }

  // The scale box's report, shown beside it on 0..1.
  void OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) override {
    auto* text = dynamic_cast<StringValChanged*>(hint);
    if (!text || !source || source->GetId() != static_cast<int>(kScale)) return;
    m_scaleValue = wxString::FromUTF8(text->m_value.c_str());
    RefreshRect(m_scaleCaption, false);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    const int th = DrawText(dc, m_ctx.Msg("Text fields"), kHeadingX, 14, "title", "text");
    DrawText(dc, m_ctx.Msg("Type, then press Enter or leave the field: the log shows the report."),
             kHeadingX, 18 + th, "label", "text_dim");
    dc.SetPen(wxPen(m_ctx.Colour("panel_deep")));
    for (int row = 1; row <= kRows; ++row) dc.DrawLine(kHeadingX, Row(row) - 8, 936, Row(row) - 8);
    for (const Heading& h : m_headings) {
      DrawText(dc, h.title, kHeadingX, h.y, "label_bold", "text");
      DrawText(dc, h.asset, kHeadingX, h.y + 16, "small", "text_dim");
    }
    if (!m_scaleValue.empty())
      DrawText(dc, wxString::Format("%s %s", m_ctx.Msg("Reported on 0..1:"), m_scaleValue),
               m_scaleCaption.x, m_scaleCaption.y, "label", "text_dim");
  }

 private:
  struct Heading {
    int y;
    wxString title;
    wxString asset;
  };

  static int Row(int index) { return kTop + index * kRowHeight; }
  static int NextX(wxWindow* after) { return after->GetRect().GetRight() + 17; }

  const wxBitmap* LoadWidget(const char* name, VornEditInfo& info) {
    const wxBitmap* picture = nullptr;
    if (!m_ctx.Assets().LoadEditWidgetCached(name, picture, info))
      m_ctx.Log().Add(wxString::Format("Cannot load the edit widget %s", name));
    return picture;
  }

  template <class Edit>
  Edit* Add(int row, unsigned int id, const char* widget, const char* titleKey, int style,
            bool editable, long wxStyle = 0, VornControlGroup* group = nullptr) {
    VornEditInfo info;
    const wxBitmap* picture = LoadWidget(widget, info);
    auto* edit = new Edit(picture, info, kFieldX, Row(row), this, id, editable, style,
                          group ? group : &m_group, wxStyle);
    // A black caret would vanish in the skin's dark well.
    edit->SetCaretColour(m_ctx.Colour("text"));
    m_headings.push_back({Row(row) + 2, m_ctx.Msg(titleKey), widget});
    m_group.SetName(id, m_ctx.Msg(titleKey));
    return edit;
  }

  // The multi-line box, long enough to scroll, on the row below the fields.
  void AddMultiLine(int row) {
    VornEditInfo info;
    const wxBitmap* picture = LoadWidget("edit_multiline.sts", info);
    auto* box = new VornMultiEdit(picture, info, kFieldX, Row(row), this, kMultiLine, true,
                                  &m_group);
    box->SetScrollColours(m_ctx.Colour("scrollbar_outline"), m_ctx.Colour("scrollbar_track"),
                          m_ctx.Colour("scrollbar_hover"));
    box->SetText(Utf8(m_ctx.Msg("Multi-line sample") + "\n" + m_ctx.Msg("Multi-line sample 2")),
                 false);
    m_headings.push_back({Row(row) + 2, m_ctx.Msg("Multi-line text"), "edit_multiline.sts"});
    m_group.SetName(kMultiLine, m_ctx.Msg("Multi-line text"));
  }

  void Tick() {
    RealValChanged now(static_cast<double>(wxDateTime::Now().GetTicks()));
    m_clock.Update(0, nullptr, &now);
  }

  void TypeAndEnter(unsigned int id, const char* typed) {
    wxWindow* edit = FindWindow(id);
    wxFocusEvent gained(wxEVT_SET_FOCUS);
    edit->GetEventHandler()->ProcessEvent(gained);
    SendChar(edit, 1, true);  // Ctrl + A: replace what is there
    for (const char* c = typed; *c; ++c) SendChar(edit, *c);
    SendChar(edit, WXK_RETURN);
    wxFocusEvent lost(wxEVT_KILL_FOCUS);
    edit->GetEventHandler()->ProcessEvent(lost);
  }
  static void SendChar(wxWindow* window, int code, bool control = false) {
    wxKeyEvent key(wxEVT_CHAR);
    key.m_keyCode = code;
    key.m_uniChar = code;
    key.m_controlDown = control;
    key.SetEventObject(window);
    window->GetEventHandler()->ProcessEvent(key);
  }

  TextGroup m_group;
  VornControlGroup m_clock;  // the date and time boxes, fed each second
  wxTimer m_clockTimer;      // its own owner: ticks reach the handler bound on it
  std::vector<Heading> m_headings;
  wxRect m_scaleCaption;
  wxString m_scaleValue;
};

const GalleryPageRegistrar kRegistrar({40, "Text", "text",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new TextPage(parent, ctx);
                                       }});

}  // namespace
