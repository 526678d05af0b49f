// How a platform's table is made of knobs. It is written as an array of rows, an id and a knob each; a table of
// version 0, whose rows have no id, name and group, as an array of knobs. version_0<rows>() and version_2<rows>() make
// the platform of it, and do not compile when a row breaks a rule.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"
#include "hwknobs_plat/catalogue/platforms.h"
#include "hwknobs_plat/catalogue/table_rules.h"

#include <array>

namespace catalogue {

struct row {
    std::uint32_t id;
    knob what;
};

constexpr const knob& knob_of(const knob& row) { return row; }
constexpr const knob& knob_of(const row& row) { return row.what; }

constexpr hwknobs_config make_config(const knob& row) {
    return {.desc = row.desc,
            .arg_type = row.sets.takes_argument ? 1U : 0U,
            .pl_setting = row.sets.pl_setting,
            .dt_fragment = row.sets.dt_fragment};
}
constexpr hwknobs_config make_config(const row& row) {
    hwknobs_config config = make_config(row.what);
    config.id = row.id;
    config.group = row.what.group;
    config.name = row.what.name;
    return config;
}

// The rows as the tool knows them, followed by `EndRows` empty ones.
template <const auto& Rows, std::size_t EndRows>
consteval auto make_configs() {
    std::array<hwknobs_config, std::size(Rows) + EndRows> configs{};
    for (std::size_t i = 0; i < std::size(Rows); ++i) configs[i] = make_config(Rows[i]);
    return configs;
}
template <const auto& Rows, std::size_t EndRows>
inline constexpr auto configs_of = make_configs<Rows, EndRows>();

template <const auto& Rows>
consteval auto make_choices() {
    std::array<choice, std::size(Rows)> choices{};
    for (std::size_t i = 0; i < std::size(Rows); ++i) choices[i] = knob_of(Rows[i]).among;
    return choices;
}

// Row, knob and rule stand in the compiler's message:
// "row_keeps_rules<17, word<17>{"kmemleak_disable"}, catalogue::rule::desc_fits_72_columns>".
template <int Row, word Knob, rule Broken>
struct row_keeps_rules {
    static_assert(Broken == rule::none, "a row of this table breaks a rule: see the template arguments");
    static constexpr bool value = true;
};

template <const auto& Rows, int Row>
consteval auto knob_name() {
    constexpr std::string_view name = text_of(knob_of(Rows[Row]).name);
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
    constexpr auto& configs = configs_of<Rows, 1>;
    static_assert(
        keeps_rules<Rows, check_version_0(std::span(configs).first(std::size(Rows)), make_choices<Rows>())>());
    return {hw_code_of(name), name, configs.data(), 0, 0};
}

template <const auto& Rows>
consteval hwknobs_plat version_2(const char* name) {
    constexpr auto& configs = configs_of<Rows, 0>;
    static_assert(keeps_rules<Rows, check_version_2(configs, make_choices<Rows>())>());
    return {hw_code_of(name), name, configs.data(), version_with_ids, std::size(Rows)};
}

}  // namespace catalogue
