#include "hwknobs_base/diagnostics.h"
#include "hwknobs_plat/detect.h"
#include "hwknobs_plat/platform.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

[[noreturn]] void platform_unknown() {
    error("Can't determine platform, fix it first or specify the platform via --plat\n");
}

const hwknobs_plat* find_by_hw_code(std::uint16_t code) {
    debug("platform query hw_code %hx", code);
    for (const hwknobs_plat* const plat : hwknobs_platforms()) {
        const auto plat_code = static_cast<std::uint16_t>(plat->hw_code);
        debug("plat %s hw_code %hx", plat->name, plat_code);
        if (plat_code == code) return plat;
    }
    return nullptr;
}

}  // namespace

const hwknobs_plat* hwknobs_get_plat(const char* name) {
    if (name == nullptr) {
        const auto code = detect_hw_code();
        if (!code) platform_unknown();
        const hwknobs_plat* const plat = find_by_hw_code(*code);
        if (plat == nullptr) platform_unknown();
        return plat;
    }
    const auto platforms = hwknobs_platforms();
    const auto found = std::ranges::find(platforms, std::string_view(name),
                                         [](const hwknobs_plat* plat) { return std::string_view(plat->name); });
    if (found == platforms.end()) error("Unsupport platform %s", name);
    return *found;
}

void hwknobs_plat_list() {
    std::puts("Support platform");
    for (const hwknobs_plat* const plat : hwknobs_platforms()) std::printf("\t%s\n", plat->name);
}

std::span<const hwknobs_config> hwknobs_configs(const hwknobs_plat& plat) {
    std::size_t count = plat.count;
    if (count == 0)
        while (plat.configs[count].desc != nullptr) ++count;
    return {plat.configs, count};
}

const hwknobs_config* get_config_by_id(const hwknobs_plat* plat, unsigned int id) {
    if (id == 0) return nullptr;
    const std::span rows(plat->configs, plat->count);
    const auto found = std::ranges::find(rows, id, &hwknobs_config::id);
    return found == rows.end() ? nullptr : &*found;
}
