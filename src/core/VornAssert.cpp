#include "vorn/VornAssert.h"

#include <cstdio>
#include <cstdlib>

namespace {
VornAssertHandler g_handler = &VornDefaultAssertHandler;

std::string Describe(const VornAssertInfo& info) {
  return std::string("Assertion failed: ") + info.condition + " in " + info.function + " (" +
         info.file + ":" + std::to_string(info.line) + ")";
}
}  // namespace

VornAssertHandler VornSetAssertHandler(VornAssertHandler handler) {
  VornAssertHandler previous = g_handler;
  g_handler = handler ? handler : &VornDefaultAssertHandler;
  return previous;
}

void VornDefaultAssertHandler(const VornAssertInfo& info) {
  std::fprintf(stderr, "%s\n", Describe(info).c_str());
  std::fflush(stderr);
  std::abort();
}

VornAssertionError::VornAssertionError(const VornAssertInfo& info)
    : std::logic_error(Describe(info)),
      condition(info.condition),
      function(info.function),
      file(info.file),
      line(info.line) {}

void VornThrowingAssertHandler(const VornAssertInfo& info) { throw VornAssertionError(info); }

void VornAssertFailed(const char* condition, const char* function, const char* file, int line) {
  g_handler(VornAssertInfo{condition, function, file, line});
}
