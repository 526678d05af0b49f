#include "hwknobs_base/diagnostics.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

bool hwknobs_verbose = false;

namespace {

using message_buffer = std::array<char, 256>;

// A message that formats to nothing still gives a line, so that a fatal error is never silent.
const char* format_message(message_buffer& buffer, const char* fmt, va_list args) {
    const int length = std::vsnprintf(buffer.data(), buffer.size(), fmt, args);
    return length > 0 ? buffer.data() : "<Bad error message>";
}

}  // namespace

void debug(const char* fmt, ...) {
    if (!hwknobs_verbose) return;
    message_buffer buffer;
    va_list args;
    va_start(args, fmt);
    const char* const message = format_message(buffer, fmt, args);
    va_end(args);
    std::printf("DEBUG: %s\n", message);
}

void error(const char* fmt, ...) {
    message_buffer buffer;
    va_list args;
    va_start(args, fmt);
    const char* const message = format_message(buffer, fmt, args);
    va_end(args);
    std::printf("ERROR: %s\n", message);
    std::exit(1);
}

// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __error(const char* expr, const char* file, int line, const char* function) {
    std::printf("Error in file %s:%d\n\tfunction: %s\n\t> %s\n", file, line, function, expr);
    std::exit(1);
}
