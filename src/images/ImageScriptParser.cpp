#include "vorn/ImageScriptParser.h"

#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/font.h>
#include <wx/image.h>

#include <cstdarg>
#include <cstdio>
#include <sstream>
#include <vector>

#include "vorn/AssetManager.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

namespace {

const char* const kParserTitle = "Image Script Parser";
const char* const kFirstLineTitle = "Error";
// Largest area a script may ask for: 64 MiB as RGBA, more than any control
// or 4K backdrop needs, so a bad size line cannot take a gigabyte.
constexpr long long kMaxScriptArea = 4096LL * 4096LL;

// The error colour of every state a script can assign.
struct ErrorColour {
  VORNIMAGETYPE state;
  const char* colour;
};
const ErrorColour kErrorColours[] = {
    {VIT_ON, "pink"},
    {VIT_OFF, "red"},
    {VIT_ON_DOWN, "blue"},
    {VIT_OFF_DOWN, "purple"},
    {VIT_ON_MOUSE_OVER, "brown"},
    {VIT_OFF_MOUSE_OVER, "green"},
    {VIT_DISABLED_ON, "orange"},
    {VIT_DISABLED_OFF, "lightblue"},
};

std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string Format(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list again;
  va_copy(again, args);
  const int n = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  std::string out;
  if (n > 0) {
    std::vector<char> buf(static_cast<std::size_t>(n) + 1);
    std::vsnprintf(buf.data(), buf.size(), format, again);
    out.assign(buf.data(), static_cast<std::size_t>(n));
  }
  va_end(again);
  return out;
}

// Reads one word; a missing one throws the given message.
std::string Word(std::istream& in, const char* missing) {
  std::string word;
  if (!(in >> word)) throw ParseError(missing);
  return word;
}

}  // namespace

ImageScriptParser::ImageScriptParser(AssetManager* manager) : m_pAssetManager(manager) {
  VORN_ASSERT(manager != nullptr);
}

ImageScriptParser::~ImageScriptParser() = default;

bool ImageScriptParser::ReadFirstLine(std::istream& in) {
  auto fail = [](const std::string& message) {
    WarningMessage(kFirstLineTitle, message);
    return false;
  };
  std::string line;
  std::getline(in, line);
  std::istringstream words(line);
  std::string word;
  if (!(words >> word)) return fail("cannot get first word off first line...");
  if (word != "size") return fail("first line not size...");
  std::string type;
  if (!(words >> type)) return fail("cannot get second arg off first line...");
  if (type == "rgb") {
    m_imageType = TYPE_RGB;
  } else if (type == "rgba") {
    m_imageType = TYPE_RGBA;
  } else if (type == "gui8") {
    m_imageType = TYPE_GUI8;
  } else {
    return fail("token not rgb,rgba or gui8");
  }
  if (!(words >> m_width >> m_height))
    return fail("Image not same size as specified by Size command");
  if (m_imageType == TYPE_GUI8) return fail("Image type gui8 is not supported");
  if (m_width < 1 || m_height < 1 || m_width > kMaxBitmapSide || m_height > kMaxBitmapSide)
    return fail(Format("Image size [%i,%i] out of range: width and height must be 1 to %i", m_width,
                       m_height, kMaxBitmapSide));
  if (static_cast<long long>(m_width) * m_height > kMaxScriptArea)
    return fail(Format("Image size [%i,%i] too large: at most %lld pixels (4096 x 4096)", m_width,
                       m_height, kMaxScriptArea));
  auto image = std::make_unique<BitmapA>();
  if (!Create(*image, m_width, m_height, 3))
    return fail(Format("Cannot create an image of size [%i,%i]", m_width, m_height));
  m_pImage = std::move(image);
  return true;
}

bool ImageScriptParser::ParseFile(const std::string& text, VornBitmapACache* cache, BitmapA* image,
                                  VornEditInfo* edit) {
  m_pCache = cache;
  m_pTargetImage = image;
  m_pEditInfo = edit;
  m_pImage.reset();
  m_imageType = TYPE_NONE;
  m_width = m_height = 0;
  m_bAssigned = false;
  m_line = 1;

  std::istringstream in(text);
  if (!ReadFirstLine(in)) return false;

  for (;;) {
    ++m_line;
    std::string line;
    if (!std::getline(in, line)) throw ParseError("We've ended without a finish..");
    std::istringstream words(line);
    std::string command;
    if (!(words >> command)) continue;
    bool finished = false;
    ExecuteLine(words, command, finished);
    if (finished) return true;
  }
}

