#pragma once
// Assertions guard programming errors (double registration, null arguments,
// indices out of range, ...). A failure reports the function, the source file
// and the condition text. The handler is swappable: the default prints the
// report and aborts; tests install VornThrowingAssertHandler to catch it.
#include <stdexcept>
#include <string>

struct VornAssertInfo {
  const char* condition;  // the text of the failed condition
  const char* function;
  const char* file;
  int line;
};

using VornAssertHandler = void (*)(const VornAssertInfo& info);

// Installs a handler and returns the previous one; null restores the default.
VornAssertHandler VornSetAssertHandler(VornAssertHandler handler);

// The default: prints "Assertion failed: <condition> in <function> (<file>:<line>)"
// to stderr and aborts.
void VornDefaultAssertHandler(const VornAssertInfo& info);

// Thrown by VornThrowingAssertHandler.
class VornAssertionError : public std::logic_error {
 public:
  explicit VornAssertionError(const VornAssertInfo& info);
  std::string condition;
  std::string function;
  std::string file;
  int line;
};
void VornThrowingAssertHandler(const VornAssertInfo& info);

// Calls the installed handler. If the handler returns, execution continues
// after the failed assertion.
void VornAssertFailed(const char* condition, const char* function, const char* file, int line);

// VORN_ASSERT(cond) reports the condition as written. VORN_ASSERT_TEXT lets
// the caller give the reported text, for conditions whose established wording
// differs from portable source (for example "m_pControlGroup == __null").
#define VORN_ASSERT(cond) \
  ((cond) ? (void)0 : VornAssertFailed(#cond, __func__, __FILE__, __LINE__))
#define VORN_ASSERT_TEXT(cond, text) \
  ((cond) ? (void)0 : VornAssertFailed(text, __func__, __FILE__, __LINE__))
