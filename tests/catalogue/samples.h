// Rows of the catalogue as items with sample arguments.
#pragma once

#include "hwknobs_item/config_item.h"

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

/// Every character that a string argument may hold.
inline constexpr const char* every_argument_char = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789,-_";

/// The fourth row of the test platform: it takes an argument in both halves, and cannot be made an item.
inline bool cannot_be_selected(const hwknobs_config& row) {
    return row.takes_argument() && row.pl_setting.key != nullptr && row.dt_fragment != nullptr;
}

/// The row as an item for each sample of its argument: the lowest and the highest number, each allowed value, or
/// one string with every character. A single item for a row that takes none.
inline std::vector<config_item> sample_items(const hwknobs_config& row, unsigned int number) {
    if (cannot_be_selected(row)) return {};
    config_item item(&row, number);
    std::vector<config_item> items;
    const auto add = [&](auto argument) {
        item.arg = std::move(argument);
        items.push_back(item);
    };
    switch (item.arg_kind) {
        case config_arg_kind::none: items.push_back(item); break;
        case config_arg_kind::int32:
            add(std::numeric_limits<std::int32_t>::min());
            add(std::numeric_limits<std::int32_t>::max());
            break;
        case config_arg_kind::uint32:
            add(std::uint32_t{0});
            add(std::numeric_limits<std::uint32_t>::max());
            break;
        case config_arg_kind::string:
            for (const std::string& value : item.allowed_values) add(value);
            if (item.allowed_values.empty()) add(std::string(every_argument_char));
            break;
    }
    return items;
}

/// The number by which `set` takes a row: its id, or in a version-0 table its position.
inline unsigned int number_of(const hwknobs_plat& plat, const hwknobs_config& row) {
    return plat.version == 2 ? row.id : static_cast<unsigned int>(&row - plat.configs + 1);
}
