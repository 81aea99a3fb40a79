#pragma once
// Binary streams used by archives.
//
// Byte order: Read32/Write32 use little-endian order.
// Strings: a 32-bit little-endian byte count followed by that many bytes,
// taken as they are (UTF-8 by convention); no terminator.
//
// Reading never allocates more than the bytes that remain in the stream: a
// string whose count exceeds them fails and the stream goes bad.
#include <cstdint>
#include <istream>
#include <ostream>

#include "vornhost/Types.h"

class VornInputStream {
 public:
  explicit VornInputStream(std::istream& in) : m_in(in) {}
  // The next four bytes as a little-endian value; 0 and a bad stream at end.
  std::uint32_t Read32();
  bool good() const { return m_good && m_in.good(); }
  std::istream& GetStream() { return m_in; }
  // Sets the stream bad (used by readers that detect corrupt input).
  void SetBad() { m_good = false; }

 private:
  friend VornInputStream& operator>>(VornInputStream&, VornString&);
  std::istream& m_in;
  bool m_good = true;
};

VornInputStream& operator>>(VornInputStream& in, VornString& out);

class VornOutputStream {
 public:
  explicit VornOutputStream(std::ostream& out) : m_out(out) {}
  void Write32(std::uint32_t value);
  bool good() const { return m_out.good(); }
  std::ostream& GetStream() { return m_out; }

 private:
  std::ostream& m_out;
};

VornOutputStream& operator<<(VornOutputStream& out, const VornString& s);
