#include "vornhost/Debug.h"

#include <cstdarg>
#include <cstdio>
#include <iostream>
#include <vector>

namespace {
DprintfHandler& DebugHandler() {
  static DprintfHandler handler;  // empty: discard
  return handler;
}
WarningMessageHandler& WarningHandler() {
  static WarningMessageHandler handler;  // empty: stderr
  return handler;
}
}  // namespace

DprintfHandler SetDprintfHandler(DprintfHandler handler) {
  DprintfHandler previous = std::move(DebugHandler());
  DebugHandler() = std::move(handler);
  return previous;
}

WarningMessageHandler SetWarningMessageHandler(WarningMessageHandler handler) {
  WarningMessageHandler previous = std::move(WarningHandler());
  WarningHandler() = std::move(handler);
  return previous;
}

int dprintf(const char* format, ...) {
  const DprintfHandler& handler = DebugHandler();
  if (!handler) return 0;  // formatting costs time; skip it when nobody listens
  va_list args;
  va_start(args, format);
  va_list copy;
  va_copy(copy, args);
  const int needed = std::vsnprintf(nullptr, 0, format, copy);
  va_end(copy);
  if (needed < 0) {
    va_end(args);
    return needed;
  }
  std::vector<char> buffer(static_cast<std::size_t>(needed) + 1);
  std::vsnprintf(buffer.data(), buffer.size(), format, args);
  va_end(args);
  handler(buffer.data());
  return needed;
}

void WarningMessage(const VornString& title, const VornString& text) {
  const WarningMessageHandler& handler = WarningHandler();
  if (handler) {
    handler(title, text);
    return;
  }
  std::cerr << title << ": " << text << '\n';
}
