// Writes the grey-scale mask pictures of the default skin. The image scripts
// of the skin colour these masks; change a shape here, then regenerate:
//
//   build/<dir>/tools/vorn-maskgen assets/default/Generic/
//
// Every mask is drawn from signed distances (one pixel of anti-aliasing) or,
// for glyphs, from thick line segments, so the output is exactly the same on
// every run.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "vornhost/Bitmap.h"

namespace {

// A grey picture with float coverage 0..1.
struct Mask {
  int w = 0, h = 0;
  std::vector<float> v;
  Mask(int width, int height) : w(width), h(height), v(static_cast<size_t>(width) * height, 0.f) {}
  float& at(int x, int y) { return v[static_cast<size_t>(y) * w + x]; }
  float get(int x, int y) const {
    if (x < 0 || y < 0 || x >= w || y >= h) return 0.f;
    return v[static_cast<size_t>(y) * w + x];
  }
};

using Field = std::function<float(float x, float y)>;  // signed distance, < 0 inside

float Clamp01(float f) {
  return std::min(1.f, std::max(0.f, f));
}

Field RoundRect(float x0, float y0, float x1, float y1, float r) {
  return [=](float px, float py) {
    const float cx = (x0 + x1) / 2, cy = (y0 + y1) / 2;
    const float qx = std::fabs(px - cx) - ((x1 - x0) / 2 - r);
    const float qy = std::fabs(py - cy) - ((y1 - y0) / 2 - r);
    const float ox = std::max(qx, 0.f), oy = std::max(qy, 0.f);
    return std::sqrt(ox * ox + oy * oy) + std::min(std::max(qx, qy), 0.f) - r;
  };
}

Field Circle(float cx, float cy, float r) {
  return [=](float px, float py) { return std::hypot(px - cx, py - cy) - r; };
}

// A stroke of half-width hw along the segment a-b, with round ends.
Field Segment(float ax, float ay, float bx, float by, float hw) {
  return [=](float px, float py) {
    const float dx = bx - ax, dy = by - ay;
    const float t = Clamp01(((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy));
    return std::hypot(px - (ax + t * dx), py - (ay + t * dy)) - hw;
  };
}

Field Union(Field a, Field b) {
  return [=](float x, float y) { return std::min(a(x, y), b(x, y)); };
}
Field Subtract(Field a, Field b) {
  return [=](float x, float y) { return std::max(a(x, y), -b(x, y)); };
}

// Coverage of a pixel, sampled at its centre with a one-pixel ramp.
Mask Fill(int w, int h, const Field& f) {
  Mask m(w, h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) m.at(x, y) = Clamp01(0.5f - f(x + 0.5f, y + 0.5f));
  return m;
}

// Per-pixel combination of masks.
Mask Combine(const Mask& a, const std::function<float(int x, int y, float v)>& op) {
  Mask m(a.w, a.h);
  for (int y = 0; y < a.h; ++y)
    for (int x = 0; x < a.w; ++x) m.at(x, y) = Clamp01(op(x, y, a.get(x, y)));
  return m;
}

Mask Minus(const Mask& a, const Mask& b) {
  return Combine(a, [&](int x, int y, float v) { return v - b.get(x, y); });
}

// The mask at strength on its top row, fading out over the next rows: light
// from above, or the shadow the rim throws into a well.
Mask TopFade(const Mask& m, float rows, float strength) {
  return Combine(
      m, [=](int, int y, float v) { return v * std::max(0.f, 1.f - (y - 1) / rows) * strength; });
}

// The one-pixel edge of a mask that faces up (dy = -1) or down (dy = 1).
Mask Edge(const Mask& m, int dy, float strength) {
  return Combine(m, [&](int x, int y, float v) { return (v - m.get(x, y + dy)) * strength; });
}

bool Save(const std::string& dir, const std::string& name, const Mask& m) {
  Bitmap bmp;
  if (!Create(bmp, m.w, m.h, 3)) return false;
  for (int y = 0; y < m.h; ++y)
    for (int x = 0; x < m.w; ++x) {
      const auto g = static_cast<unsigned char>(std::lround(m.get(x, y) * 255.f));
      unsigned char* p = bmp.Pixel(x, y);
      p[0] = p[1] = p[2] = g;
    }
  std::vector<unsigned char> png;
  if (!SaveBitmapEncode(bmp, png)) return false;
  const std::string path = dir + name;
  FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) return false;
  const bool ok = std::fwrite(png.data(), 1, png.size(), f) == png.size();
  return std::fclose(f) == 0 && ok;
}

class Writer {
 public:
  explicit Writer(std::string dir) : m_dir(std::move(dir)) {}
  void operator()(const std::string& name, const Mask& m) {
    if (Save(m_dir, name, m)) {
      ++m_count;
    } else {
      std::fprintf(stderr, "vorn-maskgen: cannot write %s%s\n", m_dir.c_str(), name.c_str());
      m_failed = true;
    }
  }
  int Count() const { return m_count; }
  bool Failed() const { return m_failed; }

