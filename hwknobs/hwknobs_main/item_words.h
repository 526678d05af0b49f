// Item words: the part of a command line that selects settings.
#pragma once

#include "hwknobs_item/config_item.h"

#include <vector>

/// Turns words into items, in their order. `by_name`: settings are named by their name, else by number. `take_args`:
/// a setting that takes an argument is followed by an argument word, "a3", "u3" or "sfoo". The first bad word ends
/// the process; no word at all gives no items.
std::vector<config_item> parse_item_set(int item_argc, char** item_argv, const char* plat, bool take_args,
                                        bool by_name);