void ImageScriptParser::ExecuteLine(std::istream& words, const std::string& command,
                                    bool& finished) {
  if (command == "clear") {
    const std::string colour = Word(words, "missing arg for clear");
    if (!Clear(colour)) throw ParseError("Clear not work");
  } else if (command == "copy") {
    const std::string file = Word(words, "missing arg for copy");
    if (!Copy(file)) throw ParseError("Copy not work");
  } else if (command == "copya") {
    const std::string file = Word(words, "missing arg for copya");
    if (!CopyA(file)) throw ParseError("CopyA not work");
  } else if (command == "map") {
    const std::string file = Word(words, "Missing 1st arg for map");
    const std::string colour = Word(words, "Missing 2nd arg for map");
    if (!Map(file, colour)) throw ParseError("Map not work");
  } else if (command == "mapmask") {
    if (m_imageType != TYPE_RGBA)
      throw ParseError("Cannot use mapmask on an image type other than rgba");
    const std::string file = Word(words, "Missing 1st arg for mapmask");
    const std::string colour = Word(words, "Missing 2nd arg for mapmask");
    if (!MapMask(file, colour)) throw ParseError("Mapmask not work");
  } else if (command == "setalphafromgrey") {
    if (m_imageType != TYPE_RGBA)
      throw ParseError("Cannot use setalphafromgrey on an image type other than rgba");
    const std::string file = Word(words, "Missing 1st arg for setalphafromgrey");
    if (!SetAlphaFromGrey(file)) throw ParseError("SetAlphaFromGrey not work");
  } else if (command == "assign") {
    const std::string word = Word(words, "missing arg for assign");
    if (!Assign(word, m_pCache, m_pTargetImage)) throw ParseError("Assign not work");
  } else if (command == "edit") {
    if (!m_pEditInfo) throw ParseError("Found edit line without an edit class");
    if (!EditLine(words, m_pEditInfo)) throw ParseError("Missing arguments for edit line");
  } else if (command == "lbText") {
    if (!m_pListBoxInfo) throw ParseError("No list box info set up for lbText");
    if (!HandleLBTextLine(words, m_pListBoxInfo))
      throw ParseError("Error parsing list box text line");
  } else if (command == "lbExpand") {
    if (!m_pListBoxInfo) throw ParseError("No list box info set up for lbExpand");
    if (!HandleLBExpandLine(words, m_pListBoxInfo))
      throw ParseError("Error parsing list box expand line");
  } else if (command == "lbSelDot") {
    if (!m_pListBoxInfo) throw ParseError("No list box info set up for lbSelDot");
    if (!HandleLBSelDotLine(words, m_pListBoxInfo))
      throw ParseError("Error parsing list box selDot line");
  } else if (command == "finish") {
    if (!Finish()) throw ParseError("Finish not work");
    finished = true;
  } else {
    throw ParseError("we got something that was not a command in the file...");
  }
}

BitmapA& ImageScriptParser::Working() {
  // Commands run only after the size line has created the working image.
  VORN_ASSERT(m_pImage != nullptr);
  if (!m_pImage) throw ParseError("No image: the size line has not been read");
  return *m_pImage;
}

void ImageScriptParser::CheckSize(const std::string& file, int width, int height) const {
  if (width != m_width || height != m_height)
    throw ParseError(
        Format("File [%s] is of size [%i,%i] but should be of size [%i,%i].  Cannot load..",
               file.c_str(), width, height, m_width, m_height));
}

const wxImage& ImageScriptParser::LoadMask(const std::string& file) {
  const wxImage* picture = nullptr;
  if (!m_pAssetManager->LoadImageCached(file.c_str(), picture) || !picture)
    throw ParseError("Cannot load image => " + file);
  CheckSize(file, picture->GetWidth(), picture->GetHeight());
  return *picture;
}

bool ImageScriptParser::Clear(const std::string& colour) {
  BitmapA& image = Working();
  ColorA c;
  if (!m_pAssetManager->GetColour(colour, c)) throw ParseError("unrecognised colour => " + colour);
  // An rgba script starts transparent; the colour stays in R, G, B.
  if (m_imageType == TYPE_RGBA) c.a = 0.0;
  return ClearBitmap(image, c);
}

bool ImageScriptParser::Copy(const std::string& file) {
  BitmapA& image = Working();
  const wxImage& picture = LoadMask(file);
  BitmapA copy;
  if (!ConvertTo(copy, picture) || copy.format != 3) return false;
  image = std::move(copy);
  return true;
}

bool ImageScriptParser::CopyA(const std::string& file) {
  BitmapA& image = Working();
  const BitmapA* picture = nullptr;
  if (!m_pAssetManager->LoadImageCached(file.c_str(), picture) || !picture)
    throw ParseError("Cannot load image => " + file);
  CheckSize(file, picture->width, picture->height);
  if (picture->format != 3) return false;
  return ::Copy(image, *picture);
}