 private:
  std::string m_dir;
  int m_count = 0;
  bool m_failed = false;
};

// The layers of a raised, rounded control face of w x h:
//   _shape   outline and face together (the picture's alpha)
//   _border  the one-pixel outline
//   _body    the face inside the outline
//   _sheen   a soft light from above over the upper face
//   _bevel   the lit top edge of the face
//   _shade   the shadowed bottom edge of the face
//   _inset   the shadow thrown onto a pressed face by the outline
void RaisedFace(Writer& out, const std::string& p, int w, int h, float r) {
  const Mask shape = Fill(w, h, RoundRect(0, 0, w, h, r));
  const Mask body = Fill(w, h, RoundRect(1, 1, w - 1, h - 1, r - 1));
  out(p + "_shape.png", shape);
  out(p + "_border.png", Minus(shape, body));
  out(p + "_body.png", body);
  out(p + "_sheen.png", TopFade(body, h * 0.6f, 0.16f));
  out(p + "_bevel.png", Edge(body, -1, 0.55f));
  out(p + "_shade.png", Edge(body, 1, 0.6f));
  out(p + "_inset.png", TopFade(body, 3.5f, 0.5f));
}

// A sunken, rounded well (edit fields): outline, inner well, top shadow and
// a lit lip under the bottom edge.
void SunkenWell(Writer& out, const std::string& p, int w, int h, float r) {
  const Mask shape = Fill(w, h, RoundRect(0, 0, w, h, r));
  const Mask well = Fill(w, h, RoundRect(1, 1, w - 1, h - 1, r - 1));
  out(p + "_shape.png", shape);
  out(p + "_border.png", Minus(shape, well));
  out(p + "_well.png", well);
  out(p + "_inset.png", TopFade(well, 4, 0.55f));
  out(p + "_lip.png", Edge(shape, 1, 0.35f));
}

// An isoceles arrow head pointing up (dir -1) or down (dir 1), centred at
// (cx, cy), drawn as two strokes so that it stays crisp at small sizes.
Field Chevron(float cx, float cy, float halfWidth, float height, int dir, float hw) {
  const float tipY = cy + dir * height / 2, baseY = cy - dir * height / 2;
  return Union(Segment(cx - halfWidth, baseY, cx, tipY, hw),
               Segment(cx, tipY, cx + halfWidth, baseY, hw));
}

// A solid triangle pointing up or down.
Field Triangle(float cx, float cy, float halfWidth, float height, int dir) {
  return [=](float px, float py) {
    // Distance to the three edges of a convex triangle, negative inside.
    const float tipY = cy + dir * height / 2, baseY = cy - dir * height / 2;
    const float ax = cx - halfWidth, bx = cx + halfWidth;
    auto edge = [&](float x0, float y0, float x1, float y1) {
      const float ex = x1 - x0, ey = y1 - y0, len = std::hypot(ex, ey);
      return ((px - x0) * ey - (py - y0) * ex) / len;
    };
    const float s = dir > 0 ? 1.f : -1.f;
    return std::max({s * edge(ax, baseY, bx, baseY), s * edge(bx, baseY, cx, tipY),
                     s * edge(cx, tipY, ax, baseY)});
  };
}

// Image-based scroll bar thumb: a 10 x 40 raised face with a grip in the
// middle and a mark at the end the thumb has reached.
void ScrollThumbMasks(Writer& out) {
  const int w = 10, h = 40;
  RaisedFace(out, "scrollthumb", w, h, 4);
  const Field grip = Union(Segment(3, 16, 7, 16, 0.6f),
                           Union(Segment(3, 20, 7, 20, 0.6f), Segment(3, 24, 7, 24, 0.6f)));
  out("scrollthumb_grip.png", Fill(w, h, grip));
  out("scrollthumb_start.png", Fill(w, h, Segment(3, 4.5f, 7, 4.5f, 0.9f)));
  out("scrollthumb_end.png", Fill(w, h, Segment(3, 35.5f, 7, 35.5f, 0.9f)));
}

// Multi-column box: the frame behind the whole box (stretched, corners kept),
// the heading strip, the spacer between its buttons, a 13 x 13 check box and
// 30 x 14 buttons with a plus or a minus.
void TableMasks(Writer& out) {
  {
    const int s = 32;
    const Mask shape = Fill(s, s, RoundRect(0, 0, s, s, 6));
    const Mask body = Fill(s, s, RoundRect(1, 1, s - 1, s - 1, 5));
    out("table_frame_shape.png", shape);
    out("table_frame_border.png", Minus(shape, body));
    out("table_frame_body.png", body);
    out("table_frame_sheen.png", TopFade(body, 12, 0.08f));
  }
  RaisedFace(out, "table_heading", 32, 22, 3);
  out("table_spacer_dot.png", Fill(7, 14, Circle(3.5f, 7, 1.4f)));
  SunkenWell(out, "table_check", 13, 13, 3);
  const Field tick =
      Union(Segment(3.2f, 6.8f, 5.4f, 9.2f, 0.9f), Segment(5.4f, 9.2f, 9.8f, 3.6f, 0.9f));
  out("table_check_tick.png", Fill(13, 13, tick));
  RaisedFace(out, "table_button", 30, 14, 4);
  const Field minus = Segment(11, 7, 19, 7, 0.9f);
  const Field plus = Union(minus, Segment(15, 3, 15, 11, 0.9f));
  out("table_button_plus.png", Fill(30, 14, plus));
  out("table_button_minus.png", Fill(30, 14, minus));
}

// ---- instruments -------------------------------------------------------------

Field UnionAll(const std::vector<Field>& parts) {
  return [parts](float x, float y) {
    float d = 1e9f;
    for (const Field& f : parts) d = std::min(d, f(x, y));
    return d;
  };
}

// Capital letters of the compass as strokes in a unit box (y down).
std::vector<std::vector<std::pair<float, float>>> GlyphStrokes(char c) {
  switch (c) {
    case 'N':
      return {{{0, 1}, {0, 0}, {1, 1}, {1, 0}}};
    case 'E':
      return {{{1, 0}, {0, 0}, {0, 1}, {1, 1}}, {{0, 0.5f}, {0.8f, 0.5f}}};
    case 'W':
      return {{{0, 0}, {0.25f, 1}, {0.5f, 0.35f}, {0.75f, 1}, {1, 0}}};
    case 'S':
      return {{{0.95f, 0.15f},
               {0.75f, 0},
               {0.25f, 0},
               {0.03f, 0.15f},
               {0.03f, 0.35f},
               {0.25f, 0.48f},
               {0.75f, 0.52f},
               {0.97f, 0.65f},
               {0.97f, 0.85f},
               {0.75f, 1},
               {0.25f, 1},
               {0.05f, 0.85f}}};
    default:
      return {};
  }
}

// text centred at cx with its top at top, letters h high.
void AddText(std::vector<Field>& parts, const std::string& text, float cx, float top, float h,
             float hw) {
  auto width = [&](char c) { return (c == 'W' ? 1.0f : 0.68f) * h; };
  const float gap = h * 0.3f;
  float total = -gap;
  for (char c : text) total += width(c) + gap;
  float x = cx - total / 2;
  for (char c : text) {
    const float w = width(c);
    for (const auto& line : GlyphStrokes(c))
      for (std::size_t i = 1; i < line.size(); ++i)
        parts.push_back(Segment(x + line[i - 1].first * w, top + line[i - 1].second * h,
                                x + line[i].first * w, top + line[i].second * h, hw));
    x += w + gap;
  }
}

// A radial tick at turn t (clockwise from the top) between radii r0 and r1.
Field Tick(float cx, float cy, float t, float r0, float r1, float hw) {
  const float a = t * 2 * 3.14159265f, sx = std::sin(a), sy = -std::cos(a);
  return Segment(cx + sx * r0, cy + sy * r0, cx + sx * r1, cy + sy * r1, hw);
}

// The compass rose strip (3210 pixels a turn, repeating), its frame and the
// lubber mark; the clock face and its hand; the dial face; the horizon ball
// with its pitch ladder.
void InstrumentMasks(Writer& out) {
  {
    const int period = 3210, h = 44;
    const float perDegree = period / 360.f;
    std::vector<Field> ticks, cardinals, north, minor;
    for (int d = 0; d <= 360; d += 5) {
      const float x = d * perDegree, len = d % 90 == 0 ? 14.f : d % 15 == 0 ? 9.f : 5.f;
      ticks.push_back(Segment(x, h - 3 - len, x, h - 3.f, d % 15 == 0 ? 0.9f : 0.6f));
    }
    // A sixteen-point rose, so that a 320-pixel view always shows a name.
    const char* names[] = {"N",   "NNE", "NE",  "ENE", "E",   "ESE", "SE",  "SSE", "S",
                           "SSW", "SW",  "WSW", "W",   "WNW", "NW",  "NNW", "N"};
    for (int i = 0; i <= 16; ++i) {
      const float x = i * 22.5f * perDegree;
      if (i % 4 == 0)
        AddText(i % 16 == 0 ? north : cardinals, names[i], x, 6, 14, 1.1f);
      else if (i % 2 == 0)
        AddText(minor, names[i], x, 10, 9, 0.75f);
      else
        AddText(minor, names[i], x, 12, 7, 0.6f);
    }
    const Field solid = [](float, float) { return -1.f; };
    out("compass_solid.png", Fill(period, h, solid));
    out("compass_ticks.png", Fill(period, h, UnionAll(ticks)));
    out("compass_cardinal.png", Fill(period, h, UnionAll(cardinals)));
    out("compass_north.png", Fill(period, h, UnionAll(north)));
    out("compass_intercardinal.png", Fill(period, h, UnionAll(minor)));

    const int w = 320;
    const Mask rim =
        Minus(Fill(w, h, RoundRect(0, 0, w, h, 4)), Fill(w, h, RoundRect(1, 1, w - 1, h - 1, 3)));
    // The strip fades into the panel towards both ends.
    const Mask fade = Combine(Fill(w, h, RoundRect(0, 0, w, h, 4)), [&](int x, int, float v) {
      const float edge = std::min(x + 0.5f, w - x - 0.5f);
      return v * (1.f - edge / 56.f);
    });
    out("compass_rim.png", rim);
    out("compass_frame.png",
        Combine(fade, [&](int x, int y, float v) { return v + rim.get(x, y); }));
    out("compass_lubber.png",
        Fill(w, h, Union(Triangle(160, 5.5f, 6, 9, 1), Segment(160, 9, 160, h - 2.f, 0.6f))));
  }
  {
    // Clock face, 120 x 120, and the hand it turns.
    const float c = 60;
    const Mask shape = Fill(120, 120, Circle(c, c, 58));
    const Mask body = Fill(120, 120, Circle(c, c, 56));
    out("clock_shape.png", shape);
    out("clock_rim.png", Minus(shape, body));
    out("clock_body.png", body);
    out("clock_sheen.png", TopFade(body, 60, 0.1f));
    std::vector<Field> hours, minutes;
    for (int i = 1; i < 12; ++i)
      hours.push_back(Tick(c, c, i / 12.f, i % 3 == 0 ? 40.f : 44.f, 51, i % 3 == 0 ? 1.6f : 1.1f));
    for (int i = 0; i < 60; ++i)
      if (i % 5) minutes.push_back(Tick(c, c, i / 60.f, 49, 51, 0.5f));
    out("clock_hours.png", Fill(120, 120, UnionAll(hours)));
    out("clock_minutes.png", Fill(120, 120, UnionAll(minutes)));
    out("clock_twelve.png", Fill(120, 120, Tick(c, c, 0, 38, 51, 2.0f)));
    out("clock_hand.png",
        Fill(120, 120, Union(Segment(c, c + 8, c, c - 34, 2.2f), Circle(c, c, 4.5f))));
    out("clock_hub.png", Fill(120, 120, Circle(c, c, 2)));
  }
  {
    // Dial face, 120 x 120: 36 ticks outside the knob's circle (radius 40).
    const float c = 60;
    const Mask shape = Fill(120, 120, Circle(c, c, 58));
    const Mask body = Fill(120, 120, Circle(c, c, 56));
    out("dial_shape.png", shape);
    out("dial_rim.png", Minus(shape, body));
    out("dial_body.png", body);
    std::vector<Field> ticks;
    for (int i = 0; i < 36; ++i)
      if (i % 9) ticks.push_back(Tick(c, c, i / 36.f, 47, 52, 0.7f));
    std::vector<Field> quarters;
    for (int i = 0; i < 4; ++i) quarters.push_back(Tick(c, c, i / 4.f, 45, 53, 1.4f));
    out("dial_ticks.png", Fill(120, 120, UnionAll(ticks)));
    out("dial_quarters.png", Fill(120, 120, UnionAll(quarters)));
    out("dial_track.png", Fill(120, 120, [&](float x, float y) {
          return std::fabs(std::hypot(x - c, y - c) - 40) - 0.6f;
        }));
  }
  {
    // Horizon ball, 260 x 260, the horizon across the middle.
    const int s = 260;
    const float mid = s / 2.f;
    out("horizon_solid.png", Fill(s, s, [](float, float) { return -1.f; }));
    out("horizon_sky.png", Fill(s, s, RoundRect(-1, -1, s + 1, mid, 0)));
    out("horizon_ground.png", Fill(s, s, RoundRect(-1, mid, s + 1, s + 1, 0)));
    out("horizon_glow.png",
        Combine(Fill(s, s, RoundRect(-1, -1, s + 1, mid, 0)), [&](int, int y, float v) {
          return v * std::max(0.f, 1.f - (mid - y) / 70.f) * 0.8f;
        }));
    out("horizon_line.png", Fill(s, s, RoundRect(-1, mid - 1, s + 1, mid + 1, 0)));
    std::vector<Field> ladder;
    for (int step = 1; step <= 4; ++step)
      for (int side : {-1, 1}) {
        const float y = mid + side * step * 15.f, half = step % 2 ? 9.f : 17.f;
        ladder.push_back(Segment(mid - half, y, mid + half, y, 0.6f));
      }
    out("horizon_ladder.png", Fill(s, s, UnionAll(ladder)));
  }
}

// The mask turned about its diagonal: a vertical control from a horizontal
// one.
Mask Transposed(const Mask& m) {
  Mask t(m.h, m.w);
  for (int y = 0; y < m.h; ++y)
    for (int x = 0; x < m.w; ++x) t.at(y, x) = m.get(x, y);
  return t;
}

// Sliders and the thumb wheel.
//   slider_{left,mid,right}_*  an 8-pixel pill track in three pieces
//   slider_knob_*              a 16 x 16 round thumb with an accent dot
//   fader_track_*, fader_cap_* a 160 x 14 groove with ticks, a 12 x 22 cap
//   thumbwheel_*               a 96 x 22 wheel (and _v, 22 x 96): frame with
//                              a hole, the window's cylinder shading, and a
//                              ridged strip repeating every 6 pixels
void ValueControlMasks(Writer& out) {
  {
    const int h = 8;
    struct Piece {
      const char* name;
      int w;
      float x0, x1;  // the pill's extent in the piece's coordinates
    };
    for (const Piece& p : {Piece{"left", 6, 0, 40}, Piece{"mid", 4, -20, 24},
                           Piece{"right", 6, -34, 6}}) {
      const Mask shape = Fill(p.w, h, RoundRect(p.x0, 0, p.x1, h, 4));
      const Mask well = Fill(p.w, h, RoundRect(p.x0 + 1, 1, p.x1 - 1, h - 1, 3));
      const std::string n = std::string("slider_") + p.name;
      out(n + "_border.png", Minus(shape, well));
      out(n + "_well.png", well);
      out(n + "_inset.png", TopFade(well, 3, 0.5f));
    }
    const int k = 16;
    const Mask shape = Fill(k, k, Circle(8, 8, 8));
    const Mask body = Fill(k, k, Circle(8, 8, 7));
    out("slider_knob_border.png", Minus(shape, body));
    out("slider_knob_body.png", body);
    out("slider_knob_sheen.png", TopFade(body, 9, 0.18f));
    out("slider_knob_shade.png", Edge(body, 1, 0.5f));
    out("slider_knob_dot.png", Fill(k, k, Circle(8, 8, 2.2f)));
  }
  {
    const int w = 160, h = 14;
    const Mask groove = Fill(w, h, RoundRect(2, 5, w - 2, 9, 2));
    out("fader_track_groove.png", groove);
    out("fader_track_lip.png", Edge(groove, 1, 0.4f));
    // Ticks under the thumb's middle at every tenth of its travel (the cap
    // is 12 wide: the middle runs from 6 to w - 6).
    Field ticks = Segment(-10, -10, -10, -9, 0.1f);
    for (int i = 0; i <= 10; ++i) {
      const float x = 6 + (w - 12) * i / 10.f;
      const float len = i % 5 == 0 ? 3.5f : 2.f;
      ticks = Union(ticks, Union(Segment(x, 0.5f, x, len, 0.5f),
                                 Segment(x, h - len, x, h - 0.5f, 0.5f)));
    }
    out("fader_track_ticks.png", Fill(w, h, ticks));
    const int cw = 12, ch = 22;
    const Mask cap = Fill(cw, ch, RoundRect(0, 0, cw, ch, 2.5f));
    const Mask body = Fill(cw, ch, RoundRect(1, 1, cw - 1, ch - 1, 1.5f));
    out("fader_cap_border.png", Minus(cap, body));
    out("fader_cap_body.png", body);
    out("fader_cap_sheen.png", TopFade(body, 10, 0.18f));
    out("fader_cap_line.png", Fill(cw, ch, RoundRect(2, 10, cw - 2, 12, 0.5f)));
  }
  {
    const int w = 96, h = 22, period = 6;
    const Mask outer = Fill(w, h, RoundRect(0, 0, w, h, 5));
    const Mask body = Fill(w, h, RoundRect(1, 1, w - 1, h - 1, 4));
    const Mask hole = Fill(w, h, RoundRect(4, 3, w - 4, h - 3, 2));
    const Mask lip = Minus(Fill(w, h, RoundRect(3, 2, w - 3, h - 2, 3)), hole);
    // The window: a cylinder lit from the front, dark towards its rims.
    const float pi = 3.14159265f;
    const Mask shading = Combine(hole, [&](int x, int, float v) {
      const float u = Clamp01((x + 0.5f - 4) / (w - 8));
      return v * (0.25f + 0.75f * std::sin(pi * u));
    });
    // The strip: a light ridge and a dark groove every period, so any
    // window onto it repeats after one period.
    Mask ridge(w + period, h), groove(w + period, h);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w + period; ++x) {
        const int phase = x % period;
        ridge.at(x, y) = phase == 1 ? 1.f : phase == 0 || phase == 2 ? 0.35f : 0.f;
        groove.at(x, y) = phase == 4 ? 1.f : phase == 5 ? 0.4f : 0.f;
      }
    const struct {
      const char* name;
      Mask m;
    } layers[] = {
        {"frame_shape", Minus(outer, hole)},  {"frame_border", Minus(outer, body)},
        {"frame_body", Minus(body, hole)},    {"frame_sheen", TopFade(Minus(body, hole), 8, 0.15f)},
        {"frame_lip", lip},                   {"window", shading},
        {"strip_ridge", ridge},               {"strip_groove", groove},
    };
    for (const auto& l : layers) {
      out(std::string("thumbwheel_") + l.name + ".png", l.m);
      out(std::string("thumbwheel_") + l.name + "_v.png", Transposed(l.m));
    }
  }
}

