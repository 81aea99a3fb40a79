#pragma once
// Shared helpers for the test suites.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

// Makes assertion failures throw VornAssertionError for the scope's life.
class ScopedAssertThrow {
 public:
  ScopedAssertThrow() : m_previous(VornSetAssertHandler(&VornThrowingAssertHandler)) {}
  ~ScopedAssertThrow() { VornSetAssertHandler(m_previous); }

 private:
  VornAssertHandler m_previous;
};

// Runs f and returns the condition text of the assertion it fired, or "" if
// none fired.
template <class F>
std::string FiredAssertion(F&& f) {
  ScopedAssertThrow guard;
  try {
    f();
  } catch (const VornAssertionError& e) {
    return e.condition;
  }
  return std::string();
}

// Collects every dprintf line written during the scope's life.
class CaptureDprintf {
 public:
  CaptureDprintf();
  ~CaptureDprintf();
  const std::vector<std::string>& Lines() const { return m_lines; }
  std::string All() const;
  bool Contains(const std::string& text) const;
  void ClearLines() { m_lines.clear(); }

 private:
  std::vector<std::string> m_lines;
  DprintfHandler m_previous;
};

// Collects every WarningMessage during the scope's life.
class CaptureWarnings {
 public:
  struct Warning {
    std::string title;
    std::string text;
  };
  CaptureWarnings();
  ~CaptureWarnings();
  const std::vector<Warning>& Warnings() const { return m_warnings; }
  bool Contains(const std::string& title, const std::string& text) const;
  void ClearWarnings() { m_warnings.clear(); }

 private:
  std::vector<Warning> m_warnings;
  WarningMessageHandler m_previous;
};

// A fresh directory below the system temp dir, removed with its contents.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  const std::string& Path() const { return m_path; }  // ends with '/'
  // Writes a file (creating parent directories) relative to the root.
  std::string Write(const std::string& relative, const std::string& bytes) const;

 private:
  std::string m_path;
};

std::string ReadFileBytes(const std::string& path);
