#pragma once
// The skin checker behind `vorn-sts --check`: reads a skin directory the way
// the toolkit will and reports what would go wrong, without rendering.
#include <ostream>
#include <string>
#include <vector>

struct SkinCheckOptions {
  std::string skin;      // ends with '/'
  std::string platform;  // optional platform directory
  std::vector<std::string> messageFiles = {"messages.txt"};
  std::string colours = "colours.txt";
  std::string fonts = "fonts.txt";
};

// Writes one line per finding to out and returns how many there were.
int RunSkinCheck(const SkinCheckOptions& options, std::ostream& out);
