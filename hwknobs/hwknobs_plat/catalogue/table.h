// How a platform's table is written. A table is an array of rows, each made by one of these:
//
//     dt(id, group, name, description, fragment)            a device-tree overlay fragment
//     env(id, group, name, description, key, value)         a bootloader setting
//     both(id, group, name, description, key, value, fragment)
//     dt_arg(...), env_arg(...)                             the same with an argument: a conversion in the last text
//
// In tables of version 0 a row has no id, group and name, and the last row is end_of_table. version_0<rows>() and
// version_2<rows>() make the platform of it, and do not compile when a row breaks a rule.
#pragma once

#include "hwknobs_plat/catalogue/platforms.h"
#include "hwknobs_plat/catalogue/rules.h"

#include <iterator>

namespace catalogue {

using enum hwknobs_group;

struct row_text {
    std::uint32_t id = 0;
    hwknobs_group group{};
    const char* name = nullptr;
    const char* desc = nullptr;
};

constexpr hwknobs_config make_row(const row_text& text, bool takes_argument, hwknobs_config::plenv_pair pl_setting,
                                  const char* dt_fragment) {
    return {.desc = text.desc,
            .arg_type = takes_argument ? 1U : 0U,
            .pl_setting = pl_setting,
            .dt_fragment = dt_fragment,
            .id = text.id,
            .group = text.group,
            .name = text.name};
}

// Rows of version 2.
constexpr hwknobs_config dt(std::uint32_t id, hwknobs_group group, const char* name, const char* desc,
                            const char* fragment) {
    return make_row({id, group, name, desc}, false, {}, fragment);
}
constexpr hwknobs_config dt_arg(std::uint32_t id, hwknobs_group group, const char* name, const char* desc,
                                const char* fragment) {
    return make_row({id, group, name, desc}, true, {}, fragment);
}
constexpr hwknobs_config env(std::uint32_t id, hwknobs_group group, const char* name, const char* desc, const char* key,
                             const char* value) {
    return make_row({id, group, name, desc}, false, {key, value}, nullptr);
}
constexpr hwknobs_config env_arg(std::uint32_t id, hwknobs_group group, const char* name, const char* desc,
                                 const char* key, const char* value) {
    return make_row({id, group, name, desc}, true, {key, value}, nullptr);
}
constexpr hwknobs_config both(std::uint32_t id, hwknobs_group group, const char* name, const char* desc,
                              const char* key, const char* value, const char* fragment) {
    return make_row({id, group, name, desc}, false, {key, value}, fragment);
}

// Rows of version 0.
constexpr hwknobs_config dt(const char* desc, const char* fragment) {
    return make_row({.desc = desc}, false, {}, fragment);
}
constexpr hwknobs_config dt_arg(const char* desc, const char* fragment) {
    return make_row({.desc = desc}, true, {}, fragment);
}
constexpr hwknobs_config env(const char* desc, const char* key, const char* value) {
    return make_row({.desc = desc}, false, {key, value}, nullptr);
}
constexpr hwknobs_config env_arg(const char* desc, const char* key, const char* value) {
    return make_row({.desc = desc}, true, {key, value}, nullptr);
}
constexpr hwknobs_config both(const char* desc, const char* key, const char* value, const char* fragment) {
    return make_row({.desc = desc}, false, {key, value}, fragment);
}
inline constexpr hwknobs_config end_of_table{};

// The row and the rule stand in the compiler's message: "row_keeps_rules<17, catalogue::rule::desc_fits_72_columns>".
template <int Row, rule Broken>
struct row_keeps_rules {
    static_assert(Broken == rule::none, "a row of this table breaks a rule: see the two template arguments");
    static constexpr bool value = true;
};

consteval std::uint64_t hw_code_of(std::string_view name) {
    for (const platform_identity& identity : platform_identities)
        if (identity.name == name) return identity.hw_code;
    throw "the platform is not listed in platforms.h";
}

template <const auto& Rows>
consteval hwknobs_plat version_0(const char* name) {
    constexpr verdict found = check_version_0(Rows);
    static_assert(row_keeps_rules<found.row, found.broken>::value);
    return {hw_code_of(name), name, Rows, 0, 0};
}

template <const auto& Rows>
consteval hwknobs_plat version_2(const char* name) {
    constexpr verdict found = check_version_2(Rows);
    static_assert(row_keeps_rules<found.row, found.broken>::value);
    return {hw_code_of(name), name, Rows, version_with_ids, std::size(Rows)};
}

}  // namespace catalogue
