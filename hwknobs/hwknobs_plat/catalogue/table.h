// How a platform's table is made of knobs. It is written as an array of rows, an id and a knob each; a table of
// version 0, whose rows have no id, as an array of knobs. version_0<rows>() and version_2<rows>() make the platform of
// it, and do not compile when a row breaks a rule.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"
#include "hwknobs_plat/catalogue/platforms.h"
#include "hwknobs_plat/catalogue/rules.h"

#include <array>
#include <iterator>

namespace catalogue {

struct row {
    std::uint32_t id = 0;
    knob what;

    constexpr row(std::uint32_t row_id, const knob& row_knob) : id(row_id), what(row_knob) {}
    constexpr row(const knob& row_knob) : what(row_knob) {}  // NOLINT(google-explicit-constructor)
};

constexpr hwknobs_config make_config(const row& row, bool identified) {
    const auto& [group, name, desc, sets] = row.what;
    return {.desc = desc,
            .arg_type = sets.takes_argument ? 1U : 0U,
            .pl_setting = sets.pl_setting,
            .dt_fragment = sets.dt_fragment,
            .id = row.id,
            .group = identified ? group : hwknobs_group{},
            .name = identified ? name : nullptr};
}

// The rows as the tool knows them. Behind those of version 0 stands an empty one.
template <const auto& Rows, std::uint32_t Version>
consteval auto make_configs() {
    constexpr bool has_ids = Version == version_with_ids;
    std::array<hwknobs_config, std::size(Rows) + (has_ids ? 0 : 1)> configs{};
    for (std::size_t i = 0; i < std::size(Rows); ++i) configs[i] = make_config(Rows[i], has_ids || Rows[i].id != 0);
    return configs;
}
template <const auto& Rows, std::uint32_t Version>
inline constexpr auto configs_of = make_configs<Rows, Version>();

// Row, knob and rule stand in the compiler's message:
// "row_keeps_rules<17, word<17>{"kmemleak_disable"}, catalogue::rule::desc_fits_72_columns>".
template <int Row, word Knob, rule Broken>
struct row_keeps_rules {
    static_assert(Broken == rule::none, "a row of this table breaks a rule: see the template arguments");
    static constexpr bool value = true;
};

template <const auto& Rows, int Row>
consteval auto knob_name() {
    constexpr std::string_view name = text_of(Rows[Row].what.name);
    char chars[name.size() + 1]{};
    name.copy(chars, name.size());
    return word(chars);
}

template <const auto& Rows, verdict Found>
consteval bool keeps_rules() {
    if constexpr (Found.broken == rule::none) return true;
    else return row_keeps_rules<Found.row, knob_name<Rows, Found.row>(), Found.broken>::value;
}

consteval std::uint64_t hw_code_of(std::string_view name) {
    for (const platform_identity& identity : platform_identities)
        if (identity.name == name) return identity.hw_code;
    throw "the platform is not listed in platforms.h";
}

template <const auto& Rows>
consteval hwknobs_plat version_0(const char* name) {
    constexpr auto& configs = configs_of<Rows, 0>;
    static_assert(keeps_rules<Rows, check_version_0(std::span(configs).first(std::size(Rows)))>());
    return {hw_code_of(name), name, configs.data(), 0, 0};
}

template <const auto& Rows>
consteval hwknobs_plat version_2(const char* name) {
    constexpr auto& configs = configs_of<Rows, version_with_ids>;
    static_assert(keeps_rules<Rows, check_version_2(configs)>());
    return {hw_code_of(name), name, configs.data(), version_with_ids, std::size(Rows)};
}

}  // namespace catalogue
