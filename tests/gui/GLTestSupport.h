#pragma once
// A test fixture with a current OpenGL context on a canvas (Mesa under
// Xvfb); a test is skipped where the display has no GL.
#define GL_GLEXT_PROTOTYPES 1
#include <GL/gl.h>
#include <GL/glext.h>
#include <gtest/gtest.h>
#include <wx/glcanvas.h>

#include <memory>

#include "GuiTestSupport.h"

class GLContextTest : public ::testing::Test {
 protected:
  static constexpr int kSide = 64;
  void SetUp() override {
    m_frame = std::make_unique<TestFrame>(wxSize(120, 120));
    wxGLAttributes attrs;
    attrs.PlatformDefaults().RGBA().DoubleBuffer().EndList();
    if (!wxGLCanvas::IsDisplaySupported(attrs))
      GTEST_SKIP() << "no OpenGL visual on this display; GL not tested";
    m_canvas =
        new wxGLCanvas(m_frame->Get(), attrs, wxID_ANY, wxDefaultPosition, wxSize(kSide, kSide));
    m_frame->Get()->Layout();
    PumpEvents();
    m_context = std::make_unique<wxGLContext>(m_canvas);
    if (!m_context->IsOK()) GTEST_SKIP() << "cannot create an OpenGL context";
    if (!m_canvas->SetCurrent(*m_context)) GTEST_SKIP() << "cannot make the context current";
    while (glGetError() != GL_NO_ERROR) {
    }
  }
  void TearDown() override {
    if (m_context && m_fbo) {
      glBindFramebuffer(GL_FRAMEBUFFER, 0);
      glDeleteFramebuffers(1, &m_fbo);
      glDeleteRenderbuffers(1, &m_colour);
    }
    m_context.reset();
    m_frame.reset();
  }
  // Draws off screen from now on: the canvas's window may not be mapped yet
  // under Xvfb. False (and the test skipped) without framebuffer objects.
  bool DrawOffScreen() {
    glGenFramebuffers(1, &m_fbo);
    glGenRenderbuffers(1, &m_colour);
    glBindRenderbuffer(GL_RENDERBUFFER, m_colour);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, kSide, kSide);
    glBindFramebuffer(GL_FRAMEBUFFER, m_fbo);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_colour);
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) return false;
    glDrawBuffer(GL_COLOR_ATTACHMENT0);
    glReadBuffer(GL_COLOR_ATTACHMENT0);
    return true;
  }

  std::unique_ptr<TestFrame> m_frame;
  wxGLCanvas* m_canvas = nullptr;
  std::unique_ptr<wxGLContext> m_context;
  GLuint m_fbo = 0, m_colour = 0;
};
