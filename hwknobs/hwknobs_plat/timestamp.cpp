#include "hwknobs_plat/timestamp.h"

#include "hwknobs_base/diagnostics.h"

#include <array>
#include <ctime>

namespace {

void check(bool holds, const char* expr, int line) {
    if (!holds) __error(expr, "hwknobs/hwknobs_plat", line, "std::string hwknobs_get_timestamp()");
}

}  // namespace

std::string hwknobs_get_timestamp() {
    const std::time_t current = std::time(nullptr);
    check(current != static_cast<std::time_t>(-1), "current != (time_t) -1", 165);
    const std::tm* const timeinfo = std::localtime(&current);
    check(timeinfo != nullptr, "timeinfo != NULL", 167);
    std::array<char, 128> timestamp{};
    const std::size_t length = std::strftime(timestamp.data(), timestamp.size(), "%F %T", timeinfo);
    check(length > 0, "strftime(timestamp, sizeof(timestamp), \"%F %T\", timeinfo) > 0", 168);
    return {timestamp.data(), length};
}
