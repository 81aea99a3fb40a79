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
// The picture at (fx, fy) by bilinear interpolation, clamped to its edges, so
// that the turned lines of the ball stay smooth.
ColorA Sample(const BitmapA& picture, double fx, double fy) {
  fx = std::clamp(fx - 0.5, 0.0, picture.width - 1.0);
  fy = std::clamp(fy - 0.5, 0.0, picture.height - 1.0);
  const int x0 = static_cast<int>(fx), y0 = static_cast<int>(fy);
  const int x1 = std::min(x0 + 1, picture.width - 1), y1 = std::min(y0 + 1, picture.height - 1);
  const double tx = fx - x0, ty = fy - y0;
  ColorA c[4];
  ::Get(picture, x0, y0, c[0]);
  ::Get(picture, x1, y0, c[1]);
  ::Get(picture, x0, y1, c[2]);
  ::Get(picture, x1, y1, c[3]);
  auto mix = [&](double ColorA::*channel) {
    return (c[0].*channel * (1 - tx) + c[1].*channel * tx) * (1 - ty) +
           (c[2].*channel * (1 - tx) + c[3].*channel * tx) * ty;
  };
  return ColorA(mix(&ColorA::r), mix(&ColorA::g), mix(&ColorA::b), 1.0);
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
          c = Sample(*m_pBall, m_pBall->width / 2.0 + u, m_pBall->height / 2.0 + v);
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
