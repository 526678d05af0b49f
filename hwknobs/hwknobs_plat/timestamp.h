#pragma once

#include <string>

/// The current local time as "2024-05-01 13:45:10": the form in which a setting records when it was made.
std::string hwknobs_get_timestamp();
