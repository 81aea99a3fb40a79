// The monster box driven through real events: when the scroll bar appears,
// how far the cells scroll, grip resizing with its clamps and hint, button
// placement, finding cells, check-box reports, row deletion and the wheel.
#include <gtest/gtest.h>

#include "../ControlTestSupport.h"
#include "vorn/VornMonsterBox.h"

namespace {

const wxColour kSep(200, 10, 10);
const wxColour kCell(10, 20, 120);

class MonsterBoxTest : public ::testing::Test {
 protected:
  MonsterBoxTest() : frame(wxSize(600, 600)), group(&log), receiver(&log) {
    group.Register(&receiver);
  }
  ~MonsterBoxTest() override { group.DeRegister(&receiver); }

  VornMonsterBox* Make(int height = 200, long style = 0) {
    box = new VornMonsterBox;
    VornString name = "box";
    box->Create(&frameImage, &headingImage, &spacer, 5, 5, 300, height, name, frame.Get(), 77,
                &group, style);
    box->SetColors(kCell, *wxWHITE);
    box->SetSepColour(kSep);
    box->AddColumn("Name", *wxWHITE, 120);
    box->AddColumn("On", *wxWHITE, 40);
    return box;
  }
  void AddRows(int n) {
    for (int i = 0; i < n; ++i) {
      box->AddEntry(0, "row " + std::to_string(i), *wxWHITE, false);
      box->AddEntry(1, checks.get(), false);
    }
  }
  int CellY(int row, int column) { return box->GetRowColumnEntry(row, column)->GetPosition().y; }
  void Wheel(wxWindow* target, int rotation) {
    wxMouseEvent event = MakeMouseEvent(target, wxEVT_MOUSEWHEEL, 4, 4);
    event.m_wheelRotation = rotation;
    event.m_wheelDelta = 120;
    event.m_wheelAxis = wxMOUSE_WHEEL_VERTICAL;
    target->GetEventHandler()->ProcessEvent(event);
  }
  // Press on the grip and move the pointer by dy.
  void DragGrip(int dy) {
    const int x = box->GetWidth() - 16, y = box->GetHeight() - 17;
    Mouse(box, wxEVT_LEFT_DOWN, x, y);
    Mouse(box, wxEVT_MOTION, x, y + dy);
    Mouse(box, wxEVT_LEFT_UP, x, y + dy);
  }