// The edits' other widgets: a 240 x 96 multi-line box and a 96 x 22
// read-only value box, both sunken like the single-line field.
void EditWidgetMasks(Writer& out) {
  SunkenWell(out, "editbox", 240, 96, 4);
  SunkenWell(out, "editvalue", 96, 22, 3);
}

// List button: the push button's face with three list lines and a small
// chevron under them.
void ListButtonMasks(Writer& out) {
  auto glyph = [](float dy) {
    const Field lines = Union(
        Segment(10, 10 + dy, 22, 10 + dy, 0.8f),
        Union(Segment(10, 14 + dy, 22, 14 + dy, 0.8f), Segment(10, 18 + dy, 22, 18 + dy, 0.8f)));
    return Union(lines, Chevron(16, 23 + dy, 3, 2.5f, 1, 0.8f));
  };
  out("listbutton_glyph.png", Fill(32, 32, glyph(0)));
  out("listbutton_glyph_down.png", Fill(32, 32, glyph(1)));
}

// Menus, pop-up buttons and the movie bar: the pop-up buttons' glyphs on the
// push button's 32 x 32 face (menu lines with an arrow up or to the right),
// the menu's 12 x 9 radio mark, and the movie bar's 9 x 10 range markers
// and 9 x 30 playhead, each with a one-pixel outline.
void MenuAndBarMasks(Writer& out) {
  const Field lines = Union(Segment(9, 15, 20, 15, 0.8f),
                            Union(Segment(9, 19, 20, 19, 0.8f), Segment(9, 23, 20, 23, 0.8f)));
  const Field up = Union(lines, Triangle(16, 8.5f, 4, 3.5f, -1));
  // A triangle pointing right: the downward one with x and y swapped.
  const Field downAtY = Triangle(19, 24.5f, 4, 3.5f, 1);
  const Field right = Union(Union(Segment(7, 12, 18, 12, 0.8f),
                                  Union(Segment(7, 16, 18, 16, 0.8f), Segment(7, 20, 18, 20, 0.8f))),
                            [=](float x, float y) { return downAtY(y, x); });
  auto shifted = [](Field f) { return [f](float x, float y) { return f(x, y - 1); }; };
  out("popup_glyph_up.png", Fill(32, 32, up));
  out("popup_glyph_up_down.png", Fill(32, 32, shifted(up)));
  out("popup_glyph_side.png", Fill(32, 32, right));
  out("popup_glyph_side_down.png", Fill(32, 32, shifted(right)));

  const Mask markShape = Fill(12, 9, Circle(6.5f, 4.5f, 4.2f));
  out("menumark_shape.png", markShape);
  out("menumark_ring.png", Minus(markShape, Fill(12, 9, Circle(6.5f, 4.5f, 3.1f))));
  out("menumark_dot.png", Fill(12, 9, Circle(6.5f, 4.5f, 2.1f)));

  // Range markers: a right-angled wedge whose upright edge stands where the
  // range begins (start) or ends (end) and whose slope falls away from it.
  auto marker = [](bool start) {
    return [start](float x, float y) {
      const float px = start ? x : 9 - x;  // the end marker is the mirror image
      const float slope = ((9.5f - y) - 1.125f * (px - 0.5f)) / 1.505f;
      return std::max({px - 8.5f, y - 9.5f, slope});
    };
  };
  for (bool start : {true, false}) {
    const std::string p = start ? "movie_start" : "movie_end";
    const Field f = marker(start);
    const Mask shape = Fill(9, 10, [=](float x, float y) { return f(x, y) - 0.9f; });
    out(p + "_shape.png", shape);
    out(p + "_fill.png", Fill(9, 10, [=](float x, float y) { return f(x, y) + 0.4f; }));
  }
  const Field head = Union(Triangle(4.5f, 4, 4, 6, 1), Segment(4.5f, 4, 4.5f, 29, 0.9f));
  out("movie_head_shape.png", Fill(9, 30, [=](float x, float y) { return head(x, y) - 0.9f; }));
  out("movie_head_fill.png", Fill(9, 30, head));
}

