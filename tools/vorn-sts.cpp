// vorn-sts: renders image scripts of a skin to PNG contact sheets, so that a
// skin designer can see every state of every control at once, and so that a
// broken script is caught before a program shows its error colours.
//
//   vorn-sts [options] SKINDIR [SCRIPT...]
//   vorn-sts --check [--messages NAME]... SKINDIR
//
// Without SCRIPT every .sts and .lbs script the skin offers for the chosen
// platform and language is rendered. The exit status is 0 when every script
// rendered without a warning, 1 when any did not, 2 for bad usage. With
// --watch the sheets are rendered again whenever a file of the skin changes.
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/wx.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "SkinCheck.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/ImageScriptParser.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace fs = std::filesystem;

namespace {

const char kUsage[] =
    "usage: vorn-sts [options] SKINDIR [SCRIPT...]\n"
    "       vorn-sts --check [--messages NAME]... SKINDIR\n"
    "Renders image scripts of the skin in SKINDIR to PNG contact sheets, one\n"
    "SCRIPT.png per script, every state labelled. Without SCRIPT, every .sts and\n"
    ".lbs script of the skin is rendered.\n"
    "\n"
    "options:\n"
    "  -o, --output DIR      where the sheets go, created if missing (default: the current directory)\n"
    "  -p, --platform NAME   platform directory to use (default: none)\n"
    "  -l, --language NAME   language, optionally LANGUAGE/SUBLANGUAGE (default: english)\n"
    "  --colours NAME        colour database asset (default: colours.txt)\n"
    "  --fonts NAME          font database asset (default: fonts.txt)\n"
    "  -s, --scale N         magnify pictures N times, 1 to 8 (default: by size)\n"
    "  -v, --verbose         print the toolkit's debug lines\n"
    "  --check               render nothing; report message lines whose dropped last\n"
    "                        character is not a blank, keys missing in a language,\n"
    "                        colours, fonts and pictures that scripts or the toolkit\n"
    "                        name and the skin lacks, pictures of the wrong size and\n"
    "                        scripts that do not parse; exit 1 on any finding\n"
    "  --messages NAME       a message file for --check, repeatable (default: messages.txt)\n"
    "  -w, --watch           keep running; render again whenever a script, picture or\n"
    "                        database of the skin changes (a changed script alone renders\n"
    "                        only that script); stop with Ctrl-C\n"
    "  --watch-rounds N      with --watch: stop after N renders that followed a change\n"
    "  -h, --help            this text\n"
    "\n"
    "Warnings of the image script parser are printed to stderr; any warning makes\n"
    "the exit status 1.\n";

struct Options {
  std::string skin;
  std::vector<std::string> scripts;
  std::string output = ".";
  std::string platform;
  std::string language = "english";
  std::string subLanguage;
  std::string colours = "colours.txt";
  std::string fonts = "fonts.txt";
  int scale = 0;
  bool verbose = false;
  bool check = false;
  std::vector<std::string> messages;
  bool watch = false;
  int watchRounds = 0;  // 0: until interrupted
};

// Counts the problems reported while one script renders.
struct Problems {
  std::string current;  // the script being rendered
  int count = 0;
};
Problems g_problems;

void Fail(const std::string& message) {
  std::fprintf(stderr, "vorn-sts: %s\n", message.c_str());
}

bool ParseArguments(int argc, char** argv, Options& o) {
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    auto value = [&](std::string& out) {
      if (i + 1 >= argc) {
        Fail("option " + a + " needs a value");
        return false;
      }
      out = argv[++i];
      return true;
    };
    if (a == "-h" || a == "--help") {
      std::fputs(kUsage, stdout);
      std::exit(0);
    } else if (a == "-o" || a == "--output") {
      if (!value(o.output)) return false;
    } else if (a == "-p" || a == "--platform") {
      if (!value(o.platform)) return false;
    } else if (a == "-l" || a == "--language") {
      std::string both;
      if (!value(both)) return false;
      const auto slash = both.find('/');
      o.language = both.substr(0, slash);
      o.subLanguage = slash == std::string::npos ? "" : both.substr(slash + 1);
    } else if (a == "--colours") {
      if (!value(o.colours)) return false;
    } else if (a == "--fonts") {
      if (!value(o.fonts)) return false;
    } else if (a == "-s" || a == "--scale") {
      std::string n;
      if (!value(n)) return false;
      o.scale = std::atoi(n.c_str());
      if (o.scale < 1 || o.scale > 8) {
        Fail("--scale takes a number from 1 to 8");
        return false;
      }
    } else if (a == "--check") {
      o.check = true;
    } else if (a == "--messages") {
      std::string name;
      if (!value(name)) return false;
      o.messages.push_back(name);
    } else if (a == "-w" || a == "--watch") {
      o.watch = true;
    } else if (a == "--watch-rounds") {
      std::string n;
      if (!value(n)) return false;
      o.watchRounds = std::atoi(n.c_str());
      if (o.watchRounds < 1) {
        Fail("--watch-rounds takes a positive number");
        return false;
      }
    } else if (a == "-v" || a == "--verbose") {
      o.verbose = true;
    } else if (!a.empty() && a[0] == '-') {
      Fail("unknown option " + a);
      return false;
    } else if (o.skin.empty()) {
      o.skin = a;
    } else {
      o.scripts.push_back(a);
    }
  }
  if (o.skin.empty()) {
    Fail("no skin directory given");
    return false;
  }
  if (o.skin.back() != '/') o.skin += '/';
  return true;
}

