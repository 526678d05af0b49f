#include "hwknobs_plat/timestamp.h"

#include "hwknobs_base/diagnostics.h"

#include <array>
#include <ctime>

std::string hwknobs_get_timestamp() {
    constexpr assertion_site site{"hwknobs/hwknobs_plat", "std::string hwknobs_get_timestamp()"};
    const std::time_t current = std::time(nullptr);
    check_invariant(current != static_cast<std::time_t>(-1), "current != (time_t) -1", site, 165);
    const std::tm* const timeinfo = std::localtime(&current);
    check_invariant(timeinfo != nullptr, "timeinfo != NULL", site, 167);
    std::array<char, 128> timestamp{};
    const std::size_t length = std::strftime(timestamp.data(), timestamp.size(), "%F %T", timeinfo);
    check_invariant(length > 0, "strftime(timestamp, sizeof(timestamp), \"%F %T\", timeinfo) > 0", site, 168);
    return {timestamp.data(), length};
}