  TestFrame frame;
  EventLog log;
  RecordingGroup group;
  RecordingReceiver receiver;
  wxBitmap frameImage = SolidBitmap(32, 32, wxColour(30, 30, 30));
  wxBitmap headingImage = SolidBitmap(16, 22, wxColour(60, 60, 60));
  wxBitmap spacer = SolidBitmap(7, 14, wxColour(90, 90, 90));
  std::unique_ptr<VornwxBitmapCache> checks = MakeCache({VIT_OFF, VIT_ON}, 12, 12);
  std::unique_ptr<VornwxBitmapCache> buttonImages = MakeCache({VIT_OFF}, 30, 14);
  VornMonsterBox* box = nullptr;  // child of the frame
};

TEST_F(MonsterBoxTest, NineRowsFitAndTheTenthBringsTheBarWithItsFraction) {
  Make();
  AddRows(9);  // 135 <= 139
  EXPECT_EQ(nullptr, box->GetScrollBar());
  AddRows(1);  // 150 > 139
  ASSERT_NE(nullptr, box->GetScrollBar());
  EXPECT_TRUE(box->GetScrollBar()->IsVisible());
  EXPECT_DOUBLE_EQ(139.0 / 150.0, box->GetScrollBar()->GetFractionVal());
  EXPECT_EQ(10, box->GetRowCount());
  EXPECT_EQ(box->GetWidth() - 11, box->GetScrollBar()->GetPosX());
}

TEST_F(MonsterBoxTest, ScrollPositionMovesTheCellsAndClearingResetsIt) {
  Make();
  AddRows(20);  // content 300, list height 138: 162 pixels to scroll
  EXPECT_EQ(45, CellY(3, 0));
  box->SetScrollPos(0.5);
  EXPECT_EQ(81, box->GetScrollOffset());
  EXPECT_EQ(45 - 81, CellY(3, 0));
  EXPECT_EQ(45 - 81, CellY(3, 1));
  // The bar drives the box.
  box->GetScrollBar()->SetSliderVal(1.0, true);
  EXPECT_EQ(162, box->GetScrollOffset());
  EXPECT_EQ(45 - 162, CellY(3, 0));
  // A row added while scrolled lands under the others.
  AddRows(1);
  EXPECT_EQ(20 * 15 - 162, CellY(20, 0));

  box->ClearAll();
  EXPECT_EQ(0, box->GetRowCount());
  EXPECT_EQ(0, box->GetScrollOffset());
  EXPECT_FALSE(box->GetScrollBar()->IsVisible());
  AddRows(1);
  EXPECT_EQ(0, CellY(0, 0));
}

TEST_F(MonsterBoxTest, GripResizeStopsAtBothClampsMovesButtonsAndSendsTheHint) {
  Make(200, kMonsterBoxResizable);
  box->SetMaxSize(260);
  VornPushButton* button = box->AddButton(buttonImages.get(), 5, "tip", &group);
  EXPECT_EQ(200 - 62 + 45, button->GetPosY());
  log.clear();
  DragGrip(-150);
  EXPECT_EQ(75, box->GetHeight());
  EXPECT_EQ(13, box->GetListHeight());
  EXPECT_EQ(13, box->GetPanel()->GetSize().y);
  EXPECT_EQ(13 + 45, button->GetPosY());
  EXPECT_EQ("sel 77 hint 0", Joined(log));
  EXPECT_FALSE(box->IsResizing());
  DragGrip(400);
  EXPECT_EQ(260, box->GetHeight());
  EXPECT_EQ(198, box->GetListHeight());
  EXPECT_EQ(198 + 45, button->GetPosY());

  // Scrolled to the end, then grown until every row fits: the rows go back
  // to the top and stay there on later drags.
  AddRows(12);  // 180 pixels in a 198-pixel panel: fits
  box->SetMaxSize(400);
  DragGrip(-100);  // list height 98: the bar appears
  ASSERT_TRUE(box->GetScrollBar() && box->GetScrollBar()->IsVisible());
  box->GetScrollBar()->SetSliderVal(1.0, true);
  EXPECT_EQ(180 - 98, box->GetScrollOffset());
  DragGrip(150);
  EXPECT_FALSE(box->GetScrollBar()->IsVisible());
  DragGrip(10);
  EXPECT_EQ(0, box->GetScrollOffset());
  EXPECT_EQ(15, CellY(1, 0));

  // Away from the grip, or on a box that is not resizable, nothing happens.
  log.clear();
  Mouse(box, wxEVT_LEFT_DOWN, 40, 100);
  Mouse(box, wxEVT_MOTION, 40, 10);
  Mouse(box, wxEVT_LEFT_UP, 40, 10);
  EXPECT_EQ(320, box->GetHeight());
  box->Resizable(false);
  DragGrip(-50);
  EXPECT_EQ(320, box->GetHeight());
  EXPECT_EQ("", Joined(log));
}

TEST_F(MonsterBoxTest, SetSizeResizesLikeTheGripAndSetsThePanelWidth) {
  Make();
  AddRows(20);
  box->SetSize(400, 50);
  EXPECT_EQ(400, box->GetWidth());
  EXPECT_EQ(75, box->GetHeight());
  EXPECT_EQ(wxSize(350, 13), box->GetPanel()->GetSize());
  EXPECT_EQ(389, box->GetScrollBar()->GetPosX());
  EXPECT_EQ(13, box->GetScrollBar()->GetHeight());
  // Narrower than the margins: a one-pixel panel, never a negative size;
  // lower (a maximum below the minimum): a one-pixel bar.
  box->SetSize(18, 231);
  EXPECT_EQ(wxSize(1, 169), box->GetPanel()->GetSize());
  box->SetMaxSize(55);
  box->SetSize(290, 166);
  EXPECT_EQ(1, box->GetScrollBar()->GetSize().y);
}

TEST_F(MonsterBoxTest, ANewRowHeightLaysTheRowsOutAgain) {
  Make();
  AddRows(9);
  EXPECT_EQ(nullptr, box->GetScrollBar());
  box->SetRowHeight(20);  // 180 > 139
  EXPECT_EQ(40, CellY(2, 1));
  EXPECT_EQ(20, box->GetRowColumnEntry(2, 1)->GetSize().y);
  ASSERT_NE(nullptr, box->GetScrollBar());
  EXPECT_DOUBLE_EQ(139.0 / 180.0, box->GetScrollBar()->GetFractionVal());
}

TEST_F(MonsterBoxTest, ButtonsLineUpSeparatedBySpacerWidth) {
  Make();
  VornPushButton* first = box->AddButton(buttonImages.get(), 5, "a", &group);
  VornPushButton* second = box->AddButton(buttonImages.get(), 6, "b", &group);
  EXPECT_EQ(7 + 38, first->GetPosX());
  EXPECT_EQ(7 + 38 + 30 + 7, second->GetPosX());
  EXPECT_EQ(first->GetPosY(), second->GetPosY());
}

TEST_F(MonsterBoxTest, CellsAreFoundAndReportToTheGroup) {
  Make();
  AddRows(3);
  int row = 9, column = 9;
  RecordingControl foreign(frame.Get(), 900, nullptr, nullptr);
  box->FindRowColumn(&foreign, row, column);
  EXPECT_EQ(-1, row);
  EXPECT_EQ(-1, column);

  VornControl* check = box->GetRowColumnEntry(2, 1)->GetControl();
  box->FindRowColumn(check, row, column);
  EXPECT_EQ(2, row);
  EXPECT_EQ(1, column);
  log.clear();
  Click(check);
  // Cells speak with the box's id.
  EXPECT_EQ("sel 77 int 1 77", Joined(log));
  EXPECT_TRUE(static_cast<CheckBoxColumnEntry*>(box->GetRowColumnEntry(2, 1))->GetOn());

  VornControl* text = box->GetRowColumnEntry(1, 0)->GetControl();
  log.clear();
  Click(text);
  EXPECT_EQ("sel 77 unsel 77", Joined(log));
  box->FindRowColumn(text, row, column);
  EXPECT_EQ(1, row);
  EXPECT_EQ(0, column);
}

TEST_F(MonsterBoxTest, DeleteRowTakesItsCellsAndCallerPointer) {
  Make();
  AddRows(3);
  int data[3];
  for (int& d : data) box->AddLineData(&d);
  box->DeleteRow(1);
  EXPECT_EQ(2, box->GetRowCount());
  EXPECT_EQ(2, box->GetLineDataCount());
  EXPECT_EQ(&data[0], box->GetLineData(0));
  EXPECT_EQ(&data[2], box->GetLineData(1));
  EXPECT_EQ("row 2", static_cast<StaticTextColumnEntry*>(box->GetRowColumnEntry(1, 0))->GetText());
  EXPECT_EQ(15, CellY(1, 0));
  EXPECT_EQ(nullptr, box->GetLineData(2));
}

TEST_F(MonsterBoxTest, BadIndexesAssertAndAreRefused) {
  Make();
  AddRows(2);
  EXPECT_EQ("column < columns.size()",
            FiredAssertionIn([&] { box->AddEntry(2, "x", *wxWHITE, false); }).first);
  EXPECT_EQ("index < entries.size()", FiredAssertionIn([&] { box->DeleteRow(5); }).first);
  EXPECT_EQ(2, box->GetRowCount());
}

TEST_F(MonsterBoxTest, WheelScrollsOneRowPerNotchWithinTheContent) {
  Make();
  AddRows(20);
  Wheel(box->GetRowColumnEntry(0, 0)->GetControl(), -120);
  EXPECT_EQ(15, box->GetScrollOffset());
  Wheel(box, -360);
  EXPECT_EQ(60, box->GetScrollOffset());
  Wheel(box->GetRowColumnEntry(5, 1)->GetControl(), 240);
  EXPECT_EQ(30, box->GetScrollOffset());
  Wheel(box, 1200);
  EXPECT_EQ(0, box->GetScrollOffset());
  Wheel(box, -120 * 40);
  EXPECT_EQ(162, box->GetScrollOffset());
  EXPECT_DOUBLE_EQ(1.0, box->GetScrollBar()->GetSliderVal());
}

TEST_F(MonsterBoxTest, DrawsHeadingSeparatorsAndGrip) {
  Make(200, kMonsterBoxResizable);
  const wxImage image = Render(box, 300, 200).ConvertToImage();
  // The first column ends at panel x 12 + 120: its separator is its last pixel.
  EXPECT_EQ(kSep, ImagePixel(image, 12 + 119, 30));
  EXPECT_EQ(wxColour(60, 60, 60), ImagePixel(image, 12 + 60, 19));
  EXPECT_EQ(wxColour(30, 30, 30), ImagePixel(image, 2, 2));
  EXPECT_NE(wxColour(30, 30, 30), ImagePixel(image, 300 - 5, 190));  // the bar's column
  const int withGrip = CountNear(Render(box, 300, 200), kSep, 0);
  box->Resizable(false);
  EXPECT_GT(withGrip, CountNear(Render(box, 300, 200), kSep, 0) + 10);
  EXPECT_NE(box->RowBackground(0), box->RowBackground(1));
}

TEST_F(MonsterBoxTest, InsertedRowsPushTheOthersDownAndReshadeThem) {
  Make();
  AddRows(3);
  int a = 0, b = 0, c = 0;
  box->AddLineData(&a);
  box->AddLineData(&c);
  box->InsertLineData(1, &b);
  box->InsertEntry(1, 0, "new", *wxWHITE, true);
  box->InsertEntry(1, 1, checks.get(), true);
  EXPECT_EQ(4, box->GetRowCount());
  auto* inserted = static_cast<StaticTextColumnEntry*>(box->GetRowColumnEntry(1, 0));
  EXPECT_EQ("new", inserted->GetText());
  EXPECT_EQ(15, CellY(1, 0));
  EXPECT_EQ(30, CellY(2, 0));  // the old row 1
  EXPECT_EQ("row 1", static_cast<StaticTextColumnEntry*>(box->GetRowColumnEntry(2, 0))->GetText());
  EXPECT_EQ(box->RowBackground(2), box->GetRowColumnEntry(2, 0)->GetBackgroundColour());
  EXPECT_EQ(box->RowBackground(3), box->GetRowColumnEntry(3, 1)->GetBackgroundColour());
  // A centred text sits in the middle of its cell, a plain one at its left.
  VornControl* centred = inserted->GetControl();
  EXPECT_GT(centred->GetPosX(), 0);
  EXPECT_NEAR(120 / 2, centred->GetPosX() + centred->GetWidth() / 2, 1);
  EXPECT_EQ(0, box->GetRowColumnEntry(0, 0)->GetControl()->GetPosX());
  EXPECT_EQ(14, box->GetRowColumnEntry(0, 0)->GetControl()->GetHeight());
  EXPECT_EQ(&b, box->GetLineData(1));
  EXPECT_EQ(&c, box->GetLineData(2));
  EXPECT_EQ(box->GetRowColumnEntry(3, 1)->GetControl(), box->GetRowColumn(3, 1));
  EXPECT_EQ(nullptr, box->GetRowColumn(4, 0));
  EXPECT_EQ(nullptr, box->GetRowColumnEntry(0, 2));
}

TEST_F(MonsterBoxTest, TheBarsDownButtonScrollsTheCells) {
  Make();
  AddRows(20);
  VornMomentBtn* down = box->GetScrollBar()->GetDownButton();
  ASSERT_NE(nullptr, down);
  Do(down, "enter down");
  down->GetTimer()->Stop();
  Do(down, "up leave");
  // The first step: 20 / (bar height / fraction) of the 162 scrollable pixels.
  const double fraction = 139.0 / 300.0;
  const double v = 20.0 / (box->GetListHeight() / fraction);
  EXPECT_DOUBLE_EQ(v, box->GetScrollBar()->GetSliderVal());
  EXPECT_EQ(static_cast<int>(162 * v), box->GetScrollOffset());
  EXPECT_EQ(-box->GetScrollOffset(), CellY(0, 0));
}

}  // namespace