bool HasEnding(const std::string& name, const char* ending) {
  const std::size_t n = std::strlen(ending);
  return name.size() > n && name.compare(name.size() - n, n, ending) == 0;
}

// The script assets the directory loader indexes for these settings.
std::vector<std::string> SkinScripts(const Options& o) {
  std::vector<std::string> dirs = {o.skin, o.skin + "Generic/"};
  if (!o.platform.empty()) dirs.push_back(o.skin + o.platform + "/");
  if (!o.language.empty()) {
    dirs.push_back(o.skin + "Generic/" + o.language + "/");
    if (!o.platform.empty()) dirs.push_back(o.skin + o.platform + "/" + o.language + "/");
    if (!o.subLanguage.empty()) {
      dirs.push_back(o.skin + "Generic/" + o.language + "/" + o.subLanguage + "/");
      if (!o.platform.empty())
        dirs.push_back(o.skin + o.platform + "/" + o.language + "/" + o.subLanguage + "/");
    }
  }
  std::set<std::string> names;
  for (const std::string& dir : dirs) {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(dir, ec)) {
      if (!entry.is_regular_file()) continue;
      const std::string name = ToLower(entry.path().filename().string());
      if (HasEnding(name, ".sts") || HasEnding(name, ".lbs")) names.insert(name);
    }
  }
  return {names.begin(), names.end()};
}

enum class ScriptKind { kStateSet, kImage, kEditWidget, kListBox };

// What a script builds, from the commands it uses before "finish"; layout
// lines decide over "assign image", which edit widgets use as well.
ScriptKind KindOfScript(const std::string& text) {
  std::istringstream in(text);
  std::string line;
  std::getline(in, line);  // the size line
  ScriptKind kind = ScriptKind::kStateSet;
  while (std::getline(in, line)) {
    std::istringstream words(line);
    std::string command, argument;
    words >> command >> argument;
    if (command == "finish") break;
    if (command == "edit") return ScriptKind::kEditWidget;
    if (command == "lbText" || command == "lbExpand" || command == "lbSelDot")
      return ScriptKind::kListBox;
    if (command == "assign" && argument == "image") kind = ScriptKind::kImage;
  }
  return kind;
}

// A contact sheet: cells of pictures in rows, each with a caption below.
class Sheet {
 public:
  struct Cell {
    wxImage picture;  // invalid: the state has no image
    std::string caption;
    std::vector<std::string> notes;  // extra lines under the caption
    int scale = 0;                   // 0: the sheet's scale
  };

  Sheet(const wxColour& background, const wxColour& ink, int scale)
      : m_background(background), m_ink(ink), m_scale(scale) {}

  void AddRow(std::vector<Cell> row) { m_rows.push_back(std::move(row)); }

