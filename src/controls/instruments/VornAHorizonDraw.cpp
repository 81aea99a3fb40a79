// Drawing of the artificial horizon: the ball picture turned to the roll
// line and shifted to the pitch handle, inside a ring with the three handles.
#include <wx/dc.h>

#include <algorithm>
#include <cmath>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"

namespace {
constexpr int kHandleRadius = 4;
// Without a ball picture: a plain sky and ground.
const ColorA kPlainSky(0.16, 0.33, 0.37);
const ColorA kPlainGround(0.30, 0.25, 0.20);

struct Axis {
  double x, y;
};
Axis Unit(const wxPoint& from, const wxPoint& to, Axis fallback) {
  const double dx = to.x - from.x, dy = to.y - from.y, length = std::hypot(dx, dy);
  return length > 0.0 ? Axis{dx / length, dy / length} : fallback;
}
}  // namespace

void VornAHorizonControl::DrawBall(wxDC& dc) {
  const int side = 2 * m_radius + 1;
  BitmapA disc;
  if (m_radius <= 0 || !::Create(disc, side, side)) return;
  // Along the roll line (B to A) and across it towards the ground (end 2 to
  // end 1); the ball's horizon runs across its middle.
  const Axis along = Unit(m_b, m_a, {1, 0}), down = Unit(m_end2, m_end1, {0, 1});
  const ColorA outside = WxCtoCA(GetBgColour());
  const bool ball = m_pBall && !m_pBall->IsEmpty();
  const long r2 = static_cast<long>(m_radius) * m_radius;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const int px = x - m_radius, py = y - m_radius;
      ColorA c = outside;
      if (static_cast<long>(px) * px + static_cast<long>(py) * py <= r2) {
        const double rx = m_centreX + px - m_c.x, ry = m_centreY + py - m_c.y;
        const double u = rx * along.x + ry * along.y, v = rx * down.x + ry * down.y;
        if (ball) {
          const int bx = std::clamp(static_cast<int>(std::floor(m_pBall->width / 2.0 + u)), 0,
                                    m_pBall->width - 1);
          const int by = std::clamp(static_cast<int>(std::floor(m_pBall->height / 2.0 + v)), 0,
                                    m_pBall->height - 1);
          ::Get(*m_pBall, bx, by, c);
          c.a = 1.0;
        } else {
          c = v < 0 ? kPlainSky : kPlainGround;
        }
      }
      ::Set(disc, x, y, c);
    }
  }
  wxBitmap bitmap;
  if (ConvertTo(bitmap, disc)) dc.DrawBitmap(bitmap, m_centreX - m_radius, m_centreY - m_radius);
}

void VornAHorizonControl::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  VornWindow::OnDraw(dc);
  DrawBall(*dc);
  const wxColour ink = GetFgColour().IsOk() ? GetFgColour() : wxColour(*wxWHITE);
  dc->SetBrush(*wxTRANSPARENT_BRUSH);
  dc->SetPen(wxPen(ink, 2));
  dc->DrawCircle(m_centreX, m_centreY, m_radius);
  // The fixed aircraft: wings either side of the centre and a dot.
  const int wing = std::max(4, m_radius / 3);
  dc->DrawLine(m_centreX - 2 * wing, m_centreY, m_centreX - wing / 2, m_centreY);
  dc->DrawLine(m_centreX + wing / 2, m_centreY, m_centreX + 2 * wing, m_centreY);
  dc->SetPen(wxPen(ink, 1));
  dc->SetBrush(wxBrush(ink));
  dc->DrawCircle(m_centreX, m_centreY, 2);
  for (const wxPoint& h : {m_a, m_b}) dc->DrawCircle(h, kHandleRadius);
  dc->SetBrush(wxBrush(GetBgColour()));
  const wxPoint diamond[] = {{0, -kHandleRadius - 1},
                             {kHandleRadius + 1, 0},
                             {0, kHandleRadius + 1},
                             {-kHandleRadius - 1, 0}};
  dc->DrawPolygon(4, diamond, m_c.x, m_c.y);
}
