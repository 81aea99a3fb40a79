// The display boxes: date, time and scale boxes show the values sent to
// their group; a scale box reports typed numbers back on 0..1.
#include "EditTestSupport.h"

namespace edittest {
namespace {

using EditBoxesTest = EditTest;

template <class Box>
std::unique_ptr<Box> MakeBox(wxWindow* parent, VornControlGroup* group, int style, bool editable) {
  VornEditInfo info = Info();
  return std::make_unique<Box>(nullptr, info, 0, 0, parent, kId, editable, style, group);
}

TEST_F(EditBoxesTest, DateAndTimeBoxesShowWhatTheyAreSent) {
  auto date = MakeBox<DateEditBox>(frame.Get(), &group, VornEdit::ES_TEXT, false);
  auto time = MakeBox<TimeEditBox>(frame.Get(), nullptr, VornEdit::ES_TEXT, false);
  VornControlGroup times;
  times.Register(11, time.get());
  ScopedAssertThrow asserts;  // a wrongly wired hint must not assert
  RealValChanged real(86400.0 * 365 + 3661);
  IntValChanged whole(86400);
  StringValChanged text("172800.5");
  VornControlHint other;
  const struct {
    VornControlHint* hint;
    const char *date, *time;
  } cases[] = {{&real, "1971-01-01", "01:01:01"},
               {&whole, "1970-01-02", "00:00:00"},
               {&text, "1970-01-03", "00:00:00"},
               {&other, "1970-01-03", "00:00:00"}};
  for (const auto& c : cases) {
    group.Update(0, nullptr, c.hint);
    times.Update(0, nullptr, c.hint);
    EXPECT_EQ(GetText(date.get()), c.date);
    EXPECT_EQ(GetText(time.get()), c.time);
  }
  // Its own report coming back through the group leaves the date alone.
  date->SetText("2001-02-03", true);
  EXPECT_EQ(GetText(date.get()), "2001-02-03");
  times.DeRegister(11, true);
}

TEST_F(EditBoxesTest, ScaleBoxShowsTheScaledValueAndReportsTypedNumbersBack) {
  auto real = MakeBox<ScaleEditBox>(frame.Get(), &group, VornEdit::ES_REAL, true);
  RealValChanged quarter(0.25);
  group.Update(0, nullptr, &quarter);
  EXPECT_EQ(GetText(real.get()), "25.000000");
  real->SetScale(-1.0, 1.0);
  RealValChanging half(0.5);
  group.Update(0, nullptr, &half);
  EXPECT_EQ(GetText(real.get()), "0.000000");
  real->SetScale(0.0, 100.0);
  Logged();
  Focus(real.get(), true);
  Ctrl(real.get(), 'a');
  Type(real.get(), "40");
  Press(real.get(), WXK_RETURN);
  EXPECT_EQ(Logged(), "sel 7 text 0.400000");
  EXPECT_EQ(GetText(real.get()), "40.000000");
  Focus(real.get(), false);

  auto whole = MakeBox<ScaleEditBox>(frame.Get(), nullptr, VornEdit::ES_INT, false);
  VornControlGroup own;
  own.Register(3, whole.get());
  for (const auto& [value, shown] : std::vector<std::pair<double, std::string>>{
           {0.255, "26"}, {0.0, "0"}, {1.0, "100"}, {1e300, "2147483647"}}) {
    RealValChanged v(value);
    own.Update(0, nullptr, &v);
    EXPECT_EQ(GetText(whole.get()), shown) << value;
  }
  own.DeRegister(3, true);
}

}  // namespace
}  // namespace edittest
