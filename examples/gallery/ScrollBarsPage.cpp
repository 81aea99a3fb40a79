// The scroll bars page: simple bars with and without end buttons, the
// monster box's bar, the image-based bar and the windowless bar inside a
// small list, each with a live readout and every report in the log. The
// right part of the page stays free for the multi-line edit.
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kTextX = 24;
constexpr int kBarTop = 70;
constexpr int kBarHeight = 220;
constexpr int kColumn = 100;  // distance between the specimens
constexpr int kFirstX = 56;
constexpr int kListWidth = 150;

enum Id : unsigned int { kEnd = 400, kRight, kPlain, kMonster, kImage, kList, kText };

// Something that shows a value under its specimen.
struct Readout {
  wxRect rect;
  wxString caption;
  double value = 0.0;
};

// A simple (or monster) bar whose changes go to the log and a readout.
template <class Bar>
class LoggedBar : public Bar {
 public:
  template <class... Args>
  LoggedBar(GalleryLog& log, const wxString& name, Readout& readout, wxWindow* page, Args&&... args)
      : Bar(std::forward<Args>(args)...),
        m_log(log),
        m_name(name),
        m_readout(readout),
        m_page(page) {}
  void OnSliderChange() override {
    Bar::OnSliderChange();
    m_log.Add(wxString::Format("OnSliderChange  %s  %.3f", m_name, this->GetSliderVal()));
    m_readout.value = this->GetSliderVal();
    m_page->RefreshRect(m_readout.rect, false);
  }

 private:
  GalleryLog& m_log;
  wxString m_name;
  Readout& m_readout;
  wxWindow* m_page;
};

// A small list that hosts the windowless bar: it forwards its mouse events
// to the bar, paints it, and scrolls its items when the bar moves.
class ScrollList : public VornPanel, public VornListBoxScrollOwner {
 public:
  ScrollList(wxWindow* parent, int x, int y, GalleryContext& ctx, Readout& readout)
      : VornPanel(x, y, kListWidth, kBarHeight, parent, wxID_ANY), m_ctx(ctx), m_readout(readout) {
    SetBgColour(ctx.Colour("list_bg"));
    m_pBar = std::make_unique<VornListBoxScrollBar>(
        ctx.Colour("scrollbar_outline"), ctx.Colour("scrollbar_track"),
        ctx.Colour("scrollbar_hover"), kListWidth - 11, 0, kBarHeight, this);
    m_pBar->SetFractionVal(static_cast<double>(kBarHeight) / (kItems * kItemHeight));
    m_pBar->SetBox(this);
    m_pBar->Show(true);
    Bind(wxEVT_LEFT_DOWN,
         [this](wxMouseEvent& e) { Forward(e, &VornListBoxScrollBar::OnLeftDown); });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& e) { Forward(e, &VornListBoxScrollBar::OnLeftUp); });
    Bind(wxEVT_MOTION, [this](wxMouseEvent& e) { Forward(e, &VornListBoxScrollBar::OnMouseMove); });
  }

  VornListBoxScrollBar& Bar() { return *m_pBar; }

  void SetScrollPos(double value) override {
    m_offset = static_cast<int>(value * (kItems * kItemHeight - kBarHeight));
    m_ctx.Log().Add(
        wxString::Format("SetScrollPos  %s  %.3f", m_ctx.Msg("Pop-up list bar"), value));
    m_readout.value = value;
    GetParent()->RefreshRect(m_readout.rect, false);
  }
  void OnDrawBox(wxDC& dc) override { OnDraw(&dc); }

  void OnDraw(wxDC* dc) override {
    VornWindow::OnDraw(dc);
    dc->SetFont(m_ctx.Font("label"));
    dc->SetTextForeground(m_ctx.Colour("list_text"));
    const wxString item = m_ctx.Msg("Item");
    for (int i = 0; i < kItems; ++i) {
      const int y = i * kItemHeight - m_offset;
      if (y + kItemHeight < 0 || y > kBarHeight) continue;
      dc->DrawText(wxString::Format("%s %d", item, i + 1), 8, y + 3);
    }
    m_pBar->OnDraw(*dc);
  }

 private:
  static constexpr int kItems = 24;
  static constexpr int kItemHeight = 20;

  void Forward(wxMouseEvent& e, bool (VornListBoxScrollBar::*handler)(wxMouseEvent&)) {
    // The list keeps the pointer while the thumb is dragged.
    const bool wasDragging = m_pBar->IsDragging();
    if (!((*m_pBar).*handler)(e)) e.Skip();
    if (!wasDragging && m_pBar->IsDragging() && !HasCapture()) wxWindow::CaptureMouse();
    if (wasDragging && !m_pBar->IsDragging() && HasCapture()) wxWindow::ReleaseMouse();
  }

  GalleryContext& m_ctx;
  Readout& m_readout;
  std::unique_ptr<VornListBoxScrollBar> m_pBar;
  int m_offset = 0;
};

