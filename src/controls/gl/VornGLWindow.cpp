#include "vorn/VornGLWindow.h"

#include <GL/gl.h>

VornGLWindow::~VornGLWindow() = default;

void VornGLWindow::Draw(int x, int y) {
  m_x = x;
  m_y = y;
  CalcBounds();
  Paint();
}

void VornGLWindow::GetLastPosition(int& x, int& y) const {
  x = m_x;
  y = m_y;
}

void VornGLWindow::SetSize(int w, int h) {
  m_width = w;
  m_height = h;
  if (m_width < m_minWidth) m_width = m_minWidth;
  if (m_height < m_minHeight) m_height = m_minHeight;
}

void VornGLWindow::GetSize(int& w, int& h) const {
  w = m_width;
  h = m_height;
}

void VornGLWindow::SetMinSize(int& w, int& h) {
  m_minWidth = w;
  m_minHeight = h;
}

void VornGLWindow::GetMinSize(int& w, int& h) const {
  w = m_minWidth;
  h = m_minHeight;
}

void VornGLWindow::CalcBounds() {
  m_right = m_x + m_width - 1;
  if (m_right < m_x) m_right = m_x;
  m_width = m_right - m_x + 1;
  m_bottom = m_y + m_height - 1;
  if (m_bottom < m_y) m_bottom = m_y;
  m_height = m_bottom - m_y + 1;
}

void VornGLWindow::Paint() {
  PrepareContext();
  OnDraw();
}

void VornGLWindow::PrepareContext() {
  glDisable(GL_LIGHTING);
  glDisable(GL_DEPTH_TEST);
  glDisable(GL_CULL_FACE);
  glDisable(GL_BLEND);
  glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
  glShadeModel(GL_FLAT);
  glLoadIdentity();
  glMatrixMode(GL_PROJECTION);
  glMatrixMode(GL_MODELVIEW);
}

void VornGLWindow::OnDraw() {
  const float left = static_cast<float>(m_x), top = static_cast<float>(m_y);
  const float right = static_cast<float>(m_x + m_width - 1);
  const float bottom = static_cast<float>(m_y + m_height - 1);
  glBegin(GL_POLYGON);
  glVertex3f(left, top, 0.0f);
  glVertex3f(right, top, 0.0f);
  glVertex3f(right, bottom, 0.0f);
  glVertex3f(left, bottom, 0.0f);
  glEnd();
}