  wxImage Render(const std::string& title) const {
    const wxFont font(wxFontInfo(9).Family(wxFONTFAMILY_SWISS));
    const int pad = 12, line = 15, top = pad + line + 6;
    // Every column is as wide as the widest picture; every row as tall as its
    // tallest picture plus its captions.
    int cellW = 96;
    std::size_t columns = 1;
    std::vector<int> pictureH, rowH;
    int height = top;
    for (const auto& row : m_rows) {
      int h = 0, notes = 0;
      for (const Cell& c : row) {
        if (c.picture.IsOk()) {
          cellW = std::max(cellW, c.picture.GetWidth() * ScaleOf(c));
          h = std::max(h, c.picture.GetHeight() * ScaleOf(c));
        }
        notes = std::max(notes, static_cast<int>(c.notes.size()));
      }
      columns = std::max(columns, row.size());
      pictureH.push_back(std::max(h, 16));
      rowH.push_back(pictureH.back() + 6 + line * (1 + notes) + pad);
      height += rowH.back();
    }
    const int width = pad + static_cast<int>(columns) * (cellW + pad);

    wxBitmap canvas(std::max(width, 240), height);
    wxMemoryDC dc(canvas);
    dc.SetBackground(wxBrush(m_background));
    dc.Clear();
    dc.SetFont(font);
    dc.SetTextForeground(m_ink);
    dc.DrawText(title, pad, pad - 4);
    int y = top;
    for (std::size_t r = 0; r < m_rows.size(); y += rowH[r], ++r) {
      const int cellH = pictureH[r];
      for (std::size_t c = 0; c < m_rows[r].size(); ++c) {
        const Cell& cell = m_rows[r][c];
        const int x = pad + static_cast<int>(c) * (cellW + pad);
        if (cell.picture.IsOk()) {
          const int s = ScaleOf(cell);
          const wxImage big = cell.picture.Scale(
              cell.picture.GetWidth() * s, cell.picture.GetHeight() * s, wxIMAGE_QUALITY_NEAREST);
          dc.DrawBitmap(wxBitmap(big), x, y + (cellH - big.GetHeight()) / 2);
        } else {
          // A state without an image: an empty dotted frame.
          dc.SetPen(wxPen(m_ink, 1, wxPENSTYLE_DOT));
          dc.SetBrush(*wxTRANSPARENT_BRUSH);
          dc.DrawRectangle(x, y, cellH, cellH);
        }
        int ty = y + cellH + 6;
        dc.DrawText(cell.caption, x, ty);
        for (const std::string& note : cell.notes) dc.DrawText(note, x, ty += line);
      }
    }
    dc.SelectObject(wxNullBitmap);
    return canvas.ConvertToImage();
  }

 private:
  int ScaleOf(const Cell& c) const { return c.scale ? c.scale : m_scale; }

  wxColour m_background, m_ink;
  int m_scale;
  std::vector<std::vector<Cell>> m_rows;
};

// A BitmapA composited over the sheet's background, as a control would be
// drawn over its panel.
wxImage Flatten(const BitmapA& b, const wxColour& bg) {
  wxImage out(b.width, b.height);
  for (int y = 0; y < b.height; ++y)
    for (int x = 0; x < b.width; ++x) {
      const unsigned char* p = b.Pixel(x, y);
      const int a = b.format == 3 ? p[3] : p[1];
      auto blend = [a](int c, int back) { return (c * a + back * (255 - a)) / 255; };
      const int r = p[0], g = b.format == 3 ? p[1] : p[0], bl = b.format == 3 ? p[2] : p[0];
      out.SetRGB(x, y, blend(r, bg.Red()), blend(g, bg.Green()), blend(bl, bg.Blue()));
    }
  return out;
}

int AutoScale(int w, int h) {
  const int side = std::max(w, h);
  if (side <= 0) return 1;
  return std::max(1, std::min(4, 100 / side));
}

const VORNIMAGETYPE kSheetRows[2][4] = {
    {VIT_OFF, VIT_OFF_MOUSE_OVER, VIT_OFF_DOWN, VIT_DISABLED_OFF},
    {VIT_ON, VIT_ON_MOUSE_OVER, VIT_ON_DOWN, VIT_DISABLED_ON}};

std::string RectNote(int x, int y, int w, int h) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "text %i,%i %ix%i", x, y, w, h);
  return buf;
}

std::string ColourNote(const char* what, const wxColour& c) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%s #%02X%02X%02X", what, c.Red(), c.Green(), c.Blue());
  return buf;
}

// Draws sample text into the text area of a picture, as the control would.
wxImage WithSampleText(const wxImage& picture, int x, int y, int w, int h, const wxColour& ink,
                       const wxFont& font, const wxColour* selection) {
  wxBitmap bmp(picture);
  wxMemoryDC dc(bmp);
  dc.SetClippingRegion(x, y, w, h);
  if (font.IsOk()) dc.SetFont(font);
  const wxString sample = "Sample text";
  const wxSize extent = dc.GetTextExtent(sample);
  const int ty = y + (h - extent.y) / 2;
  if (selection) {
    const wxSize sel = dc.GetTextExtent("Sample");
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(wxBrush(*selection));
    dc.DrawRectangle(x, y, sel.x, h);
  }
  dc.SetTextForeground(ink);
  dc.DrawText(sample, x, ty);
  dc.DestroyClippingRegion();
  dc.SelectObject(wxNullBitmap);
  return bmp.ConvertToImage();
}

