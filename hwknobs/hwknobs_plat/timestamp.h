// The time at which a setting was made.
#pragma once

#include <string>

/// The current local time as "2024-05-01 13:45:10". Ends the process when the C library cannot tell it.
std::string hwknobs_get_timestamp();
