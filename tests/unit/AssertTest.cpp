#include <gtest/gtest.h>

#include "TestSupport.h"
#include "vorn/VornAssert.h"

namespace {
void NeedsPositive(int v) {
  VORN_ASSERT(v > 0);
}
void NeedsNoGroup(const void* group) {
  VORN_ASSERT_TEXT(group == nullptr, "m_pControlGroup == __null");
}
}  // namespace

TEST(Assert, ReportsFunctionFileAndConditionText) {
  ScopedAssertThrow guard;
  try {
    NeedsPositive(0);
    FAIL() << "no assertion fired";
  } catch (const VornAssertionError& e) {
    EXPECT_EQ(e.condition, "v > 0");
    EXPECT_EQ(e.function, "NeedsPositive");
    EXPECT_NE(e.file.find("AssertTest.cpp"), std::string::npos);
    EXPECT_GT(e.line, 0);
    EXPECT_NE(std::string(e.what()).find("v > 0 in NeedsPositive"), std::string::npos);
  }
}

TEST(Assert, CustomTextAndNoFireWhenTrue) {
  int dummy = 0;
  EXPECT_EQ(FiredAssertion([&] { NeedsNoGroup(&dummy); }), "m_pControlGroup == __null");
  EXPECT_EQ(FiredAssertion([&] { NeedsNoGroup(nullptr); }), "");
  EXPECT_EQ(FiredAssertion([&] { NeedsPositive(3); }), "");
}

TEST(Assert, HandlerIsRestoredAndDefaultAborts) {
  { ScopedAssertThrow guard; }
  EXPECT_DEATH(NeedsPositive(-1), "Assertion failed: v > 0 in NeedsPositive");
}
