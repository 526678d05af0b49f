// Rows of the real catalogue, found by what they are.
#pragma once

#include "hwknobs_item/config_item.h"

#include <string>

inline constexpr const char* plat_with_ids = "px8314";

/// The first row of the platform with such an argument; strings with (`listed`) or without allowed values.
inline const hwknobs_config& row_with(config_arg_kind kind, bool listed = false) {
    for (const hwknobs_config& row : hwknobs_configs(*hwknobs_get_plat(plat_with_ids))) {
        const config_item item(&row, row.id);
        if (row.takes_argument() && item.arg_kind == kind && item.allowed_values.empty() != listed) return row;
    }
    throw std::string("no such row");
}
