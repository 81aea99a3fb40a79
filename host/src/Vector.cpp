#include "vornhost/Vector.h"

#include <cmath>

double Vec2d::Length() const {
  return std::sqrt(x * x + y * y);
}
double Vec3d::Length() const {
  return std::sqrt(x * x + y * y + z * z);
}
double Vec4d::Length() const {
  return std::sqrt(x * x + y * y + z * z + w * w);
}

Quaternion Quaternion::operator*(const Quaternion& o) const {
  return Quaternion(w * o.x + x * o.w + y * o.z - z * o.y,  //
                    w * o.y - x * o.z + y * o.w + z * o.x,  //
                    w * o.z + x * o.y - y * o.x + z * o.w,  //
                    w * o.w - x * o.x - y * o.y - z * o.z);
}

double Quaternion::Length() const {
  return std::sqrt(x * x + y * y + z * z + w * w);
}

void Quaternion::Normalize() {
  const double len = Length();
  if (len == 0.0 || !std::isfinite(len)) return;
  x /= len;
  y /= len;
  z /= len;
  w /= len;
}
