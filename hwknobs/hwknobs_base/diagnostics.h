// Debug, error and assertion messages. All of them go to standard output, so that a captured output holds them in order
// with the normal lines.
#pragma once

/// Whether debug() prints. Set once, by --verbose, before the command runs.
extern bool hwknobs_verbose;

/// Prints "DEBUG: " and the message, cut to 255 characters, when hwknobs_verbose is set; else does nothing.
void debug(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

/// Prints "ERROR: " and the message, cut to 255 characters, and ends the process with status 1.
/// It exits, so buffered output is flushed, and nothing is unwound.
[[noreturn]] void error(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

/// Reports a broken internal invariant and ends the process with status 1. `expr` is the text of the condition, `file`
/// the module that it belongs to.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
[[noreturn]] void __error(const char* expr, const char* file, int line, const char* function);

/// Where an assertion report says that it comes from. Module, function and line are part of a message that users quote
/// and scripts look for: they are fixed texts, and stay as they are when the code moves.
struct assertion_site {
    const char* file;
    const char* function;
};

/// Ends the process with an assertion report unless the condition, whose text is `expr`, holds.
inline void check_invariant(bool holds, const char* expr, const assertion_site& site, int line) {
    if (!holds) __error(expr, site.file, line, site.function);
}
