#include "TestSupport.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace fs = std::filesystem;

CaptureDprintf::CaptureDprintf()
    : m_previous(SetDprintfHandler([this](const char* text) { m_lines.emplace_back(text); })) {}
CaptureDprintf::~CaptureDprintf() { SetDprintfHandler(m_previous); }

std::string CaptureDprintf::All() const {
  std::string all;
  for (const auto& l : m_lines) all += l;
  return all;
}

bool CaptureDprintf::Contains(const std::string& text) const {
  for (const auto& l : m_lines)
    if (l.find(text) != std::string::npos) return true;
  return false;
}

CaptureWarnings::CaptureWarnings()
    : m_previous(SetWarningMessageHandler([this](const VornString& title, const VornString& text) {
        m_warnings.push_back({title, text});
      })) {}
CaptureWarnings::~CaptureWarnings() { SetWarningMessageHandler(m_previous); }

bool CaptureWarnings::Contains(const std::string& title, const std::string& text) const {
  for (const auto& w : m_warnings)
    if (w.title == title && w.text.find(text) != std::string::npos) return true;
  return false;
}

TempDir::TempDir() {
  std::random_device rd;
  std::mt19937_64 gen(rd());
  for (;;) {
    fs::path p = fs::temp_directory_path() / ("vorn-test-" + std::to_string(gen()));
    if (fs::create_directory(p)) {
      m_path = p.string() + "/";
      return;
    }
  }
}

TempDir::~TempDir() {
  std::error_code ec;
  fs::remove_all(m_path, ec);
}

std::string TempDir::Write(const std::string& relative, const std::string& bytes) const {
  fs::path p = fs::path(m_path) / relative;
  fs::create_directories(p.parent_path());
  std::ofstream out(p, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return p.string();
}

std::string ReadFileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream ss;
  ss << in.rdbuf();
  return ss.str();
}