class Renderer {
 public:
  Renderer(AssetManager& manager, const Options& options, const wxColour& bg, const wxColour& ink)
      : m_manager(manager), m_options(options), m_bg(bg), m_ink(ink) {}

  // Renders one script into OUTPUT/NAME.png; false when it could not.
  bool Render(const std::string& name) {
    std::string text;
    if (!m_manager.LoadText(name.c_str(), text)) {
      Fail(name + ": no such asset in the skin");
      return false;
    }
    Sheet sheet = MakeSheet(name, KindOfScript(text));
    if (!m_ok) return false;
    const std::string path = (fs::path(m_options.output) / (name + ".png")).string();
    wxImage image = sheet.Render(name);
    if (!image.SaveFile(path, wxBITMAP_TYPE_PNG)) {
      Fail("cannot write " + path);
      return false;
    }
    std::printf("%s\n", path.c_str());
    return true;
  }

 private:
  int Scale(int w, int h) const { return m_options.scale ? m_options.scale : AutoScale(w, h); }

  Sheet MakeSheet(const std::string& name, ScriptKind kind) {
    m_ok = true;
    switch (kind) {
      case ScriptKind::kImage:
        return ImageSheet(name);
      case ScriptKind::kEditWidget:
        return EditSheet(name);
      case ScriptKind::kListBox:
        return ListBoxSheet(name);
      default:
        return StateSheet(name);
    }
  }

  // Two rows of the eight states, off above on; picture(state) gives an
  // invalid image for a state without one.
  template <class GetPicture>
  static void AddStateRows(Sheet& sheet, GetPicture picture) {
    for (const auto& states : kSheetRows) {
      std::vector<Sheet::Cell> row;
      for (VORNIMAGETYPE state : states) {
        Sheet::Cell cell;
        cell.picture = picture(state);
        cell.caption = VornImageStateToken(state);
        row.push_back(cell);
      }
      sheet.AddRow(row);
    }
  }

  Sheet StateSheet(const std::string& name) {
    VornBitmapACache cache;
    m_ok = m_manager.LoadImages(name.c_str(), cache);
    Sheet sheet(m_bg, m_ink, Scale(cache.GetWidth(), cache.GetHeight()));
    AddStateRows(sheet, [&](VORNIMAGETYPE state) {
      const BitmapA* image = nullptr;
      return cache.GetImage(state, image) ? Flatten(*image, m_bg) : wxImage();
    });
    return sheet;
  }

  Sheet ImageSheet(const std::string& name) {
    BitmapA image;
    m_ok = m_manager.LoadImage(name.c_str(), image);
    Sheet sheet(m_bg, m_ink, Scale(image.width, image.height));
    Sheet::Cell cell;
    if (m_ok) cell.picture = Flatten(image, m_bg);
    cell.caption = "image";
    sheet.AddRow({cell});
    return sheet;
  }

  Sheet EditSheet(const std::string& name) {
    wxBitmap bitmap;
    VornEditInfo info;
    m_ok = m_manager.LoadEditWidget(name.c_str(), bitmap, info);
    Sheet sheet(m_bg, m_ink, bitmap.IsOk() ? Scale(bitmap.GetWidth(), bitmap.GetHeight()) : 1);
    if (!m_ok || !bitmap.IsOk()) return sheet;
    const wxImage plain = bitmap.ConvertToImage();
    Sheet::Cell widget{plain, "widget", {RectNote(info.x, info.y, info.width, info.height)}};
    Sheet::Cell sample{WithSampleText(plain, info.x, info.y, info.width, info.height, info.colour1,
                                      info.font, &info.colour2),
                       "with text",
                       {ColourNote("text", info.colour1), ColourNote("selection", info.colour2)}};
    sheet.AddRow({widget, sample});
    return sheet;
  }

