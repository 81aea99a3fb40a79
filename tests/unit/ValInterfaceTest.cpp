// Value interfaces mixed into one class, and value hints told apart by
// run-time type tests.
#include <gtest/gtest.h>

#include "vorn/ValInterface.h"

namespace {

// Recognises a hint the way receivers do: the combined class first, then
// only whether the change is final.
std::string Classify(VornControlHint* hint) {
  if (auto* h = dynamic_cast<IntValChanged*>(hint)) return "int " + std::to_string(h->m_value);
  if (auto* h = dynamic_cast<RealValChanging*>(hint))
    return "real changing " + std::to_string(h->m_value);
  if (auto* h = dynamic_cast<RealValChanged*>(hint))
    return "real changed " + std::to_string(h->m_value);
  if (auto* h = dynamic_cast<StringValChanged*>(hint))
    return "string " + h->m_value + (h->m_bFlag ? " flagged" : "");
  if (dynamic_cast<VUIControlChanging*>(hint)) return "changing";
  if (dynamic_cast<VUIControlChanged*>(hint)) return "changed";
  return "other";
}

TEST(ValueHints, RecognisedByTheirType) {
  IntValChanged intHint(7);
  RealValChanging changing(0.5);
  RealValChanged changed(0.25);
  StringValChanged text("abc");
  text.m_bFlag = true;
  VUIControlChanged final;
  VUIControlChanging progress;
  VornControlHint plain;
  EXPECT_EQ(Classify(&intHint), "int 7");
  EXPECT_EQ(Classify(&changing), "real changing 0.500000");
  EXPECT_EQ(Classify(&changed), "real changed 0.250000");
  EXPECT_EQ(Classify(&text), "string abc flagged");
  EXPECT_EQ(Classify(&final), "changed");
  EXPECT_EQ(Classify(&progress), "changing");
  EXPECT_EQ(Classify(&plain), "other");
  EXPECT_FALSE(intHint.m_bFlag);  // false unless the sender sets it
}

TEST(ValueHints, ChangingIsNotChangedAndViceVersa) {
  RealValChanging changing(1.0);
  RealValChanged changed(2.0);
  VornControlHint* a = &changing;
  VornControlHint* b = &changed;
  EXPECT_NE(dynamic_cast<VUIControlChanging*>(a), nullptr);
  EXPECT_EQ(dynamic_cast<VUIControlChanged*>(a), nullptr);
  EXPECT_NE(dynamic_cast<VUIControlChanged*>(b), nullptr);
  EXPECT_EQ(dynamic_cast<VUIControlChanging*>(b), nullptr);
  // The hint base shares the object's start; the value part reads back.
  EXPECT_EQ(static_cast<void*>(a), static_cast<void*>(&changing));
  EXPECT_EQ(dynamic_cast<RealValMessage*>(b)->m_value, 2.0);
}

TEST(ValueHints, DeletedThroughTheBase) {
  static int destroyed = 0;
  struct Watched : StringValChanged {
    using StringValChanged::StringValChanged;
    ~Watched() override { ++destroyed; }
  };
  VornControlHint* hint = new Watched("x");
  delete hint;
  EXPECT_EQ(destroyed, 1);
}

// A control-like class editing several types at once.
class MultiValue : public IntVal,
                   public RealVal,
                   public VornStringVal,
                   public ColorVal,
                   public Vec3dVal {
 public:
  bool GetValue(int32& out) override { return (out = m_int), true; }
  bool SetValue(int32 v) override { return (m_int = v), true; }
  bool GetValue(double& out) override { return (out = m_real), true; }
  bool SetValue(double v) override { return (m_real = v), true; }
  bool GetValue(VornString& out) override { return (out = m_text), true; }
  bool SetValue(VornString v) override { return (m_text = v), true; }
  bool GetValue(Color& out) override { return (out = m_colour), true; }
  bool SetValue(Color v) override { return (m_colour = v), true; }
  bool GetValue(Vec3d& out) override { return (out = m_vec), true; }
  bool SetValue(Vec3d v) override { return (m_vec = v), true; }

 private:
  int32 m_int = 0;
  double m_real = 0;
  VornString m_text;
  Color m_colour;
  Vec3d m_vec;
};

TEST(ValInterface, SeveralInterfacesAnswerWithTheirOwnType) {
  MultiValue value;
  IntVal& asInt = value;
  RealVal& asReal = value;
  VornStringVal& asString = value;
  ColorVal& asColour = value;
  Vec3dVal& asVec = value;
  asInt.SetValue(12);
  asReal.SetValue(2.5);
  asString.SetValue("text");
  asColour.SetValue(Color(0.1, 0.2, 0.3));
  asVec.SetValue(Vec3d(1, 2, 3));

  int32 i = 0;
  double d = 0;
  VornString s;
  Color c;
  Vec3d v;
  EXPECT_TRUE(asInt.GetValue(i));
  EXPECT_TRUE(asReal.GetValue(d));
  EXPECT_TRUE(asString.GetValue(s));
  EXPECT_TRUE(asColour.GetValue(c));
  EXPECT_TRUE(asVec.GetValue(v));
  EXPECT_EQ(i, 12);
  EXPECT_EQ(d, 2.5);
  EXPECT_EQ(s, "text");
  EXPECT_EQ(c, Color(0.1, 0.2, 0.3));
  EXPECT_EQ(v, Vec3d(1, 2, 3));
  // Overloads on the object itself pick by argument type.
  value.SetValue(int32(4));
  value.GetValue(i);
  value.GetValue(d);
  EXPECT_EQ(i, 4);
  EXPECT_EQ(d, 2.5);
}

}  // namespace
