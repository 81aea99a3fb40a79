#include "vorn/ArchiveWriter.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "vorn/ArchiveAsset.h"
#include "vornhost/VornInputStream.h"

namespace fs = std::filesystem;

namespace {
const char kNone[] = "NONE";

bool HasBlank(const std::string& s) {
  return std::any_of(s.begin(), s.end(), [](char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
  });
}

// Regular non-hidden files (dirs false) or non-hidden directories (dirs
// true) directly inside dir, sorted by name.
bool ListNames(const std::string& dir, bool dirs, std::vector<std::string>& out,
               std::string& error) {
  out.clear();
  std::error_code ec;
  fs::directory_iterator it(dir, ec), end;
  for (; !ec && it != end; it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (name.empty() || name[0] == '.') continue;
    std::error_code typeError;
    if (dirs ? it->is_directory(typeError) : it->is_regular_file(typeError)) out.push_back(name);
  }
  if (ec) {
    error = "cannot list " + dir + ": " + ec.message();
    return false;
  }
  std::sort(out.begin(), out.end());
  return true;
}

bool ReadBytes(const std::string& path, std::string& out, std::string& error) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  if (in) bytes << in.rdbuf();
  if (!in || in.bad()) {
    error = "cannot read " + path;
    return false;
  }
  out = bytes.str();
  return true;
}

class TreeCollector {
 public:
  TreeCollector(std::vector<VornArchiveEntry>& out, std::string& error,
                std::vector<std::string>* ignored)
      : m_out(out), m_error(error), m_ignored(ignored) {}

  // Adds the files of dir with the given identity.
  bool AddFiles(const std::string& dir, const std::string& platform, const std::string& language,
                const std::string& subLanguage) {
    std::vector<std::string> files;
    if (!ListNames(dir, false, files, m_error)) return false;
    for (const std::string& file : files) {
      if (HasBlank(file)) return Refuse("file name [" + dir + file + "] contains white space");
      VornArchiveEntry entry;
      // The directory loader's key of a file without extension ends in a dot.
      entry.name = file.find('.') == std::string::npos ? file + "." : file;
      entry.platform = platform;
      entry.language = language;
      entry.subLanguage = subLanguage;
      if (!ReadBytes(dir + file, entry.bytes, m_error)) return false;
      m_out.push_back(std::move(entry));
    }
    return true;
  }

  // Sub-directories of dir, each checked as an identity word.
  bool Dirs(const std::string& dir, std::vector<std::string>& out) {
    if (!ListNames(dir, true, out, m_error)) return false;
    for (const std::string& d : out) {
      if (HasBlank(d)) return Refuse("directory name [" + dir + d + "] contains white space");
      if (d == kNone) return Refuse("directory name [" + dir + d + "] reads back as no name");
    }
    return true;
  }

  void Ignore(const std::string& path) {
    if (m_ignored) m_ignored->push_back(path);
  }

 private:
  bool Refuse(const std::string& why) {
    m_error = why;
    return false;
  }
  std::vector<VornArchiveEntry>& m_out;
  std::string& m_error;
  std::vector<std::string>* m_ignored;
};

// A field usable as one file or directory name.
bool IsPlainName(const std::string& s) {
  return !s.empty() && s != "." && s != ".." && s.find('/') == std::string::npos &&
         s.find('\0') == std::string::npos;
}
}  // namespace

bool VornCollectAssetTree(const std::string& root, const std::string& platform,
                          std::vector<VornArchiveEntry>& out, std::string& error,
                          std::vector<std::string>* ignored) {
  std::error_code ec;
  if (!fs::is_directory(root, ec)) {
    error = "no directory " + root;
    return false;
  }
  const std::string base = (root.empty() || root.back() == '/') ? root : root + "/";
  TreeCollector tree(out, error, ignored);
  if (!tree.AddFiles(base, kNone, kNone, kNone)) return false;
  std::vector<std::string> platforms, languages, subLanguages, deeper;
  if (!tree.Dirs(base, platforms)) return false;
  for (const std::string& p : platforms) {
    const std::string pDir = base + p + "/";
    if (!platform.empty() && p != "Generic" && p != platform) {
      tree.Ignore(pDir);
      continue;
    }
    if (!tree.AddFiles(pDir, p, kNone, kNone) || !tree.Dirs(pDir, languages)) return false;
    for (const std::string& l : languages) {
      const std::string lDir = pDir + l + "/";
      if (!tree.AddFiles(lDir, p, l, kNone) || !tree.Dirs(lDir, subLanguages)) return false;
      for (const std::string& s : subLanguages) {
        const std::string sDir = lDir + s + "/";
        if (!tree.AddFiles(sDir, p, l, s)) return false;
        if (!ListNames(sDir, true, deeper, error)) return false;
        for (const std::string& d : deeper) tree.Ignore(sDir + d + "/");
      }
    }
  }
  return true;
}

