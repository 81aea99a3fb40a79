#pragma once
// Typed value interfaces that controls mix in, and the value hints they send.
#include "vorn/VornControlGroup.h"
#include "vornhost/Color.h"
#include "vornhost/Types.h"
#include "vornhost/Vector.h"

// One value of type T for reading and writing. Objects are never deleted
// through this interface, hence the protected non-virtual destructor.
template <class T>
class ValInterface {
 public:
  virtual bool GetValue(T& out) = 0;
  virtual bool SetValue(T value) = 0;

 protected:
  ValInterface() = default;
  ValInterface(const ValInterface&) = default;
  ValInterface& operator=(const ValInterface&) = default;
  ~ValInterface() = default;
};

class IntVal : public ValInterface<int32> {};
class RealVal : public ValInterface<double> {};
class Vec2dVal : public ValInterface<Vec2d> {};
class Vec3dVal : public ValInterface<Vec3d> {};
class Vec4dVal : public ValInterface<Vec4d> {};
class QuaternionVal : public ValInterface<Quaternion> {};
class ColorVal : public ValInterface<Color> {};
class ColorAVal : public ValInterface<ColorA> {};
class VornStringVal : public ValInterface<VornString> {};

// Plain value carriers, combined with the change hints below.
class IntValMessage {
 public:
  explicit IntValMessage(int32 value = 0) : m_value(value) {}
  int32 m_value;
};

class RealValMessage {
 public:
  explicit RealValMessage(double value = 0.0) : m_value(value) {}
  double m_value;
};

class StringValMessage {
 public:
  explicit StringValMessage(const VornString& value = VornString()) : m_value(value) {}
  VornString m_value;
};

// A final change. The edits set the flag when they report a text change.
class VUIControlChanged : public VornControlHint {
 public:
  explicit VUIControlChanged(bool flag = false) : m_bFlag(flag) {}
  ~VUIControlChanged() override;
  bool m_bFlag;
};

// A change still in progress (a drag).
class VUIControlChanging : public VornControlHint {
 public:
  ~VUIControlChanging() override;
};

// The hint base comes first so that it shares the object's start.
class IntValChanged : public VUIControlChanged, public IntValMessage {
 public:
  explicit IntValChanged(int32 value = 0) : IntValMessage(value) {}
  ~IntValChanged() override;
};

class RealValChanged : public VUIControlChanged, public RealValMessage {
 public:
  explicit RealValChanged(double value = 0.0) : RealValMessage(value) {}
  ~RealValChanged() override;
};

class RealValChanging : public VUIControlChanging, public RealValMessage {
 public:
  explicit RealValChanging(double value = 0.0) : RealValMessage(value) {}
  ~RealValChanging() override;
};

class StringValChanged : public VUIControlChanged, public StringValMessage {
 public:
  explicit StringValChanged(const VornString& value = VornString()) : StringValMessage(value) {}
  ~StringValChanged() override;
};