  Sheet ListBoxSheet(const std::string& name) {
    VornwxBitmapCache bitmaps;
    OldVornListBoxInfo info;
    info.bitmaps = &bitmaps;
    m_ok = m_manager.LoadListBox(name.c_str(), info);
    Sheet sheet(m_bg, m_ink, Scale(bitmaps.GetWidth(), bitmaps.GetHeight()));
    AddStateRows(sheet, [&](VORNIMAGETYPE state) {
      const wxBitmap* image = nullptr;
      return bitmaps.GetImage(state, image) ? image->ConvertToImage() : wxImage();
    });
    std::vector<Sheet::Cell> parts;
    const wxBitmap* on = nullptr;
    if (bitmaps.GetImage(VIT_ON, on))
      parts.push_back({WithSampleText(on->ConvertToImage(), info.textX, info.textY, info.textWidth,
                                      info.textHeight, info.textColour, wxNullFont, nullptr),
                       "on, with text",
                       {RectNote(info.textX, info.textY, info.textWidth, info.textHeight)}});
    auto part = [&](const wxBitmap* b, const char* caption, std::vector<std::string> notes) {
      Sheet::Cell cell;
      if (b && b->IsOk()) {
        cell.picture = b->ConvertToImage();
        cell.scale = Scale(b->GetWidth(), b->GetHeight());
      }
      cell.caption = caption;
      cell.notes = std::move(notes);
      parts.push_back(cell);
    };
    part(info.selDot, "selDot", {});
    part(info.scrollOff, "scrollOff", {"expand " + std::to_string(info.expand)});
    part(info.scrollUp, "scrollUp", {ColourNote("1", info.expandColour1)});
    part(info.scrollDown, "scrollDown",
         {ColourNote("2", info.expandColour2), ColourNote("3", info.expandColour3)});
    sheet.AddRow(parts);
    return sheet;
  }

  AssetManager& m_manager;
  const Options& m_options;
  wxColour m_bg, m_ink;
  bool m_ok = true;
};

class StsApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};

int Check(const Options& o) {
  SkinCheckOptions check;
  check.skin = o.skin;
  check.platform = o.platform;
  check.colours = o.colours;
  check.fonts = o.fonts;
  if (!o.messages.empty()) check.messageFiles = o.messages;
  SetDprintfHandler([](const char*) {});
  const int findings = RunSkinCheck(check, std::cout);
  if (findings) Fail(std::to_string(findings) + " findings in " + o.skin);
  return findings ? 1 : 0;
}

// Loads the skin afresh and renders the scripts (all of the skin's when
// none are named).
int RenderSkin(const Options& o, std::vector<std::string> scripts);

// Modification time and size of every file of the skin that an editor may
// change, keyed by path; editors' scratch files are left out.
using SkinSnapshot = std::map<std::string, std::pair<fs::file_time_type, std::uintmax_t>>;

SkinSnapshot Snapshot(const std::string& skin) {
  SkinSnapshot snapshot;
  std::error_code ec;
  for (auto it = fs::recursive_directory_iterator(skin, ec);
       !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (name.empty() || name[0] == '.' || name.back() == '~' || HasEnding(name, ".swp")) continue;
    std::error_code fileError;
    if (!it->is_regular_file(fileError)) continue;
    const auto time = it->last_write_time(fileError);
    const auto size = it->file_size(fileError);
    if (!fileError) snapshot[it->path().string()] = {time, size};
  }
  return snapshot;
}

// The names of the scripts that differ between two snapshots; empty when
// anything else (a picture, a database, a removed file) changed as well.
std::vector<std::string> ChangedScriptsOnly(const SkinSnapshot& before, const SkinSnapshot& now) {
  std::set<std::string> changed;
  auto note = [&](const std::string& path) {
    const std::string name = ToLower(fs::path(path).filename().string());
    if (HasEnding(name, ".sts") || HasEnding(name, ".lbs")) {
      changed.insert(name);
      return true;
    }
    return false;
  };
  for (const auto& [path, stamp] : now) {
    auto it = before.find(path);
    if ((it == before.end() || it->second != stamp) && !note(path)) return {};
  }
  for (const auto& entry : before)
    if (!now.count(entry.first)) return {};
  return {changed.begin(), changed.end()};
}

// Polls the skin and renders again once a burst of changes has been quiet
// for a poll interval. Errors of a round are reported and the watch goes on.
int Watch(const Options& o, int rc) {
  using namespace std::chrono_literals;
  std::printf("vorn-sts: watching %s (Ctrl-C ends)\n", o.skin.c_str());
  std::fflush(stdout);
  SkinSnapshot seen = Snapshot(o.skin);
  for (int round = 0; o.watchRounds == 0 || round < o.watchRounds;) {
    std::this_thread::sleep_for(250ms);
    SkinSnapshot now = Snapshot(o.skin);
    if (now == seen) continue;
    // Wait until the editor has finished writing.
    for (;;) {
      std::this_thread::sleep_for(200ms);
      SkinSnapshot settled = Snapshot(o.skin);
      if (settled == now) break;
      now = std::move(settled);
    }
    std::vector<std::string> scripts = o.scripts;
    if (scripts.empty()) scripts = ChangedScriptsOnly(seen, now);
    seen = std::move(now);
    ++round;
    std::printf("vorn-sts: change seen, rendering %s\n",
                scripts.empty() ? "every script" : std::to_string(scripts.size()).c_str());
    std::fflush(stdout);
    rc = RenderSkin(o, scripts);
    std::fflush(stdout);
  }
  return rc;
}