bool ImageScriptParser::Map(const std::string& file, const std::string& colour) {
  BitmapA& image = Working();
  ColorA c;
  if (!m_pAssetManager->GetColour(colour, c)) throw ParseError("Could not get colour => " + colour);
  const wxImage& mask = LoadMask(file);
  return MapColoursFromGrey(image, mask, CAtoC(c));
}

bool ImageScriptParser::MapMask(const std::string& file, const std::string& colour) {
  BitmapA& image = Working();
  ColorA c;
  if (!m_pAssetManager->GetColour(colour, c)) throw ParseError("Could not get colour => " + colour);
  const wxImage& mask = LoadMask(file);
  return MapAllFromGrey(image, mask, CAtoC(c));
}

bool ImageScriptParser::SetAlphaFromGrey(const std::string& file) {
  BitmapA& image = Working();
  const wxImage& mask = LoadMask(file);
  return ::SetAlphaFromGrey(image, mask);
}

bool ImageScriptParser::Assign(const std::string& word, VornBitmapACache* cache, BitmapA* image) {
  BitmapA& working = Working();
  if (word == "image") {
    if (!image) throw ParseError("Image being assigned to a ButtonCache. Cannot do that!!");
    if (!::Copy(*image, working)) return false;
    m_bAssigned = true;
    return true;
  }
  auto copy = std::make_unique<BitmapA>();
  if (!::Copy(*copy, working)) return false;
  if (!cache)
    throw ParseError(
        "Either trying to assign a buttonstate to an image, or spelled 'assign image' wrong.");
  VORNIMAGETYPE state = VIT_NONE;
  if (!VornImageStateFromToken(word, state))
    throw ParseError(Format("unrecognisez button state [%s]", word.c_str()));
  // A state assigned twice is a fault of the script, not of the program.
  const BitmapA* existing = nullptr;
  if (cache->GetImage(state, existing)) return false;
  return cache->AssignImageOwn(state, copy.release());
}

bool ImageScriptParser::EditLine(std::istream& line, VornEditInfo* info) {
  VORN_ASSERT(info != nullptr);
  int x = 0, y = 0, width = 0, height = 0;
  std::string colour1, colour2, font;
  if (!(line >> x >> y >> width >> height >> colour1 >> colour2 >> font))
    throw ParseError("Missing arguments for edit line");
  wxColour c1, c2;
  if (!m_pAssetManager->GetColour(colour1, c1))
    throw ParseError("Could not get colour => " + colour1);
  if (!m_pAssetManager->GetColour(colour2, c2))
    throw ParseError("Could not get colour => " + colour2);
  wxFont f;
  if (!m_pAssetManager->GetFont(font, f)) throw ParseError("Could not get font => " + font);
  if (!info) return false;
  info->x = x;
  info->y = y;
  info->width = width;
  info->height = height;
  info->colour1 = c1;
  info->colour2 = c2;
  info->font = f;
  return true;
}

bool ImageScriptParser::HandleLBTextLine(std::istream& line, OldVornListBoxInfo* info) {
  int x = 0, y = 0, width = 0, height = 0;
  std::string colour;
  if (!info || !(line >> x >> y >> width >> height >> colour)) return false;
  wxColour c;
  if (!m_pAssetManager->GetColour(colour, c)) throw ParseError("Could not get colour => " + colour);
  info->textX = x;
  info->textY = y;
  info->textWidth = width;
  info->textHeight = height;
  info->textColour = c;
  return true;
}

bool ImageScriptParser::HandleLBExpandLine(std::istream& line, OldVornListBoxInfo* info) {
  int expand = 0;
  std::string names[3];
  if (!info || !(line >> expand >> names[0] >> names[1] >> names[2])) return false;
  wxColour colours[3];
  for (int i = 0; i < 3; ++i)
    if (!m_pAssetManager->GetColour(names[i], colours[i]))
      throw ParseError("Could not get colour => " + names[i]);
  info->expand = expand;
  info->expandColour1 = colours[0];
  info->expandColour2 = colours[1];
  info->expandColour3 = colours[2];
  const wxBitmap *off = nullptr, *up = nullptr, *down = nullptr;
  if (!m_pAssetManager->LoadImageCached("plenth_scroll_off.sts", off) ||
      !m_pAssetManager->LoadImageCached("plenth_scroll_up.sts", up) ||
      !m_pAssetManager->LoadImageCached("plenth_scroll_down.sts", down))
    throw ParseError("Bad Vorn loading the scroll bar images for the list box");
  info->scrollOff = off;
  info->scrollUp = up;
  info->scrollDown = down;
  return true;
}

