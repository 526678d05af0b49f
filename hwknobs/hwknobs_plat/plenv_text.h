// What may stand in an entry of the plenv block: shared by the rules that the tables must keep and by the block's
// writer and parser.
#pragma once

#include "hwknobs_plat/config_template.h"

#include <cstddef>

/// The bytes that all entries of a block may take together, each with its "=" and its NUL. The entry area has one
/// more: without a zero byte at its end a full block could not be read back.
inline constexpr std::size_t plenv_capacity = 1003;

constexpr bool is_plenv_key_char(char c) { return is_ascii_alnum(c) || c == '_'; }
constexpr bool is_plenv_value_char(char c) { return is_plenv_key_char(c) || c == ',' || c == '-'; }

/// The size of one entry in the block: key, "=", value and NUL.
constexpr std::size_t plenv_entry_size(std::size_t key, std::size_t value) { return key + 1 + value + 1; }
