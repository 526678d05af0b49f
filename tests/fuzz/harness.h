// What the fuzz targets share.
#pragma once

#include <cstdlib>
#include <string_view>

/// Thrown where the tool would end the process with a message.
struct process_end {};

/// What has to hold, whatever the input is.
inline void must(bool holds) {
    if (!holds) std::abort();
}

using fuzz_target = void (*)(std::string_view input);

/// The target of that name, or null.
fuzz_target find_target(std::string_view name);
