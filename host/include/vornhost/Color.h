#pragma once
// Colours with double channels, nominally 0..1. Conversions to 8-bit channels
// elsewhere truncate value * 255.
#include "vornhost/Types.h"

struct ColorA;

struct Color {
  double r = 0.0, g = 0.0, b = 0.0;

  Color() = default;
  Color(double red, double green, double blue) : r(red), g(green), b(blue) {}

  // Hue, saturation and value are all fractions 0..1 (hue is a fraction of a
  // turn). A grey gives saturation 0 and hue 0.
  void RGBtoHSV(double& h, double& s, double& v) const;
  // Sets this colour from HSV; hue wraps (1.25 is the same as 0.25).
  void HSVtoRGB(double h, double s, double v);

  bool operator==(const Color& o) const { return r == o.r && g == o.g && b == o.b; }
  bool operator!=(const Color& o) const { return !(*this == o); }
};

struct ColorA {
  double r = 0.0, g = 0.0, b = 0.0, a = 1.0;

  ColorA() = default;
  ColorA(double red, double green, double blue, double alpha = 1.0)
      : r(red), g(green), b(blue), a(alpha) {}

  bool operator==(const ColorA& o) const {
    return r == o.r && g == o.g && b == o.b && a == o.a;
  }
  bool operator!=(const ColorA& o) const { return !(*this == o); }
};

ColorA CtoCA(const Color& c, double alpha = 1.0);
Color CAtoC(const ColorA& c);
