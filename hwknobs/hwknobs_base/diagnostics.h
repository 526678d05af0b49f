// The three ways in which the tool speaks of trouble. All of them write to standard output, so that a captured
// output holds the complaints in order with the normal lines.
#pragma once

/// Whether debug() prints. Set once, by --verbose, before the command runs.
extern bool hwknobs_verbose;

/// Prints "DEBUG: " and the message, cut to 255 characters, when hwknobs_verbose is set; else does nothing.
void debug(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

/// Prints "ERROR: " and the message, cut to 255 characters, and ends the process with status 1.
/// It exits, so buffered output is flushed, and nothing is unwound.
[[noreturn]] void error(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

/// Reports a broken internal invariant and ends the process with status 1. `expr` is the text of the condition,
/// `file` the label of the module it belongs to; label, line and function are part of the message that users and
/// scripts know, so they stay as they are when code moves.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
[[noreturn]] void __error(const char* expr, const char* file, int line, const char* function);
