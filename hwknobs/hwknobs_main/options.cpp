#include "hwknobs_main/options.h"

#include "hwknobs_base/diagnostics.h"

#include <cstddef>

void restart_option_parser() {
    // Not 1: glibc keeps the permutation mode of the very first parse unless it is told to initialise itself.
    optind = 0;
}

std::string_view option_name(std::span<const option> options, int index, int line, const char* function) {
    check_invariant(index >= 0 && static_cast<std::size_t>(index) < options.size(),
                    "(option_index >= 0) && (option_index < (sizeof(long_options) / sizeof(long_options[0])))",
                    {"hwknobs/hwknobs_main", function}, line);
    const char* const name = options[static_cast<std::size_t>(index)].name;
    return name != nullptr ? name : "";
}
