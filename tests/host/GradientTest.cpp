#include <gtest/gtest.h>

#include "vornhost/Gradient.h"
#include "vornhost/Vector.h"

TEST(HostGradient, IndicesStartAtOneAndAreNeverReused) {
  Gradient g;
  Gradient::CONTROL_POINT p;
  EXPECT_FALSE(g.GetClosest(0.5, p));
  EXPECT_FALSE(g.GetPoint(0, p));
  EXPECT_EQ(g.AddPoint(0.5, Color(1, 0, 0)), 1u);
  p.index = 77;  // ignored
  p.position = 0.1;
  EXPECT_EQ(g.AddPoint(p), 2u);
  EXPECT_TRUE(g.DeletePoint(1));
  EXPECT_FALSE(g.DeletePoint(1));
  EXPECT_FALSE(g.DeletePoint(0));
  EXPECT_EQ(g.AddPoint(0.9, Color()), 3u);
  EXPECT_EQ(g.GetNumPoints(), 2);
  EXPECT_FALSE(g.GetPoint(1, p));
  ASSERT_TRUE(g.GetPoint(2, p));
  EXPECT_EQ(p.index, 2u);
  EXPECT_EQ(p.position, 0.1);
}

TEST(HostGradient, SetPointKeepsTheIndex) {
  Gradient g;
  const unsigned int a = g.AddPoint(0.2, Color(0, 0, 0));
  Gradient::CONTROL_POINT p;
  p.index = 99;
  p.position = 0.7;
  p.colour = Color(0, 1, 0);
  p.mark2 = true;
  ASSERT_TRUE(g.SetPoint(a, p));
  Gradient::CONTROL_POINT back;
  ASSERT_TRUE(g.GetPoint(a, back));
  EXPECT_EQ(back.index, a);
  EXPECT_EQ(back.position, 0.7);
  EXPECT_EQ(back.colour, Color(0, 1, 0));
  EXPECT_TRUE(back.mark2);
  EXPECT_FALSE(g.GetPoint(99, back));
  EXPECT_FALSE(g.SetPoint(99, p));
  EXPECT_FALSE(g.SetPoint(0, p));
}

TEST(HostGradient, SortedClosestAndInterpolated) {
  Gradient g;
  EXPECT_EQ(g.GetColour(0.5), Color(0, 0, 0));
  const unsigned int right = g.AddPoint(0.8, Color(1, 1, 0));
  const unsigned int left = g.AddPoint(0.2, Color(0, 0, 1));
  const unsigned int twin = g.AddPoint(0.8, Color(0, 1, 0));
  const std::vector<Gradient::CONTROL_POINT> sorted = g.GetSortedPoints();
  ASSERT_EQ(sorted.size(), 3u);
  EXPECT_EQ(sorted[0].index, left);
  EXPECT_EQ(sorted[1].index, right);  // equal positions keep creation order
  EXPECT_EQ(sorted[2].index, twin);

  Gradient::CONTROL_POINT p;
  ASSERT_TRUE(g.GetClosest(0.79, p));
  EXPECT_EQ(p.index, right);  // tie with its twin: first added wins
  ASSERT_TRUE(g.GetClosest(0.49, p));
  EXPECT_EQ(p.index, left);

  struct Case {
    double pos;
    Color c;
  } cases[] = {{-1, Color(0, 0, 1)},        {0.2, Color(0, 0, 1)},
               {0.5, Color(0.5, 0.5, 0.5)}, {0.65, Color(0.75, 0.75, 0.25)},
               {0.8, Color(0, 1, 0)},       {3, Color(0, 1, 0)}};
  for (const Case& c : cases) {
    const Color got = g.GetColour(c.pos);
    EXPECT_NEAR(got.r, c.c.r, 1e-12) << c.pos;
    EXPECT_NEAR(got.g, c.c.g, 1e-12) << c.pos;
    EXPECT_NEAR(got.b, c.c.b, 1e-12) << c.pos;
  }
  Gradient single;
  single.AddPoint(0.3, Color(0.1, 0.2, 0.3));
  EXPECT_EQ(single.GetColour(0.9), Color(0.1, 0.2, 0.3));
}

TEST(HostVector, QuaternionProductAndNormalize) {
  const Quaternion i(1, 0, 0, 0), j(0, 1, 0, 0), k(0, 0, 1, 0);
  EXPECT_EQ(i * j, k);
  EXPECT_EQ(j * i, Quaternion(0, 0, -1, 0));
  EXPECT_EQ(j * k, i);
  EXPECT_EQ(i * i, Quaternion(0, 0, 0, -1));
  const Quaternion q(1, 2, 3, 4);
  EXPECT_EQ(Quaternion() * q, q);
  EXPECT_EQ(q * Quaternion(), q);
  Quaternion n(0, 3, 0, 4);
  n.Normalize();
  EXPECT_DOUBLE_EQ(n.y, 0.6);
  EXPECT_DOUBLE_EQ(n.w, 0.8);
  Quaternion zero(0, 0, 0, 0);
  zero.Normalize();
  EXPECT_EQ(zero, Quaternion(0, 0, 0, 0));
  EXPECT_DOUBLE_EQ(Vec3d(2, 3, 6).Length(), 7.0);
  EXPECT_DOUBLE_EQ(Vec4d(1, 1, 1, 1).Length(), 2.0);
  Vec4d v;
  v[3] = 5;
  EXPECT_EQ(v.w, 5.0);
}
