// Control groups: dispatch order, registration and ownership, bulk
// operations, one-of-N selection, forwarding, dumps, and destruction in
// every order.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "ControlTestSupport.h"

namespace {

std::string Hex(const void* p) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%p", p);
  return buf;
}

using Fired = std::pair<std::string, std::string>;

class ControlGroup : public ::testing::Test {
 protected:
  TestFrame frame;
  EventLog log;
};

TEST_F(ControlGroup, UpdateVisitsMembersInTheFixedOrder) {
  VornControlGroup group, sub;
  RecordingControl c7(frame.Get(), 7, &group, &log, "id7");
  RecordingControl c3(frame.Get(), 3, &group, &log, "id3");
  RecordingControl idless(frame.Get(), 50, nullptr, &log, "idless");
  RecordingVirtual virtualIdless(60, nullptr, &log, "virtual");
  RecordingVirtual virtualById(61, &group, &log, "virtualById");  // never visited
  RecordingControl inSub(frame.Get(), 1, &sub, &log, "sub");
  RecordingReceiver receiver(&log, "receiver");
  group.Register(&receiver);  // registered first, still visited last
  group.Register(&sub);
  group.Register(&virtualIdless);
  group.Register(&idless);

  CountingHint hint;
  group.Update(3, &c3, &hint);
  EXPECT_EQ(log, EventLog({"update id3", "update id7", "update idless", "update virtual",
                           "update sub", "update receiver"}));
  EXPECT_EQ(c3.lastSource, &c3);  // the source receives its own hint
  EXPECT_EQ(c3.lastHint, &hint);
  EXPECT_EQ(inSub.lastId, 3u);

  group.DeRegister(&receiver);
  group.DeRegister(&sub);
  group.DeRegister(&idless);
  group.DeRegister(&virtualIdless);
}

// Ids arrive below the first, above the last and in between, and leave from
// both ends and the middle: the walk stays in id order.
TEST_F(ControlGroup, ByIdMembersStayInIdOrderWhateverTheRegistrationOrder) {
  VornControlGroup group;
  std::vector<std::unique_ptr<RecordingControl>> controls;
  for (int id : {50, 40, 60, 45, 30, 70, 55, 20, 65, 35, 41})
    controls.push_back(std::make_unique<RecordingControl>(frame.Get(), id, &group, &log,
                                                          "id" + std::to_string(id)));
  for (unsigned int id : {20u, 70u, 45u, 31u}) group.DeRegister(id, true);
  CountingHint hint;
  group.Update(1, nullptr, &hint);
  EXPECT_EQ(log, EventLog({"update id30", "update id35", "update id40", "update id41",
                           "update id50", "update id55", "update id60", "update id65"}));
}

TEST_F(ControlGroup, UpdateRereadsItsListsAsMembersComeAndGo) {
  VornControlGroup group;
  RecordingControl first(frame.Get(), 1, nullptr, &log, "first");
  RecordingControl late(frame.Get(), 2, nullptr, &log, "late");
  RecordingControl byId(frame.Get(), 5, &group, &log, "byId");
  RecordingControl lateById(frame.Get(), 9, nullptr, &log, "lateById");
  byId.onUpdate = [&] {
    if (!group.CurrentlyRegistered(&late)) lateById.Bind(&group);
  };
  first.onUpdate = [&] {
    if (!group.CurrentlyRegistered(&late)) group.Register(&late);
  };
  group.Register(&first);
  group.Update(0, nullptr, nullptr);
  EXPECT_EQ(log, EventLog({"update byId", "update lateById", "update first", "update late"}));
  group.DeRegister(&first);
  group.DeRegister(&late);

  // A member deleted by an earlier one is skipped safely.
  VornControlGroup shrinking;
  RecordingControl one(frame.Get(), 1, &shrinking, &log, "1");
  auto* two = new RecordingControl(frame.Get(), 2, &shrinking, &log, "2");
  RecordingControl three(frame.Get(), 3, &shrinking, &log, "3");
  one.onUpdate = [&] { delete two; };
  log.clear();
  shrinking.Update(0, nullptr, nullptr);
  EXPECT_EQ(log, EventLog({"update 1", "update 3"}));
}