// Parameter tree editors: a 16 x 16 check box (a sunken well and a tick) and
// the branch toggle's 16 x 16 arrow head, pointing right while the branch is
// collapsed and down while it is open.
void TreeEditorMasks(Writer& out) {
  SunkenWell(out, "treecheck", 16, 16, 3);
  const Field tick = Union(Segment(4, 8.5f, 7, 11.5f, 1.1f), Segment(7, 11.5f, 12, 4.5f, 1.1f));
  out("treecheck_tick.png", Fill(16, 16, tick));
  out("treecheck_tick_down.png", Fill(16, 16, [&](float x, float y) { return tick(x, y - 1); }));
  const Field down = Triangle(8, 8.5f, 4.5f, 5, 1);
  out("treebranch_open.png", Fill(16, 16, down));
  out("treebranch_closed.png", Fill(16, 16, [&](float x, float y) { return down(y, x); }));
  out("treebranch_ring.png", Fill(16, 16, Subtract(Circle(8, 8, 7.5f), Circle(8, 8, 6.5f))));
  out("treebranch_shape.png", Fill(16, 16, Circle(8, 8, 7.5f)));
}

// Parameter tree button editors: a 34 x 18 face whose glyph names the editor
// it opens (texture, function, curve, gradient, material; the colour button
// has a well its swatch is painted into), and the glyphs of the 18 x 18
// toggles that open a table or a pop-up box (on the function button's face).
void TreeButtonEditorMasks(Writer& out) {
  const int w = 34, h = 18;
  RaisedFace(out, "treeprim", w, h, 3);
  out("treeprim_well.png", Fill(w, h, RoundRect(3, 3, w - 3, h - 3, 2)));
  const Field frame =
      Subtract(RoundRect(11, 3.5f, 23, 14.5f, 1), RoundRect(12.2f, 4.7f, 21.8f, 13.3f, 0.5f));
  const Field texture =
      Union(frame, Union(RoundRect(12, 4.5f, 17, 9, 0), RoundRect(17, 9, 22, 13.5f, 0)));
  Field wave = Segment(9, 9, 10, 9, 0.85f);
  for (int i = 0; i < 16; ++i) {
    const float x0 = 9 + i, x1 = 10 + i;
    wave = Union(wave, Segment(x0, 9 - 4 * std::sin((x0 - 9) / 16 * 6.2832f), x1,
                               9 - 4 * std::sin((x1 - 9) / 16 * 6.2832f), 0.85f));
  }
  Field curve = Union(Circle(9, 14, 1.4f), Circle(25, 4, 1.4f));
  for (int i = 0; i < 16; ++i) {
    auto ease = [](float t) { return t * t * (3 - 2 * t); };
    const float t0 = i / 16.f, t1 = (i + 1) / 16.f;
    curve = Union(curve,
                  Segment(9 + 16 * t0, 14 - 10 * ease(t0), 9 + 16 * t1, 14 - 10 * ease(t1), 0.8f));
  }
  const Field sphere = Subtract(Circle(17, 9, 5.5f), Circle(17, 9, 4.5f));
  const Field material = Union(sphere, Circle(15.2f, 7.2f, 1.7f));
  struct Glyph {
    const char* name;
    Field f;
  };
  const Glyph glyphs[] = {
      {"texture", texture}, {"function", wave}, {"curve", curve}, {"material", material}};
  for (const Glyph& g : glyphs) {
    const Field f = g.f;
    out(std::string("treeprim_") + g.name + ".png", Fill(w, h, f));
    out(std::string("treeprim_") + g.name + "_down.png",
        Fill(w, h, [=](float x, float y) { return f(x, y - 1); }));
  }
  // The gradient glyph is a ramp: coverage grows from left to right.
  for (int down = 0; down < 2; ++down) {
    const Mask bar = Fill(w, h, RoundRect(9, 4.5f + down, 25, 13.5f + down, 1));
    out(down ? "treeprim_gradient_down.png" : "treeprim_gradient.png",
        Combine(bar, [](int x, int, float v) { return v * Clamp01((x - 8.5f) / 16.f); }));
  }
  const Field table =
      Union(Subtract(RoundRect(4, 4.5f, 14, 13.5f, 1), RoundRect(5.2f, 5.7f, 12.8f, 12.3f, 0.5f)),
            Union(Segment(5, 9, 13, 9, 0.55f), Segment(9, 5, 9, 13, 0.55f)));
  const Field opened = Chevron(9, 9, 3.5f, 3.5f, -1, 0.9f);
  const Field closed = Chevron(9, 9, 3.5f, 3.5f, 1, 0.9f);
  const Glyph toggles[] = {{"table", table}, {"open", opened}, {"closed", closed}};
  for (const Glyph& g : toggles) {
    const Field f = g.f;
    out(std::string("treetoggle_") + g.name + ".png", Fill(18, 18, f));
    out(std::string("treetoggle_") + g.name + "_down.png",
        Fill(18, 18, [=](float x, float y) { return f(x, y - 1); }));
  }
}

