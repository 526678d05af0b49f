// The external device-tree compiler: overlay source to blob, and a stored blob back to source.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

/// The compiler's name: the environment variable DTCBIN, or "dtc_vendor", found on the search path.
const char* hwknobs_dt_compiler();

/// Compiles `dts` into `blob` and returns the blob's size. Ends the process when the compiler cannot be run, fails,
/// or prints more than `blob` holds.
std::size_t hwknobs_dt_to_blob(const char* dts, std::span<char> blob);

/// Converts a blob of `length` bytes back to source: a NUL-terminated text that the caller releases with free(), or
/// null when the compiler could not be run (reported on standard error). A compiler that fails gives the empty text.
char* hwknobs_blob_to_dts(const char* blob, long length);
