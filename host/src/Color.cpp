#include "vornhost/Color.h"

#include <algorithm>
#include <cmath>

void Color::RGBtoHSV(double& h, double& s, double& v) const {
  const double maxc = std::max({r, g, b});
  const double minc = std::min({r, g, b});
  const double delta = maxc - minc;
  v = maxc;
  s = maxc > 0.0 ? delta / maxc : 0.0;
  if (delta <= 0.0) {
    h = 0.0;
    return;
  }
  double hue;
  if (maxc == r)
    hue = (g - b) / delta;
  else if (maxc == g)
    hue = 2.0 + (b - r) / delta;
  else
    hue = 4.0 + (r - g) / delta;
  hue /= 6.0;
  if (hue < 0.0) hue += 1.0;
  h = hue;
}

void Color::HSVtoRGB(double h, double s, double v) {
  if (s <= 0.0) {
    r = g = b = v;
    return;
  }
  double hue = h - std::floor(h);  // wrap into [0, 1)
  hue *= 6.0;
  const int sector = static_cast<int>(hue) % 6;
  const double f = hue - std::floor(hue);
  const double p = v * (1.0 - s);
  const double q = v * (1.0 - s * f);
  const double t = v * (1.0 - s * (1.0 - f));
  switch (sector) {
    case 0: r = v; g = t; b = p; break;
    case 1: r = q; g = v; b = p; break;
    case 2: r = p; g = v; b = t; break;
    case 3: r = p; g = q; b = v; break;
    case 4: r = t; g = p; b = v; break;
    default: r = v; g = p; b = q; break;
  }
}

ColorA CtoCA(const Color& c, double alpha) { return ColorA(c.r, c.g, c.b, alpha); }
Color CAtoC(const ColorA& c) { return Color(c.r, c.g, c.b); }
