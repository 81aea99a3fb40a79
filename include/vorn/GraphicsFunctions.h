#pragma once
// Conversions between the host's image types and wx images, colour
// conversions, and the grey-mask functions with which image scripts colour
// and cut out control images.
//
// Conversions to 8-bit channels truncate value * 255. The host's
// ConvertTo(Bitmap&, const BitmapA&) and ConvertTo(BitmapA&, const Bitmap&)
// live in vornhost/Bitmap.h.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/image.h>

#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

// dst is cleared and sized to src; RGB bytes copied (alpha 255 for BitmapA).
// The result is format 3.
bool ConvertTo(Bitmap& dst, const wxImage& src);
bool ConvertTo(BitmapA& dst, const wxImage& src);
// dst is created at src's size. Format 3 copies R, G, B; format 1 spreads the
// grey byte to R, G and B; alpha is dropped. Any other format is a
// programming error.
bool ConvertTo(wxImage& dst, const BitmapA& src);
bool ConvertTo(wxImage& dst, const Bitmap& src);
// Through a wxImage; the result is that of the first conversion.
bool ConvertTo(wxBitmap& dst, const BitmapA& src);
bool ConvertTo(wxBitmap& dst, const Bitmap& src);

// dst shares src's (reference-counted) data.
bool Copy(wxImage& dst, const wxImage& src);

// dst receives a copy of base with top blitted onto it at (x, y).
bool BlitwxImage(wxImage& dst, BitmapA& base, BitmapA& top, int x, int y);
bool BlitwxImage(wxImage& dst, Bitmap& base, Bitmap& top, int x, int y);

// Channels / 255.0 (alpha 1.0), and channels * 255 truncated to 0..255
// (alpha dropped).
Color WxCtoC(const wxColour& c);
ColorA WxCtoCA(const wxColour& c);
wxColour CtoWxC(const Color& c);
wxColour CAtoWxC(const ColorA& c);

// Sets every pixel of a non-empty image to the colour.
bool ClearwxImage(wxImage& image, const Color& c);

// Grey-mask functions. dst must be format 3 (RGBA) and the mask the same size
// (programming errors otherwise). Per pixel, with grey = (R + G + B) / 3 of
// the mask (integer division) and t = grey / 255.0:
//   Map...Alpha: alpha = grey ? 255 : 0          Set...Alpha: alpha = grey
//   Map...Colours: d = trunc((trunc(c*t*255) mod 256) + d*(1 - t))
//   Set...Colours: d = trunc(c * grey)
// The "All" forms do both.
bool MapAlphaFromGrey(BitmapA& dst, const wxImage& grey);
bool MapColoursFromGrey(BitmapA& dst, const wxImage& grey, const Color& c);
bool MapAllFromGrey(BitmapA& dst, const wxImage& grey, const Color& c);
bool SetAlphaFromGrey(BitmapA& dst, const wxImage& grey);
bool SetColoursFromGrey(BitmapA& dst, const wxImage& grey, const Color& c);
bool SetAllFromGrey(BitmapA& dst, const wxImage& grey, const Color& c);
