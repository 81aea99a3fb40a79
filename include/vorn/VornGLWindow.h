#pragma once
// A rectangle that a host draws inside its own OpenGL view, in window pixel
// coordinates: a size with a minimum, the place of the last drawing, and a
// capture flag for the host's own pointer routing. Every drawing call needs
// the host's GL context current and its projection mapping window pixels.

class VornGLWindow {
 public:
  VornGLWindow() = default;
  virtual ~VornGLWindow();

  // ---- operations a host calls
  // Stores the position, then CalcBounds and Paint.
  virtual void Draw(int x, int y);
  // The position of the last Draw.
  virtual void GetLastPosition(int& x, int& y) const;
  // Never below the minimum size.
  virtual void SetSize(int w, int h);
  virtual void GetSize(int& w, int& h) const;
  // Stores the minima without resizing.
  virtual void SetMinSize(int& w, int& h);
  virtual void GetMinSize(int& w, int& h) const;

  // ---- hooks: override OnDraw to draw content; the others rarely
  // The last column and row covered; at least one pixel each way.
  virtual void CalcBounds();
  // PrepareContext, then OnDraw.
  virtual void Paint();
  // The base fills the rectangle in the current GL colour.
  virtual void OnDraw();
  // Flat, unlit, untested state with the model-view matrix current.
  virtual void PrepareContext();

  // ---- the host's capture flag (no wxWidgets capture)
  bool IsCaptured() const { return m_bCaptured; }
  void CaptureMouse() { m_bCaptured = true; }
  void ReleaseMouse() { m_bCaptured = false; }

  // Bounds of the last Draw (valid after the first one).
  int GetRight() const { return m_right; }
  int GetBottom() const { return m_bottom; }

 protected:
  bool m_bCaptured = false;
  int m_width = 10;
  int m_height = 10;
  int m_minWidth = 5;
  int m_minHeight = 5;
  int m_x = 0;
  int m_y = 0;
  int m_right = 0;
  int m_bottom = 0;
};
