#include "SkinCheck.h"

#include <wx/image.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/ImageScriptParser.h"
#include "vorn/VornSkinNames.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace fs = std::filesystem;

namespace {

class Findings {
 public:
  explicit Findings(std::ostream& out) : m_out(out) {}
  void Add(const std::string& where, const std::string& what) {
    m_out << where << ": " << what << "\n";
    ++m_count;
  }
  int Count() const { return m_count; }

 private:
  std::ostream& m_out;
  int m_count = 0;
};

bool ReadFile(const fs::path& path, std::string& out) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::ostringstream s;
  s << in.rdbuf();
  out = s.str();
  return true;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

// The directories the loader reads for the skin, without languages.
std::vector<fs::path> BaseDirs(const SkinCheckOptions& o) {
  std::vector<fs::path> dirs = {o.skin, fs::path(o.skin) / "Generic"};
  if (!o.platform.empty()) dirs.push_back(fs::path(o.skin) / o.platform);
  return dirs;
}

// Language directories: the sub-directories of Generic.
std::vector<std::string> Languages(const SkinCheckOptions& o) {
  std::set<std::string> names;
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(fs::path(o.skin) / "Generic", ec))
    if (e.is_directory()) names.insert(e.path().filename().string());
  return {names.begin(), names.end()};
}

std::string Quoted(char c) {
  if (c == '\t') return "a tab";
  std::string s = "'";
  s += c;
  return s + "'";
}

// One message file: every line gives up its last character to the loader,
// which must therefore be a blank. Returns its keys.
std::set<std::string> CheckMessageFile(const fs::path& path, const std::string& shown,
                                       Findings& f) {
  std::set<std::string> keys;
  std::string text;
  if (!ReadFile(path, text)) {
    f.Add(shown, "cannot be read");
    return keys;
  }
  const std::vector<std::string> lines = Lines(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    const std::string where = shown + ":" + std::to_string(i + 1);
    const bool isKey = i % 2 == 0;
    if (isKey && line.size() > 0 && line.substr(0, line.size() - 1) == "FINISH") break;
    if (line.empty()) {
      f.Add(where, "empty line: keys and translations alternate, and every line ends with a blank");
      continue;
    }
    const char last = line.back();
    if (last != ' ' && last != '\t' && last != '\r')
      f.Add(where, "last character " + Quoted(last) +
                       " is dropped by the loader: end the line with a blank");
    if (isKey) {
      keys.insert(line.substr(0, line.size() - 1));
      if (i + 1 == lines.size()) f.Add(where, "key without a translation line");
    }
  }
  return keys;
}

void CheckMessages(const SkinCheckOptions& o, Findings& f) {
  const std::vector<std::string> languages = Languages(o);
  for (const std::string& file : o.messageFiles) {
    std::map<std::string, std::set<std::string>> keysOf;  // language -> keys
    for (const std::string& language : languages) {
      const fs::path path = fs::path(o.skin) / "Generic" / language / file;
      if (!fs::exists(path)) {
        f.Add("Generic/" + language + "/" + file, "missing: other languages have it");
        continue;
      }
      keysOf[language] = CheckMessageFile(path, "Generic/" + language + "/" + file, f);
    }
    std::set<std::string> all;
    for (const auto& [language, keys] : keysOf) all.insert(keys.begin(), keys.end());
    for (const std::string& key : all)
      for (const auto& [language, keys] : keysOf)
        if (!keys.count(key))
          f.Add("Generic/" + language + "/" + file, "key \"" + key + "\" is not translated");
  }
}

// The scripts of the skin, as asset names.
std::vector<std::string> Scripts(const SkinCheckOptions& o) {
  std::set<std::string> names;
  for (const fs::path& dir : BaseDirs(o)) {
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(dir, ec)) {
      if (!e.is_regular_file()) continue;
      const std::string name = ToLower(e.path().filename().string());
      const std::string ext = e.path().extension().string();
      if (ToLower(ext) == ".sts" || ToLower(ext) == ".lbs") names.insert(name);
    }
  }
  return {names.begin(), names.end()};
}

// What each script command reads: c colour, f font, p picture of the
// script's size, a any picture or script, - a number or word.
const std::map<std::string, std::string>& ArgumentRoles() {
  static const std::map<std::string, std::string> roles = {
      {"clear", "c"},         {"copy", "p"},     {"copya", "p"},       {"map", "pc"},
      {"mapmask", "pc"},      {"setalphafromgrey", "p"}, {"edit", "----ccf"},
      {"lbText", "----c"},    {"lbExpand", "-ccc"},      {"lbSelDot", "a"}};
  return roles;
}

class ScriptChecker {
 public:
  ScriptChecker(AssetManager& assets, Findings& f) : m_assets(assets), m_f(f) {
    std::vector<std::string> names;
    assets.GetColourNameList(names);
    m_colours.insert(names.begin(), names.end());
    names.clear();
    assets.GetFontNameList(names);
    m_fonts.insert(names.begin(), names.end());
  }

