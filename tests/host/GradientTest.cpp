#include <gtest/gtest.h>

#include "HostTestUtil.h"
#include "vornhost/Gradient.h"
#include "vornhost/Vector.h"

TEST(HostGradient, IndicesAreStableHandles) {
  Gradient g;
  Gradient::CONTROL_POINT p, back;
  EXPECT_FALSE(g.GetClosest(0.5, back));
  EXPECT_EQ(g.AddPoint(0.5, Color(1, 0, 0)), 1u);
  p.index = 77;  // ignored by AddPoint and SetPoint
  p.position = 0.1;
  p.colour = Color(0, 1, 0);
  p.mark2 = true;
  EXPECT_EQ(g.AddPoint(p), 2u);
  EXPECT_TRUE(g.DeletePoint(1));
  for (unsigned int bad : {0u, 1u, 77u}) {
    EXPECT_FALSE(g.DeletePoint(bad) || g.GetPoint(bad, back) || g.SetPoint(bad, p)) << bad;
  }
  EXPECT_EQ(g.AddPoint(0.9, Color()), 3u);  // 1 is not reused
  EXPECT_EQ(g.GetNumPoints(), 2);
  p.position = 0.7;
  ASSERT_TRUE(g.SetPoint(2, p));
  ASSERT_TRUE(g.GetPoint(2, back));
  EXPECT_EQ(back.index, 2u);
  EXPECT_EQ(back.position, 0.7);
  EXPECT_EQ(back.colour, Color(0, 1, 0));
  EXPECT_TRUE(back.mark2);
}

TEST(HostGradient, SortedClosestAndInterpolated) {
  Gradient g;
  EXPECT_EQ(g.GetColour(0.5), Color(0, 0, 0));
  const unsigned int right = g.AddPoint(0.8, Color(1, 1, 0));
  const unsigned int left = g.AddPoint(0.2, Color(0, 0, 1));
  const unsigned int twin = g.AddPoint(0.8, Color(0, 1, 0));
  const std::vector<Gradient::CONTROL_POINT> sorted = g.GetSortedPoints();
  ASSERT_EQ(sorted.size(), 3u);
  // Equal positions keep creation order, and a tie in distance goes to the first added.
  EXPECT_EQ(std::vector<unsigned int>({sorted[0].index, sorted[1].index, sorted[2].index}),
            std::vector<unsigned int>({left, right, twin}));
  Gradient::CONTROL_POINT p;
  ASSERT_TRUE(g.GetClosest(0.79, p));
  EXPECT_EQ(p.index, right);
  ASSERT_TRUE(g.GetClosest(0.49, p));
  EXPECT_EQ(p.index, left);
  struct Case {
    double pos;
    Color c;
  } cases[] = {{-1, Color(0, 0, 1)},        {0.2, Color(0, 0, 1)},
               {0.5, Color(0.5, 0.5, 0.5)}, {0.65, Color(0.75, 0.75, 0.25)},
               {0.8, Color(0, 1, 0)},       {3, Color(0, 1, 0)}};
  for (const Case& c : cases) EXPECT_LT(Distance(g.GetColour(c.pos), c.c), 1e-12) << c.pos;
  Gradient single;
  single.AddPoint(0.3, Color(0.1, 0.2, 0.3));
  EXPECT_EQ(single.GetColour(0.9), Color(0.1, 0.2, 0.3));
}

TEST(HostVector, QuaternionProductNormalizeAndLengths) {
  const Quaternion i(1, 0, 0, 0), j(0, 1, 0, 0), k(0, 0, 1, 0), q(1, 2, 3, 4);
  EXPECT_EQ(i * j, k);
  EXPECT_EQ(j * i, Quaternion(0, 0, -1, 0));
  EXPECT_EQ(j * k, i);
  EXPECT_EQ(i * i, Quaternion(0, 0, 0, -1));
  EXPECT_EQ(Quaternion() * q, q);
  EXPECT_EQ(q * Quaternion(), q);
  Quaternion n(0, 3, 0, 4), zero(0, 0, 0, 0);
  n.Normalize();
  zero.Normalize();
  EXPECT_DOUBLE_EQ(n.y, 0.6);
  EXPECT_DOUBLE_EQ(n.w, 0.8);
  EXPECT_EQ(zero, Quaternion(0, 0, 0, 0));
  EXPECT_DOUBLE_EQ(Vec3d(2, 3, 6).Length(), 7.0);
  EXPECT_DOUBLE_EQ(Vec4d(1, 1, 1, 1).Length(), 2.0);
}
