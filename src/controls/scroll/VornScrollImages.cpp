// Shared drawing steps of the scroll bars' generated pictures.
#include "VornScrollImages.h"

#include "vorn/GraphicsFunctions.h"
#include "vornhost/Filter.h"

wxImage VornScrollImage(int w, int h, const wxColour& colour) {
  wxImage image(w, h, false);
  Clear(*CreateFilter(image), WxCtoCA(colour));
  return image;
}

void DrawVornScrollArrow(wxImage& image, const wxColour& colour) {
  const ColorA c = WxCtoCA(colour);
  std::unique_ptr<Filter> f = CreateFilter(image);
  DrawLine(AntiAlias(*f), 3, 7, 1, 11, c);
  DrawLine(AntiAlias(*f), 3, 7, 5, 11, c);
}

std::unique_ptr<wxBitmap> MirroredVornScrollBitmap(const wxImage& image, bool flipVert) {
  wxImage work = image.Copy();
  std::unique_ptr<Filter> f = CreateFilter(work);
  if (flipVert) FlipVert(*f, *f);
  FlipHoz(*f, *f);
  return std::make_unique<wxBitmap>(work);
}
