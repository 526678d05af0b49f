#include "hwknobs_plat/catalogue/platforms.h"

namespace {

#define HWKNOBS_POINT_AT_PLATFORM(name, code) &(name),
constexpr const hwknobs_plat* platforms[] = {HWKNOBS_PLATFORMS(HWKNOBS_POINT_AT_PLATFORM)};
#undef HWKNOBS_POINT_AT_PLATFORM

constexpr bool is_platform_name(std::string_view name) {
    return name.size() == 6 && name.starts_with("px") &&
           name.find_first_not_of("0123456789", 2) == std::string_view::npos;
}

constexpr bool identities_are_distinct() {
    for (const platform_identity& a : platform_identities)
        for (const platform_identity& b : platform_identities)
            if (&a != &b && (a.name == b.name || (a.hw_code & 0xFFFF) == (b.hw_code & 0xFFFF))) return false;
    return true;
}

constexpr bool names_are_platform_names() {
    for (const platform_identity& identity : platform_identities)
        if (!is_platform_name(identity.name)) return false;
    return true;
}

static_assert(std::size(platforms) == promised_platforms, "platforms came or went: change the number in platforms.h");
static_assert(identities_are_distinct(), "two platforms share a name or a hardware code");
static_assert(names_are_platform_names(), "a platform's name is px and four digits");

}  // namespace

std::span<const hwknobs_plat* const> hwknobs_platforms() { return platforms; }