class ScrollBarsPage : public GalleryPage {
 public:
  ScrollBarsPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx), m_group(ctx.Log()) {
    m_outline = ctx.Colour("scrollbar_outline");
    m_track = ctx.Colour("scrollbar_track");
    m_hover = ctx.Colour("scrollbar_hover");
    m_readouts.resize(6);
    BuildSimpleBars();
    BuildImageBar();
    const int listX = kFirstX + 5 * kColumn - 20;
    m_pList =
        new ScrollList(this, listX, kBarTop, ctx, Place(5, listX, kListWidth, "Pop-up list bar"));
    BuildTextBox(listX + kListWidth + 24);
    SetSize(960, kBarTop + kBarHeight + 70);
  }
  ~ScrollBarsPage() override { DestroyChildren(); }

  void Demo() override {
    // Two steps of the down button, thumb drags, a wheel turn and a drag of
    // the windowless bar, all as real mouse events.
    VornMomentBtn* down = m_pEnd->GetDownButton();
    SendMouse(down, wxEVT_ENTER_WINDOW);
    SendMouse(down, wxEVT_LEFT_DOWN);
    down->GetTimer()->Notify();
    SendMouse(down, wxEVT_LEFT_UP);
    SendMouse(down, wxEVT_LEAVE_WINDOW);
    const int top = m_pPlain->GetThumbTop() + 5;
    SendMouse(m_pPlain, wxEVT_LEFT_DOWN, 5, top);
    SendMouse(m_pPlain, wxEVT_MOTION, 5, top + 60);
    SendMouse(m_pPlain, wxEVT_LEFT_UP, 5, top + 60);
    wxMouseEvent wheel = MakeWheel(m_pRight, -240);
    m_pRight->GetEventHandler()->ProcessEvent(wheel);
    if (m_pImage) {
      const int thumb = m_pImage->GetThumbTop() + 5;
      SendMouse(m_pImage, wxEVT_LEFT_DOWN, 5, thumb);
      SendMouse(m_pImage, wxEVT_MOTION, 5, thumb + 50);
      SendMouse(m_pImage, wxEVT_LEFT_UP, 5, thumb + 50);
    }
    const int listTop = m_pList->Bar().GetThumbTop() + 5, barX = kListWidth - 6;
    SendMouse(m_pList, wxEVT_LEFT_DOWN, barX, listTop);
    SendMouse(m_pList, wxEVT_MOTION, barX, listTop + 40);
    SendMouse(m_pList, wxEVT_LEFT_UP, barX, listTop + 40);
    if (m_pText) {
      // A click, a typed character and the focus leaving: the box reports.
      const wxRect area = m_pText->GetTextArea();
      SendMouse(m_pText, wxEVT_LEFT_DOWN, area.x + 2, area.y + 2);
      SendMouse(m_pText, wxEVT_LEFT_UP, area.x + 2, area.y + 2);
      wxKeyEvent key(wxEVT_CHAR);
      key.m_keyCode = '>';
      m_pText->GetEventHandler()->ProcessEvent(key);
      wxFocusEvent lose(wxEVT_KILL_FOCUS);
      m_pText->GetEventHandler()->ProcessEvent(lose);
      wxMouseEvent turn = MakeWheel(m_pText, -240);
      m_pText->GetEventHandler()->ProcessEvent(turn);
    }
  }

 protected:
  void DrawPage(wxDC& dc) override {
    DrawText(dc, m_ctx.Msg("Scroll bars"), kTextX, 14, "label_bold", "text");
    DrawText(dc, m_ctx.Msg("Drag a thumb, hold an end button or turn the wheel over a bar."),
             kTextX, 36, "small", "text_dim");
    for (const Readout& r : m_readouts) {
      const int centre = r.rect.x + r.rect.width / 2;
      DrawCentred(dc, r.caption, centre, r.rect.y, "small", "text_dim");
      DrawCentred(dc, wxString::Format("%s %.3f", m_ctx.Msg("Value"), r.value), centre,
                  r.rect.y + 18, "label", "text");
    }
    if (m_pText)
      DrawCentred(dc, m_ctx.Msg("Multi-line text"), m_pText->GetPosX() + m_pText->GetWidth() / 2,
                  kBarTop + kBarHeight + 10, "small", "text_dim");
  }

 private:
  // The readout under a specimen at x of width w.
  Readout& Place(int index, int x, int w, const char* captionKey) {
    Readout& r = m_readouts[index];
    r.rect = wxRect(x + w / 2 - 50, kBarTop + kBarHeight + 10, 100, 40);
    r.caption = m_ctx.Msg(captionKey);
    return r;
  }

  template <class Bar>
  LoggedBar<Bar>* Simple(int index, unsigned int id, const char* captionKey, bool endButtons,
                         bool left, double fraction) {
    const int x = kFirstX + index * kColumn;
    auto* bar = new LoggedBar<Bar>(m_ctx.Log(), m_ctx.Msg(captionKey),
                                   Place(index, x, 11, captionKey), this);
    bar->SetEndButtons(endButtons);
    bar->SetLeft(left);
    bar->Create(m_outline, m_track, m_hover, x, kBarTop, kBarHeight, this, id, &m_group);
    bar->SetFractionVal(fraction);
    m_group.SetName(id, m_ctx.Msg(captionKey));
    return bar;
  }

  void BuildSimpleBars() {
    m_pEnd = Simple<VornSimpleScrollBar>(0, kEnd, "End buttons", true, true, 0.2);
    m_pRight = Simple<VornSimpleScrollBar>(1, kRight, "At the right", true, false, 0.5);
    m_pPlain = Simple<VornSimpleScrollBar>(2, kPlain, "No end buttons", false, true, 0.1);
    const int x = kFirstX + 3 * kColumn;
    auto* monster = new LoggedBar<MonsterScrollBar>(
        m_ctx.Log(), m_ctx.Msg("Monster box bar"), Place(3, x, 11, "Monster box bar"), this,
        nullptr, nullptr, nullptr, m_outline, m_track, m_hover, x, kBarTop, kBarHeight, this,
        kMonster, &m_group, false);
    monster->SetFractionVal(0.3);
    m_group.SetName(kMonster, m_ctx.Msg("Monster box bar"));
  }

  void BuildImageBar() {
    AssetManager& assets = m_ctx.Assets();
    const char* names[] = {"scroll_thumb.sts", "scroll_thumb_end.sts", "scroll_thumb_start.sts"};
    for (int i = 0; i < 3; ++i)
      if (!assets.LoadBitmap(names[i], m_thumbs[i]))
        m_ctx.Log().Add(wxString::Format("cannot load %s", names[i]));
    if (!m_thumbs[0].IsOk()) return;
    const int x = kFirstX + 4 * kColumn;
    Readout& readout = Place(4, x, m_thumbs[0].GetWidth() + 1, "Image thumb");
    m_pImage = new VornScrollBar(&m_thumbs[0], &m_thumbs[1], &m_thumbs[2], m_outline, m_track,
                                 100.0, x, kBarTop, kBarHeight, this, kImage, &m_imageGroup);
    m_pImage->AddToRange(400.0, false);
    m_imageGroup.SetName(kImage, m_ctx.Msg("Image thumb"));
    m_imageGroup.onDrag = [this, &readout] {
      readout.value = m_pImage->GetValue();
      RefreshRect(readout.rect, false);
    };
  }

  // A multi-line box long enough to scroll, reporting to the log.
  void BuildTextBox(int x) {
    const wxBitmap* picture = nullptr;
    VornEditInfo info;
    if (!m_ctx.Assets().LoadEditWidgetCached("edit_multiline.sts", picture, info)) {
      m_ctx.Log().Add("cannot load edit_multiline.sts");
      return;
    }
    m_pText = new VornMultiEdit(picture, info, x, kBarTop, this, kText, true, &m_textGroup);
    m_pText->SetScrollColours(m_outline, m_track, m_hover);
    m_pText->SetText(Utf8(m_ctx.Msg("Multi-line sample") + "\n" + m_ctx.Msg("Multi-line sample 2")),
                     false);
    m_textGroup.SetName(kText, m_ctx.Msg("Multi-line text"));
  }

  static wxMouseEvent MakeWheel(wxWindow* window, int rotation) {
    wxMouseEvent e(wxEVT_MOUSEWHEEL);
    e.SetEventObject(window);
    e.SetId(window->GetId());
    e.m_x = 5;
    e.m_y = 40;
    e.m_wheelRotation = rotation;
    e.m_wheelDelta = 120;
    e.m_wheelAxis = wxMOUSE_WHEEL_VERTICAL;
    return e;
  }

  // The image bar's group: logs like any other and updates the readout.
  class ImageGroup : public LoggingValueGroup {
   public:
    using LoggingValueGroup::LoggingValueGroup;
    void ControlDrag(unsigned int id, VornControl* control) override {
      LoggingValueGroup::ControlDrag(id, control);
      if (onDrag) onDrag();
    }
    std::function<void()> onDrag;
  };

  LoggingValueGroup m_group;
  LoggingGroup<VornControlGroup> m_textGroup{m_ctx.Log()};
  ImageGroup m_imageGroup{m_ctx.Log()};
  wxColour m_outline, m_track, m_hover;
  std::vector<Readout> m_readouts;
  wxBitmap m_thumbs[3];
  VornSimpleScrollBar* m_pEnd = nullptr;
  VornSimpleScrollBar* m_pRight = nullptr;
  VornSimpleScrollBar* m_pPlain = nullptr;
  VornScrollBar* m_pImage = nullptr;
  ScrollList* m_pList = nullptr;
  VornMultiEdit* m_pText = nullptr;
};

const GalleryPageRegistrar kRegistrar({40, "Scroll bars", "scroll-bars",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ScrollBarsPage(parent, ctx);
                                       }});

}  // namespace