bool ImageScriptParser::HandleLBSelDotLine(std::istream& line, OldVornListBoxInfo* info) {
  std::string file;
  if (!info || !(line >> file)) return false;
  const wxBitmap* dot = nullptr;
  if (!m_pAssetManager->LoadImageCached(file.c_str(), dot)) return false;
  info->selDot = dot;
  return true;
}

bool ImageScriptParser::Finish() {
  return true;
}

void ImageScriptParser::OnError() {
  if (m_pCache) {
    m_pCache->Clear();
    if (!m_pImage) return;  // the size line failed: no size to make images of
    for (const ErrorColour& e : kErrorColours) {
      auto image = std::make_unique<BitmapA>();
      ColorA c;
      m_pAssetManager->GetColour(e.colour, c);
      if (!Create(*image, m_width, m_height, 3) || !ClearBitmap(*image, c)) continue;
      m_pCache->AssignImageOwn(e.state, image.release());
    }
  } else if (m_pTargetImage && m_pImage) {
    ColorA pink;
    m_pAssetManager->GetColour("pink", pink);
    ClearBitmap(*m_pImage, pink);
    ::Copy(*m_pTargetImage, *m_pImage);
  }
}

ImageScriptParser::Outcome ImageScriptParser::RunGuarded(const std::string& text,
                                                         VornBitmapACache* cache, BitmapA* image,
                                                         VornEditInfo* edit) {
  try {
    return ParseFile(text, cache, image, edit) ? Outcome::kFinished : Outcome::kFirstLineFailed;
  } catch (const ParseError& e) {
    OnError();
    WarningMessage(kParserTitle, e.GetMessage() + Format(" [line %i]", m_line));
  } catch (const VornAssertionError&) {
    throw;  // a programming error, not a fault of the script
  } catch (...) {
    OnError();
  }
  return Outcome::kCommandFailed;
}

bool ImageScriptParser::CreateImageCache(const std::string& text, VornBitmapACache& cache) {
  m_pListBoxInfo = nullptr;
  return RunGuarded(text, &cache, nullptr, nullptr) != Outcome::kFirstLineFailed;
}

bool ImageScriptParser::CreateImage(const std::string& text, BitmapA& image) {
  m_pListBoxInfo = nullptr;
  const Outcome outcome = RunGuarded(text, nullptr, &image, nullptr);
  if (outcome == Outcome::kFirstLineFailed) return false;
  if (outcome == Outcome::kFinished && !m_bAssigned) {
    OnError();
    WarningMessage(kParserTitle, "Script finished without an 'assign image' line");
  }
  return true;
}

bool ImageScriptParser::CreateEditWidget(const std::string& text, BitmapA& image,
                                         VornEditInfo* info) {
  VORN_ASSERT_TEXT(info != nullptr, "info");
  if (!info) return false;
  m_pListBoxInfo = nullptr;
  info->x = -999;
  const Outcome outcome = RunGuarded(text, nullptr, &image, info);
  if (info->x == -999) {
    OnError();
    WarningMessage("Create Edit Widget", "Didn't find any edit widget data");
    return false;
  }
  if (outcome == Outcome::kFinished && !m_bAssigned) {
    OnError();
    WarningMessage(kParserTitle, "Script finished without an 'assign image' line");
  }
  return outcome != Outcome::kFirstLineFailed;
}

bool ImageScriptParser::CreateListBox(const std::string& text, OldVornListBoxInfo* info) {
  VORN_ASSERT_TEXT(info != nullptr, "info");
  if (!info) return false;
  VORN_ASSERT_TEXT(info->bitmaps != nullptr, "info->bitmaps");
  if (!info->bitmaps) return false;
  info->textX = -999;
  VornBitmapACache scratch;
  m_pListBoxInfo = info;
  bool result = RunGuarded(text, &scratch, nullptr, nullptr) != Outcome::kFirstLineFailed;
  m_pListBoxInfo = nullptr;
  if (info->textX == -999) {
    m_pCache = &scratch;
    OnError();
    WarningMessage("Create List Box", "Didn't find any text widget data");
    result = false;
  }
  info->bitmaps->Clear();
  std::vector<VORNIMAGETYPE> states;
  scratch.GetStates(states);
  for (VORNIMAGETYPE state : states) {
    const BitmapA* source = nullptr;
    wxImage converted;
    if (!scratch.GetImage(state, source) || !ConvertTo(converted, *source)) continue;
    info->bitmaps->AssignImageOwn(state, new wxBitmap(converted));
  }
  return result;
}
