// One column of the monster box: its place, heading and cells.
#include "MonsterBoxParts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornMonsterBox.h"

MonsterColumn::MonsterColumn(VornMonsterBox* box, std::unique_ptr<ColumnHeading> heading)
    : m_pHeading(std::move(heading)), m_pBox(box) {}

MonsterColumn::~MonsterColumn() {
  ClearAll();
}

void MonsterColumn::SetWidth(int x, int w) {
  m_x = x;
  m_width = w;
  LayoutEntries();
}

void MonsterColumn::InsertEntry(int index, ColumnEntry* entry, int rowHeight) {
  if (!entry) return;
  const int count = GetEntryCount();
  index = std::max(0, std::min(index, count));
  m_entries.insert(m_entries.begin() + index, entry);
  entry->SetColumn(this);
  (void)rowHeight;  // the box's row height is read when placing
  // The rows below move down one place (and change their shade).
  for (int i = index; i <= count; ++i) PlaceEntry(i);
}

void MonsterColumn::DeleteEntry(int index) {
  VORN_ASSERT_TEXT(index >= 0 && index < GetEntryCount(), monster::kIndexInRange);
  if (index < 0 || index >= GetEntryCount()) return;
  ColumnEntry* entry = m_entries[index];
  m_entries.erase(m_entries.begin() + index);
  entry->Destroy();
  for (int i = index; i < GetEntryCount(); ++i) PlaceEntry(i);
}

void MonsterColumn::ClearAll() {
  for (ColumnEntry* entry : m_entries) entry->Destroy();
  m_entries.clear();
}

void MonsterColumn::LayoutEntries() {
  for (int i = 0; i < GetEntryCount(); ++i) PlaceEntry(i);
}

ColumnEntry* MonsterColumn::GetEntry(int index) const {
  return index >= 0 && index < GetEntryCount() ? m_entries[index] : nullptr;
}

int MonsterColumn::IndexOf(VornControl* control) const {
  for (int i = 0; i < GetEntryCount(); ++i)
    if (m_entries[i]->BelongsToMe(control)) return i;
  return -1;
}

void MonsterColumn::PlaceEntry(int index) {
  const int rowHeight = m_pBox ? m_pBox->GetRowHeight() : 15;
  const int offset = m_pBox ? m_pBox->GetScrollOffset() : 0;
  ColumnEntry* entry = m_entries[index];
  entry->SetGeometry(m_x, index * rowHeight - offset, m_width, rowHeight);
  if (m_pBox) entry->SetCellColours(entry->GetForegroundColour(), m_pBox->RowBackground(index));
}
