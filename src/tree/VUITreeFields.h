#pragma once
// A row of value fields for the text-edit editors: the tree's value-box
// picture stretched to the field width, fields placed from an x with an
// 8-pixel gap, numbers written and read in the fields' formats.
#include <wx/bitmap.h>

#include <memory>
#include <optional>
#include <vector>

#include "vorn/VUIControls.h"

class VUITreeFields {
 public:
  static constexpr int kGap = 8;

  // Loads the value-box picture (assertion when the skin lacks it) and
  // stretches it to fieldWidth.
  VUITreeFields(AssetManager* assetman, int fieldWidth);

  // Creates fields up to n (kept once made) as children of owner, shows
  // the first n and hides the rest, placed from x on the row of height
  // rowHeight. Each field reports to a group of its own that owner is in:
  // the fields of one vector must not copy each other's text.
  void Show(int n, VornControl* owner, int style, bool editable, int x, int rowHeight);
  int GetCount() const { return m_shown; }
  int GetFieldWidth() const { return m_fieldWidth; }
  VUITreeSubEditBox* Get(int index) const;
  // Width of n fields with their gaps and margins: 8n + 7 + n * field width,
  // or 15 for none.
  int RowWidth(int n) const;
  // True when source is one of the fields.
  bool Owns(const VornControl* source) const;

  void SetStyle(int style);
  void SetEditable(bool editable);
  void PutReals(const double* values, int n);
  void PutInt(int32 value);
  void PutText(const VornString& text);
  void TakeReals(double* values, int n) const;
  int32 TakeInt() const;
  VornString TakeText() const;

 private:
  // A text goes to its field, or waits for it: a leaf in a closed branch
  // gets its value before its windows exist.
  void Put(int index, const VornString& text);
  VornString Text(int index) const;

  // The skin's value box, stretched to the field width when the first field
  // is made (a tree builds many leaves that are never shown).
  wxBitmap m_source;
  wxBitmap m_picture;
  VornEditInfo m_info;
  int m_fieldWidth;
  int m_shown = 0;
  std::vector<VUITreeSubEditBox*> m_fields;  // child windows of the owner
  std::vector<std::unique_ptr<VornControlGroupValue>> m_groups;
  std::vector<std::optional<VornString>> m_waiting;  // texts of fields not made yet
};
