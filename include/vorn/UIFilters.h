#pragma once
// Filters through which the host's drawing functions paint into a wxImage, or
// into a wxBitmap with undo. The point forms of access are Filter's own.
#include <wx/bitmap.h>
#include <wx/image.h>

#include "vornhost/Filter.h"

// A filter view of a wxImage (not owned; it must outlive the filter). Reads
// give alpha 1; writes round each channel to trunc(c * 255 + 0.5).
class BasicwxImageFilter : public Filter {
 public:
  explicit BasicwxImageFilter(wxImage& image) : m_image(image) {}
  ~BasicwxImageFilter() override;
  bool WritePixel(int x, int y, ColorA& c) override;
  bool ReadPixel(ColorA& c, int x, int y) const override;
  // Each channel becomes trunc(c * i * 255 + old * (1 - i) + 0.5).
  bool WritePixelI(int x, int y, ColorA& c, double intensity) override;
  int GetWidth() const override;
  int GetHeight() const override;
  bool Clear() override;
  bool Create(int width, int height) override;

 private:
  bool Inside(int x, int y) const {
    return m_image.IsOk() && x >= 0 && y >= 0 && x < m_image.GetWidth() && y < m_image.GetHeight();
  }
  wxImage& m_image;
};

// Writes through an undo record into another filter (not owned) and mirrors
// that filter's picture in a wxBitmap, so the picture can be shown and the
// writes taken back.
class wxBitmapUnDoFilter : public Filter {
 public:
  explicit wxBitmapUnDoFilter(Filter& target);
  ~wxBitmapUnDoFilter() override;
  bool WritePixel(int x, int y, ColorA& c) override;
  bool ReadPixel(ColorA& c, int x, int y) const override;
  bool WritePixelI(int x, int y, ColorA& c, double intensity) override;
  int GetWidth() const override;
  int GetHeight() const override;
  bool Clear() override;
  bool Create(int width, int height) override;

  // Restores every pixel written since the last Initialize, newest first.
  bool UnDo();
  // Forgets the recorded writes and recopies the picture into the bitmap.
  void Initialize();
  const wxBitmap& GetBitmap() const { return m_bitmap; }

 private:
  void updatebitmap();
  // Draws the filter's current colour at (x, y) into the bitmap.
  void MirrorPixel(int x, int y);

  UnDoFilter m_undo;
  wxBitmap m_bitmap;
};
