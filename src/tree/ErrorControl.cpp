// The error control: a leaf that stands in for an editor that could not be
// made. It keeps whatever value it is given and shows why it is there.
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <algorithm>

#include "VUITreeTexts.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"
#include "vornhost/Filter.h"

namespace {
// The connector as the editors draw it: a stub, a small circle, the name
// and a leader to the alignment line.
constexpr int kStubEnd = 4;
constexpr int kCircleX = 7;
constexpr int kCircleRadius = 2;
constexpr int kNameX = 12;
constexpr int kLeaderGap = 2;
constexpr int kSignGap = 4;  // from the alignment line to the sign
constexpr int kTextGap = 6;  // from the sign to the lines
const ColorA kSignRed(0.85, 0.12, 0.12, 1.0);
const ColorA kSignWhite(1.0, 1.0, 1.0, 1.0);

wxString FromUtf8(const VornString& s) {
  return wxString::FromUTF8(s.c_str());
}

wxFont LineFont() {
  return wxFont(ErrorControl::kTextPoints, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL,
                wxFONTWEIGHT_NORMAL);
}

// A red disc with a white cross, anti-aliased, into image at box.
void DrawErrorSign(wxImage& image, const wxRect& box) {
  std::unique_ptr<Filter> f = CreateFilter(image);
  const int r = box.width / 2;
  const int cx = box.x + r, cy = box.y + r;
  DrawCircle(AntiAlias(*f), cx, cy, r, kSignRed, true);
  const int arm = r / 2;
  // Two pixels wide: each stroke drawn twice, a pixel apart.
  for (int d = 0; d < 2; ++d) {
    DrawLine(AntiAlias(*f), cx - arm + d, cy - arm, cx + arm + d, cy + arm, kSignWhite);
    DrawLine(AntiAlias(*f), cx + arm + d, cy - arm, cx - arm + d, cy + arm, kSignWhite);
  }
}
}  // namespace

ErrorControl::ErrorControl(int width, int height, AssetManager* assetman, VornString name,
                           VornString error, VornString valueType, VornString widget)
    : m_width(width),
      m_height(height),
      m_name(std::move(name)),
      m_error(std::move(error)),
      m_valueType(std::move(valueType)),
      m_widget(std::move(widget)),
      m_pAssetManager(assetman),
      m_textColour(*wxWHITE) {
  VORN_ASSERT_TEXT(assetman != nullptr, VUITreeTexts::kNoAssetManager);
  if (assetman) {
    const bool val = assetman->GetFont(VUITreeTexts::kErrorFont, m_nameFont);
    VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
    // The tree's name colour when the skin has one.
    assetman->GetColour(VUITreeTexts::kErrorText, m_textColour);
  }
  SetNameSizes();
}

ErrorControl::~ErrorControl() = default;

// ---- metrics ----------------------------------------------------------------------

void ErrorControl::SetNameSizes() {
  wxBitmap scratch(1000, 200);
  wxMemoryDC dc(scratch);
  dc.SetFont(m_nameFont.IsOk() ? m_nameFont : *wxNORMAL_FONT);
  m_nameWidth = dc.GetTextExtent(FromUtf8(m_name)).x;
  dc.SetFont(LineFont());
  m_textWidth = 0;
  for (int i = 0; i < 3; ++i) {
    const wxSize size = dc.GetTextExtent(GetLine(i));
    m_textWidth = std::max(m_textWidth, size.x);
    m_lineHeight = std::max(m_lineHeight, size.y);
  }
}

int ErrorControl::GetAllignmentPt() {
  return m_nameWidth + VUITreeControlBase::kNameGap;
}

wxString ErrorControl::GetLine(int index) const {
  switch (index) {
    case 0:
      return VUITreeTexts::kErrorLine + FromUtf8(m_error);
    case 1:
      return VUITreeTexts::kValTypeLine + FromUtf8(m_valueType);
    case 2:
      return VUITreeTexts::kWidgetLine + FromUtf8(m_widget);
    default:
      return wxString();
  }
}