int Run(const Options& o) {
  std::error_code ec;
  if (!fs::is_directory(o.skin, ec)) {
    Fail("skin directory " + o.skin + " does not exist");
    return 2;
  }
  if (o.check) return Check(o);
  // A designer's first run usually names a fresh directory: make it.
  if (!fs::is_directory(o.output, ec) && !fs::create_directories(o.output, ec)) {
    Fail("cannot create output directory " + o.output + (ec ? ": " + ec.message() : ""));
    return 2;
  }
  const int rc = RenderSkin(o, o.scripts);
  if (!o.watch || rc == 2) return rc;
  return Watch(o, rc);
}

int RenderSkin(const Options& o, std::vector<std::string> scripts) {
  g_problems = Problems();
  SetWarningMessageHandler([](const VornString& title, const VornString& text) {
    std::fprintf(stderr, "%s: %s: %s\n", g_problems.current.c_str(), title.c_str(), text.c_str());
    ++g_problems.count;
  });
  const bool verbose = o.verbose;
  SetDprintfHandler([verbose](const char* text) {
    // Unknown colours and fonts are only reported here; they count as faults.
    const bool fault = std::strncmp(text, "NONFATAL ERROR", 14) == 0;
    if (fault) ++g_problems.count;
    if (verbose || fault) std::fprintf(stderr, "%s: %s", g_problems.current.c_str(), text);
  });

  AssetManager manager;
  auto* loader = new FileAssetLoader;
  if (!loader->Init(o.skin)) {
    delete loader;
    Fail("bad skin directory " + o.skin);
    return 2;
  }
  manager.SetAssetLoader(loader);
  manager.SetPlatform(o.platform.c_str());
  manager.SetLanguage(o.language.c_str(), o.subLanguage.c_str());
  manager.LoadAssets();
  g_problems.current = o.colours;
  if (!manager.LoadColourData(o.colours.c_str())) ++g_problems.count;
  g_problems.current = o.fonts;
  if (!manager.LoadFontData(o.fonts.c_str())) ++g_problems.count;
  if (g_problems.count) {
    Fail("the skin's databases did not load cleanly");
    return 1;
  }

  if (scripts.empty()) scripts = SkinScripts(o);
  if (scripts.empty()) {
    Fail("no .sts or .lbs scripts in " + o.skin);
    return 1;
  }
  // The sheet wears the skin's own panel and text colours when it has them.
  wxColour bg(72, 72, 72), ink(*wxWHITE);
  std::vector<std::string> colourNames;
  manager.GetColourNameList(colourNames);
  auto has = [&](const char* n) {
    return std::find(colourNames.begin(), colourNames.end(), n) != colourNames.end();
  };
  if (has("panel")) manager.GetColour("panel", bg);
  if (has("text")) manager.GetColour("text", ink);
  int failed = 0;
  Renderer renderer(manager, o, bg, ink);
  for (const std::string& name : scripts) {
    g_problems.current = name;
    g_problems.count = 0;
    const bool ok = renderer.Render(name);
    if (!ok || g_problems.count) {
      ++failed;
      if (ok) Fail(name + ": rendered, but with warnings");
    }
  }
  if (failed) {
    Fail(std::to_string(failed) + " of " + std::to_string(scripts.size()) + " scripts failed");
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ParseArguments(argc, argv, options)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  wxApp::SetInstance(new StsApp);
  int wxArgc = 1;
  char* wxArgv[] = {argv[0], nullptr};
  if (!wxEntryStart(wxArgc, wxArgv)) {
    Fail("cannot start wxWidgets (no display? run under xvfb-run)");
    return 2;
  }
  wxTheApp->CallOnInit();
  wxInitAllImageHandlers();
  int rc = 2;
  {
    wxLogNull quiet;  // problems are reported through the warning handler
    rc = Run(options);
  }
  wxTheApp->OnExit();
  wxEntryCleanup();
  return rc;
}
