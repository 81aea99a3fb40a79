// A small marker leaf: a blob in the tree's line colour. The blob is drawn
// once into an image (anti-aliased by the host library) and made again only
// when the tree's colours change.
#include <wx/dc.h>
#include <wx/image.h>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"
#include "vornhost/Filter.h"

namespace {
constexpr int kBlobRadius = 4;

bool SameColour(const Color& a, const Color& b) {
  return a.r == b.r && a.g == b.g && a.b == b.b;
}
}  // namespace

VornBlobbyControl::VornBlobbyControl() = default;
VornBlobbyControl::~VornBlobbyControl() = default;

wxBitmap VornBlobbyControl::MakeBlobImage(const Color& background, const Color& blob) {
  wxImage image(kWidth, kHeight);
  const wxColour bg = CtoWxC(background);
  image.SetRGB(wxRect(0, 0, kWidth, kHeight), bg.Red(), bg.Green(), bg.Blue());
  {
    std::unique_ptr<Filter> f = CreateFilter(image);
    DrawCircle(AntiAlias(*f), kAlignment, kHeight / 2, kBlobRadius, CtoCA(blob), true);
  }
  return wxBitmap(image);
}

void VornBlobbyControl::OnDraw(wxDC* dc) {
  if (!dc) return;
  const Color& background = GetRowBackgroundCol();
  if (!m_blob.IsOk() || !SameColour(background, m_blobBackground) ||
      !SameColour(GetLineCol(), m_blobColour)) {
    m_blobBackground = background;
    m_blobColour = GetLineCol();
    m_blob = MakeBlobImage(m_blobBackground, m_blobColour);
  }
  dc->DrawBitmap(m_blob, 0, 0);
}
