#pragma once
// Packing asset trees into archives and unpacking them again; the format is
// the one ArchiveAssetLoader reads (see vorn/ArchiveAsset.h).
#include <string>
#include <vector>

// One asset as an archive directory line names it: identity fields spelled
// as on disk, "NONE" for an empty one.
struct VornArchiveEntry {
  std::string name;
  std::string platform = "NONE";
  std::string language = "NONE";
  std::string subLanguage = "NONE";
  std::string bytes;
};

// Collects the files of a tree laid out as FileAssetLoader reads it: the
// root, "Generic" and platform directories, their language directories and
// those directories' sub-language directories. An empty platform takes every
// platform directory, otherwise only "Generic" and that one. Hidden files and
// deeper directories are left out; each directory left out is added to
// ignored when given. A name without extension gets a trailing dot, as its
// key in a directory tree has. Entries come in a fixed order (by directory, then
// name). False, with error set, when the tree cannot be read or holds a name
// an archive directory cannot carry (white space, or a directory "NONE").
bool VornCollectAssetTree(const std::string& root, const std::string& platform,
                          std::vector<VornArchiveEntry>& out, std::string& error,
                          std::vector<std::string>* ignored = nullptr);

// Writes entries as an archive at path, in order.
bool VornWriteArchive(const std::string& path, const std::vector<VornArchiveEntry>& entries,
                      std::string& error);

// Reads every valid entry of the archive at path, in directory order.
bool VornReadArchive(const std::string& path, std::vector<VornArchiveEntry>& out,
                     std::string& error);

// The path of an entry relative to the root of a tree (a name whose only dot
// ends it loses that dot), or "" when the entry
// cannot be placed in a tree (a language without platform, a sub-language
// without language, or a field that is not a plain file or directory name).
std::string VornArchiveEntryPath(const VornArchiveEntry& entry);

// Writes entries as files below dir, creating directories as needed. Every
// entry is checked before anything is written.
bool VornExtractArchive(const std::vector<VornArchiveEntry>& entries, const std::string& dir,
                        std::string& error);