void Generate(Writer& out) {
  // Push button: a 32 x 32 tool face with a plus glyph.
  RaisedFace(out, "push", 32, 32, 6);
  const Field plus =
      Union(Segment(10.5f, 16, 21.5f, 16, 1.1f), Segment(16, 10.5f, 16, 21.5f, 1.1f));
  out("push_glyph.png", Fill(32, 32, plus));
  out("push_glyph_down.png", Fill(32, 32, [&](float x, float y) { return plus(x, y - 1); }));

  // Toggle switch: a 40 x 20 pill track with a round knob at either end.
  {
    const int w = 40, h = 20;
    const Mask shape = Fill(w, h, RoundRect(0, 0, w, h, 10));
    const Mask track = Fill(w, h, RoundRect(1, 1, w - 1, h - 1, 9));
    out("toggle_shape.png", shape);
    out("toggle_border.png", Minus(shape, track));
    out("toggle_track.png", track);
    out("toggle_inset.png", TopFade(track, 4, 0.45f));
    struct Knob {
      const char* name;
      float x0, x1;  // centres of the knob's two ends (equal for a round knob)
    };
    const Knob knobs[] = {
        {"off", 10, 10}, {"on", 30, 30}, {"off_down", 10, 14}, {"on_down", 26, 30}};
    for (const Knob& k : knobs) {
      const Field knob = Segment(k.x0, 10, k.x1, 10, 7);
      const Field rim = Segment(k.x0, 10, k.x1, 10, 8);
      const Mask disc = Fill(w, h, knob);
      out(std::string("toggle_knob_") + k.name + ".png", disc);
      out(std::string("toggle_rim_") + k.name + ".png", Minus(Fill(w, h, rim), disc));
      out(std::string("toggle_knobshade_") + k.name + ".png",
          Combine(disc, [&](int, int y, float v) { return v * Clamp01((y - 8) / 8.f) * 0.35f; }));
    }
  }

  // Radio button: an 18 x 18 round well with a centre dot.
  {
    const int s = 18;
    const Mask shape = Fill(s, s, Circle(9, 9, 9));
    const Mask well = Fill(s, s, Circle(9, 9, 8));
    out("radio_shape.png", shape);
    out("radio_ring.png", Minus(shape, well));
    out("radio_well.png", well);
    out("radio_inset.png", TopFade(well, 5, 0.5f));
    out("radio_dot.png", Fill(s, s, Circle(9, 9, 4.2f)));
    out("radio_dot_down.png", Fill(s, s, Circle(9, 9, 3.2f)));
  }

  // Momentary buttons: 20 x 20 faces with an up or a down arrow head.
  RaisedFace(out, "moment", 20, 20, 4);
  out("moment_arrow_up.png", Fill(20, 20, Triangle(10, 9.5f, 4.5f, 4.5f, -1)));
  out("moment_arrow_up_down.png", Fill(20, 20, Triangle(10, 10.5f, 4.5f, 4.5f, -1)));
  out("moment_arrow_down.png", Fill(20, 20, Triangle(10, 10.5f, 4.5f, 4.5f, 1)));
  out("moment_arrow_down_down.png", Fill(20, 20, Triangle(10, 11.5f, 4.5f, 4.5f, 1)));

  // Moon button: a 22 x 22 round puck carrying a crescent.
  {
    const int s = 22;
    const Mask shape = Fill(s, s, Circle(11, 11, 11));
    const Mask body = Fill(s, s, Circle(11, 11, 10));
    out("moon_shape.png", shape);
    out("moon_border.png", Minus(shape, body));
    out("moon_body.png", body);
    out("moon_sheen.png", TopFade(body, 12, 0.16f));
    out("moon_inset.png", TopFade(body, 4, 0.5f));
    const Field crescent = Subtract(Circle(11, 11, 6), Circle(13.6f, 8.8f, 5));
    out("moon_crescent.png", Fill(s, s, crescent));
    out("moon_crescent_down.png", Fill(s, s, [&](float x, float y) { return crescent(x, y - 1); }));
  }

  // Text button: a 96 x 24 face; the label is drawn by the control. An
  // accent bar under the label marks the on states.
  RaisedFace(out, "text", 96, 24, 5);
  out("text_indicator.png", Fill(96, 24, RoundRect(30, 19, 66, 21, 1)));

  // List-box scroll bar end pieces: an 11 x 11 cap with or without arrow.
  {
    const int s = 11;
    const Mask shape = Fill(s, s, RoundRect(0, 0, s, s, 3));
    const Mask body = Fill(s, s, RoundRect(1, 1, s - 1, s - 1, 2));
    out("scroll_border.png", Minus(shape, body));
    out("scroll_body.png", body);
    out("scroll_arrow_up.png", Fill(s, s, Chevron(5.5f, 5.5f, 2.6f, 2.6f, -1, 0.75f)));
    out("scroll_arrow_down.png", Fill(s, s, Chevron(5.5f, 5.5f, 2.6f, 2.6f, 1, 0.75f)));
    out("scroll_grip.png", Fill(s, s, Segment(3.5f, 5.5f, 7.5f, 5.5f, 0.6f)));
  }

  // Edit field: a 160 x 22 sunken well.
  SunkenWell(out, "edit", 160, 22, 3);

  // List box: a 140 x 22 raised face with a divider and a chevron.
  RaisedFace(out, "listbox", 140, 22, 4);
  out("listbox_divider.png", Fill(140, 22, RoundRect(117, 5, 118, 17, 0)));
  out("listbox_chevron.png", Fill(140, 22, Chevron(128.5f, 11, 3.5f, 3.5f, 1, 0.9f)));
  out("listbox_chevron_down.png", Fill(140, 22, Chevron(128.5f, 12, 3.5f, 3.5f, 1, 0.9f)));
  out("listbox_seldot.png", Fill(8, 8, Circle(4, 4, 3)));

  // Parameter tree: a 72 x 18 value field, a 120 x 18 list box and an
  // 18 x 18 function button that opens a list.
  SunkenWell(out, "treeedit", 72, 18, 3);
  RaisedFace(out, "treelist", 120, 18, 3);
  out("treelist_divider.png", Fill(120, 18, RoundRect(101, 4, 102, 14, 0)));
  out("treelist_chevron.png", Fill(120, 18, Chevron(110.5f, 9, 3, 3, 1, 0.85f)));
  out("treelist_chevron_down.png", Fill(120, 18, Chevron(110.5f, 10, 3, 3, 1, 0.85f)));
  RaisedFace(out, "treefunc", 18, 18, 3);
  const Field dots = Union(Circle(5, 9, 1.3f), Union(Circle(9, 9, 1.3f), Circle(13, 9, 1.3f)));
  out("treefunc_glyph.png", Fill(18, 18, dots));
  out("treefunc_glyph_down.png", Fill(18, 18, [&](float x, float y) { return dots(x, y - 1); }));
  ScrollThumbMasks(out);
  TableMasks(out);
  InstrumentMasks(out);
  ValueControlMasks(out);
  EditWidgetMasks(out);
  ListButtonMasks(out);
  MenuAndBarMasks(out);
  TreeEditorMasks(out);
  TreeButtonEditorMasks(out);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr,
                 "usage: vorn-maskgen OUTDIR/\n"
                 "Writes the mask pictures of the default skin into OUTDIR (a directory\n"
                 "that exists; the name is used as a prefix and should end with '/').\n");
    return 2;
  }
  std::string dir = argv[1];
  if (!dir.empty() && dir.back() != '/') dir += '/';
  Writer out(dir);
  Generate(out);
  if (out.Failed()) return 1;
  std::printf("vorn-maskgen: wrote %d masks to %s\n", out.Count(), dir.c_str());
  return 0;
}
