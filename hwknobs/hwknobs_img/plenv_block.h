// The plenv block: the bootloader's key/value settings, between two signatures and with a checksum.
#pragma once

#include "hwknobs_img/partition_format.h"

#include <map>
#include <span>
#include <string>

using plenv_map = std::map<std::string, std::string>;

/// Lays out the settings in ascending key order. Ends the process when they do not fit; their characters are not
/// looked at.
plenv_block hwknobs_plenv_build(const plenv_map& plenv);

/// The settings of a block. Without its signatures a block holds no settings; a damaged block ends the process.
/// Of a key that occurs twice the first value counts.
plenv_map hwknobs_plenv_parse(const plenv_block& block);

/// The text of a fixed NUL-terminated field, or the empty text when it has no NUL or a byte of 0x80 and above
/// before it.
std::string check_ascii_string(std::span<const char> field);