TEST_F(ControlGroup, OwnedControlsAreDeletedOnlyByDeRegisterWithoutKeep) {
  VornControlGroup group;
  RecordingControl::s_destroyed = 0;
  group.RegisterOwner(4, new RecordingControl(frame.Get(), 4, nullptr, nullptr), "owned");
  EXPECT_TRUE(group.DeRegister(4u, false));
  EXPECT_EQ(RecordingControl::s_destroyed, 1);
  EXPECT_TRUE(group.IsEmpty());

  RecordingControl notOwned(frame.Get(), 8, &group, nullptr);
  EXPECT_TRUE(group.DeRegister(8u, false));  // not owned: never deleted
  EXPECT_EQ(notOwned.GetGroup(), nullptr);

  auto* kept = new RecordingControl(frame.Get(), 5, nullptr, nullptr);
  group.RegisterOwner(5, kept);
  EXPECT_TRUE(group.DeRegister(5u, true));
  auto* cleared = new RecordingControl(frame.Get(), 7, nullptr, nullptr);
  group.RegisterOwner(7, cleared);
  group.Clear();
  EXPECT_EQ(RecordingControl::s_destroyed, 1);
  EXPECT_TRUE(group.IsEmpty());
  EXPECT_FALSE(group.DeRegister(99u, false));  // unknown id: nothing
  delete kept;
  delete cleared;

  // By pointer: the entry of that kind, even when another kind shares the id.
  auto* control = new RecordingControl(frame.Get(), 20, &group, nullptr);
  RecordingVirtual windowless(20, &group, &log, "w");
  EXPECT_TRUE(group.DeRegister(static_cast<VirtualControl*>(&windowless), true));
  EXPECT_EQ(windowless.GetGroup(), nullptr);
  EXPECT_EQ(control->GetGroup(), &group);
  group.DeRegister(20u, true);
  group.RegisterOwner(20, control);
  EXPECT_TRUE(group.DeRegister(static_cast<VornControl*>(control), false));
  EXPECT_EQ(RecordingControl::s_destroyed, 4);
  EXPECT_TRUE(group.IsEmpty());
}

TEST_F(ControlGroup, ProgrammingErrorsAssertZeroNamingTheOperation) {
  VornControlGroup group, other;
  RecordingControl control(frame.Get(), 1, &group, nullptr);
  RecordingVirtual windowless(1, &group, &log, "w");
  RecordingReceiver receiver(&log, "r");
  EXPECT_EQ(FiredAssertionIn([&] { group.Register(1, &control); }), Fired("0", "Register"));
  EXPECT_EQ(FiredAssertionIn([&] { group.RegisterOwner(1, &control, "x"); }),
            Fired("0", "RegisterOwner"));
  EXPECT_EQ(FiredAssertionIn([&] { group.Register(1u, &windowless); }), Fired("0", "Register"));
  EXPECT_EQ(FiredAssertionIn([&] { group.DeRegister(&receiver); }), Fired("0", "DeRegister"));
  EXPECT_EQ(FiredAssertionIn([&] { group.DeRegister(&control); }), Fired("0", "DeRegister"));
  EXPECT_EQ(FiredAssertionIn([&] { group.DeRegister(&other); }), Fired("0", "DeRegister"));

  other.Bind(&group);
  EXPECT_EQ(FiredAssertionIn([&] { group.Register(&other); }), Fired("0", "Register"));
  EXPECT_EQ(FiredAssertionIn([&] { other.Bind(&group); }),
            Fired("m_pControlGroup == __null", "Bind"));
  EXPECT_TRUE(group.DeRegister(&other));
  EXPECT_FALSE(group.CurrentlyRegistered(&other));
  EXPECT_EQ(other.GetGroup(), nullptr);
  EXPECT_FALSE(group.DeRegister(static_cast<VornControl*>(nullptr)));  // null: nothing
}

TEST_F(ControlGroup, DebugLinesAndDumpTrace) {
  VornControlGroup group, sub;
  RecordingReceiver receiver(&log, "r");
  CaptureDprintf capture;
  group.Register(&receiver);
  group.DeRegister(&receiver);
  group.DumpTrace();
  const std::string head = "Current control group address is " + Hex(&group) + "\n";
  EXPECT_EQ(capture.Lines(),
            EventLog({"VornControlGroup::Register(MessageReceiver* " + Hex(&receiver) + ")\n",
                      "VornControlGroup::DeRegister(MessageReceiver* " + Hex(&receiver) + ")\n",
                      head, " Controls (0):\n", " Virtual Controls (0):\n", " Groups (0):\n"}));

  RecordingControl named(frame.Get(), 8, nullptr, nullptr);
  group.RegisterOwner(8, &named, "okay");
  RecordingControl idless(frame.Get(), 9, nullptr, nullptr);
  group.Register(&idless);  // not listed
  RecordingVirtual windowless(2, &group, &log, "w");
  sub.Bind(&group);
  capture.ClearLines();
  group.DumpTrace();
  EXPECT_EQ(
      capture.Lines(),
      EventLog(
          {head, " Controls (1):\n",
           "  ID = 8, mce: id = 8, own = 1, control = " + Hex(&named) + ", name = okay\n",
           " Virtual Controls (1):\n",
           "  ID = 2, mce: id = 2, own = 0, control = " + Hex(&windowless) + ", name = NONAME\n",
           " Groups (1):\n", "  Address = " + Hex(&sub) + "\n"}));
  group.DeRegister(8u, true);
  group.DeRegister(&idless);
}