wxRect ErrorControl::GetSignRect() {
  return wxRect(GetAllignmentPt() + kSignGap, (m_height - kSignSize) / 2, kSignSize, kSignSize);
}

wxRect ErrorControl::GetTextRect() {
  const int top = std::max(0, (m_height - 3 * m_lineHeight) / 2);
  return wxRect(GetSignRect().GetRight() + 1 + kTextGap, top, m_textWidth, 3 * m_lineHeight);
}

// ---- drawing -------------------------------------------------------------------------

void ErrorControl::OnDraw(wxDC* dc) {
  if (!dc || m_width <= 0 || m_height <= 0) return;
  wxImage image(m_width, m_height);
  const wxColour bg = CtoWxC(GetRowBackgroundCol());
  image.SetRGB(wxRect(0, 0, m_width, m_height), bg.Red(), bg.Green(), bg.Blue());
  {
    std::unique_ptr<Filter> f = CreateFilter(image);
    const ColorA line = CtoCA(GetLineCol());
    const int mid = m_height / 2;
    DrawLine(*f, 0, mid, kStubEnd, mid, line);
    DrawCircle(AntiAlias(*f), kCircleX, mid, kCircleRadius, line, false);
    const int leader = kNameX + m_nameWidth + kLeaderGap;
    if (leader < GetAllignmentPt() - kLeaderGap)
      DrawLine(*f, leader, mid, GetAllignmentPt() - kLeaderGap, mid, line);
  }
  DrawErrorSign(image, GetSignRect());
  wxBitmap picture(image);
  {
    wxMemoryDC mem(picture);
    mem.SetBackgroundMode(wxTRANSPARENT);
    mem.SetTextForeground(m_textColour);
    mem.SetFont(m_nameFont.IsOk() ? m_nameFont : *wxNORMAL_FONT);
    const wxSize name = mem.GetTextExtent(FromUtf8(m_name));
    mem.DrawText(FromUtf8(m_name), kNameX, (m_height - name.y) / 2);
    mem.SetFont(LineFont());
    const wxRect text = GetTextRect();
    for (int i = 0; i < 3; ++i) mem.DrawText(GetLine(i), text.x, text.y + i * m_lineHeight);
  }
  dc->DrawBitmap(picture, 0, 0, false);
}

// ---- the stored values -------------------------------------------------------------------

bool ErrorControl::GetValue(int32& out) {
  out = m_int;
  return true;
}
bool ErrorControl::SetValue(int32 value) {
  m_int = value;
  return true;
}
bool ErrorControl::GetValue(double& out) {
  out = m_real;
  return true;
}
bool ErrorControl::SetValue(double value) {
  m_real = value;
  return true;
}
bool ErrorControl::GetValue(Vec2d& out) {
  out = m_vec2;
  return true;
}
bool ErrorControl::SetValue(Vec2d value) {
  m_vec2 = value;
  return true;
}
bool ErrorControl::GetValue(Vec3d& out) {
  out = m_vec3;
  return true;
}
bool ErrorControl::SetValue(Vec3d value) {
  m_vec3 = value;
  return true;
}
bool ErrorControl::GetValue(Vec4d& out) {
  out = m_vec4;
  return true;
}
bool ErrorControl::SetValue(Vec4d value) {
  m_vec4 = value;
  return true;
}
bool ErrorControl::GetValue(Quaternion& out) {
  out = m_quaternion;
  return true;
}
bool ErrorControl::SetValue(Quaternion value) {
  m_quaternion = value;
  return true;
}
bool ErrorControl::GetValue(Color& out) {
  out = m_color;
  return true;
}
bool ErrorControl::SetValue(Color value) {
  m_color = value;
  return true;
}
bool ErrorControl::GetValue(ColorA& out) {
  out = m_colorA;
  return true;
}
bool ErrorControl::SetValue(ColorA value) {
  m_colorA = value;
  return true;
}
bool ErrorControl::GetValue(VornString& out) {
  out = m_string;
  return true;
}
bool ErrorControl::SetValue(VornString value) {
  m_string = std::move(value);
  return true;
}