bool VornWriteArchive(const std::string& path, const std::vector<VornArchiveEntry>& entries,
                      std::string& error) {
  std::uint64_t dataSize = 4;
  std::string directory;
  for (const VornArchiveEntry& e : entries) {
    for (const std::string* word : {&e.name, &e.platform, &e.language, &e.subLanguage}) {
      if (word->empty() || HasBlank(*word)) {
        error = "entry [" + e.name + "] has an empty field or one with white space";
        return false;
      }
    }
    const std::uint64_t start = dataSize;
    dataSize += e.bytes.size();
    if (dataSize > UINT32_MAX) {
      error = "the assets exceed the 4 GiB an archive can hold";
      return false;
    }
    directory += e.name + " " + e.platform + " " + e.language + " " + e.subLanguage + " " +
                 std::to_string(start) + " " + std::to_string(dataSize) + "\n";
  }
  {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    VornOutputStream out(file);
    out.Write32(static_cast<std::uint32_t>(dataSize));
    for (const VornArchiveEntry& e : entries)
      file.write(e.bytes.data(), static_cast<std::streamsize>(e.bytes.size()));
    out << directory;
    file.close();
    if (file) return true;
  }
  std::error_code ec;
  fs::remove(path, ec);
  error = "cannot write " + path;
  return false;
}

bool VornReadArchive(const std::string& path, std::vector<VornArchiveEntry>& out,
                     std::string& error) {
  ArchiveAssetLoader loader(path.c_str());
  if (!loader.Open()) {
    error = "cannot read archive " + path + ": " + loader.GetLastError();
    return false;
  }
  loader.VisitEntries([&out](const ArchiveAssetLoader::Entry& e) {
    VornArchiveEntry entry;
    entry.name = e.name;
    entry.platform = e.platform;
    entry.language = e.language;
    entry.subLanguage = e.subLanguage;
    entry.bytes.assign(reinterpret_cast<const char*>(e.data), static_cast<std::size_t>(e.size));
    out.push_back(std::move(entry));
  });
  return true;
}

std::string VornArchiveEntryPath(const VornArchiveEntry& e) {
  const bool hasPlatform = e.platform != kNone;
  const bool hasLanguage = e.language != kNone;
  const bool hasSub = e.subLanguage != kNone;
  if (!IsPlainName(e.name) || (hasLanguage && !hasPlatform) || (hasSub && !hasLanguage))
    return std::string();
  // The dot the packer added to a name without extension goes again.
  std::string name = e.name;
  if (name.find('.') == name.size() - 1) name.pop_back();
  if (!IsPlainName(name)) return std::string();
  std::string path;
  for (const std::string* dir : {&e.platform, &e.language, &e.subLanguage}) {
    if (*dir == kNone) break;
    if (!IsPlainName(*dir)) return std::string();
    path += *dir + "/";
  }
  return path + name;
}

bool VornExtractArchive(const std::vector<VornArchiveEntry>& entries, const std::string& dir,
                        std::string& error) {
  std::vector<std::string> paths;
  for (const VornArchiveEntry& e : entries) {
    paths.push_back(VornArchiveEntryPath(e));
    if (paths.back().empty()) {
      error = "entry [" + e.name + " " + e.platform + " " + e.language + " " + e.subLanguage +
              "] has no place in an asset tree";
      return false;
    }
  }
  const fs::path base(dir);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const fs::path target = base / paths[i];
    std::error_code ec;
    fs::create_directories(target.parent_path(), ec);
    std::ofstream file(target, std::ios::binary | std::ios::trunc);
    file.write(entries[i].bytes.data(), static_cast<std::streamsize>(entries[i].bytes.size()));
    file.close();
    if (!file) {
      error = "cannot write " + target.string();
      return false;
    }
  }
  return true;
}
