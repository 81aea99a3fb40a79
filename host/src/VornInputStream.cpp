#include "vornhost/VornInputStream.h"

#include <vector>

std::uint32_t VornInputStream::Read32() {
  unsigned char bytes[4];
  if (!good() || !m_in.read(reinterpret_cast<char*>(bytes), 4)) {
    m_good = false;
    return 0;
  }
  return static_cast<std::uint32_t>(bytes[0]) | (static_cast<std::uint32_t>(bytes[1]) << 8) |
         (static_cast<std::uint32_t>(bytes[2]) << 16) | (static_cast<std::uint32_t>(bytes[3]) << 24);
}

VornInputStream& operator>>(VornInputStream& in, VornString& out) {
  const std::uint32_t length = in.Read32();
  if (!in.good()) return in;
  // Never trust the count: read in bounded chunks so a corrupt length cannot
  // make us allocate more than the stream actually holds.
  VornString result;
  constexpr std::size_t kChunk = 1 << 16;
  std::vector<char> chunk;
  std::size_t remaining = length;
  while (remaining > 0) {
    const std::size_t n = remaining < kChunk ? remaining : kChunk;
    chunk.resize(n);
    if (!in.m_in.read(chunk.data(), static_cast<std::streamsize>(n))) {
      in.m_good = false;
      return in;
    }
    result.append(chunk.data(), n);
    remaining -= n;
  }
  out = std::move(result);
  return in;
}

void VornOutputStream::Write32(std::uint32_t value) {
  const char bytes[4] = {static_cast<char>(value & 0xff), static_cast<char>((value >> 8) & 0xff),
                         static_cast<char>((value >> 16) & 0xff),
                         static_cast<char>((value >> 24) & 0xff)};
  m_out.write(bytes, 4);
}

VornOutputStream& operator<<(VornOutputStream& out, const VornString& s) {
  out.Write32(static_cast<std::uint32_t>(s.size()));
  out.GetStream().write(s.data(), static_cast<std::streamsize>(s.size()));
  return out;
}
