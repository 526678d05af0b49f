// What the users of getopt_long() share.
#pragma once

#include <getopt.h>

#include <span>

/// Makes the next getopt_long() start anew: at element 1 of the vector, with the permutation that its own option
/// string asks for.
void restart_option_parser();

/// The name of the long option at `index`. An index outside `options` (its end marker counts) is a broken invariant,
/// reported with the line and signature that belong to the caller.
const char* option_name(std::span<const option> options, int index, int line, const char* function);