TEST_F(ControlGroup, BulkOperationsReachEveryMemberAndSubGroup) {
  VornControlGroup group, sub;
  sub.Bind(&group);
  RecordingControl byId(frame.Get(), 1, &group, nullptr);
  RecordingControl idless(frame.Get(), 2, nullptr, nullptr);
  group.Register(&idless);
  RecordingVirtual windowless(3, &group, &log, "w");
  RecordingControl inSub(frame.Get(), 4, &sub, nullptr);

  group.ShowAll(nullptr, true, nullptr);
  EXPECT_TRUE(windowless.IsVisible() && byId.IsVisible());
  group.ShowAll(nullptr, false, nullptr);
  group.SetEnableAll(nullptr, false, nullptr);
  for (VornControl* c : {&byId, &idless, &inSub})
    EXPECT_FALSE(c->IsShown() || c->GetEnabled()) << c->GetId();
  EXPECT_FALSE(windowless.IsVisible() || windowless.GetEnabled());
  group.DeRegister(&idless);

  // On and enable by id touch buttons only; id-less ones match every id.
  VornControlGroup buttons;
  VornButton button(nullptr, 0, 0, 10, 10, frame.Get(), 1, &buttons);
  VornButton idlessButton(nullptr, 0, 0, 10, 10, frame.Get(), 2, nullptr);
  buttons.Register(&idlessButton);
  RecordingControl plain(frame.Get(), 3, &buttons, nullptr);
  VirtualButton virtualButton;
  virtualButton.Create(nullptr, false, 0, 0, nullptr, nullptr, 1, &buttons);
  auto* notAButton = new RecordingVirtual(4, &buttons, &log, "w");

  buttons.SetOnControl(1, true, nullptr);
  EXPECT_TRUE(button.GetOn() && idlessButton.GetOn() && virtualButton.GetOn());
  buttons.SetOnControl(3, false, nullptr);
  EXPECT_TRUE(button.GetOn());
  EXPECT_FALSE(idlessButton.GetOn());
  buttons.SetOnControl(4, true, nullptr);
  buttons.SetEnableControl(3, false, nullptr);
  EXPECT_TRUE(plain.GetEnabled());
  EXPECT_FALSE(idlessButton.GetEnabled());
  buttons.SetEnableControl(1, false, nullptr);
  EXPECT_FALSE(button.GetEnabled());
  buttons.DeRegister(&idlessButton);
  delete notAButton;
}

TEST_F(ControlGroup, OneOfNSelection) {
  VornControlGroup1ofN group;
  VornButton a(nullptr, 0, 0, 10, 10, frame.Get(), 1, &group);
  VornButton b(nullptr, 0, 0, 10, 10, frame.Get(), 2, &group);
  VornButton c(nullptr, 0, 0, 10, 10, frame.Get(), 3, &group);
  for (VornButton* button : {&a, &b, &c}) button->SetOn(true);
  group.SetOnAll(&b, false, nullptr);
  EXPECT_EQ(std::vector<bool>({a.GetOn(), b.GetOn(), c.GetOn()}),
            std::vector<bool>({false, true, false}));
  EXPECT_EQ(group.GetSelected(), 2u);

  group.SetOnControl(42, true, nullptr);  // recorded even without a control
  EXPECT_EQ(group.GetSelected(), 42u);
  group.SetOnControl(3, false, nullptr);
  EXPECT_EQ(group.GetSelected(), 42u);

  VirtualButton v1, v2;
  v1.Create(nullptr, false, 0, 0, nullptr, nullptr, 11, &group);
  v2.Create(nullptr, false, 0, 0, nullptr, nullptr, 12, &group);
  v1.SetOn(true);
  group.SetOnAll(static_cast<VirtualControl*>(&v2), true, nullptr);
  EXPECT_EQ(group.GetSelected(), 12u);
  EXPECT_TRUE(v1.GetOn());
  EXPECT_FALSE(v2.GetOn());  // the chosen one is not switched
}

