#include "VUITreeFields.h"

#include <wx/dcmemory.h>
#include <wx/image.h>

#include "../controls/edit/EditFormat.h"
#include "VUITreeTexts.h"
#include "vorn/VornAssert.h"

namespace {

// The picture at a new width: both ends kept, the middle column repeated,
// so the rounded corners stay round.
wxBitmap Stretched(const wxBitmap& source, int width) {
  const int w = source.GetWidth(), h = source.GetHeight();
  if (width == w || w < 3) return source;
  const wxImage in = source.ConvertToImage();
  wxImage out(width, h);
  if (in.HasAlpha()) out.InitAlpha();
  const int end = std::min(w / 2, width / 2);
  for (int x = 0; x < width; ++x) {
    const int from = x < end ? x : (x >= width - end ? w - (width - x) : w / 2);
    for (int y = 0; y < h; ++y) {
      out.SetRGB(x, y, in.GetRed(from, y), in.GetGreen(from, y), in.GetBlue(from, y));
      if (in.HasAlpha()) out.SetAlpha(x, y, in.GetAlpha(from, y));
    }
  }
  return wxBitmap(out);
}

VornString Utf8Of(const wxString& text) {
  return VornString(text.utf8_str().data());
}

wxString FromUtf8(const VornString& text) {
  return wxString::FromUTF8(text.c_str());
}

}  // namespace

VUITreeFields::VUITreeFields(AssetManager* assetman, int fieldWidth) : m_fieldWidth(fieldWidth) {
  const wxBitmap* picture = nullptr;
  const bool val = assetman->LoadEditWidgetCached(VUITreeTexts::kValueBox, picture, m_info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  if (!picture) return;
  m_source = *picture;
  // The text area keeps its margins.
  m_info.width += fieldWidth - picture->GetWidth();
}

void VUITreeFields::Show(int n, VornControl* owner, int style, bool editable, int x,
                         int rowHeight) {
  if (!m_picture.IsOk() && m_source.IsOk()) m_picture = Stretched(m_source, m_fieldWidth);
  const int h = m_picture.IsOk() ? m_picture.GetHeight() : m_info.height;
  while (static_cast<int>(m_fields.size()) < n) {
    m_groups.push_back(std::make_unique<VornControlGroupValue>());
    m_groups.back()->Register(owner);
    auto* field = new VUITreeSubEditBox(m_picture.IsOk() ? &m_picture : nullptr, m_info, 0, 0,
                                        owner, static_cast<int>(m_fields.size()) + 1, editable,
                                        style, m_groups.back().get());
    m_fields.push_back(field);
    const size_t index = m_fields.size() - 1;
    if (index < m_waiting.size() && m_waiting[index]) field->SetText(*m_waiting[index], false);
  }
  for (int i = 0; i < static_cast<int>(m_fields.size()); ++i) {
    m_fields[i]->Move(x + i * (m_fieldWidth + kGap), (rowHeight - h) / 2);
    m_fields[i]->Show(i < n);
  }
  m_shown = n;
}

VUITreeSubEditBox* VUITreeFields::Get(int index) const {
  VORN_ASSERT(index >= 0 && index < static_cast<int>(m_fields.size()));
  if (index < 0 || index >= static_cast<int>(m_fields.size())) return nullptr;
  return m_fields[index];
}

int VUITreeFields::RowWidth(int n) const {
  return (n > 0 ? kGap * n + 7 : 15) + n * m_fieldWidth;
}

bool VUITreeFields::Owns(const VornControl* source) const {
  for (VUITreeSubEditBox* field : m_fields)
    if (field == source) return true;
  return false;
}

void VUITreeFields::SetStyle(int style) {
  // Fields made later take the style through Show's argument.
  for (VUITreeSubEditBox* field : m_fields) field->ForceStyle(style);
}

void VUITreeFields::SetEditable(bool editable) {
  for (VUITreeSubEditBox* field : m_fields) field->SetEditable(editable);
}

void VUITreeFields::Put(int index, const VornString& text) {
  if (index < static_cast<int>(m_fields.size())) {
    m_fields[index]->SetText(text, false);
    return;
  }
  if (index >= static_cast<int>(m_waiting.size())) m_waiting.resize(index + 1);
  m_waiting[index] = text;
}

VornString VUITreeFields::Text(int index) const {
  VornString text;
  if (index < static_cast<int>(m_fields.size()))
    m_fields[index]->GetText(text);
  else if (index < static_cast<int>(m_waiting.size()) && m_waiting[index])
    text = *m_waiting[index];
  return text;
}

void VUITreeFields::PutReals(const double* values, int n) {
  for (int i = 0; i < n; ++i)
    Put(i, Utf8Of(VornEditFormat::Fixed(values[i], VUITreeTexts::kRealDecimals)));
}

void VUITreeFields::PutInt(int32 value) {
  Put(0, Utf8Of(wxString::Format("%i", value)));
}

void VUITreeFields::PutText(const VornString& text) {
  Put(0, text);
}

void VUITreeFields::TakeReals(double* values, int n) const {
  for (int i = 0; i < n; ++i) values[i] = VornEditFormat::ReadReal(FromUtf8(Text(i)));
}

int32 VUITreeFields::TakeInt() const {
  return VornEditFormat::ReadInt(FromUtf8(Text(0)));
}

VornString VUITreeFields::TakeText() const {
  return Text(0);
}
