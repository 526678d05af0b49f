// The catalogue as the rest of the tool sees it: platforms, their settings, and how they are looked up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Codes and names of the groups, in one list. The code, which counts up from 0, is the bit of the group in the filter
// of `list`.
// clang-format off
#define HWKNOBS_GROUPS(group) \
    group(UNKNOWN) group(CPU) group(KERNEL) group(DRAM) group(DISPLAY) group(GPU) group(PMIC) group(TOOL) group(EMI) \
    group(LPM) group(HYP) group(DPSW) group(VCORE) group(HRT)
// clang-format on

#define HWKNOBS_GROUP_CODE(name) name,
enum class hwknobs_group : std::uint32_t { HWKNOBS_GROUPS(HWKNOBS_GROUP_CODE) };
#undef HWKNOBS_GROUP_CODE

#define HWKNOBS_GROUP(name) hwknobs_group::name,
inline constexpr hwknobs_group hwknobs_groups[] = {HWKNOBS_GROUPS(HWKNOBS_GROUP)};
#undef HWKNOBS_GROUP

#define HWKNOBS_GROUP_NAME(name) #name,
inline constexpr const char* hwknobs_group_names[] = {HWKNOBS_GROUPS(HWKNOBS_GROUP_NAME)};
#undef HWKNOBS_GROUP_NAME

/// The name of a group, or the empty text for a code that no group has.
constexpr const char* get_hwknobs_group_name(hwknobs_group group) {
    const auto code = static_cast<std::size_t>(group);
    return code < std::size(hwknobs_group_names) ? hwknobs_group_names[code] : "";
}

/// One setting. All texts are constant and live as long as the program; those that a setting has no use for are null.
struct hwknobs_config {
    const char* desc = nullptr;  ///< null only in the end row of a version-0 table
    std::uint64_t arg_type = 0;  ///< bit 0: the setting requires one argument
    struct plenv_pair {
        const char* key = nullptr;
        const char* value = nullptr;  ///< a template (config_template.h)
    } pl_setting{};
    const char* dt_fragment = nullptr;  ///< an overlay fragment, a template
    std::uint32_t id = 0;               ///< version 2: unique in its platform; stored on devices, so it never moves
    hwknobs_group group{};              ///< version 2
    const char* name = nullptr;         ///< version 2: unique in its platform

    constexpr bool takes_argument() const { return (arg_type & 1) != 0; }
};

/// The version of tables whose rows have ids, groups and names; the other is 0.
inline constexpr std::uint32_t version_with_ids = 2;

/// One platform. A version-2 table has exactly `count` rows, each with an id, a group and a name. In a version-0
/// table `count` is 0, the rows go up to an end row, and a setting's number is its position, counted from 1.
struct hwknobs_plat {
    std::uint64_t hw_code;  ///< only the low 16 bits count
    const char* name;
    const hwknobs_config* configs;
    std::uint32_t version;  ///< 0 or 2
    std::uint32_t count;
};

/// All platforms, in the order of every search and listing.
std::span<const hwknobs_plat* const> hwknobs_platforms();

/// The platform called `name`, or with a null `name` the one that the program runs on (by /proc/chip/hw_code or the
/// device tree's atag,chipid). Never null: ends the process when there is none.
const hwknobs_plat* hwknobs_get_plat(const char* name);

/// Prints the names of all platforms.
void hwknobs_plat_list();

/// The rows of a platform's table, without the end row of a version-0 table.
std::span<const hwknobs_config> hwknobs_configs(const hwknobs_plat& plat);

/// The setting with that id, or null. Version-0 tables have no ids: null, whatever their rows carry.
const hwknobs_config* get_config_by_id(const hwknobs_plat* plat, unsigned int id);

/// Compares two ids for sorting: -1, 0 or 1.
inline int cmp(const int* a, const int* b) { return (*a > *b) - (*a < *b); }
