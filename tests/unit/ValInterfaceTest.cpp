// Value hints told apart by run-time type tests.
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

TEST(ValueHints, RecognisedByTheirTypeAndDeletedThroughTheBase) {
  StringValChanged text("abc");
  text.m_bFlag = true;
  IntValChanged intHint(7);
  RealValChanging changing(0.5);
  RealValChanged changed(0.25);
  VUIControlChanged final;
  VUIControlChanging progress;
  VornControlHint plain;
  const std::pair<VornControlHint*, const char*> cases[] = {{&intHint, "int 7"},
                                                            {&changing, "real changing 0.500000"},
                                                            {&changed, "real changed 0.250000"},
                                                            {&text, "string abc flagged"},
                                                            {&final, "changed"},
                                                            {&progress, "changing"},
                                                            {&plain, "other"}};
  for (const auto& [hint, expected] : cases) EXPECT_EQ(Classify(hint), expected);
  EXPECT_FALSE(intHint.m_bFlag);  // false unless the sender sets it
  // A changing real is not a final change; the hint base shares the object's start.
  EXPECT_EQ(dynamic_cast<VUIControlChanged*>(static_cast<VornControlHint*>(&changing)), nullptr);
  EXPECT_EQ(static_cast<void*>(static_cast<VornControlHint*>(&changed)), &changed);

  static int destroyed = 0;
  struct Watched : StringValChanged {
    using StringValChanged::StringValChanged;
    ~Watched() override { ++destroyed; }
  };
  VornControlHint* hint = new Watched("x");
  delete hint;
  EXPECT_EQ(destroyed, 1);
}

}  // namespace
