// AssetManager: the message, font and colour databases and their file
// grammars.
#include <wx/settings.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <sstream>

#include "vorn/AssetManager.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace {
const char kFontTitle[] = "FontDatabase Script Error";
const char kColourTitle[] = "ColorDatabase Script Error";
const char kMessageTitle[] = "MessageDatabase Script Error";

// Calls each(line, number) for every line of text, numbered from 1.
template <class F>
void ForEachLine(const std::string& text, F&& each) {
  std::size_t start = 0;
  int number = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    each(text.substr(start, end - start), ++number);
    start = end + 1;
  }
}

std::string OnLine(int number) {
  char buf[32];
  std::snprintf(buf, sizeof buf, " on line %i", number);
  return buf;
}

// value * 255 truncated toward zero, kept inside the int range.
int Scale255(double value) {
  const double scaled = std::trunc(value * 255.0);
  if (!(scaled > INT_MIN)) return INT_MIN;
  if (!(scaled < INT_MAX)) return INT_MAX;
  return static_cast<int>(scaled);
}

// An 8-bit channel: value * 255 truncated, outside 0..255 clamped.
unsigned char Channel8(double value) {
  const int v = Scale255(value);
  return static_cast<unsigned char>(v < 0 ? 0 : v > 255 ? 255 : v);
}

const ColorA kFunnyRed(1.0, 100 / 255.0, 100 / 255.0, 1.0);

// The text of a database asset; a missing one is reported under title.
bool LoadDatabaseText(AssetManager& manager, const char* name, const char* title, const char* kind,
                      std::string& text) {
  if (manager.LoadText(name, text)) return true;
  WarningMessage(title, std::string("Cannot load ") + kind + " [" + (name ? name : "") + "]");
  return false;
}

// Reports the faulty lines of one file under its title and remembers that
// there was one.
class LineErrors {
 public:
  explicit LineErrors(const char* title) : m_title(title) {}
  void operator()(const std::string& message) {
    WarningMessage(m_title, message);
    m_ok = false;
  }
  bool Ok() const { return m_ok; }

 private:
  const char* m_title;
  bool m_ok = true;
};

// Drops the character before the line end; an empty line stays empty.
std::string WithoutLastChar(std::string line) {
  if (!line.empty()) line.pop_back();
  return line;
}
}  // namespace

// ---- Messages -------------------------------------------------------------------

bool AssetManager::LoadMessages(const char* name) {
  const std::string file = name ? name : "";
  if (std::find(m_messageFiles.begin(), m_messageFiles.end(), file) == m_messageFiles.end())
    m_messageFiles.push_back(file);
  std::string text;
  if (!LoadDatabaseText(*this, name, kMessageTitle, "message file", text)) return false;
  std::istringstream in(text);
  int lineNumber = 0;
  std::string line;
  while (in.good()) {
    if (!std::getline(in, line)) break;
    ++lineNumber;
    const std::string key = WithoutLastChar(line);
    if (key == "FINISH") break;
    if (!std::getline(in, line)) break;  // a key without its translation line
    ++lineNumber;
    if (!SetMessage(key, WithoutLastChar(line)))
      dprintf("WARNING : Message *%s* defined again on line %i, first translation kept\n",
              key.c_str(), lineNumber - 1);
  }
  return true;
}

// ---- Fonts ----------------------------------------------------------------------

namespace {
bool FontFamilyFromWord(const std::string& word, wxFontFamily& out) {
  static const std::pair<const char*, wxFontFamily> table[] = {
      {"default", wxFONTFAMILY_DEFAULT}, {"decorative", wxFONTFAMILY_DECORATIVE},
      {"roman", wxFONTFAMILY_ROMAN},     {"script", wxFONTFAMILY_SCRIPT},
      {"swiss", wxFONTFAMILY_SWISS},     {"modern", wxFONTFAMILY_MODERN}};
  for (const auto& [w, v] : table)
    if (word == w) return out = v, true;
  return false;
}

bool FontStyleFromWord(const std::string& word, wxFontStyle& out) {
  static const std::pair<const char*, wxFontStyle> table[] = {
      {"normal", wxFONTSTYLE_NORMAL}, {"slant", wxFONTSTYLE_SLANT}, {"italic", wxFONTSTYLE_ITALIC}};
  for (const auto& [w, v] : table)
    if (word == w) return out = v, true;
  return false;
}

bool FontWeightFromWord(const std::string& word, wxFontWeight& out) {
  static const std::pair<const char*, wxFontWeight> table[] = {
      {"normal", wxFONTWEIGHT_NORMAL}, {"light", wxFONTWEIGHT_LIGHT}, {"bold", wxFONTWEIGHT_BOLD}};
  for (const auto& [w, v] : table)
    if (word == w) return out = v, true;
  return false;
}

// Point sizes outside this range are refused rather than handed to the
// font system.
constexpr int kMinPointSize = 1;
constexpr int kMaxPointSize = 1000;
}  // namespace

