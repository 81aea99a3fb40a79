#pragma once
// Debug printing and user warnings. Both go through handlers the host can
// install; the toolkit never decides where they end up.
//   dprintf:        default handler discards the text.
//   WarningMessage: default handler writes "title: text\n" to stderr.
#include <functional>

#include "vornhost/Types.h"

using DprintfHandler = std::function<void(const char* text)>;
using WarningMessageHandler = std::function<void(const VornString& title, const VornString& text)>;

// Install a handler; returns the previous one. An empty function restores the
// default.
DprintfHandler SetDprintfHandler(DprintfHandler handler);
WarningMessageHandler SetWarningMessageHandler(WarningMessageHandler handler);

// printf-style debug line. (An overload of the POSIX dprintf(int, ...), which
// takes a file descriptor first and so never collides with this one.)
int dprintf(const char* format, ...) __attribute__((format(printf, 1, 2)));

void WarningMessage(const VornString& title, const VornString& text);