TEST_F(ControlGroup, ChildToParentReaddressesToTheCompound) {
  RecordingValueGroupOf<VornControlGroupValue> outer(&log);
  RecordingControl compound(frame.Get(), 70, &outer, nullptr);
  ChildToParentControlGroup inner(&compound);
  RecordingControl child(&compound, 5, &inner, nullptr);
  inner.ControlSelected(5, &child);
  inner.ControlUnSelected(5, &child);
  inner.ControlDrag(5, &child);
  inner.ControlShapeChanged(5, &child);
  EXPECT_EQ(log, EventLog({"sel 70", "unsel 70", "drag 70", "shape 70"}));

  // Drag and shape need a value group above; selection needs a parent.
  VornControlGroup plainOuter;
  compound.SetGroup(&plainOuter);
  outer.DeRegister(70u, true);
  log.clear();
  ChildToParentControlGroup orphan;
  orphan.ControlSelected(5, &child);
  inner.ControlDrag(5, &child);
  EXPECT_TRUE(log.empty());
}

// Destruction in every order must leave no dangling pointer behind
// (checked under AddressSanitizer).
TEST_F(ControlGroup, MembersAndGroupsDestroyedInEitherOrder) {
  auto group = std::make_unique<VornControlGroup>();
  delete new RecordingControl(frame.Get(), 1, group.get(), nullptr);
  delete new RecordingVirtual(2, group.get(), &log, "w");
  auto child = std::make_unique<VornControlGroup>();
  child->Bind(group.get());
  child.reset();  // leaves the parent's list
  EXPECT_TRUE(group->IsEmpty());
  group->Update(0, nullptr, nullptr);

  auto* control = new RecordingControl(frame.Get(), 1, group.get(), nullptr);
  auto* windowless = new RecordingVirtual(2, group.get(), &log, "w");
  RecordingControl idless(frame.Get(), 3, nullptr, nullptr);
  group->Register(&idless);
  child = std::make_unique<VornControlGroup>();
  child->Bind(group.get());
  group.reset();
  EXPECT_EQ(control->GetGroup(), nullptr);
  EXPECT_EQ(windowless->GetGroup(), nullptr);
  EXPECT_EQ(child->GetGroup(), nullptr);
  delete control;
  delete windowless;
}

TEST_F(ControlGroup, ValueOneOfNGroupWithControlsOnBothSides) {
  auto group = std::make_unique<VornValueControlGroup1ofN>();
  VornControlGroup1ofN* oneOfN = group.get();
  VornControlGroupValue* value = group.get();
  auto* left = new RecordingControl(frame.Get(), 1, oneOfN, nullptr);
  auto* right = new RecordingControl(frame.Get(), 1, value, nullptr);
  auto* lone = new RecordingControl(frame.Get(), 2, oneOfN, nullptr);
  // By id the value registry is served first.
  EXPECT_TRUE(group->DeRegister(1u, true));
  EXPECT_EQ(right->GetGroup(), nullptr);
  EXPECT_EQ(left->GetGroup(), oneOfN);
  EXPECT_TRUE(value->IsEmpty());
  delete lone;  // only on the one-of-N side: removed there
  delete left;
  EXPECT_TRUE(oneOfN->IsEmpty());
  auto* late = new RecordingControl(frame.Get(), 3, oneOfN, nullptr);
  group.reset();
  EXPECT_EQ(late->GetGroup(), nullptr);
  delete late;
  delete right;
}

}  // namespace

namespace {
int g_refusals = 0;
void CountAssertion(const VornAssertInfo&) {
  ++g_refusals;
}
}  // namespace

// A control refused under a taken id must keep no link: the group does not
// clear it when it goes (a dangling link), and the control's id would
// deregister the other member.
TEST_F(ControlGroup, RefusedRegistrationLeavesNoGroupLink) {
  g_refusals = 0;
  const VornAssertHandler previous = VornSetAssertHandler(&CountAssertion);
  auto group = std::make_unique<VornControlGroup>();
  auto* first = new RecordingControl(frame.Get(), 5, group.get(), nullptr);
  auto* twin = new RecordingControl(frame.Get(), 5, group.get(), nullptr);
  auto* firstVirtual = new RecordingVirtual(6, group.get(), &log, "a");
  auto* twinVirtual = new RecordingVirtual(6, group.get(), &log, "b");
  VornSetAssertHandler(previous);
  EXPECT_EQ(g_refusals, 2);
  EXPECT_EQ(twin->GetGroup(), nullptr);
  EXPECT_EQ(twinVirtual->GetGroup(), nullptr);
  delete twin;  // must not take the first one's entry with it
  delete twinVirtual;
  // Only entries still registered get their link cleared by the group.
  group.reset();
  EXPECT_EQ(first->GetGroup(), nullptr);
  EXPECT_EQ(firstVirtual->GetGroup(), nullptr);
  delete first;
  delete firstVirtual;
}
