// Text typed or pasted into the edits. The first byte picks the grammar:
//   even: the rest is a field's text, rewritten in every number format of
//         the edits and shown as a date and a time;
//   odd:  the next byte is an area width, the rest is a multi-line text and
//         then edits, separated by 0xFF bytes (two bytes place each edit,
//         the rest is the text it inserts).
// Properties checked: a number format is a fixed point (formatting its own
// output gives it back) and re-wrapping after an edit gives the same lines
// as wrapping from scratch.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "EditFormat.h"
#include "FuzzSupport.h"
#include "MultiEditWrap.h"
#include "vorn/VornEdit.h"
#include "vornhost/Utility.h"

namespace {

void Require(bool property) {
  if (!property) std::abort();
}

wxString FromBytes(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  // Invalid UTF-8 decodes to nothing; read it as Latin-1 then, as a paste of
  // foreign bytes might arrive.
  wxString text = wxString::FromUTF8(bytes.data(), bytes.size());
  if (text.empty() && !bytes.empty()) text = wxString::From8BitData(bytes.data(), bytes.size());
  return text;
}

void NumberFormats(const std::uint8_t* data, std::size_t size) {
  const wxString text = FromBytes(data, size);
  for (int style : {VornEdit::ES_INT, VornEdit::ES_REAL, VornEdit::ES_REAL2, VornEdit::ES_TEXT}) {
    const wxString once = VornEditFormat::ForStyle(style, text);
    Require(VornEditFormat::ForStyle(style, once) == once);
  }
  const double seconds = VornEditFormat::ReadReal(text);
  MakeDate(seconds);
  MakeTime(seconds);
}

// Pixel widths that depend on the character; some are zero wide, as
// combining marks are.
int Width(const wxString& piece) {
  int w = 0;
  for (wxUniChar c : piece) w += static_cast<int>(c.GetValue() % 7);
  return w;
}

void CheckLines(const wxString& text, const std::vector<int>& starts) {
  const int length = static_cast<int>(text.length());
  Require(!starts.empty() && starts.front() == 0);
  for (std::size_t i = 0; i < starts.size(); ++i) {
    Require(starts[i] <= length && (i == 0 || starts[i] > starts[i - 1]));
    const int line = static_cast<int>(i);
    const int end = multiedit::LineEnd(text, starts, line);
    const int caret = multiedit::LastCaretIndex(text, starts, line);
    Require(starts[i] <= end && end <= length && starts[i] <= caret && caret <= length);
    Require(multiedit::LineOf(starts, starts[i]) == line);
  }
}

void Wrapping(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return;
  const int area = 1 + data[0];
  ++data;
  --size;
  std::vector<std::string> chunks(1);
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == 0xFF)
      chunks.emplace_back();
    else
      chunks.back() += static_cast<char>(data[i]);
  }
  const multiedit::TextWidth width = Width;
  wxString text =
      FromBytes(reinterpret_cast<const std::uint8_t*>(chunks[0].data()), chunks[0].size());
  std::vector<int> starts = multiedit::WrapFrom(text, area, width);
  CheckLines(text, starts);
  for (std::size_t k = 1; k < chunks.size() && k < 64; ++k) {
    const std::string& edit = chunks[k];
    if (edit.size() < 2) continue;
    const int length = static_cast<int>(text.length());
    const int at = static_cast<std::uint8_t>(edit[0]) % (length + 1);
    const int removed = static_cast<std::uint8_t>(edit[1]) % (length - at + 1);
    const wxString inserted =
        FromBytes(reinterpret_cast<const std::uint8_t*>(edit.data() + 2), edit.size() - 2);
    text =
        text.Left(static_cast<size_t>(at)) + inserted + text.Mid(static_cast<size_t>(at + removed));
    multiedit::Rewrap(text, starts, at, removed, static_cast<int>(inserted.length()), area, width);
    Require(starts == multiedit::WrapFrom(text, area, width));
    CheckLines(text, starts);
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || size > 4096) return 0;
  if (data[0] % 2 == 0)
    NumberFormats(data + 1, size - 1);
  else
    Wrapping(data + 1, size - 1);
  return 0;
}
