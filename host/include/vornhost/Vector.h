#pragma once
// Small fixed-size vectors and a quaternion of doubles.

struct Vec2d {
  double x = 0.0, y = 0.0;
  Vec2d() = default;
  Vec2d(double x_, double y_) : x(x_), y(y_) {}
  double& operator[](int i) { return i == 0 ? x : y; }
  double operator[](int i) const { return i == 0 ? x : y; }
  Vec2d operator+(const Vec2d& o) const { return {x + o.x, y + o.y}; }
  Vec2d operator-(const Vec2d& o) const { return {x - o.x, y - o.y}; }
  Vec2d operator*(double s) const { return {x * s, y * s}; }
  bool operator==(const Vec2d& o) const { return x == o.x && y == o.y; }
  bool operator!=(const Vec2d& o) const { return !(*this == o); }
  double Length() const;
};

struct Vec3d {
  double x = 0.0, y = 0.0, z = 0.0;
  Vec3d() = default;
  Vec3d(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
  double& operator[](int i) { return i == 0 ? x : (i == 1 ? y : z); }
  double operator[](int i) const { return i == 0 ? x : (i == 1 ? y : z); }
  Vec3d operator+(const Vec3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
  Vec3d operator-(const Vec3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
  Vec3d operator*(double s) const { return {x * s, y * s, z * s}; }
  bool operator==(const Vec3d& o) const { return x == o.x && y == o.y && z == o.z; }
  bool operator!=(const Vec3d& o) const { return !(*this == o); }
  double Length() const;
};

struct Vec4d {
  double x = 0.0, y = 0.0, z = 0.0, w = 0.0;
  Vec4d() = default;
  Vec4d(double x_, double y_, double z_, double w_) : x(x_), y(y_), z(z_), w(w_) {}
  double& operator[](int i) { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }
  double operator[](int i) const { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }
  Vec4d operator+(const Vec4d& o) const { return {x + o.x, y + o.y, z + o.z, w + o.w}; }
  Vec4d operator-(const Vec4d& o) const { return {x - o.x, y - o.y, z - o.z, w - o.w}; }
  Vec4d operator*(double s) const { return {x * s, y * s, z * s, w * s}; }
  bool operator==(const Vec4d& o) const { return x == o.x && y == o.y && z == o.z && w == o.w; }
  bool operator!=(const Vec4d& o) const { return !(*this == o); }
  double Length() const;
};

// Rotation quaternion; components x, y, z (vector part) and w (scalar part).
// The default is the identity rotation.
struct Quaternion {
  double x = 0.0, y = 0.0, z = 0.0, w = 1.0;
  Quaternion() = default;
  Quaternion(double x_, double y_, double z_, double w_) : x(x_), y(y_), z(z_), w(w_) {}
  double& operator[](int i) { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }
  double operator[](int i) const { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }
  Quaternion operator*(const Quaternion& o) const;  // Hamilton product
  bool operator==(const Quaternion& o) const {
    return x == o.x && y == o.y && z == o.z && w == o.w;
  }
  bool operator!=(const Quaternion& o) const { return !(*this == o); }
  double Length() const;
  void Normalize();  // leaves a zero quaternion unchanged
};