  void Check(const std::string& name) {
    std::string text;
    if (!m_assets.LoadText(name.c_str(), text)) return m_f.Add(name, "cannot be read");
    const std::vector<std::string> lines = Lines(text);
    int width = 0, height = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      std::istringstream words(lines[i]);
      std::string command;
      if (!(words >> command)) continue;
      const std::string where = name + ":" + std::to_string(i + 1);
      if (command == "finish") break;
      if (command == "size") {
        std::string type;
        words >> type >> width >> height;
        continue;
      }
      const auto roles = ArgumentRoles().find(command);
      if (roles == ArgumentRoles().end()) continue;  // the parse below reports it
      for (char role : roles->second) {
        std::string arg;
        if (!(words >> arg)) break;
        CheckArgument(where, role, arg, width, height);
      }
    }
    CheckParse(name, text);
  }

  void CheckToolkitNames() {
    for (const VornSkinName& n : VornToolkitSkinNames()) {
      const std::string where = std::string("toolkit (") + n.family + ")";
      if (n.kind == VornSkinName::kColour && !m_colours.count(n.name))
        m_f.Add(where, std::string("colour \"") + n.name + "\" is not in the colour database");
      if (n.kind == VornSkinName::kFont && !m_fonts.count(n.name))
        m_f.Add(where, std::string("font \"") + n.name + "\" is not in the font database");
      Asset* asset = nullptr;
      if (n.kind == VornSkinName::kAsset && !m_assets.GetAsset(n.name, asset))
        m_f.Add(where, std::string("asset \"") + n.name + "\" is missing");
    }
  }

 private:
  void CheckArgument(const std::string& where, char role, const std::string& arg, int width,
                     int height) {
    if (role == 'c' && !m_colours.count(arg))
      m_f.Add(where, "colour \"" + arg + "\" is not in the colour database");
    if (role == 'f' && !m_fonts.count(arg))
      m_f.Add(where, "font \"" + arg + "\" is not in the font database");
    if (role != 'p' && role != 'a') return;
    Asset* asset = nullptr;
    if (!m_assets.GetAsset(arg.c_str(), asset)) return m_f.Add(where, "picture " + arg + " is missing");
    if (role != 'p') return;
    wxImage picture;
    if (!m_assets.LoadImageDirect(arg.c_str(), picture) || !picture.IsOk())
      return m_f.Add(where, "picture " + arg + " cannot be decoded");
    if (picture.GetWidth() != width || picture.GetHeight() != height)
      m_f.Add(where, "picture " + arg + " is " + std::to_string(picture.GetWidth()) + "x" +
                         std::to_string(picture.GetHeight()) + " but the script is " +
                         std::to_string(width) + "x" + std::to_string(height));
  }

  // A real parse, which reports through WarningMessage.
  void CheckParse(const std::string& name, const std::string& text) {
    std::vector<std::string> warnings;
    const WarningMessageHandler previous = SetWarningMessageHandler(
        [&](const VornString& title, const VornString& message) {
          warnings.push_back(title + ": " + message);
        });
    ImageScriptParser parser(&m_assets);
    const bool ok = Parse(parser, text);
    SetWarningMessageHandler(previous);
    for (const std::string& w : warnings) m_f.Add(name, "does not parse: " + w);
    if (!ok && warnings.empty()) m_f.Add(name, "does not parse");
  }

  static bool Parse(ImageScriptParser& parser, const std::string& text) {
    if (text.find("\nlbText") != std::string::npos || text.find("\nlbExpand") != std::string::npos ||
        text.find("\nlbSelDot") != std::string::npos) {
      VornwxBitmapCache images;
      OldVornListBoxInfo info;
      info.bitmaps = &images;
      return parser.CreateListBox(text, &info);
    }
    if (text.find("\nedit ") != std::string::npos) {
      BitmapA image;
      VornEditInfo info;
      return parser.CreateEditWidget(text, image, &info);
    }
    if (text.find("assign image") != std::string::npos) {
      BitmapA image;
      return parser.CreateImage(text, image);
    }
    VornBitmapACache cache;
    return parser.CreateImageCache(text, cache);
  }

  AssetManager& m_assets;
  Findings& m_f;
  std::set<std::string> m_colours, m_fonts;
};

}  // namespace

int RunSkinCheck(const SkinCheckOptions& o, std::ostream& out) {
  Findings f(out);
  CheckMessages(o, f);

  // Databases, scripts and toolkit names, read through the toolkit itself.
  std::vector<std::string> dbWarnings;
  const WarningMessageHandler previous =
      SetWarningMessageHandler([&](const VornString& title, const VornString& message) {
        dbWarnings.push_back(title + ": " + message);
      });
  AssetManager assets;
  auto loader = std::make_unique<FileAssetLoader>();
  loader->Init(o.skin);
  assets.SetAssetLoader(std::unique_ptr<AssetLoader>(std::move(loader)));
  assets.SetPlatform(o.platform.c_str());
  const std::vector<std::string> languages = Languages(o);
  assets.SetLanguage(languages.empty() ? "" : languages.front().c_str(), "");
  assets.LoadAssets();
  assets.LoadColourData(o.colours.c_str());
  assets.LoadFontData(o.fonts.c_str());
  SetWarningMessageHandler(previous);
  for (const std::string& w : dbWarnings) f.Add(o.colours + " / " + o.fonts, w);

  ScriptChecker scripts(assets, f);
  for (const std::string& name : Scripts(o)) scripts.Check(name);
  scripts.CheckToolkitNames();
  return f.Count();
}
