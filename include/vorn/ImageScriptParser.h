#pragma once
// Image scripts: small text programs that compose the images of a control's
// states (or one picture) from named colours and grey-scale masks, and that
// carry the layouts of edit widgets and list boxes.
//
//   size rgba 40 20        first line: type (rgb, rgba, gui8), width, height
//   clear panel            every pixel becomes the colour
//   map button_face.png face
//   assign off             a copy of the working image becomes state "off"
//   finish
//
// The parser is driven by the asset manager's loaders; scripts and the
// pictures they name are found through it.
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>

#include "vorn/VornImageCache.h"
#include "vornhost/Bitmap.h"

class AssetManager;
struct VornEditInfo;
struct OldVornListBoxInfo;

// How a script command reports a failure; never leaves the parser.
class ParseError {
 public:
  explicit ParseError(std::string message) : m_message(std::move(message)) {}
  const std::string& GetMessage() const { return m_message; }

 private:
  std::string m_message;
};

class ImageScriptParser {
 public:
  // Image types named by the first line.
  enum { TYPE_NONE = 0, TYPE_RGB = 1, TYPE_RGBA = 2, TYPE_GUI8 = 3 };

  explicit ImageScriptParser(AssetManager* manager);
  ImageScriptParser(const ImageScriptParser&) = delete;
  ImageScriptParser& operator=(const ImageScriptParser&) = delete;
  ~ImageScriptParser();

  // Reads and executes the script. True when "finish" was reached; a faulty
  // first line is reported (title "Error") and gives false; a faulty command
  // throws ParseError.
  bool ParseFile(const std::string& text, VornBitmapACache* cache, BitmapA* image,
                 VornEditInfo* edit);

  // The top-level operations catch every command error, fill the output with
  // error images, warn (title "Image Script Parser") and still return true.
  // Only a faulty first line makes them return false.
  bool CreateImageCache(const std::string& text, VornBitmapACache& cache);
  bool CreateImage(const std::string& text, BitmapA& image);
  // False (with the error image) when the script has no "edit" line.
  bool CreateEditWidget(const std::string& text, BitmapA& image, VornEditInfo* info);
  // info->bitmaps must exist; it receives the script's states as wxBitmaps.
  // False (with the error images) when the script has no "lbText" line.
  bool CreateListBox(const std::string& text, OldVornListBoxInfo* info);

  // Replaces the output by solid error images: "pink" for a single image, one
  // colour per state for a cache.
  void OnError();
  bool Finish();

  // One operation per command; each returns true, false when the underlying
  // image operation failed, or throws ParseError with its message.
  bool Clear(const std::string& colour);
  bool Copy(const std::string& file);
  bool CopyA(const std::string& file);
  bool Map(const std::string& file, const std::string& colour);
  bool MapMask(const std::string& file, const std::string& colour);
  bool SetAlphaFromGrey(const std::string& file);
  bool Assign(const std::string& word, VornBitmapACache* cache, BitmapA* image);
  bool EditLine(std::istream& line, VornEditInfo* info);
  bool HandleLBTextLine(std::istream& line, OldVornListBoxInfo* info);
  bool HandleLBExpandLine(std::istream& line, OldVornListBoxInfo* info);
  bool HandleLBSelDotLine(std::istream& line, OldVornListBoxInfo* info);

  int GetImageType() const { return m_imageType; }
  int GetWidth() const { return m_width; }
  int GetHeight() const { return m_height; }

 private:
  enum class Outcome { kFinished, kFirstLineFailed, kCommandFailed };
  // ParseFile with every error caught and handled.
  Outcome RunGuarded(const std::string& text, VornBitmapACache* cache, BitmapA* image,
                     VornEditInfo* edit);
  bool ReadFirstLine(std::istream& in);
  void ExecuteLine(std::istream& words, const std::string& command, bool& finished);
  BitmapA& Working();
  const wxImage& LoadMask(const std::string& file);
  void CheckSize(const std::string& file, int width, int height) const;

  AssetManager* m_pAssetManager;
  int m_imageType = TYPE_NONE;
  int m_width = 0;
  int m_height = 0;
  std::unique_ptr<BitmapA> m_pImage;  // the working image
  VornBitmapACache* m_pCache = nullptr;
  BitmapA* m_pTargetImage = nullptr;
  VornEditInfo* m_pEditInfo = nullptr;
  OldVornListBoxInfo* m_pListBoxInfo = nullptr;
  int m_line = 0;            // number of the line being executed
  bool m_bAssigned = false;  // "assign image" ran
};
