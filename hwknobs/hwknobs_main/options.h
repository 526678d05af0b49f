// Helpers for getopt_long().
#pragma once

#include <getopt.h>

#include <span>
#include <string_view>

/// Makes the next getopt_long() start anew: at element 1 of the vector, with the permutation that its own option
/// string asks for.
void restart_option_parser();

/// The name of the long option at `index`; empty for the end marker. An index outside `options` is a broken invariant,
/// reported with the caller's line and signature.
std::string_view option_name(std::span<const option> options, int index, int line, const char* function);
