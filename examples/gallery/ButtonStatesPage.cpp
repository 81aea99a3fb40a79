// The button states page: for every button script of the skin, the image of
// each of the eight drawable states (or the one its fallback chain reaches).
#include <wx/dcmemory.h>

#include "Gallery.h"

namespace {

constexpr int kLeft = 20;
constexpr int kFirstColumn = 160;
constexpr int kColumnWidth = 104;
constexpr int kHeaderHeight = 44;
constexpr int kRowHeight = 50;

struct Column {
  VORNIMAGETYPE state;
  const char* modeKey;   // "Normal", "Mouse over", ...
  const char* valueKey;  // "Off" or "On"
};

constexpr Column kColumns[] = {
    {VIT_OFF, "Normal", "Off"},
    {VIT_ON, "Normal", "On"},
    {VIT_OFF_MOUSE_OVER, "Mouse over", "Off"},
    {VIT_ON_MOUSE_OVER, "Mouse over", "On"},
    {VIT_OFF_DOWN, "Pressed", "Off"},
    {VIT_ON_DOWN, "Pressed", "On"},
    {VIT_DISABLED_OFF, "Disabled", "Off"},
    {VIT_DISABLED_ON, "Disabled", "On"},
};

struct Row {
  const char* titleKey;
  const char* asset;
};

constexpr Row kRows[] = {
    {"Push button", "button_push.sts"},        {"Toggle", "button_toggle.sts"},
    {"Radio button", "button_radio.sts"},      {"Moment up", "button_moment_up.sts"},
    {"Moment down", "button_moment_down.sts"}, {"Moon", "button_moon.sts"},
    {"Text button", "button_text.sts"},
};

class ButtonStatesPage : public GalleryPage {
 public:
  ButtonStatesPage(wxWindow* parent, GalleryContext& ctx) : GalleryPage(parent, ctx) {
    for (const Row& row : kRows) m_caches.push_back(ctx.Images(row.asset));
    SetSize(kFirstColumn + 8 * kColumnWidth + kLeft,
            kHeaderHeight + static_cast<int>(std::size(kRows)) * kRowHeight + 20);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    const int columns = static_cast<int>(std::size(kColumns));
    const int rows = static_cast<int>(std::size(kRows));
    const int right = kFirstColumn + columns * kColumnWidth;

    // Column shading in pairs (off, on) so each mode reads as one block.
    dc.SetPen(*wxTRANSPARENT_PEN);
    for (int c = 0; c < columns; c += 2) {
      dc.SetBrush(wxBrush(m_ctx.Colour((c / 2) % 2 ? "panel" : "panel_deep")));
      dc.DrawRectangle(kFirstColumn + c * kColumnWidth, 8, 2 * kColumnWidth,
                       kHeaderHeight + rows * kRowHeight - 4);
    }
    for (int c = 0; c < columns; ++c) {
      const int cx = kFirstColumn + c * kColumnWidth + kColumnWidth / 2;
      if (c % 2 == 0)
        DrawCentred(dc, m_ctx.Msg(kColumns[c].modeKey), cx + kColumnWidth / 2, 12, "label_bold",
                    "text");
      DrawCentred(dc, m_ctx.Msg(kColumns[c].valueKey), cx, 30, "small", "text_dim");
    }

    dc.SetPen(wxPen(m_ctx.Colour("border")));
    for (int r = 0; r < rows; ++r) {
      const int top = kHeaderHeight + r * kRowHeight;
      dc.DrawLine(kLeft, top + 2, right, top + 2);
      const int th = DrawText(dc, m_ctx.Msg(kRows[r].titleKey), kLeft, top + 12, "label", "text");
      DrawText(dc, kRows[r].asset, kLeft, top + 14 + th, "small", "text_dim");
      const VornwxBitmapCache* cache = m_caches[r];
      for (int c = 0; c < columns; ++c) {
        const wxBitmap* image = nullptr;
        const int cx = kFirstColumn + c * kColumnWidth + kColumnWidth / 2;
        if (!cache || !VornGetImageWithFallback(*cache, kColumns[c].state, image) ||
            !image->IsOk()) {
          DrawCentred(dc, "-", cx, top + 18, "label", "text_dim");
          continue;
        }
        // Scaled down only when wider than the cell.
        const int maxW = kColumnWidth - 8;
        if (image->GetWidth() > maxW) {
          wxImage scaled = image->ConvertToImage().Scale(
              maxW, image->GetHeight() * maxW / image->GetWidth(), wxIMAGE_QUALITY_HIGH);
          dc.DrawBitmap(wxBitmap(scaled), cx - maxW / 2,
                        top + (kRowHeight - scaled.GetHeight()) / 2 + 2);
        } else {
          dc.DrawBitmap(*image, cx - image->GetWidth() / 2,
                        top + (kRowHeight - image->GetHeight()) / 2 + 2);
        }
      }
    }
  }

 private:
  std::vector<const VornwxBitmapCache*> m_caches;
};

const GalleryPageRegistrar kRegistrar({20, "Button states", "button-states",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ButtonStatesPage(parent, ctx);
                                       }});

}  // namespace