bool AssetManager::LoadFontData(const char* name) {
  dprintf("%s\n", name ? name : "");
  m_fontFile = name ? name : "";
  std::string text;
  if (!LoadDatabaseText(*this, name, kFontTitle, "font database", text)) return false;
  LineErrors error(kFontTitle);
  ForEachLine(text, [&](const std::string& line, int number) {
    std::istringstream words(line);
    std::string fontName, familyWord, styleWord, weightWord;
    int pointSize = 0;
    if (!(words >> fontName >> pointSize >> familyWord)) return;
    if (!(words >> styleWord)) styleWord = "normal";
    if (!(words >> weightWord)) weightWord = "normal";
    wxFontFamily family;
    wxFontStyle style;
    wxFontWeight weight;
    if (!FontFamilyFromWord(familyWord, family))
      return error("Unknown Family Arg [" + familyWord + "]" + OnLine(number));
    if (!FontStyleFromWord(styleWord, style))
      return error("Unknown Style Arg [" + styleWord + "]" + OnLine(number));
    if (!FontWeightFromWord(weightWord, weight))
      return error("Unknown Weight Arg [" + weightWord + "]" + OnLine(number));
    if (pointSize < kMinPointSize || pointSize > kMaxPointSize)
      return error("Bad Point Size Arg [" + std::to_string(pointSize) + "]" + OnLine(number));
    if (m_fonts.count(fontName))
      return error("Already have font [" + fontName + "]" + OnLine(number));
    wxFont font;
    if (!font.Create(pointSize, family, style, weight, false, wxEmptyString,
                     wxFONTENCODING_DEFAULT))
      return error("Cannot create font [" + fontName + "]" + OnLine(number));
    SetFont(fontName, font);
  });
  return error.Ok();
}

bool AssetManager::SetFont(const std::string& name, const wxFont& font) {
  return m_fonts.emplace(name, font).second;
}

bool AssetManager::GetFont(const std::string& name, wxFont& out) const {
  dprintf("%s\n", name.c_str());
  const auto it = m_fonts.find(name);
  if (it != m_fonts.end()) {
    out = it->second;
    return true;
  }
  dprintf("NONFATAL ERROR: Failed to find Font called '%s'\n", name.c_str());
  dprintf("Setting '%s' to default GUI font\n", name.c_str());
  out = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
  return false;
}

void AssetManager::GetFontNameList(std::vector<std::string>& out) const {
  out.clear();
  for (const auto& entry : m_fonts) out.push_back(entry.first);
}

void AssetManager::ClearFontDatabase() {
  m_fonts.clear();
}

// ---- Colours --------------------------------------------------------------------

bool AssetManager::LoadColourData(const char* name) {
  m_colourFile = name ? name : "";
  std::string text;
  if (!LoadDatabaseText(*this, name, kColourTitle, "colour database", text)) return false;
  LineErrors error(kColourTitle);
  ForEachLine(text, [&](const std::string& line, int number) {
    if (line.empty()) return;
    const std::string n = std::to_string(number);
    std::istringstream words(line);
    std::string colourName;
    if (!(words >> colourName)) return error("Cannot get 1st arg (colourname) on line " + n);
    if (colourName == "#") return;
    const std::streampos afterName = words.tellg();
    int red = 0, green = 0, blue = 0, alpha = 255;
    if (words >> red) {
      if (!(words >> green >> blue))
        return error("Got red but Cannot get green and blue data's on line " + n);
      if (!(words >> alpha)) alpha = 255;
      if (m_colours.count(colourName))
        return error("We've already got colour [" + colourName + "] on line " + n);
      SetColour(colourName, red, green, blue, alpha);
      return;
    }
    // Not a number: the second word names a colour defined earlier.
    words.clear();
    words.seekg(afterName);
    std::string alias;
    if (!(words >> alias))
      return error("Cannot get 2nd arg (predef_colorname or rednum) on line " + n);
    const auto it = m_colours.find(alias);
    if (it == m_colours.end()) return error("Colour [" + alias + "] does not exist, on line " + n);
    const ColorA c = it->second;
    SetColour(colourName, Scale255(c.r), Scale255(c.g), Scale255(c.b), Scale255(c.a));
  });
  return error.Ok();
}

bool AssetManager::SetColour(const std::string& name, int r, int g, int b, int a) {
  return m_colours.emplace(name, ColorA(r / 255.0, g / 255.0, b / 255.0, a / 255.0)).second;
}

namespace {
// The two debug lines of a missing colour; kind is "Colour", "ColourA" or
// "wxColour".
void ReportMissingColour(const char* kind, const std::string& name) {
  dprintf("NONFATAL ERROR: Failed to find %s called '%s'\n", kind, name.c_str());
  dprintf("Setting '%s' to default funny red\n", name.c_str());
}
}  // namespace

bool AssetManager::GetColour(const std::string& name, Color& out) const {
  const auto it = m_colours.find(name);
  if (it == m_colours.end()) {
    ReportMissingColour("Colour", name);
    out = CAtoC(kFunnyRed);
    return false;
  }
  out = CAtoC(it->second);
  return true;
}

bool AssetManager::GetColour(const std::string& name, ColorA& out) const {
  const auto it = m_colours.find(name);
  if (it != m_colours.end()) {
    out = it->second;
    return true;
  }
  ReportMissingColour("ColourA", name);
  out = kFunnyRed;
  return false;
}

bool AssetManager::GetColour(const std::string& name, wxColour& out) const {
  const auto it = m_colours.find(name);
  if (it == m_colours.end()) {
    ReportMissingColour("wxColour", name);
    out.Set(255, 100, 100);
    return false;
  }
  const ColorA& c = it->second;
  out.Set(Channel8(c.r), Channel8(c.g), Channel8(c.b));
  return true;
}

void AssetManager::GetColourNameList(std::vector<std::string>& out) const {
  out.clear();
  for (const auto& entry : m_colours) out.push_back(entry.first);
}

void AssetManager::ClearColourDatabase() {
  m_colours.clear();
}
